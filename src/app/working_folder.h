#pragma once
#include <QString>

namespace app {

// Makes the game's working folder current and returns it. In the build tree that is the
// executable's own folder, where the build puts word files and sounds. An installed game
// plays in a per-user data folder, filled from the installed copy with whatever it lacks,
// so the player's edited word files are never overwritten; a German player gets the German
// word files.
QString enterWorkingFolder();

} // namespace app
