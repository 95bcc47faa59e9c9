// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

/// What stands beside a widget's name in the box of widgets.
enum class Pictogram {
    Timeline,
    Player,
    Slider,
    Entry,
    Choice,
    Button,
    Text,
    List,
    Picture,
    Progress,
    Page
};

QIcon iconOf(Pictogram pictogram);
