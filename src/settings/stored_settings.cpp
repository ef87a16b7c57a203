#include "settings/stored_settings.h"

namespace settings {
namespace {

const QString kWindow = QStringLiteral("Window");
const QString kSettings = QStringLiteral("Einstellungen");

int16_t readShort(const Profile& profile, const QString& key, int def)
{
    return int16_t(profile.GetPrivateProfileInt(kSettings, key, def));
}

void write(Profile& profile, const QString& section, const QString& key, double number)
{
    profile.WritePrivateProfileString(section, key, numberForm(number));
}

} // namespace

int16_t readWindowState(const Profile& profile)
{
    return int16_t(profile.GetPrivateProfileInt(kWindow, QStringLiteral("Status"), 0));
}

void readWindowPlace(const Profile& profile, WindowPlace& place, long long centreLeft,
                     long long centreTop)
{
    auto read = [&](const char* key, long long def) {
        return profile.GetPrivateProfileInt(kWindow, QString::fromLatin1(key), int(def));
    };
    place.left = read("Left", centreLeft);
    place.top = read("Top", centreTop);
    place.width = read("Width", WindowPlace{}.width);
    place.height = read("Height", WindowPlace{}.height);
}

void writeWindowPlace(Profile& profile, const WindowPlace& place)
{
    if (place.state != 2) {
        if (place.placed) {
            write(profile, kWindow, QStringLiteral("Left"), double(place.left));
            write(profile, kWindow, QStringLiteral("Top"), double(place.top));
        }
        write(profile, kWindow, QStringLiteral("Width"), place.width);
        write(profile, kWindow, QStringLiteral("Height"), place.height);
    }
    write(profile, kWindow, QStringLiteral("Status"), place.state);
}

void readCounts(const Profile& profile, core::Global& g)
{
    g.AnzSpieler = readShort(profile, QStringLiteral("Anzahl"), 4);
    g.AnzTips = readShort(profile, QStringLiteral("Tips"), 3);
}

QString readWordFileName(const Profile& profile)
{
    // The default is all blanks, which come back empty.
    return profile.GetPrivateProfileString(kSettings, QStringLiteral("Datei"), QString(255, u' '),
                                           255);
}

void readChoices(const Profile& profile, core::Global& g, core::Options& einst)
{
    g.MotivNr = readShort(profile, QStringLiteral("Motiv"), 1);
    const bool all = readShort(profile, QStringLiteral("Wiederholung"), 1) == -1;
    einst.wiederh = {all, !all};
    einst.Sound = readShort(profile, QStringLiteral("Sound"), 1);
    einst.Anzeige = readShort(profile, QStringLiteral("Anzeige"), 1);
}

void readNames(const Profile& profile, core::Options& einst)
{
    for (int i = 0; i < core::kPlayers; ++i) {
        const QString n = QString::number(i + 1);
        const QString name = profile
                                 .GetPrivateProfileString(kSettings, QStringLiteral("Spieler") + n,
                                                          QStringLiteral("Spieler ") + n, 25)
                                 .trimmed();
        const bool isDefault = name.size() >= 9 && name[8] >= u'1' && name[8] <= u'4';
        if (!isDefault) einst.Spieler_Name[i] = name;
    }
}

void writeOptions(Profile& profile, const core::Global& g, const core::Options& einst)
{
    write(profile, kSettings, QStringLiteral("Anzahl"), g.AnzSpieler);
    write(profile, kSettings, QStringLiteral("Sound"), einst.Sound);
    write(profile, kSettings, QStringLiteral("Anzeige"), einst.Anzeige);
    write(profile, kSettings, QStringLiteral("Wiederholung"), einst.wiederh[0] ? -1 : 0);
    write(profile, kSettings, QStringLiteral("Tips"), g.AnzTips);
    for (int i = 0; i < core::kPlayers; ++i)
        profile.WritePrivateProfileString(kSettings, QStringLiteral("Spieler%1").arg(i + 1),
                                          einst.Spieler_Name[i]);
    profile.WritePrivateProfileString(kSettings, QStringLiteral("Datei"), g.WortDatei);
    write(profile, kSettings, QStringLiteral("Motiv"), g.MotivNr);
}

} // namespace settings
