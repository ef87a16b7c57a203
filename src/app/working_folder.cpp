#include "app/working_folder.h"

#include "platform/translations.h"
#include "vocabulary/whole_file.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSet>
#include <QStandardPaths>

namespace app {
namespace {

QByteArray contents(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// "sum  name" lines, as sha256sum writes them.
QSet<QByteArray> shippedVersions(const QDir& shipped)
{
    QSet<QByteArray> lines;
    for (const QByteArray& line :
         contents(shipped.filePath(QStringLiteral("shipped.sha256"))).split('\n'))
        if (!line.startsWith('#')) lines.insert(line.trimmed());
    return lines;
}

// Copies what the player's folder lacks and renews the game's own files in it.
void bringUpToDate(const QDir& shipped, const QString& own)
{
    const QSet<QByteArray> versions = shippedVersions(shipped);
    for (const QString& name : shipped.entryList({QStringLiteral("*.dat")}, QDir::Files)) {
        const QString target = own + '/' + name;
        if (!QFile::exists(target)) {
            QFile::copy(shipped.filePath(name), target);
            continue;
        }
        // A copy that is byte for byte a version the game shipped is the game's to renew;
        // any other the player has edited, and it stays as it is.
        const QByteArray mine = contents(target), now = contents(shipped.filePath(name));
        const QByteArray sum = QCryptographicHash::hash(mine, QCryptographicHash::Sha256).toHex();
        if (mine != now && versions.contains(sum + "  " + name.toLatin1()))
            vocabulary::writeWhole(target, now);
    }
    // The player's guide is the game's, in the player's language.
    const QString readme = QStringLiteral("README.TXT");
    const QByteArray guide = contents(shipped.filePath(readme));
    if (shipped.exists(readme) && contents(own + '/' + readme) != guide)
        vocabulary::writeWhole(own + '/' + readme, guide);
}

} // namespace

QString enterWorkingFolder()
{
    const QDir exe(QCoreApplication::applicationDirPath());
    if (exe.exists(QStringLiteral("frostel.dat")) || exe.exists(QStringLiteral("frostl0.wav"))) {
        QDir::setCurrent(exe.path());
        return exe.path();
    }
    const QDir installed(exe.filePath(QStringLiteral(FROSTEL_DATA_FROM_BINDIR)));
    const QString own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (own.isEmpty() || !QDir().mkpath(own)) {
        QDir::setCurrent(installed.path()); // read-only, but the game plays
        return installed.path();
    }
    // Word files in the player's language where there are such; the sounds stay where
    // they were installed.
    QDir words = installed;
    if (platform::isGerman() && installed.exists(QStringLiteral("de")))
        words.cd(QStringLiteral("de"));
    bringUpToDate(words, own);
    QDir::setCurrent(own);
    return installed.path();
}

} // namespace app
