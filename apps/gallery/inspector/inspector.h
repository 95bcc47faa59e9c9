// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

#include <memory>

class QComboBox;
class QPlainTextEdit;
class QToolButton;

namespace Gallery {

class CodeWriter;
class PropertyModel;

/// Shows a widget of a page: its properties, to play with, and the code that makes it.
class Inspector : public QWidget
{
    Q_OBJECT

public:
    explicit Inspector(QWidget* parent = nullptr);
    ~Inspector() override;

    /// Lists the libraries' widgets on @p page, and shows the first of them.
    void setPage(QWidget* page);
    QList<QWidget*> widgets() const;

    QWidget* inspected() const { return m_inspected; }
    /// A widget that is not on the page is ignored.
    void inspect(const QWidget* widget);

protected:
    void showEvent(QShowEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void listWidgets();
    void showCurrent();
    void setPicking(bool on);
    void pickAt(const QPoint& globalPosition);
    void writeCode();
    void copyCode();

    QPointer<QWidget> m_page;
    QPointer<QWidget> m_inspected;
    std::unique_ptr<CodeWriter> m_writer;
    QList<QPointer<QWidget>> m_widgets;
    PropertyModel* m_model;
    QComboBox* m_choice;
    QToolButton* m_pick;
    QPlainTextEdit* m_code;
};

} // namespace Gallery
