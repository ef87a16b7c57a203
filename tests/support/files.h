#pragma once
// Whole-file reads and writes for tests that look at bytes on disk.
#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QString>

namespace support {

// The file's bytes; "<unreadable>" when it cannot be opened or is no plain file (a pipe or a
// device would never end), so a missing file never compares equal to an empty one.
inline QByteArray readAll(const QString& path)
{
    QFile f(path);
    return QFileInfo(path).isFile() && f.open(QIODevice::ReadOnly) ? f.readAll()
                                                                   : QByteArray("<unreadable>");
}

inline bool writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
}

} // namespace support
