// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/IUserSettings>
#include <CorvelGui/corvelgui_export.h>

#include <QComboBox>
#include <QStringList>

namespace CorvelGui {

/// A field to type in that offers what was used before, the latest first. Enter and a choice in the
/// list make a text the latest one; a client that reads the field otherwise, such as when a dialog
/// is accepted, calls rememberText(). In the open list Delete forgets an entry, and the field's
/// context menu forgets all.
///
/// Another field may stand in it by setLineEdit(), such as one that judges.
///
/// maxCount() is how many are remembered, 10 at first. The entries belong to the class. A receiver
/// that wants to remove the box calls deleteLater(): QComboBox still works on itself after its own
/// signals.
class CORVELGUI_EXPORT PRecentComboBox : public QComboBox, public IUserSettings
{
    Q_OBJECT
    Q_PROPERTY(
        QStringList recentTexts READ recentTexts WRITE setRecentTexts NOTIFY recentTextsChanged)

public:
    /// More characters than these are not remembered.
    static constexpr int longestText = 2'000;

    explicit PRecentComboBox(QWidget* parent = nullptr);

    /// The latest first.
    QStringList recentTexts() const;
    /// Texts without anything but white space, too long ones, and those that come again are left
    /// out, and so is what is more than maxCount(). What stands in the field stays.
    void setRecentTexts(const QStringList& texts);

    /// Writes the texts under the key "RecentTexts" of the store's current group. Give each box a
    /// group of its own.
    void writeUserSettings(QSettings& settings) const override;
    /// Takes the texts from there, as setRecentTexts() does. Without the key nothing changes.
    void readUserSettings(QSettings& settings) override;

public Q_SLOTS:
    /// Makes what stands in the field the latest text, without white space at its ends.
    void rememberText();
    void forgetTexts() { setRecentTexts({}); }

Q_SIGNALS:
    /// Emitted when the list is another one, whoever changed it.
    void recentTextsChanged(const QStringList& texts);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void adoptField();
    void forgetHighlighted();
    void showFieldMenu(QPoint position);
    void retranslate();
};

} // namespace CorvelGui
