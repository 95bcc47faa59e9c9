// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QLabel>

namespace CorvelGui {

/// Says what is wrong, beside a sign and in the theme's colour of errors, and is not there while
/// nothing is wrong. A new error is announced to assistive technology.
///
/// The text is plain, wraps and can be selected. To keep its room while it is hidden, set
/// QSizePolicy::setRetainSizeWhenHidden().
class CORVELGUI_EXPORT PErrorLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QString error READ error WRITE setError NOTIFY errorChanged)

public:
    explicit PErrorLabel(QWidget* parent = nullptr);

    QString error() const { return text(); }

public Q_SLOTS:
    /// Shows @p error; an empty text hides the label. A label without parent appears with the
    /// parent that it gets.
    void setError(const QString& error);
    void clearError() { setError({}); }

Q_SIGNALS:
    /// Emitted when the text is another one, after it is shown.
    void errorChanged(const QString& error);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void appear();
    void takeLook();
    int signSize() const;
};

} // namespace CorvelGui
