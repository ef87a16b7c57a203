#pragma once
// The settings file's sections and keys, read in the order the start-up needs them. Each key
// and what it reads as when missing is named once, in a table the reading and the writing share.
#include "core/state.h"
#include "settings/profile.h"

namespace settings {

// Section "Window": the main window's state, and its outer place and size in twips.
struct WindowPlace {
    int16_t state = 0; // 0 normal, 1 minimised, 2 maximised
    long long left = 0, top = 0;
    int width = 9600, height = 6900;
    bool placed = true; // false: the place is not the program's to know, and is not written
};

int16_t readWindowState(const Profile& profile);
// Place and size, the place by default the given centre.
void readWindowPlace(const Profile& profile, WindowPlace& place, long long centreLeft,
                     long long centreTop);
// A maximised window stores its state alone: the place it had before stays in the file.
void writeWindowPlace(Profile& profile, const WindowPlace& place);

// Section "Einstellungen". The counts come first: the options window loads between them and
// the rest.
void readCounts(const Profile& profile, core::Global& g);
QString readWordFileName(const Profile& profile);
void readChoices(const Profile& profile, core::Global& g, core::Options& einst);
// A stored default name ("Spieler 3", or any with 1 to 4 as its ninth character) leaves the
// game's own name in place.
void readNames(const Profile& profile, core::Options& einst);
// What OK stores: eleven keys, in their order.
void writeOptions(Profile& profile, const core::Global& g, const core::Options& einst);

} // namespace settings
