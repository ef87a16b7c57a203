#pragma once
// Everything the rules read or write: the shared game state, the live options, and the
// game-facing state of the main window's controls. The windows only draw this.
#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>
#include <vector>

namespace core {

constexpr int kLetters = 26; // tiles 0..25 take part in the game
constexpr int kTiles = 29;   // 26..28 carry the umlauts and stay hidden
constexpr int kStages = 10;  // pictures of a series; the 9th miss loses the word
constexpr int kLostAt = 9;
constexpr int kPlayers = 4;
constexpr int kPointsToWin = 8;
constexpr int kSymbols = kPlayers * kPointsToWin;

// Twips: 15 to a pixel at the design resolution.
constexpr int kTileWidth = 375, kTileHeight = 450, kTilePitch = 450;
constexpr int kPictureSize = 2400;
constexpr int kLabelWidth = 1900;
constexpr int kPointWidth = 390;

// Colours in the toolkit's &HBBGGRR form.
constexpr uint32_t kBlue = 0xFF0000, kRed = 0x0000FF, kWhite = 0xFFFFFF, kLightGrey = 0xC0C0C0;

// The letter a tile carries.
QChar tileTag(int index);

// The module of shared state every window reaches.
struct Global {
    QString Wort;
    int16_t Fehler = 0;
    int16_t AnzSpieler = 4;
    int16_t AnzTips = 3;
    int16_t AktSpieler = 0;
    int16_t Treffer = 0;
    std::array<int16_t, kPlayers> Punkte{};
    int16_t TipZaehler = 0;
    bool EinstGeaendert = false;
    bool SpielLaeuft = false;
    QString WortDatei;
    int16_t MotivNr = 1;
    bool Geaendert = false;
};

// The options that live in the options window's controls, read by the game at each use.
struct Options {
    int Sound = 1;   // on when 1
    int Anzeige = 1; // show the solution of a lost word when 1
    std::array<bool, 2> wiederh{true, false};
    std::array<QString, kPlayers> Spieler_Name{"Marta", "Helene", "Matthis", "Svenja"};
};

struct Tile {
    bool Visible = true;
    bool Enabled = false;
};

struct Field {
    bool loaded = false;
    bool Visible = false;
    int Left = 0;
    int Top = 0;
    int picture = -1; // -1: the covered tile; otherwise the index of the letter tile shown
};

struct PlayerLabel {
    bool loaded = false;
    bool Visible = true;
    QString Caption;
    uint32_t BackColor = kBlue;
    uint32_t ForeColor = kWhite;
    int Left = 240, Top = 360, Width = kLabelWidth, Height = 360;
};

struct PointSymbol {
    bool loaded = false;
    bool Visible = false;
    int Left = 2400, Top = 360;
    int symbol = 1; // which of the two point symbols it shows
};

// What the main window shows of the game.
struct Board {
    Board();
    std::array<Tile, kTiles> alpha;
    std::vector<Field> Feld; // Feld[0] is the hidden pattern of the word's fields
    std::array<bool, kStages> B_Folge_Visible{};
    int B_Folge0_Height = kPictureSize;
    int seriesMotif = -1; // the motif whose pictures B_Folge holds; -1: none yet
    std::array<PlayerLabel, kPlayers> Spieler;
    std::array<PointSymbol, kSymbols> Punkt;
    bool tip_Enabled = false;
    bool weiter_Enabled = false;
    std::array<bool, 4> PicBut_Visible{true, true, true, false};
};

} // namespace core
