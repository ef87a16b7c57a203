#include "core/game.h"

#include "vocabulary/word_file.h"

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

Game::Game(Toolkit& toolkit) : tk_(toolkit) {}

// --- commands --------------------------------------------------------------------------

void Game::submit(Command command)
{
    if (ended_ || !takesInput(command)) return;
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
        return c.index == 13 && board.weiter_Enabled;
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
        if (box(QStringLiteral("Really start a new game?"), kYesNoQuestion,
                QStringLiteral("Start")) != kAnswerYes)
            return;
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
    if (box(QStringLiteral("Really end the game?"), kYesNoQuestion,
            QStringLiteral("Program end")) == kAnswerYes)
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

// --- new game, turn, draw -------------------------------------------------------------------

int Game::players() const { return qBound<int>(1, g.AnzSpieler, kPlayers); }

void Game::setTurnColours(int player, bool atTurn)
{
    PlayerLabel& label = board.Spieler[qBound(0, player, kPlayers - 1)];
    label.BackColor = atTurn ? kRed : kBlue;
    label.ForeColor = atTurn ? kWhite : kLightGrey;
}

QString Game::shortenCaption(QString caption)
{
    const double width = board.Spieler[0].Width;
    if (tk_.textWidth(caption) > width) {
        for (qsizetype k = caption.size(); k >= 10; --k) {
            if (tk_.textWidth(caption) > width) caption = caption.left(caption.size() - 2) + '.';
        }
    }
    return caption;
}

void Game::NeuesSpiel()
{
    for (int i = 0; i < kPlayers; ++i) {
        g.Punkte[i] = 0;
        for (int j = 0; j < kPointsToWin; ++j) board.Punkt[i * kPointsToWin + j].Visible = false;
    }
    const int n = players();
    for (int i = 0; i < n; ++i) {
        board.Spieler[i].Caption = shortenCaption(einst.Spieler_Name[i]);
        setTurnColours(i, false);
        board.Spieler[i].Visible = true;
    }
    for (int i = n; i < kPlayers; ++i) board.Spieler[i].Visible = false;
    g.AktSpieler = int16_t(n - 1);
    NaechsterSpieler();
}

void Game::NaechsterSpieler()
{
    setTurnColours(g.AktSpieler, false);
    // ">=" and not "==": the count may have dropped below the player at turn.
    if (g.AktSpieler >= players() - 1) g.AktSpieler = 0;
    else ++g.AktSpieler;
    setTurnColours(g.AktSpieler, true);
    serve();
}

void Game::setTilesEnabled(bool enabled)
{
    for (int i = 0; i < kLetters; ++i) board.alpha[i].Enabled = enabled;
}

void Game::NeuesWort()
{
    // Letters typed before the fields stand are not played on a word nobody has seen.
    wordOpen_ = false;
    for (int i = 1; i <= FeldZahl && i < int(board.Feld.size()); ++i) {
        board.Feld[i].loaded = false;
        serve();
    }
    board.Feld.resize(1);
    for (int i = 0; i < kLetters; ++i) {
        board.alpha[i].Enabled = true;
        board.alpha[i].Visible = true;
    }
    serve();
    if (soundOn()) playSound(0);
    board.B_Folge_Visible[qBound(0, int(g.Fehler), kStages - 1)] = false;
    board.B_Folge0_Height = 0;
    board.B_Folge_Visible[0] = true;
    // The first picture grows from a flat strip, top fixed, over 0.8 seconds.
    const int H = kPictureSize; // the height of B_Folge(1), which never changes
    for (int h = H / 8; h <= H; h += 300) {
        board.B_Folge0_Height = h;
        Warten(0.1);
    }
    g.Fehler = 0;
    if (g.AnzTips != 0) {
        board.tip_Enabled = true;
        board.PicBut_Visible[2] = true;
    } else if (board.PicBut_Visible[2]) {
        board.PicBut_Visible[2] = false;
        board.tip_Enabled = false;
    }
    g.Treffer = 0;
    g.TipZaehler = 0;
    tk_.seedRandom(tk_.clock());
    if (List1.isEmpty()) {
        // No vocabulary with a word in it: nothing to draw. The reader has said why; the
        // tiles stay shut until the options bring words.
        g.Wort.clear();
        FeldZahl = 0;
        setTilesEnabled(false);
        board.tip_Enabled = false;
        board.PicBut_Visible[2] = false;
        return;
    }
    const qsizetype n = List1.size();
    const qsizetype z = qMin<qsizetype>(qsizetype(tk_.random() * double(n)), n - 1);
    g.Wort = capitals(List1.at(z));
    if (!einst.wiederh[0]) {
        List1.removeAt(z);
        if (List1.isEmpty()) WoerterLaden();
    }
    FeldZahl = int16_t(g.Wort.size());
    const double W = tk_.windowWidth();
    for (int i = 1; i <= FeldZahl; ++i) {
        Field f = board.Feld[0];
        f.Left = int(i * kTilePitch + idiv(W - FeldZahl * kTilePitch, 2) - 400);
        f.Visible = true;
        f.picture = -1;
        board.Feld.push_back(f);
        serve();
        if (soundOn()) {
            playSound(4);
            Warten(0.1);
        }
    }
    wordOpen_ = true;
}

void Game::WoerterLaden()
{
    List1.clear();
    if (g.WortDatei.isEmpty()) g.WortDatei = QStringLiteral("frostel.dat");
    vocabulary::ReadResult r = vocabulary::readWordFile(g.WortDatei);
    List1 = std::move(r.words);
    if (r.failure) {
        const QString text =
            r.failure->number == vocabulary::kFileNotFound
                ? QStringLiteral("File ") + g.WortDatei + QStringLiteral(" not found!")
                : r.failure->text;
        box(text, kOkExclamation, QStringLiteral("Error"));
    }
}

// --- guesses --------------------------------------------------------------------------------

void Game::uncover(int position, int tileIndex)
{
    if (position >= 1 && position < int(board.Feld.size()) && board.Feld[position].loaded)
        board.Feld[position].picture = tileIndex;
}

void Game::alpha_Click(int Index)
{
    if (Index < 0 || Index >= kLetters) return;
    board.alpha[Index].Visible = false;
    serve();
    const QChar tag = tileTag(Index);
    bool hit = false;
    for (int pos = 1; pos <= g.Wort.size(); ++pos) {
        if (g.Wort.at(pos - 1).toUpper() == tag) {
            uncover(pos, Index);
            serve();
            ++g.Treffer;
            hit = true;
            if (soundOn()) playSound(4);
        }
    }
    if (g.Treffer == g.Wort.size()) {
        wordOpen_ = false;
        wordSolved();
        return;
    }
    if (!hit) miss();
    if (g.Fehler == kLostAt) wordLost();
}

void Game::wordSolved()
{
    const int p = qBound(0, int(g.AktSpieler), kPlayers - 1);
    ++g.Punkte[p];
    const int symbol = p * kPointsToWin + g.Punkte[p] - 1;
    if (symbol >= 0 && symbol < kSymbols) board.Punkt[symbol].Visible = true;
    serve();
    if (soundOn()) {
        serve();
        tk_.seedRandom(tk_.clock());
        long long n = cint(tk_.random() * 7 + 7);
        if (n > 13) n = 6;
        playSound(int(n));
        Warten(0.1);
    }
    bool newGame = false;
    if (g.Punkte[p] == kPointsToWin) {
        if (soundOn()) {
            playSound(5);
            Warten(0.1);
        }
        box(board.Spieler[p].Caption + QChar(13) + QStringLiteral("won!"), kOkExclamation,
            QStringLiteral("Yippieh!"));
        if (box(QStringLiteral("Once again?"), kYesNoQuestion, QString()) != kAnswerYes)
            unloadMainWindow();
        NeuesSpiel();
        newGame = true;
    }
    if (!newGame) WeiterWarten();
    Warten(0.5);
    NeuesWort();
}

void Game::miss()
{
    ++g.Fehler;
    if (g.Fehler == kLostAt) wordOpen_ = false;
    board.B_Folge_Visible[g.Fehler] = true;
    board.B_Folge_Visible[g.Fehler - 1] = false;
    serve();
    if (soundOn()) {
        if (g.Fehler == kLostAt) {
            setTilesEnabled(false);
            playSound(2);
            Warten(1.5);
        } else {
            playSound(3);
            Warten(0.1);
        }
    }
    NaechsterSpieler();
}

void Game::wordLost()
{
    if (einst.Anzeige == 1) Aufloesung();
    List1.append(g.Wort);
    WeiterWarten();
    NeuesWort();
}

void Game::Aufloesung()
{
    for (int t = 0; t < kLetters; ++t) {
        const QChar tag = tileTag(t);
        for (int pos = 1; pos <= g.Wort.size(); ++pos) {
            if (g.Wort.at(pos - 1).toUpper() == tag) {
                uncover(pos, t);
                Warten(0.1);
                if (soundOn()) playSound(1);
                serve();
            }
        }
    }
}

void Game::Form_KeyPress(int KeyAscii)
{
    const QChar c = QChar(char16_t(KeyAscii)).toUpper();
    for (int t = 0; t < kLetters; ++t) {
        if (tileTag(t) == c && board.alpha[t].Visible && board.alpha[t].Enabled) {
            alpha_Click(t);
            return;
        }
    }
    if (KeyAscii == 13) weiter_Click();
}

void Game::tip_Click()
{
    ++g.TipZaehler;
    if (g.TipZaehler == g.AnzTips) {
        // The last tip of this word; its letter still follows.
        board.PicBut_Visible[2] = false;
        board.tip_Enabled = false;
        g.TipZaehler = 0;
    }
    for (int t = 0; t < kLetters; ++t) {
        if (board.alpha[t].Visible && board.alpha[t].Enabled &&
            g.Wort.contains(tileTag(t), Qt::CaseInsensitive)) {
            alpha_Click(t);
            return;
        }
    }
}

// --- scoreboard and pictures ----------------------------------------------------------------

void Game::createPlayerLabel(int i)
{
    if (i < 0 || i >= kPlayers) return;
    PlayerLabel& label = board.Spieler[i];
    if (i != 0) {
        // A new element copies element 0 and starts hidden.
        label = board.Spieler[0];
        label.Visible = false;
        label.loaded = true;
    }
    label.Top = int(cint(i * kPointWidth * 1.5 + 400));
}

void Game::createPlayerSymbols(int i)
{
    if (i < 0 || i >= kPlayers) return;
    for (int j = 0; j < kPointsToWin; ++j) {
        PointSymbol& s = board.Punkt[i * kPointsToWin + j];
        if (i != 0 || j != 0) {
            s = board.Punkt[0];
            s.Visible = false;
            s.loaded = true;
            s.symbol = g.MotivNr == 0 ? 0 : 1;
        }
        s.Left = j * kPointWidth + 2400;
        s.Top = int(cint(i * kPointWidth * 1.5 + 400));
    }
}

void Game::MotivSetzen()
{
    const int motif = g.MotivNr == 0 ? 0 : 1;
    board.seriesMotif = motif;
    for (PointSymbol& s : board.Punkt) s.symbol = motif;
}

} // namespace core
