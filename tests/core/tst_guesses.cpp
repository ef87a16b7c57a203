// A word played to its end: hits, misses, tips, points, the solution, sounds and waits.
#include "support/scripted_toolkit.h"

#include <QTest>

using support::GameFixture;

namespace {

QStringList times(const QStringList& items, int n)
{
    QStringList out;
    for (int i = 0; i < n; ++i) out += items;
    return out;
}

void type(core::Game& game, const QString& keys)
{
    for (QChar c : keys) game.key(c.unicode());
}

// The next word's draw as the log shows it: jingle, growing picture, seed, then the fields.
QStringList draw(bool sound, int fields)
{
    const QStringList grow = times({"wait 0.1"}, 8) << "seed";
    return sound ? QStringList{"sound 0"} + grow + times({"sound 4", "wait 0.1"}, fields) : grow;
}

const QStringList kTrace{"sound", "wait", "seed", "box", "end", "hold"};

} // namespace

class Guesses : public QObject {
    Q_OBJECT
private slots:
    void wordEnds_data();
    void wordEnds();
    void lostWordShowsItsSolution();
    void jingleFollowsTheDraw_data();
    void jingleFollowsTheDraw();
    void keys_data();
    void keys();
    void tips_data();
    void tips();
    void tipsPerWord();
    void wholeGame_data();
    void wholeGame();
};

void Guesses::wordEnds_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<int>("sound");
    QTest::addColumn<QString>("atHold");
    QTest::addColumn<int>("solution");
    QTest::addColumn<QStringList>("trace");
    QTest::addColumn<int>("points");
    QTest::addColumn<int>("turn"); // of four players: every miss passes it, the ninth too
    const QStringList held{"hold", "wait 0.5"};
    // P stands twice in POP: two sounds for one key.
    QTest::newRow("solved, sound on")
        << "po" << 1 << "POP" << 1
        << QStringList{"sound 4", "sound 4", "sound 4", "seed", "sound 7", "wait 0.1"} + held +
               draw(true, 3)
        << 1 << 0;
    QTest::newRow("solved, sound off")
        << "po" << 0 << "POP" << 1 << held + draw(false, 3) << 1 << 0;
    // The solution uncovers in the order of the alphabet: O, then both P.
    QTest::newRow("lost, sound on")
        << "abcdefghi" << 1 << "POP" << 1
        << times({"sound 3", "wait 0.1"}, 8) + QStringList{"sound 2", "wait 1.5"} +
               times({"wait 0.1", "sound 1"}, 3) + QStringList{"hold"} + draw(true, 3)
        << 0 << 1;
    QTest::newRow("lost, sound off: a letter found is shown again")
        << "oabcdefghi" << 0 << "POP" << 1
        << times({"wait 0.1"}, 3) + QStringList{"hold"} + draw(false, 3) << 0 << 1;
    QTest::newRow("lost, solution off: fields stay")
        << "oabcdefghi" << 0 << "_O_" << 0 << QStringList{"hold"} + draw(false, 3) << 0 << 1;
}

void Guesses::wordEnds()
{
    QFETCH(QString, keys);
    QFETCH(int, sound);
    QFETCH(QString, atHold);
    QFETCH(int, solution);
    QFETCH(QStringList, trace);
    QFETCH(int, points);
    QFETCH(int, turn);
    GameFixture f({"pop"});
    f.game.einst.Sound = sound;
    f.game.einst.Anzeige = solution;
    f.game.start();
    f.tk.log.clear();
    QString fieldsAtHold;
    f.tk.whenHeld([&] {
        fieldsAtHold = f.fields();
        QCOMPARE(f.visibleStage(), points ? 0 : 9);
        for (int i = 0; i < core::kLetters; ++i) QVERIFY(!f.game.board.alpha[i].Enabled);
        f.game.weiter();
    });
    type(f.game, keys.chopped(1));
    QVERIFY(f.game.board.alpha[25].Enabled); // still open before the last key
    f.game.key(keys.back().unicode());
    QCOMPARE(f.tk.trace(kTrace), trace);
    QCOMPARE(fieldsAtHold, atHold);
    QCOMPARE(int(f.game.g.Punkte[0]), points);
    QCOMPARE(f.visiblePoints(0), points);
    QCOMPARE(int(f.game.g.AktSpieler), turn);
    // The next word stands fresh.
    QCOMPARE(f.fields(), QString("___"));
    QCOMPARE(f.visibleStage(), 0);
    QCOMPARE(f.game.g.Fehler, int16_t(0));
}

void Guesses::lostWordShowsItsSolution()
{
    // The tiles close with the loss, then the solution comes a letter at a time in the order
    // of the alphabet, not of the word.
    GameFixture f({"cab"});
    f.game.start();
    QStringList seen;
    for (int i = 0; i < 8; ++i) f.tk.duringWait([] {}); // the waits after the first misses
    f.tk.duringWait([&] {
        bool open = false;
        for (int i = 0; i < core::kLetters; ++i) open = open || f.game.board.alpha[i].Enabled;
        seen << (open ? "open" : "closed");
    });
    for (int i = 0; i < 3; ++i) f.tk.duringWait([&] { seen << f.fields(); });
    f.tk.whenHeld([&] {
        seen << f.fields();
        f.game.weiter();
    });
    type(f.game, "defghijkl");
    QCOMPARE(seen, (QStringList{"closed", "_A_", "_AB", "CAB", "CAB"}));
}

void Guesses::jingleFollowsTheDraw_data()
{
    QTest::addColumn<double>("r");
    QTest::addColumn<int>("sound");
    QTest::newRow("just below a half step") << 0.0714 << 7;
    QTest::newRow("just above a half step") << 0.07143 << 8;
    QTest::newRow("10.5 ties to even") << 0.5 << 10;
    QTest::newRow("13 stays") << 13.0 / 14 - 0.01 << 13;
    QTest::newRow("above 13 becomes 6") << 0.99 << 6;
}

void Guesses::jingleFollowsTheDraw()
{
    QFETCH(double, r);
    QFETCH(int, sound);
    GameFixture f({"i"});
    f.game.start();
    f.tk.log.clear();
    f.tk.randoms = {r};
    f.tk.whenHeld([&] { f.game.weiter(); });
    f.game.key('i');
    QCOMPARE(f.tk.sounds().value(1), QString("sound %1").arg(sound));
}

void Guesses::keys_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("misses");
    QTest::addColumn<QString>("fields");
    QTest::addColumn<int>("turn");
    QTest::newRow("any case plays as capitals, a hit keeps the turn") << "aP" << 0 << "APP__" << 0;
    QTest::newRow("a miss passes the turn") << "z" << 1 << "_____" << 1;
    QTest::newRow("a letter again is no miss") << "zz" << 1 << "_____" << 1;
    QTest::newRow("a hit again does nothing") << "aa" << 0 << "A____" << 0;
    QTest::newRow("Enter in a word does nothing") << "\r" << 0 << "_____" << 0;
    QTest::newRow("no tile: digits, blank, umlauts, sharp s") << "1 9äÖß" << 0 << "_____" << 0;
}

void Guesses::keys()
{
    QFETCH(QString, typed);
    QFETCH(int, misses);
    QFETCH(QString, fields);
    QFETCH(int, turn);
    GameFixture f;
    f.game.start();
    type(f.game, typed);
    QCOMPARE(f.fields(), fields);
    QCOMPARE(int(f.game.g.Fehler), misses);
    QCOMPARE(f.visibleStage(), misses);
    QCOMPARE(int(f.game.g.AktSpieler), turn);
    QVERIFY(!f.game.board.weiter_Enabled);
}

void Guesses::tips_data()
{
    QTest::addColumn<int>("allowed");
    QTest::addColumn<QString>("played");
    QTest::addColumn<int>("tips");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("button");
    // A tip plays the first letter of the alphabet still open that the word holds.
    QTest::newRow("one of three") << 3 << "" << 1 << "A" << true;
    QTest::newRow("the last of three hides the button, still uncovers")
        << 3 << "" << 3 << "ABC" << false;
    QTest::newRow("played letters skipped, a tip never misses") << 3 << "bz" << 2 << "ABC" << true;
    QTest::newRow("none allowed: no button, a tip does nothing") << 0 << "" << 2 << "" << false;
    // Counts from a hand-edited settings file are used as read.
    QTest::newRow("seven of seven") << 7 << "" << 7 << "ABCDEFG" << false;
    QTest::newRow("a negative count never runs out") << -1 << "" << 5 << "ABCDE" << true;
}

void Guesses::tips()
{
    QFETCH(int, allowed);
    QFETCH(QString, played);
    QFETCH(int, tips);
    QFETCH(QString, shown);
    QFETCH(bool, button);
    GameFixture f({"abcdefghijklmnop"});
    f.game.g.AnzTips = int16_t(allowed);
    f.game.start();
    type(f.game, played);
    const core::Global before = f.game.g;
    // Both ways in: the menu entry and the picture button.
    for (int i = 0; i < tips; ++i) i % 2 ? f.game.picBut(2) : f.game.tip();
    QCOMPARE(f.fields(), shown.leftJustified(16, '_'));
    QCOMPARE(f.game.board.PicBut_Visible[2], button);
    QCOMPARE(f.game.board.tip_Enabled, button);
    QCOMPARE(f.game.g.Fehler, before.Fehler);
    QCOMPARE(f.game.g.AktSpieler, before.AktSpieler);
}

void Guesses::tipsPerWord()
{
    GameFixture f({"ox"});
    f.game.g.AnzTips = 3;
    f.game.einst.Anzeige = 0;
    f.game.einst.Sound = 0;
    f.game.start();
    f.game.tip();
    QCOMPARE(f.fields(), QString("O_"));
    f.tk.whenHeld([&] {
        f.game.picBut(2); // the word is lost: the tip counts but uncovers nothing
        QCOMPARE(f.fields(), QString("O_"));
        QCOMPARE(f.game.g.Fehler, int16_t(9));
        f.game.weiter();
    });
    type(f.game, "abcdefghi");
    QVERIFY(f.tk.log.contains("hold"));
    // The next word counts afresh: two tips used before leave the button after one more.
    f.game.tip();
    QCOMPARE(f.fields(), QString("O_"));
    QVERIFY(f.game.board.PicBut_Visible[2]);
}

void Guesses::wholeGame_data()
{
    QTest::addColumn<int>("sound");
    QTest::addColumn<int>("answer");
    QTest::newRow("sound on, once again: yes") << 1 << int(core::kAnswerYes);
    QTest::newRow("sound off, once again: yes") << 0 << int(core::kAnswerYes);
    QTest::newRow("sound on, once again: no") << 1 << int(core::kAnswerNo);
}

void Guesses::wholeGame()
{
    QFETCH(int, sound);
    QFETCH(int, answer);
    const bool yes = answer == core::kAnswerYes;
    GameFixture f({"ox"}, 2);
    f.game.einst.Sound = sound;
    f.game.start();
    QVERIFY(f.tk.boxes().isEmpty()); // the first start asks nothing
    f.game.key('q');                 // player 1 at turn: from here on every word goes to player 1
    for (int word = 0; word < 7; ++word) {
        f.tk.whenHeld([&] { f.game.key(13); });
        type(f.game, "zyox");
        QVERIFY(!f.game.board.weiter_Enabled);
    }
    QCOMPARE(f.game.g.Punkte[1], int16_t(7));
    QCOMPARE(f.visiblePoints(1), 7);
    f.tk.answers.push_back(answer);
    f.tk.log.clear();
    type(f.game, "zyox");
    // No wait for the next word: the questions come at once.
    QStringList expected;
    if (sound)
        expected =
            times({"sound 3", "wait 0.1"}, 2) +
            QStringList{"sound 4", "sound 4", "seed", "sound 7", "wait 0.1", "sound 5", "wait 0.1"};
    expected << "box 48 Yippieh!: Helene\rwon!"
             << "box 36 : Once again?";
    expected += yes ? QStringList{"wait 0.5"} + draw(sound, 2) : QStringList{"end"};
    QCOMPARE(f.tk.trace(kTrace), expected);
    QCOMPARE(f.game.ended(), !yes);
    QCOMPARE(f.visiblePoints(1), yes ? 0 : 8); // the eighth symbol stands in its row
    if (yes) {
        QCOMPARE(f.game.g.Punkte[1], int16_t(0));
        QCOMPARE(f.game.g.AktSpieler, int16_t(0));
        f.tk.answers.push_back(core::kAnswerNo);
    }
    // Start asks now that a game has run, and does nothing after the end.
    f.game.start();
    QCOMPARE(f.tk.log.last(), yes ? QString("box 36 Start: Really start a new game?") : "end");
}

QTEST_GUILESS_MAIN(Guesses)
#include "tst_guesses.moc"
