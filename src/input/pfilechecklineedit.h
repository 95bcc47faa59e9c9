#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QLineEdit>
#include <QPalette>

namespace CorvelGui {

/// A field for the path of an existing regular file, with the status red of the theme as its
/// background while there is none. The text is judged when it changes, never before.
class CORVELGUI_EXPORT PFileCheckLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit PFileCheckLineEdit(QWidget* parent = nullptr);
    ~PFileCheckLineEdit() override;

private Q_SLOTS:
    void slotFileNameChanged(const QString& text);

private:
    QPalette m_normalPalette;
    QPalette m_errorPalette;
    QString m_directory; // of the last file that existed
};

} // namespace CorvelGui
