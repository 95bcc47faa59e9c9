// SPDX-License-Identifier: MIT
#include "keyboardpage.h"

#include "playback/speedmenu.h"

#include <QFormLayout>
#include <QKeySequenceEdit>
#include <QLabel>

#include <algorithm>

using CorvelGui::PPlaybar;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

// One key that plays and pauses in turn.
bool mayShareKeys(PPlaybar::PlaybackButton one, PPlaybar::PlaybackButton other)
{
    return std::minmax(one, other) == std::minmax(PPlaybar::PauseButton, PPlaybar::PlayButton);
}

} // namespace

KeyboardPage::KeyboardPage(SettingsStore& store, UsedShortcuts usedElsewhere)
    : ClientPage(store, u"playback"_s, u"keyboard"_s), m_usedElsewhere(std::move(usedElsewhere))
{
    retranslate();
}

void KeyboardPage::build(QFormLayout& form)
{
    m_rows.clear();
    for (const PPlaybar::PlaybackButton button : PPlaybar::buttons()) {
        auto* edit = new QKeySequenceEdit;
        edit->setClearButtonEnabled(true);
        m_rows.append({button, addRow(form, edit), edit});
        connect(edit, &QKeySequenceEdit::keySequenceChanged, this, &KeyboardPage::showConflicts);
    }
    m_speeds = addNote(form);
    m_message = addNote(form);
    m_message->setTextFormat(Qt::PlainText);
}

void KeyboardPage::show(const ReviewSettings& settings)
{
    for (const Row& row : std::as_const(m_rows))
        row.edit->setKeySequence(settings.shortcuts.value(row.button));
}

void KeyboardPage::take(ReviewSettings& settings) const
{
    for (const Row& row : m_rows) {
        if (conflict(row).isEmpty())
            settings.shortcuts[row.button] = row.edit->keySequence();
    }
}

QString KeyboardPage::pageName() const
{
    return tr("Keyboard");
}

QString KeyboardPage::categoryName() const
{
    return tr("Playback");
}

void KeyboardPage::retranslateFields()
{
    for (const Row& row : std::as_const(m_rows)) {
        row.label->setText(tr("%1:").arg(PPlaybar::buttonName(row.button)));
        // The names of the keys are translated, too.
        const QKeySequence keys = row.edit->keySequence();
        row.edit->clear();
        row.edit->setKeySequence(keys);
    }
    m_speeds->setText(tr("%1 plays slower, %2 faster. The playback menu has all speeds.")
                          .arg(SpeedMenu::slowerKeys().toString(QKeySequence::NativeText),
                               SpeedMenu::fasterKeys().toString(QKeySequence::NativeText)));
    showConflicts();
}

// Why the shortcut of the row is not taken over; empty if it is.
QString KeyboardPage::conflict(const Row& row) const
{
    const QKeySequence keys = row.edit->keySequence();
    if (keys.isEmpty())
        return {};
    const QString name = PPlaybar::buttonName(row.button);
    const QString text = keys.toString(QKeySequence::NativeText);
    for (const Row& other : m_rows) {
        if (other.button != row.button && other.edit->keySequence() == keys &&
            !mayShareKeys(other.button, row.button))
            return tr("%1: %2 is also set for “%3”.")
                .arg(name, text, PPlaybar::buttonName(other.button));
    }
    const QString user = m_usedElsewhere().value(keys);
    return user.isEmpty() ? QString() : tr("%1: %2 belongs to “%3”.").arg(name, text, user);
}

void KeyboardPage::showConflicts()
{
    QStringList lines;
    for (const Row& row : std::as_const(m_rows)) {
        if (const QString line = conflict(row); !line.isEmpty())
            lines.append(line);
    }
    if (!lines.isEmpty())
        lines.append(tr("Such shortcuts are not taken over."));
    m_message->setText(lines.join(u'\n'));
    m_message->setVisible(!lines.isEmpty());
}

} // namespace Review
