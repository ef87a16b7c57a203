#include "support/scripted_toolkit.h"

#include <stdexcept>

namespace support {

int ScriptedToolkit::note(const QString& entry)
{
    log << entry;
    return player ? player(entry) : 0;
}

void ScriptedToolkit::waitForEvents()
{
    if (!player) throw std::runtime_error("a held wait with no player to end it");
    note(QStringLiteral("hold"));
}

void ScriptedToolkit::wait(double seconds)
{
    now_ += seconds;
    note(QStringLiteral("wait %1").arg(seconds));
}

double ScriptedToolkit::random()
{
    if (randoms.empty()) return 0.0;
    const double r = randoms.front();
    randoms.pop_front();
    return r;
}

int ScriptedToolkit::msgBox(const QString& text, int type, const QString& title)
{
    const QString entry = QStringLiteral("box %1 %2: %3").arg(type).arg(title, text);
    if (type != core::kYesNoQuestion) {
        log << entry;
        return core::kAnswerOk;
    }
    if (!answers.empty()) {
        log << entry;
        const int a = answers.front();
        answers.pop_front();
        return a;
    }
    if (!player) throw std::runtime_error("unexpected question: " + text.toStdString());
    return note(entry);
}

} // namespace support
