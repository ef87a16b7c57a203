// A new game, the turn, the draw of a word, and the scoreboard rows.
#include "core/game.h"

#include "vocabulary/word_file.h"

#include <QtGlobal>
#include <utility>

namespace core {

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
        if (!std::exchange(toldNoWords_, true))
            box(tr("There are no words to guess. Choose or create a vocabulary under Game, "
                   "Options."),
                kOkExclamation, tr("Start"));
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

void Game::placeFields(const std::vector<QPoint>& places)
{
    for (size_t i = 0; i < places.size() && i < board.Feld.size(); ++i) {
        if (!board.Feld[i].loaded) continue;
        board.Feld[i].Left = places[i].x();
        board.Feld[i].Top = places[i].y();
    }
}

void Game::WoerterLaden()
{
    List1.clear();
    if (g.WortDatei.isEmpty()) g.WortDatei = QStringLiteral("frostel.dat");
    vocabulary::ReadResult r = vocabulary::readWordFile(g.WortDatei);
    List1 = std::move(r.words);
    if (r.failure) {
        const QString text = r.failure->number == vocabulary::kFileNotFound
                                 ? tr("File %1 not found!").arg(g.WortDatei)
                                 : vocabulary::failureText(*r.failure);
        box(text, kOkExclamation, tr("Error"));
    }
}

// The scoreboard rows and the motif's pictures.

void Game::setUpBoard()
{
    for (int i = 0; i < kPlayers; ++i) {
        createPlayerLabel(i);
        board.Spieler[i].Caption = einst.Spieler_Name[i];
        createPlayerSymbols(i);
    }
    MotivSetzen();
    board.B_Folge_Visible[0] = true;
    routine([this] { NeuesSpiel(); });
}

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
            s.symbol = motifOf(g.MotivNr);
        }
        s.Left = j * kPointWidth + 2400;
        s.Top = int(cint(i * kPointWidth * 1.5 + 400));
    }
}

void Game::MotivSetzen()
{
    const Motif motif = motifOf(g.MotivNr);
    board.seriesMotif = motif;
    for (PointSymbol& s : board.Punkt) s.symbol = motif;
}

} // namespace core
