// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/corvelgui_export.h>

#include <QList>
#include <QString>
#include <QWidget>

namespace CorvelGui {

/// Optional base of the widget that a settings page shows. It can name the texts of its controls,
/// as words to search for by a search of one's own: that of OptionsDialog asks
/// ISettingsPage::matches().
class CORVELGUI_EXPORT SettingsBaseWidget : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsBaseWidget(QWidget* parent);

    virtual QList<QString> searchKeywords();

protected:
    /// The titles of all group boxes, then the texts of all labels, check boxes, push buttons and
    /// radio buttons, as they stand: with their "&", empty and repeated ones included.
    QList<QString> getSearchKeywordsFromControls();
};

} // namespace CorvelGui
