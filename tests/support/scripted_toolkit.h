#pragma once
// A toolkit for tests: waits take no time, boxes answer from a script, and every point where
// the game serves events, waits or holds a finished word is logged and handed to the test,
// which can act there as a player would at that moment.
#include "core/toolkit.h"

#include <QStringList>
#include <functional>
#include <stdexcept>

namespace support {

class ScriptedToolkit : public core::Toolkit {
public:
    // What happened, in order: "serve", "wait 0.1", "hold", "sound 4", "seed",
    // "box 36 Start: Really start a new game?", "end".
    QStringList log;
    QList<int> answers;       // for Yes/No boxes, in order
    QList<double> randoms;    // values the generator gives; 0 once they run out
    double charWidth = 120.0; // twips a character in 12-point type
    double width = 9600.0;    // the main window's outer width
    // The player, called with each "serve", "wait" and "hold" and with a question that
    // `answers` does not answer; returns the answer to a question. Without one, a hold or
    // such a question is an error: nothing would ever end it.
    std::function<int(const QString& entry)> player;

    QStringList boxes() const { return log.filter("box "); }

    void serveEvents() override { note("serve"); }
    void waitForEvents() override { note("hold", true); }
    void wait(double seconds) override
    {
        now_ += seconds;
        note(QStringLiteral("wait %1").arg(seconds));
    }
    double clock() override { return now_; }
    void seedRandom(double) override { log << "seed"; }
    double random() override { return randoms.isEmpty() ? 0.0 : randoms.takeFirst(); }
    int msgBox(const QString& text, int type, const QString& title) override
    {
        const QString entry = QStringLiteral("box %1 %2: %3").arg(type).arg(title, text);
        if (type == core::kYesNoQuestion && answers.isEmpty()) return note(entry, true);
        log << entry;
        return type == core::kYesNoQuestion ? answers.takeFirst() : core::kAnswerOk;
    }
    void playSound(int n) override { log << QStringLiteral("sound %1").arg(n); }
    double textWidth(const QString& text) override { return text.size() * charWidth; }
    double windowWidth() override { return width; }
    void endProgram() override { log << "end"; }

private:
    int note(const QString& entry, bool needsPlayer = false)
    {
        if (needsPlayer && !player)
            throw std::logic_error("nobody to answer " + entry.toStdString());
        log << entry;
        return player ? player(entry) : 0;
    }
    double now_ = 36000.0;
};

} // namespace support
