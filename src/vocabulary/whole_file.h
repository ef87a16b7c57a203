#pragma once
// Every file the game writes (word files, the profile, the player's copies) is written whole
// or not at all.
#include <QFileDevice>
#include <QString>
#include <optional>

namespace vocabulary {

struct WriteFailure {
    enum Stage { Open, Write, Commit } stage;
    QFileDevice::FileError error;
    QString text;
    bool diskFull = false; // no room left on the disk, or for a file this large
};

// Replaces the file at `path` with `bytes`; the old file stays whole until every byte has
// reached the new one. With `inPlaceFallback`, a folder that takes no new file still lets a
// writable old one be written in place.
std::optional<WriteFailure> writeWhole(const QString& path, const QByteArray& bytes,
                                       bool inPlaceFallback = false);

} // namespace vocabulary
