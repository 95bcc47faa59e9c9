#pragma once

#include <CorvelGui/PPlaybar>

#include <QCoreApplication>
#include <QList>

namespace Review {

/// The buttons of a playbar, and what they are called.
class PlaybarButtons
{
    Q_DECLARE_TR_FUNCTIONS(Review::PlaybarButtons)

public:
    using Button = CorvelGui::PPlaybar::PlaybackButton;

    PlaybarButtons() = delete;

    /// One name for each button, from left to right.
    static QList<Button> inOrder();
    /// What the button does.
    static QString nameOf(Button button);
};

} // namespace Review
