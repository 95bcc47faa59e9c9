// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QTextEdit>
#include <QUrl>

#include <memory>

namespace CorvelGui {

/// A field for a note of several lines: plain text only, whatever is pasted or dropped, with a
/// limit to its length that is shown as a counter, and web addresses that can be opened.
///
/// A link is opened by Ctrl and a click, or by Ctrl+Enter where the cursor stands; in a read-only
/// field a click will do. Tab leaves the field. The accessible description belongs to the class
/// while there is a limit. A receiver of textChanged() or textCut() that wants to remove the field
/// calls deleteLater(): QTextEdit still works on itself after the former.
class CORVELGUI_EXPORT PTextEdit : public QTextEdit
{
    Q_OBJECT
    Q_PROPERTY(
        int maximumLength READ maximumLength WRITE setMaximumLength NOTIFY maximumLengthChanged)
    Q_PROPERTY(bool openExternalLinks READ openExternalLinks WRITE setOpenExternalLinks NOTIFY
                   openExternalLinksChanged)

public:
    explicit PTextEdit(QWidget* parent = nullptr);
    ~PTextEdit() override;

    /// In characters of QString, the ends of lines included; 0, as at first, for no limit, and so
    /// are negative numbers. What the user inserts beyond it is cut off at its end. A text that a
    /// client makes longer, and one that is longer than a new limit, loses its end, and nothing can
    /// be undone then.
    int maximumLength() const;
    void setMaximumLength(int length);

    /// Whether links open in the desktop's browser; off at first.
    bool openExternalLinks() const;
    void setOpenExternalLinks(bool open);

Q_SIGNALS:
    void maximumLengthChanged(int length);
    void openExternalLinksChanged(bool open);
    /// Emitted when something was cut off to keep the limit, or a key did nothing because of it.
    void textCut();
    /// Emitted when the user opens a link, unless the desktop's browser does.
    void linkActivated(const QUrl& address);

protected:
    bool viewportEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void keepLimit();
    QString cutToRoom(const QString& text, int replaced = 0);
    void showCount();
    void placeCounter();
    QUrl linkAt(QPoint position) const;
    bool opensByClick(const QMouseEvent& event) const;
    void openLink(const QUrl& address);

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
