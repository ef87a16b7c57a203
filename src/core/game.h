#pragma once
// The game's rules. Commands come in; state goes out for the windows to draw.
#include "core/state.h"
#include "core/toolkit.h"

#include <QCoreApplication>
#include <QPoint>
#include <deque>
#include <functional>
#include <vector>

namespace core {

// Numbers as the game computes them: to the nearest whole number, ties to the even one.
long long cint(double x);
// a \ b: a to the nearest whole number, then divided, the remainder dropped.
long long idiv(double a, long long b);
// Each character in capitals, one for one.
QString capitals(const QString& word);

// A player's action. Each is judged when it runs, not when it arrived.
struct Command {
    enum class Kind { Tile, Key, Start, Ende, Tip, Weiter, PicBut, Run };
    Kind kind;
    int index = 0;
    std::function<void()> run; // for Run: a command whose handler lives in a window
};

class Game {
    Q_DECLARE_TR_FUNCTIONS(Game)

public:
    explicit Game(Toolkit& toolkit);
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    Global g;
    Options einst;
    Board board;
    QStringList List1; // the words still to draw
    int16_t FeldZahl = 0;

    // Every player action enters here. An action on a control that is disabled or hidden at
    // this moment raises nothing, and letters count only while a word is open. While a
    // guess, a draw or a wait runs, the rest is queued and runs in order once it has
    // returned; only a held WeiterWarten runs commands as they come, and only until one of
    // them has ended it. So no guess or draw ever starts inside another. Enter is judged
    // where the game next serves events, so one pressed just before a hold ends it.
    void submit(Command command);
    void tile(int index) { submit({Command::Kind::Tile, index, {}}); }
    void key(int keyAscii) { submit({Command::Kind::Key, keyAscii, {}}); }
    void start() { submit({Command::Kind::Start, 0, {}}); }
    void ende() { submit({Command::Kind::Ende, 0, {}}); }
    void tip() { submit({Command::Kind::Tip, 0, {}}); }
    void weiter() { submit({Command::Kind::Weiter, 0, {}}); }
    void picBut(int index) { submit({Command::Kind::PicBut, index, {}}); }
    void run(std::function<void()> handler) { submit({Command::Kind::Run, 0, std::move(handler)}); }

    // Start-up's part of the game: the four scoreboard rows with the names in the options,
    // the motif's pictures, stage 0, and a new game.
    void setUpBoard();
    // Runs a routine outside any command (start-up). Stops quietly if the program ends.
    void routine(const std::function<void()>& body);
    bool busy() const { return depth_ > 0; }
    bool ended() const { return ended_; }
    // The fields of a word stand and it takes letters.
    bool wordOpen() const { return wordOpen_; }
    // The main window has gone: every routine stops at the next point it waits or serves.
    void programEnded();

    // The routines, by their names in the game.
    void start_Click();
    void weiter_Click();
    void WeiterWarten();
    void tip_Click();
    void ende_Click();
    // The options command: shows the options (modal) through the caller's function, then
    // swaps the pictures if the motif changed and restarts the game if a setting asks so.
    void opt_Click(const std::function<void()>& showOptions);
    void PicBut_Click(int Index);
    void alpha_Click(int Index);
    void Form_KeyPress(int KeyAscii);
    void Aufloesung();
    void NeuesSpiel();
    void NaechsterSpieler();
    void NeuesWort();
    void Warten(double seconds);
    void WoerterLaden();
    void MotivSetzen();
    // The places, in twips, the window's layout gives the word's fields (index 0 the
    // pattern); a field that comes or goes while a word is drawn keeps its own.
    void placeFields(const std::vector<QPoint>& places);
    // Cuts a caption to the label's width in steps of one character and a ".".
    QString shortenCaption(QString caption);

    // AnzSpieler as far as the four rows reach: a hand-edited count never indexes past them.
    int players() const;
    bool soundOn() const { return einst.Sound == 1; }

private:
    // The scoreboard row of player i: its label, then its eight symbols.
    void createPlayerLabel(int i);
    void createPlayerSymbols(int i);
    // A word now: the held guess's wait ends and it draws one, else one is drawn here.
    void nextWord();
    struct Ended {}; // unwinds a routine once the program has ended

    // Whether the command's control takes input now.
    bool takesInput(const Command& command) const;
    bool letterTakesInput(int tile) const;
    void drain();
    void runNext();
    void execute(const Command& command);
    void serve();
    void playSound(int n);
    int box(const QString& text, int type, const QString& title);
    [[noreturn]] void unloadMainWindow();
    void throwIfEnded() const;
    void setTurnColours(int player, bool atTurn);
    void setTilesEnabled(bool enabled);
    void uncover(int position, int tileIndex);
    void wordSolved();
    void miss();
    void wordLost();

    Toolkit& tk_;
    std::deque<Command> queue_;
    int depth_ = 0;
    bool ended_ = false;
    bool holding_ = false;     // WeiterWarten holds the finished word
    bool wordOpen_ = false;    // the fields of a word stand and no guess has solved it
    bool toldNoWords_ = false; // the player knows a start finds no words
};

} // namespace core
