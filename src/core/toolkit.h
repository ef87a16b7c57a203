#pragma once
// What the rules of the game need from the world outside them. The program plugs in the
// Qt implementation; the tests plug in a scripted one.
#include <QString>

namespace core {

// Message box types and answers, as the game has always numbered them.
enum MsgBoxType : int { kYesNoQuestion = 36, kOkExclamation = 48 };
enum MsgBoxAnswer : int { kAnswerOk = 1, kAnswerYes = 6, kAnswerNo = 7 };

class Toolkit {
public:
    virtual ~Toolkit() = default;

    // Serves what is pending (painting, timers, input) and returns.
    virtual void serveEvents() = 0;
    // Serves events, sleeping until at least one has arrived. The loop of a held wait.
    virtual void waitForEvents() = 0;
    // Lets `seconds` pass. For the player the game stands still: input that arrives now
    // is held until the routine that waits has returned.
    virtual void wait(double seconds) = 0;
    // Seconds since midnight, with fractions.
    virtual double clock() = 0;
    virtual void seedRandom(double seed) = 0;
    // A value from 0 up to below 1, evenly spread.
    virtual double random() = 0;
    // A modal box; returns the answer (kAnswerYes for Yes).
    virtual int msgBox(const QString& text, int type, const QString& title) = 0;
    // Plays frostl<n>.wav from the working folder (or the shipped sounds), without waiting;
    // a new sound cuts off the one before, a missing file stays silent.
    virtual void playSound(int n) = 0;
    // Width in twips of a text set in 12-point type of the main window's font.
    virtual double textWidth(const QString& text) = 0;
    // The main window's outer width in twips.
    virtual double windowWidth() = 0;
    // Unloads the main window and ends the program. It may return; the game then stops
    // every routine at once.
    virtual void endProgram() = 0;
};

} // namespace core
