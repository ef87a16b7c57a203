#include "app/working_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
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
    const QStringList shipped =
        installed.entryList({QStringLiteral("*.dat"), QStringLiteral("*.wav")}, QDir::Files);
    for (const QString& name : shipped) {
        const QString target = own + '/' + name;
        if (!QFile::exists(target)) QFile::copy(installed.filePath(name), target);
    }
    QDir::setCurrent(own);
    return own;
}

} // namespace app
