#pragma once
// Everything the rules read or write: the shared game state, the live options, and the
// game-facing state of the main window's controls. The windows only draw this.
#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>
#include <optional>
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

// The picture series and its point symbol: the apple tree through the year, or the Frostel
// figure melting into spring.
enum class Motif { AppleTree = 0, Frostel = 1 };
// The motif a stored number stands for: only 0 is the apple tree.
inline Motif motifOf(int motivNr) { return motivNr == 0 ? Motif::AppleTree : Motif::Frostel; }

// The options a first start plays with: the game's state starts with them, and the settings
// file reads them for a key it lacks.
namespace defaults {
constexpr int kPlayerCount = 4;
constexpr int kTips = 3;
constexpr Motif kMotif = Motif::Frostel;
constexpr int kSound = 1;        // on
constexpr int kShowSolution = 1; // on
} // namespace defaults

// The module of shared state every window reaches. The German names are the game's own
// (README.md has them all in a table).
struct Global {
    QString Wort;       // "word": the hidden word in capitals; empty before the first
    int16_t Fehler = 0; // "misses" in this word, 0 to 9; also the picture's stage
    int16_t AnzSpieler = defaults::kPlayerCount; // "number of players", 1 to 4
    int16_t AnzTips = defaults::kTips;           // "number of tips" allowed a word, 0 to 3
    int16_t AktSpieler = 0;                      // "current player": the row at turn, 0-based
    int16_t Treffer = 0;                         // "hits": fields uncovered in this word
    std::array<int16_t, kPlayers> Punkte{};      // "points" of each player; 8 win
    int16_t TipZaehler = 0;                      // "tip counter": tips taken in this word
    bool EinstGeaendert = false;                 // "options changed" so that a new game must start
    bool SpielLaeuft = false; // "game running": a start asks before it drops the game
    QString WortDatei;        // "word file": the vocabulary's file name in the working folder
    int16_t MotivNr = int16_t(defaults::kMotif); // "motif number": 0 the apple tree, 1 the Frostel
    bool Geaendert = false; // "changed": the editor's list differs from its file
};

// The options that live in the options window's controls, read by the game at each use.
struct Options {
    int Sound = defaults::kSound;          // on when 1
    int Anzeige = defaults::kShowSolution; // "display": show the solution of a lost word when 1
    // "repeat": [0] all words stay in the list, [1] only words not yet guessed
    std::array<bool, 2> wiederh{true, false};
    std::array<QString, kPlayers> Spieler_Name{"Marta", "Helene", "Matthis", "Svenja"};
};

// A letter tile ("alpha"): a guess by click or key.
struct Tile {
    bool Visible = true;
    bool Enabled = false;
};

// A field ("Feld") of the hidden word: covered, or showing the tile of its letter.
struct Field {
    bool loaded = false;
    bool Visible = false;
    int Left = 0;
    int Top = 0;
    int picture = -1; // -1: the covered tile; otherwise the index of the letter tile shown
};

// A scoreboard row's name ("Spieler"), red at turn.
struct PlayerLabel {
    bool loaded = false;
    bool Visible = true;
    QString Caption;
    uint32_t BackColor = kBlue;
    uint32_t ForeColor = kWhite;
    int Left = 240, Top = 360, Width = kLabelWidth, Height = 360;
};

// A point ("Punkt") of a scoreboard row, shown in the motif's point picture.
struct PointSymbol {
    bool loaded = false;
    bool Visible = false;
    int Left = 2400, Top = 360;
    Motif symbol = Motif::Frostel;
};

// What the main window shows of the game.
struct Board {
    Board();
    std::array<Tile, kTiles> alpha;
    std::vector<Field> Feld; // Feld[0] is the hidden pattern of the word's fields
    // "picture series": which stage's picture shows; stage 0 grows in height at a new word
    std::array<bool, kStages> B_Folge_Visible{};
    int B_Folge0_Height = kPictureSize;
    std::optional<Motif> seriesMotif; // the motif whose pictures B_Folge holds
    std::array<PlayerLabel, kPlayers> Spieler;
    std::array<PointSymbol, kSymbols> Punkt;
    bool tip_Enabled = false;
    bool weiter_Enabled = false; // "go on": a finished word is held until the next word
    // The picture buttons: start, end, tip, next word
    std::array<bool, 4> PicBut_Visible{true, true, true, false};
};

} // namespace core
