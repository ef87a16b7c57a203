#pragma once
// Sound lives in a module of its own that the toolkit loads at the first sound: the
// multimedia libraries and the audio server's client then cost nothing at start-up, and
// nothing at all with sound switched off.
#include <QString>

namespace platform {

class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;
    // Plays the WAV file at `path` (absolute); a new sound cuts off the one before.
    virtual void play(const QString& path) = 0;
};

// The module's one entry point, looked up by this name.
using CreateSoundPlayer = SoundPlayer* (*)();
inline constexpr char kCreateSoundPlayer[] = "frostel32_create_sound_player";

} // namespace platform
