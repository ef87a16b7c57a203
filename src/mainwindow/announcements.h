#pragma once
// What a screen reader hears of the game: the names of the board's controls, and what
// happened between two looks at the board, as a sighted player would see it happen.
#include "core/game.h"

#include <QCoreApplication>
#include <QStringList>
#include <array>

namespace mainwindow {

// The board as a player sees it at one moment.
struct Seen {
    QString shown;     // the word's fields: a letter, or ' ' where covered
    QString word;      // the word being played, empty with none
    bool open = false; // the word takes letters
    QString hit;       // letters played that the word holds
    QString missed;    // letters played that the word does not hold
    int fehler = 0;
    int turn = 0;
    int tips = 0;       // tips taken of this word, as the game counts them
    bool tipOn = false; // a tip can be taken
    bool next = false;  // the next word waits for Enter
    std::array<int, core::kPlayers> points{};
};

class Announcer {
    Q_DECLARE_TR_FUNCTIONS(Announcer)

public:
    static Seen look(const core::Game& game);
    // What changed from `before` to `after`, in the order a player takes it in, as sentences.
    static QStringList changes(const Seen& before, const Seen& after, const core::Game& game);

    // What a field shows: its letter, or ' ' while covered.
    static QChar shown(const core::Field& field);
    static QString tileName(int tile);
    static QString fieldName(int index, int letters, QChar shown);
    static QString playerName(const core::Game& game, int player);
    static QString pictureName(const core::Game& game);
};

} // namespace mainwindow
