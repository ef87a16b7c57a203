// Commands in, and the word cycle: start, next word, the held wait, options, end.
#include "core/game.h"

#include <QScopedValueRollback>
#include <QtGlobal>
#include <cmath>

namespace core {

QChar tileTag(int index)
{
    static const char16_t umlauts[] = {u'Ä', u'Ö', u'Ü'};
    if (index >= 0 && index < kLetters) return QChar(u'A' + index);
    if (index >= kLetters && index < kTiles) return QChar(umlauts[index - kLetters]);
    return QChar();
}

long long cint(double x) { return static_cast<long long>(std::nearbyint(x)); }

long long idiv(double a, long long b) { return cint(a) / b; }

QString capitals(const QString& word)
{
    // Character by character: the capital of "ß" is "ß" itself, not "SS".
    QString out = word;
    for (QChar& c : out) c = c.toUpper();
    return out;
}

Board::Board()
{
    Feld.resize(1);
    Feld[0] = Field{true, false, 2520, 3120, -1};
    for (int i = kLetters; i < kTiles; ++i) alpha[i].Visible = false;
    Spieler[0].loaded = true;
    Spieler[0].Caption = QStringLiteral("Spieler 1");
    Punkt[0].loaded = true;
}

namespace {

bool isEnter(const Command& c) { return c.kind == Command::Kind::Key && c.index == 13; }

} // namespace

Game::Game(Toolkit& toolkit) : tk_(toolkit) {}

// --- commands --------------------------------------------------------------------------

void Game::submit(Command command)
{
    // Enter while a routine runs waits, as a key in the system's queue, for the next point
    // that serves events: at the hold of a finished word it ends the hold, at any other it
    // does nothing (serve() drops it).
    const bool enterWaits = depth_ > 0 && isEnter(command);
    if (ended_ || (!enterWaits && !takesInput(command))) return;
    queue_.push_back(std::move(command));
    if (depth_ == 0) drain();
}

bool Game::letterTakesInput(int tile) const
{
    return tile >= 0 && tile < kLetters && wordOpen_ && board.alpha[tile].Visible &&
           board.alpha[tile].Enabled;
}

bool Game::takesInput(const Command& c) const
{
    using K = Command::Kind;
    switch (c.kind) {
    case K::Tile: return letterTakesInput(c.index);
    case K::Key: {
        // Only a letter with a tile and Enter do anything.
        const QChar key = QChar(char16_t(c.index)).toUpper();
        if (key >= u'A' && key <= u'Z') return letterTakesInput(key.unicode() - u'A');
        return isEnter(c) && board.weiter_Enabled;
    }
    case K::Tip: return board.tip_Enabled;
    case K::Weiter: return board.weiter_Enabled;
    case K::PicBut: return c.index >= 0 && c.index < 4 && board.PicBut_Visible[c.index];
    case K::Start:
    case K::Ende:
    case K::Run: return true;
    }
    return true;
}

void Game::drain()
{
    // Inside a held wait only until the wait has ended: what is left waits for the next word.
    while (!queue_.empty() && !ended_ && !(holding_ && !board.weiter_Enabled)) runNext();
}

void Game::runNext()
{
    const Command command = std::move(queue_.front());
    queue_.pop_front();
    ++depth_;
    try {
        execute(command);
    } catch (const Ended&) {
    }
    --depth_;
}

void Game::routine(const std::function<void()>& body)
{
    if (ended_) return;
    ++depth_;
    try {
        body();
    } catch (const Ended&) {
    }
    --depth_;
    if (depth_ == 0) drain();
}

void Game::execute(const Command& c)
{
    using K = Command::Kind;
    switch (c.kind) {
    case K::Tile:
        if (letterTakesInput(c.index)) alpha_Click(c.index);
        break;
    case K::Key: Form_KeyPress(c.index); break;
    case K::Start: start_Click(); break;
    case K::Ende: ende_Click(); break;
    case K::Tip:
        if (board.tip_Enabled) tip_Click();
        break;
    case K::Weiter:
        if (board.weiter_Enabled) weiter_Click();
        break;
    case K::PicBut:
        if (c.index >= 0 && c.index < 4 && board.PicBut_Visible[c.index]) PicBut_Click(c.index);
        break;
    case K::Run:
        if (c.run) c.run();
        break;
    }
}

void Game::programEnded()
{
    ended_ = true;
    queue_.clear();
}

void Game::throwIfEnded() const
{
    if (ended_) throw Ended{};
}

void Game::serve()
{
    tk_.serveEvents();
    std::erase_if(queue_, isEnter);
    throwIfEnded();
}

void Game::Warten(double seconds)
{
    // The toolkit sleeps; input that comes meanwhile is queued by submit().
    tk_.wait(seconds);
    throwIfEnded();
}

int Game::box(const QString& text, int type, const QString& title)
{
    const int answer = tk_.msgBox(text, type, title);
    throwIfEnded();
    return answer;
}

void Game::playSound(int n) { tk_.playSound(n); }

void Game::unloadMainWindow()
{
    programEnded();
    tk_.endProgram();
    throw Ended{};
}

// --- the word cycle ----------------------------------------------------------------------

void Game::start_Click()
{
    if (g.SpielLaeuft) {
        if (box(tr("Really start a new game?"), kYesNoQuestion, tr("Start")) != kAnswerYes) return;
        NeuesSpiel();
    }
    nextWord();
}

void Game::nextWord()
{
    if (board.weiter_Enabled) {
        // A guess is held in WeiterWarten: ending the wait lets it draw the next word.
        board.weiter_Enabled = false;
        board.PicBut_Visible[3] = false;
    } else {
        NeuesWort();
    }
    g.SpielLaeuft = true;
}

void Game::weiter_Click()
{
    board.weiter_Enabled = false;
    board.PicBut_Visible[3] = false;
    serve();
}

void Game::WeiterWarten()
{
    board.PicBut_Visible[3] = true;
    board.weiter_Enabled = true;
    setTilesEnabled(false);
    // The one place that runs commands as they come, so start, options and end can act
    // while the word stands finished: first what arrived during the guess, then what comes.
    // Once one of them has ended the wait, the rest waits for the next word to stand.
    const QScopedValueRollback<int> open(depth_, 0);
    const QScopedValueRollback<bool> held(holding_, true);
    while (board.weiter_Enabled) {
        drain();
        throwIfEnded();
        if (board.weiter_Enabled) tk_.waitForEvents();
        throwIfEnded();
    }
}

void Game::ende_Click()
{
    if (box(tr("Really end the game?"), kYesNoQuestion, tr("Program end")) == kAnswerYes)
        unloadMainWindow();
}

void Game::opt_Click(const std::function<void()>& showOptions)
{
    const int16_t motif = g.MotivNr;
    g.EinstGeaendert = false;
    showOptions();
    throwIfEnded();
    if (g.MotivNr != motif) MotivSetzen();
    if (g.EinstGeaendert) {
        NeuesSpiel();
        WoerterLaden();
        nextWord();
    }
}

void Game::PicBut_Click(int Index)
{
    switch (Index) {
    case 0: start_Click(); break;
    case 1: ende_Click(); break;
    case 2: tip_Click(); break;
    case 3: weiter_Click(); break;
    default: break;
    }
}

} // namespace core
