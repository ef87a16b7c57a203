#include "settings/stored_settings.h"

namespace settings {
namespace {

// A key of the file and what it reads as when missing.
struct NumberKey {
    const char* section;
    const char* name;
    int missing = 0;
};
struct TextKey {
    const char* section;
    const char* name;
    const char* missing;
    int size; // at most size - 1 characters are read
};

// Every key of the file, each section's in the order they are written.
constexpr char kWindow[] = "Window";
constexpr NumberKey kLeft{kWindow, "Left"}; // missing: the centred place, known at the start
constexpr NumberKey kTop{kWindow, "Top"};
constexpr NumberKey kWidth{kWindow, "Width", WindowPlace{}.width};
constexpr NumberKey kHeight{kWindow, "Height", WindowPlace{}.height};
constexpr NumberKey kStatus{kWindow, "Status", WindowPlace{}.state};

constexpr char kSettings[] = "Einstellungen";
constexpr NumberKey kAnzahl{kSettings, "Anzahl", core::defaults::kPlayerCount};
constexpr NumberKey kSound{kSettings, "Sound", core::defaults::kSound};
constexpr NumberKey kAnzeige{kSettings, "Anzeige", core::defaults::kShowSolution};
// -1 all words; anything else, a missing key too, only the words not guessed yet.
constexpr NumberKey kWiederholung{kSettings, "Wiederholung", 1};
constexpr NumberKey kTips{kSettings, "Tips", core::defaults::kTips};
constexpr TextKey kSpieler[core::kPlayers]{{kSettings, "Spieler1", "Spieler 1", 25},
                                           {kSettings, "Spieler2", "Spieler 2", 25},
                                           {kSettings, "Spieler3", "Spieler 3", 25},
                                           {kSettings, "Spieler4", "Spieler 4", 25}};
constexpr TextKey kDatei{kSettings, "Datei", "", 255};
constexpr NumberKey kMotiv{kSettings, "Motiv", int(core::defaults::kMotif)};

int number(const Profile& profile, const NumberKey& key, int missing)
{
    return profile.GetPrivateProfileInt(QString::fromLatin1(key.section),
                                        QString::fromLatin1(key.name), missing);
}

int number(const Profile& profile, const NumberKey& key)
{
    return number(profile, key, key.missing);
}

QString text(const Profile& profile, const TextKey& key)
{
    return profile.GetPrivateProfileString(QString::fromLatin1(key.section),
                                           QString::fromLatin1(key.name),
                                           QString::fromLatin1(key.missing), key.size);
}

void write(Profile& profile, const TextKey& key, const QString& value)
{
    profile.WritePrivateProfileString(QString::fromLatin1(key.section),
                                      QString::fromLatin1(key.name), value);
}

void write(Profile& profile, const NumberKey& key, double value)
{
    profile.WritePrivateProfileString(QString::fromLatin1(key.section),
                                      QString::fromLatin1(key.name), numberForm(value));
}

} // namespace

int16_t readWindowState(const Profile& profile) { return int16_t(number(profile, kStatus)); }

void readWindowPlace(const Profile& profile, WindowPlace& place, long long centreLeft,
                     long long centreTop)
{
    place.left = number(profile, kLeft, int(centreLeft));
    place.top = number(profile, kTop, int(centreTop));
    place.width = number(profile, kWidth);
    place.height = number(profile, kHeight);
}

void writeWindowPlace(Profile& profile, const WindowPlace& place)
{
    if (place.state != 2) {
        if (place.placed) {
            write(profile, kLeft, double(place.left));
            write(profile, kTop, double(place.top));
        }
        write(profile, kWidth, place.width);
        write(profile, kHeight, place.height);
    }
    write(profile, kStatus, place.state);
}

void readCounts(const Profile& profile, core::Global& g)
{
    g.AnzSpieler = int16_t(number(profile, kAnzahl));
    g.AnzTips = int16_t(number(profile, kTips));
}

QString readWordFileName(const Profile& profile) { return text(profile, kDatei); }

void readChoices(const Profile& profile, core::Global& g, core::Options& einst)
{
    g.MotivNr = int16_t(number(profile, kMotiv));
    const bool all = int16_t(number(profile, kWiederholung)) == -1;
    einst.wiederh = {all, !all};
    einst.Sound = int16_t(number(profile, kSound));
    einst.Anzeige = int16_t(number(profile, kAnzeige));
}

void readNames(const Profile& profile, core::Options& einst)
{
    for (int i = 0; i < core::kPlayers; ++i) {
        const QString name = text(profile, kSpieler[i]).trimmed();
        const bool isDefault = name.size() >= 9 && name[8] >= u'1' && name[8] <= u'4';
        if (!isDefault) einst.Spieler_Name[i] = name;
    }
}

void writeOptions(Profile& profile, const core::Global& g, const core::Options& einst)
{
    write(profile, kAnzahl, g.AnzSpieler);
    write(profile, kSound, einst.Sound);
    write(profile, kAnzeige, einst.Anzeige);
    write(profile, kWiederholung, einst.wiederh[0] ? -1 : 0);
    write(profile, kTips, g.AnzTips);
    for (int i = 0; i < core::kPlayers; ++i) write(profile, kSpieler[i], einst.Spieler_Name[i]);
    write(profile, kDatei, g.WortDatei);
    write(profile, kMotiv, g.MotivNr);
}

} // namespace settings
