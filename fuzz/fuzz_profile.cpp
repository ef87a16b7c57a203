// Any bytes as a settings file: reading must not fail, and a write must keep the file
// readable and hold the value written.
#include "settings/profile.h"

#include <QFile>
#include <QTemporaryDir>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("frostel.ini"));
    {
        QFile f(path);
        if (!f.open(QIODevice::WriteOnly)) return 0;
        f.write(reinterpret_cast<const char*>(data), qsizetype(size));
    }
    settings::Profile p(path);
    p.GetPrivateProfileInt(QStringLiteral("Einstellungen"), QStringLiteral("Anzahl"), 4);
    p.GetPrivateProfileString(QStringLiteral("Window"), QStringLiteral("Left"), QStringLiteral(" "),
                              25);
    if (p.WritePrivateProfileString(QStringLiteral("Einstellungen"), QStringLiteral("Tips"),
                                    QStringLiteral(" 2")) &&
        p.GetPrivateProfileInt(QStringLiteral("Einstellungen"), QStringLiteral("Tips"), -9) != 2)
        std::abort();
    return 0;
}
