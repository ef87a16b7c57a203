#include "app/working_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QStandardPaths>

namespace app {

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
    // Word files in the player's language where there are such, sounds for everyone.
    QDir words = installed;
    if (QLocale().language() == QLocale::German && installed.exists(QStringLiteral("de")))
        words.cd(QStringLiteral("de"));
    const auto fill = [&own](const QDir& from, const QString& pattern) {
        for (const QString& name : from.entryList({pattern}, QDir::Files)) {
            const QString target = own + '/' + name;
            if (!QFile::exists(target)) QFile::copy(from.filePath(name), target);
        }
    };
    fill(words, QStringLiteral("*.dat"));
    fill(installed, QStringLiteral("*.wav"));
    QDir::setCurrent(own);
    return own;
}

} // namespace app
