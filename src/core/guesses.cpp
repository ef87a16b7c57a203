// One guessed letter and what it does to the word, the picture, the score and the turn.
#include "core/game.h"

namespace core {

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
        box(board.Spieler[p].Caption + QChar(13) + tr("won!"), kOkExclamation, tr("Yippieh!"));
        if (box(tr("Once again?"), kYesNoQuestion, QString()) != kAnswerYes) unloadMainWindow();
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

} // namespace core
