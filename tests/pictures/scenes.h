// SPDX-License-Identifier: MIT
#pragma once

class Sheet;

/// What each sheet shows, in the look that is active.
namespace Scenes {

void icons(Sheet& sheet);
void colours(Sheet& sheet);
void controls(Sheet& sheet);

void rulerZooms(Sheet& sheet);
void rulerRanges(Sheet& sheet);
void rulerStates(Sheet& sheet);
void markers(Sheet& sheet);
void lanes(Sheet& sheet);
void overview(Sheet& sheet);

void playbar(Sheet& sheet);
void sliders(Sheet& sheet);
void dates(Sheet& sheet);

void lineEdits(Sheet& sheet);
void smallInputs(Sheet& sheet);

void lists(Sheet& sheet);
void tabs(Sheet& sheet);

void images(Sheet& sheet);
void progress(Sheet& sheet);
void report(Sheet& sheet);

void messages(Sheet& sheet);
void dialogs(Sheet& sheet);
void options(Sheet& sheet);
void updates(Sheet& sheet);

} // namespace Scenes
