#pragma once
#include <QString>

namespace app {

// Makes the game's working folder current and returns the folder of the sounds. In the build tree
// that is the executable's own folder, where the build puts word files and sounds. An installed
// game plays in a per-user data folder: a German player gets the German word files, copied there
// when missing, and a copy the player never edited is renewed when a newer version is installed; an
// edited one is never touched. The sounds are played from where they were installed.
QString enterWorkingFolder();

} // namespace app
