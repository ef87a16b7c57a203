#pragma once
// A toolkit for tests: waits take no time but are recorded, boxes answer from a script,
// and serving events runs the actions a test has queued for that moment.
#include "core/game.h"
#include "core/toolkit.h"

#include <QStringList>
#include <deque>
#include <functional>
#include <stdexcept>

namespace support {

class ScriptedToolkit : public core::Toolkit {
public:
    using Action = std::function<void()>;

    // What happened, in order: "serve", "hold", "wait 0.1", "sound 4", "seed",
    // "box 36 Start: Really start a new game?", "end".
    QStringList log;
    std::deque<int> answers;    // for Yes/No boxes, in order
    std::deque<double> randoms; // values the generator gives; 0 once they run out
    double now = 36000.0;       // the clock; waits move it on
    double charWidth = 120.0;   // twips a character in 12-point type
    double width = 9600.0;      // the main window's outer width
    bool endCalled = false;

    // Actions for the next points where events are served: any serve, a held wait only,
    // or a plain wait (where input only queues).
    void atServe(Action a) { serveActions.push_back(std::move(a)); }
    void whenHeld(Action a) { holdActions.push_back(std::move(a)); }
    void duringWait(Action a) { waitActions.push_back(std::move(a)); }

    // The log reduced to entries that start with one of the prefixes.
    QStringList trace(const QStringList& prefixes) const;
    QStringList sounds() const { return trace({"sound"}); }
    QStringList soundsAndWaits() const { return trace({"sound", "wait"}); }
    QStringList boxes() const { return trace({"box"}); }

    void serveEvents() override;
    void waitForEvents() override;
    void wait(double seconds) override;
    double clock() override { return now; }
    void seedRandom(double) override { log << QStringLiteral("seed"); }
    double random() override;
    int msgBox(const QString& text, int type, const QString& title) override;
    void playSound(int n) override { log << QStringLiteral("sound %1").arg(n); }
    double textWidth(const QString& text) override { return text.size() * charWidth; }
    double windowWidth() override { return width; }
    void endProgram() override
    {
        endCalled = true;
        log << QStringLiteral("end");
    }

private:
    static void runFirst(std::deque<Action>& actions);
    std::deque<Action> serveActions, holdActions, waitActions;
};

// A game set up as the main window's start-up leaves it: rows, motif, stage 0, a new game.
struct GameFixture {
    explicit GameFixture(const QStringList& words = {QStringLiteral("apple")}, int players = 4);
    ScriptedToolkit tk;
    core::Game game{tk};

    // Pins the next draw to the word at index i of List1.
    void drawIndex(int i);
    // The letters of the fields of the current word, '_' where still covered.
    QString fields() const;
    int visibleStage() const;
    int visiblePoints(int player) const;
};

} // namespace support
