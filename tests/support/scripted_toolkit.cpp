#include "support/scripted_toolkit.h"

namespace support {

QStringList ScriptedToolkit::trace(const QStringList& prefixes) const
{
    QStringList out;
    for (const QString& entry : log) {
        for (const QString& p : prefixes) {
            if (entry.startsWith(p)) {
                out << entry;
                break;
            }
        }
    }
    return out;
}

void ScriptedToolkit::runFirst(std::deque<Action>& actions)
{
    if (actions.empty()) return;
    Action a = std::move(actions.front());
    actions.pop_front();
    a();
}

void ScriptedToolkit::serveEvents()
{
    log << QStringLiteral("serve");
    runFirst(serveActions);
}

void ScriptedToolkit::waitForEvents()
{
    log << QStringLiteral("hold");
    if (!serveActions.empty()) return runFirst(serveActions);
    if (holdActions.empty())
        throw std::runtime_error("a held wait found no scripted action to end it");
    runFirst(holdActions);
}

void ScriptedToolkit::wait(double seconds)
{
    log << QStringLiteral("wait %1").arg(seconds);
    now += seconds;
    runFirst(waitActions);
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
    log << QStringLiteral("box %1 %2: %3").arg(type).arg(title, text);
    if (type != core::kYesNoQuestion) return core::kAnswerOk;
    if (answers.empty()) throw std::runtime_error("unexpected question: " + text.toStdString());
    const int a = answers.front();
    answers.pop_front();
    return a;
}

GameFixture::GameFixture(const QStringList& words, int players)
{
    game.g.AnzSpieler = int16_t(players);
    game.setUpBoard();
    game.List1 = words;
    tk.log.clear();
}

void GameFixture::drawIndex(int i)
{
    // The draw takes the whole part of r * n; aim at the middle of entry i.
    const double n = game.List1.size();
    tk.randoms.push_back((i + 0.5) / n);
}

QString GameFixture::fields() const
{
    QString out;
    for (size_t i = 1; i < game.board.Feld.size(); ++i) {
        const int p = game.board.Feld[i].picture;
        out += p < 0 ? QChar('_') : core::tileTag(p);
    }
    return out;
}

int GameFixture::visibleStage() const
{
    int stage = -1;
    for (int i = 0; i < core::kStages; ++i) {
        if (game.board.B_Folge_Visible[i]) {
            if (stage >= 0) return -2; // more than one: never allowed outside a change
            stage = i;
        }
    }
    return stage;
}

int GameFixture::visiblePoints(int player) const
{
    int n = 0;
    for (int j = 0; j < core::kPointsToWin; ++j)
        n += game.board.Punkt[player * core::kPointsToWin + j].Visible ? 1 : 0;
    return n;
}

} // namespace support
