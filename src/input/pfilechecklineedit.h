// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QLineEdit>

#include <memory>

namespace CorvelGui {

/// A field for the path of an existing regular file, with the status red of the theme as its
/// background while there is none. The text is judged when it changes, never before.
///
/// The palette of the widget belongs to this class; it follows a change of the look.
class CORVELGUI_EXPORT PFileCheckLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit PFileCheckLineEdit(QWidget* parent = nullptr);
    ~PFileCheckLineEdit() override;

protected:
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void slotFileNameChanged(const QString& text);

private:
    void showVerdict();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
