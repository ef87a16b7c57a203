#include "mainwindow/announcements.h"

namespace mainwindow {

Seen Announcer::look(const core::Game& game)
{
    Seen s;
    const auto& fields = game.board.Feld;
    for (size_t i = 1; i < fields.size(); ++i)
        if (fields[i].loaded) s.shown += shown(fields[i]);
    s.word = s.shown.isEmpty() ? QString() : game.g.Wort;
    // A letter is played once its tile has gone; its places show a moment later.
    for (int t = 0; t < core::kLetters; ++t)
        if (!game.board.alpha[t].Visible)
            (game.g.Wort.contains(core::tileTag(t)) ? s.hit : s.missed) += core::tileTag(t);
    s.open = game.wordOpen();
    s.fehler = game.g.Fehler;
    s.turn = game.g.AktSpieler;
    s.tips = game.g.TipZaehler;
    s.tipOn = game.board.tip_Enabled;
    s.next = game.board.PicBut_Visible[3];
    for (int i = 0; i < core::kPlayers; ++i) s.points[i] = game.g.Punkte[i];
    return s;
}

QStringList Announcer::changes(const Seen& before, const Seen& after, const core::Game& game)
{
    QStringList out;
    auto name = [&](int p) { return game.board.Spieler[p].Caption; };
    const bool fresh = after.open && (!before.open || after.word != before.word);
    const bool sameWord = !fresh && !after.word.isEmpty() && after.word == before.word;
    const bool whole = !after.shown.contains(' ') && before.shown.contains(' ');
    // A word is news once it stands whole and takes letters.
    if (fresh) out << tr("New word: %1 letters.").arg(after.shown.size());
    // A guess shows in steps, so each part is judged by itself.
    for (const QChar letter : after.missed)
        if (sameWord && !before.missed.contains(letter))
            out << tr("Miss: %1, stage %2 of %3.")
                       .arg(letter)
                       .arg(after.missed.size())
                       .arg(core::kLostAt);
    if (sameWord && after.fehler >= core::kLostAt) {
        if (before.fehler < core::kLostAt) out << tr("Word lost.");
        if (whole) out << tr("The word was %1.").arg(after.shown);
    } else if (sameWord) {
        // Only a tip counts tips or takes the last one away while a word stands.
        const bool tip = after.tips != before.tips || (before.tipOn && !after.tipOn);
        for (const QChar letter : after.hit) {
            if (before.hit.contains(letter)) continue;
            const auto times = after.word.count(letter);
            if (tip) {
                out << (times == 1 ? tr("Tip: %1, once.").arg(letter)
                                   : tr("Tip: %1, %2 times.").arg(letter).arg(times));
            } else {
                out << (times == 1 ? tr("Hit: %1, once.").arg(letter)
                                   : tr("Hit: %1, %2 times.").arg(letter).arg(times));
            }
        }
        if (whole) out << tr("Word solved: %1.").arg(after.shown);
    }
    for (int p = 0; p < core::kPlayers; ++p) {
        if (after.points[p] <= before.points[p]) continue;
        out << tr("%1 scores a point, %2 in all.").arg(name(p)).arg(after.points[p]);
        if (after.points[p] == core::kPointsToWin) out << tr("%1 has won!").arg(name(p));
    }
    if (after.turn != before.turn) out << tr("%1's turn.").arg(name(after.turn));
    if (after.next && !before.next) out << tr("Next word: Enter.");
    return out;
}

QChar Announcer::shown(const core::Field& field)
{
    return field.picture < 0 ? QChar(' ') : core::tileTag(field.picture);
}

QString Announcer::tileName(int tile) { return tr("Letter %1").arg(core::tileTag(tile)); }

QString Announcer::fieldName(int index, int letters, QChar shown)
{
    const QString what = shown == ' ' ? tr("covered") : QString(shown);
    return tr("Letter %1 of %2, %3").arg(index).arg(letters).arg(what);
}

QString Announcer::playerName(const core::Game& game, int player)
{
    QString text =
        tr("%1, points: %2").arg(game.board.Spieler[player].Caption).arg(game.g.Punkte[player]);
    if (game.g.AktSpieler == player) text += tr(", at turn");
    return text;
}

QString Announcer::pictureName(const core::Game& game)
{
    const QString motif =
        core::motifOf(game.g.MotivNr) == core::Motif::AppleTree ? tr("Apple tree") : tr("Frostel");
    return tr("%1, stage %2 of %3").arg(motif).arg(game.g.Fehler).arg(core::kLostAt);
}

} // namespace mainwindow
