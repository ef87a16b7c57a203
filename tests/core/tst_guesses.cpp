// A word played to its end: hits, misses, points, the turn, the solution, sounds and waits.
#include "support/scripted_toolkit.h"

#include <QTest>

using support::GameFixture;

namespace {

QStringList repeat(const QStringList& items, int times)
{
    QStringList out;
    for (int i = 0; i < times; ++i) out += items;
    return out;
}

void type(core::Game& game, const char* letters)
{
    for (const char* c = letters; *c; ++c) game.key(*c);
}

// Types each letter of the word once: a key after the solving one would guess the next word.
void playOut(core::Game& game)
{
    QString letters;
    for (QChar c : QString(game.g.Wort))
        if (!letters.contains(c)) letters += c;
    for (QChar c : letters) game.key(c.toLower().unicode());
}

} // namespace

class Guesses : public QObject {
    Q_OBJECT
private slots:
    void solvedWordSoundsAndWaits_data();
    void solvedWordSoundsAndWaits();
    void lostWordSoundsWaitsAndSolution_data();
    void lostWordSoundsWaitsAndSolution();
    void eighthPointEndsTheGame_data();
    void eighthPointEndsTheGame();
    void solvedJingleFollowsTheDraw_data();
    void solvedJingleFollowsTheDraw();
    void keys_data();
    void keys();
    void turnPassesOnMissesOnly();
    void onePlayerKeepsTheTurn();
    void lostWordGoesBackIntoTheList_data();
    void lostWordGoesBackIntoTheList();
    void solutionOffLeavesFieldsAsTheyWere();
    void tips_data();
    void tips();
    void tipInWordEndedUncoversNothing();
    void tipsBeforeTheFirstWordHideTheButton();
    void eighthMissWithOneLetterLeftKeepsWordOpen();
    void wholeGame_data();
    void wholeGame();
};

void Guesses::solvedWordSoundsAndWaits_data()
{
    QTest::addColumn<int>("sound");
    QTest::addColumn<QStringList>("expected");
    // APPLE typed as a, p, l, e: P stands twice, so two sound 4 for one key.
    QTest::newRow("sound on") << 1
                              << (QStringList{"sound 4", "sound 4", "sound 4", "sound 4", "sound 4",
                                              "sound 7", "wait 0.1", "wait 0.5", "sound 0"});
    QTest::newRow("sound off") << 0 << QStringList{"wait 0.5"};
}

void Guesses::solvedWordSoundsAndWaits()
{
    QFETCH(int, sound);
    QFETCH(QStringList, expected);
    GameFixture f;
    f.game.einst.Sound = sound;
    f.game.start();
    f.tk.log.clear();
    f.tk.whenHeld([&] { f.game.weiter(); });
    type(f.game, "apl");
    QCOMPARE(f.fields(), QString("APPL_"));
    f.game.key('e');
    // Cut the trace at the next word's growing picture: its first wait ends the comparison.
    QStringList got = f.tk.soundsAndWaits();
    const qsizetype next = got.indexOf("wait 0.5");
    QVERIFY(next >= 0);
    got = got.mid(0, next + (sound ? 2 : 1));
    QCOMPARE(got, expected);
    QCOMPARE(f.game.g.Punkte[0], int16_t(1));
    QCOMPARE(f.visiblePoints(0), 1);
    QVERIFY(f.game.board.Punkt[0].Visible);
    QCOMPARE(f.game.g.AktSpieler, int16_t(0)); // the solver keeps the turn
    QVERIFY(f.tk.log.contains("hold"));
    QCOMPARE(f.fields(), QString("_____")); // the next word stands covered
}

void Guesses::lostWordSoundsWaitsAndSolution_data()
{
    QTest::addColumn<int>("sound");
    QTest::addColumn<QStringList>("expected");
    const QStringList misses = repeat({"sound 3", "wait 0.1"}, 8);
    // The solution comes in the order of the alphabet: A, E, L, P, P.
    QTest::newRow("sound on") << 1
                              << (misses + QStringList{"sound 2", "wait 1.5"} +
                                  repeat({"wait 0.1", "sound 1"}, 5));
    QTest::newRow("sound off") << 0 << repeat({"wait 0.1"}, 5);
}

void Guesses::lostWordSoundsWaitsAndSolution()
{
    QFETCH(int, sound);
    QFETCH(QStringList, expected);
    GameFixture f;
    f.game.einst.Sound = sound;
    f.game.start();
    f.tk.log.clear();
    type(f.game, "bcdfghij");
    QCOMPARE(f.visibleStage(), 8);
    QVERIFY(f.game.board.alpha[10].Enabled); // 8 misses leave the word open
    QStringList solutionOrder;
    f.tk.whenHeld([&] {
        QCOMPARE(f.fields(), QString("APPLE"));
        QCOMPARE(f.visibleStage(), 9);
        for (int i = 0; i < core::kLetters; ++i) QVERIFY(!f.game.board.alpha[i].Enabled);
        QVERIFY(f.game.board.weiter_Enabled);
        QVERIFY(f.game.board.PicBut_Visible[3]);
        f.game.weiter();
    });
    f.game.key('k');
    QStringList got = f.tk.soundsAndWaits();
    got = got.mid(0, got.size() - (sound ? 19 : 8)); // drop the next word's draw
    QCOMPARE(got, expected);
    QCOMPARE(f.game.g.Punkte[0], int16_t(0));
    QCOMPARE(f.visibleStage(), 0);
    QCOMPARE(f.game.g.Fehler, int16_t(0));
}

void Guesses::eighthPointEndsTheGame_data()
{
    QTest::addColumn<int>("sound");
    QTest::addColumn<int>("answer");
    QTest::newRow("sound on, once again") << 1 << int(core::kAnswerYes);
    QTest::newRow("sound off, once again") << 0 << int(core::kAnswerYes);
    QTest::newRow("sound on, enough") << 1 << int(core::kAnswerNo);
}

void Guesses::eighthPointEndsTheGame()
{
    QFETCH(int, sound);
    QFETCH(int, answer);
    GameFixture f({"ox"});
    f.game.einst.Sound = sound;
    f.game.start();
    f.game.g.Punkte[1] = 7;
    f.game.key('q'); // a miss gives the turn to player 1
    QCOMPARE(f.game.g.AktSpieler, int16_t(1));
    f.tk.log.clear();
    f.tk.answers.push_back(answer);
    f.game.key('o');
    f.game.key('x');
    QStringList expected;
    if (sound)
        expected << "sound 4"
                 << "sound 4"
                 << "sound 7"
                 << "wait 0.1"
                 << "sound 5"
                 << "wait 0.1";
    expected << "box 48 Yippieh!: Helene\rwon!"
             << "box 36 : Once again?";
    if (answer == core::kAnswerYes) expected << "wait 0.5";
    else expected << "end";
    QStringList got = f.tk.trace({"sound", "wait", "box", "end"});
    QCOMPARE(got.mid(0, expected.size()), expected);
    QVERIFY(!f.tk.log.contains("hold")); // no wait for the next word
    if (answer == core::kAnswerYes) {
        QCOMPARE(f.game.g.Punkte[1], int16_t(0));
        QCOMPARE(f.visiblePoints(1), 0);
        QCOMPARE(f.game.g.AktSpieler, int16_t(0));
        QCOMPARE(f.fields(), QString("__"));
        QVERIFY(f.game.board.alpha[0].Enabled);
    } else {
        QVERIFY(f.game.ended());
        QVERIFY(f.tk.endCalled);
        QCOMPARE(f.tk.log.last(), QString("end"));
    }
}

void Guesses::solvedJingleFollowsTheDraw_data()
{
    QTest::addColumn<double>("r");
    QTest::addColumn<int>("sound");
    QTest::newRow("0 gives 7") << 0.0 << 7;
    QTest::newRow("just below a half step") << 0.0714 << 7;
    QTest::newRow("just above a half step") << 0.07143 << 8;
    QTest::newRow("middle") << 0.5 << 10; // 10.5 ties to even
    QTest::newRow("13 stays") << 13.0 / 14 - 0.01 << 13;
    QTest::newRow("above 13 becomes 6") << 0.99 << 6;
}

void Guesses::solvedJingleFollowsTheDraw()
{
    QFETCH(double, r);
    QFETCH(int, sound);
    GameFixture f({"i"});
    f.game.start();
    f.tk.log.clear();
    f.tk.randoms = {r};
    f.tk.whenHeld([&] { f.game.weiter(); });
    f.game.key('i');
    const QStringList sounds = f.tk.sounds();
    QCOMPARE(sounds.value(1), QString("sound %1").arg(sound));
    // Seeded from the clock right before the jingle's draw, as before each word's draw.
    const QStringList seq = f.tk.trace({"seed", "sound"});
    QCOMPARE(seq.mid(0, 3), (QStringList{"sound 4", "seed", QString("sound %1").arg(sound)}));
}

void Guesses::keys_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("fields");
    QTest::addColumn<int>("misses");
    QTest::addColumn<int>("turn");
    QTest::newRow("lower case plays as capitals") << "a"
                                                  << "A____" << 0 << 0;
    QTest::newRow("capitals") << "AP"
                              << "APP__" << 0 << 0;
    QTest::newRow("a miss passes the turn") << "z"
                                            << "_____" << 1 << 1;
    QTest::newRow("a letter again is no miss") << "zz"
                                               << "_____" << 1 << 1;
    QTest::newRow("a hit again does nothing") << "aa"
                                              << "A____" << 0 << 0;
    QTest::newRow("Enter in a word does nothing") << "\r"
                                                  << "_____" << 0 << 0;
    QTest::newRow("digits and blanks have no tile") << "1 9"
                                                    << "_____" << 0 << 0;
    QTest::newRow("umlauts and sharp s have no tile") << "äÖß"
                                                      << "_____" << 0 << 0;
}

void Guesses::keys()
{
    QFETCH(QString, typed);
    QFETCH(QString, fields);
    QFETCH(int, misses);
    QFETCH(int, turn);
    GameFixture f;
    f.game.start();
    for (QChar c : typed) f.game.key(c.unicode() == '\r' ? 13 : c.unicode());
    QCOMPARE(f.fields(), fields);
    QCOMPARE(int(f.game.g.Fehler), misses);
    QCOMPARE(f.visibleStage(), misses);
    QCOMPARE(int(f.game.g.AktSpieler), turn);
    QVERIFY(!f.game.board.weiter_Enabled);
}

void Guesses::turnPassesOnMissesOnly()
{
    GameFixture f({"apple"}, 3);
    f.game.start();
    QCOMPARE(f.game.board.Spieler[0].BackColor, core::kRed);
    type(f.game, "zyx");
    QCOMPARE(f.game.g.AktSpieler, int16_t(0)); // 0, 1, 2 and round again
    f.game.key('w');
    QCOMPARE(f.game.g.AktSpieler, int16_t(1));
    QCOMPARE(f.game.board.Spieler[1].BackColor, core::kRed);
    QCOMPARE(f.game.board.Spieler[1].ForeColor, core::kWhite);
    QCOMPARE(f.game.board.Spieler[0].BackColor, core::kBlue);
    QCOMPARE(f.game.board.Spieler[0].ForeColor, core::kLightGrey);
    f.game.key('a');
    QCOMPARE(f.game.g.AktSpieler, int16_t(1));
}

void Guesses::onePlayerKeepsTheTurn()
{
    GameFixture f({"apple"}, 1);
    f.game.start();
    type(f.game, "zyx");
    QCOMPARE(f.game.g.AktSpieler, int16_t(0));
    QCOMPARE(f.game.board.Spieler[0].BackColor, core::kRed);
    for (int i = 1; i < core::kPlayers; ++i) QVERIFY(!f.game.board.Spieler[i].Visible);
}

void Guesses::lostWordGoesBackIntoTheList_data()
{
    QTest::addColumn<bool>("allWords");
    QTest::addColumn<QStringList>("after");
    // Under "all words" the draw took nothing, so the word now stands twice.
    QTest::newRow("all words") << true << QStringList{"apple", "ox", "APPLE"};
    QTest::newRow("words not guessed") << false << QStringList{"ox", "APPLE"};
}

void Guesses::lostWordGoesBackIntoTheList()
{
    QFETCH(bool, allWords);
    QFETCH(QStringList, after);
    GameFixture f({"apple", "ox"});
    f.game.einst.wiederh = {allWords, !allWords};
    f.drawIndex(0);
    f.game.start();
    QCOMPARE(f.game.g.Wort, QString("APPLE"));
    QStringList atHold;
    f.tk.whenHeld([&] {
        atHold = f.game.List1;
        f.game.weiter();
    });
    f.game.einst.Sound = 0;
    type(f.game, "bcdfghijk");
    QCOMPARE(atHold, after);
}

void Guesses::solutionOffLeavesFieldsAsTheyWere()
{
    GameFixture f;
    f.game.einst.Anzeige = 0;
    f.game.start();
    f.tk.whenHeld([&] {
        QCOMPARE(f.fields(), QString("A____"));
        f.game.weiter();
    });
    type(f.game, "abcdfghijk");
    QVERIFY(f.tk.log.contains("hold"));
    QVERIFY(f.tk.trace({"sound 1"}).isEmpty());
}

void Guesses::tips_data()
{
    QTest::addColumn<int>("allowed");
    QTest::addColumn<QString>("played");
    QTest::addColumn<int>("tips");
    QTest::addColumn<QString>("fields");
    QTest::addColumn<bool>("buttonShown");
    QTest::addColumn<int>("misses");
    // A tip takes the first letter of the alphabet still to play that the word holds.
    QTest::newRow("one of three") << 3 << "" << 1 << "A_A_A_" << true << 0;
    QTest::newRow("three of three, the last still uncovers")
        << 3 << "" << 3 << "ANANAS" << false << 0;
    QTest::newRow("the only tip hides the button") << 1 << "" << 1 << "A_A_A_" << false << 0;
    QTest::newRow("played letters are skipped") << 3 << "a" << 1 << "ANANA_" << true << 0;
    QTest::newRow("a tip never misses") << 2 << "z" << 2 << "ANANA_" << false << 1;
    QTest::newRow("no tips: nothing to take") << 0 << "" << 0 << "______" << false << 0;
}

void Guesses::tips()
{
    QFETCH(int, allowed);
    QFETCH(QString, played);
    QFETCH(int, tips);
    QFETCH(QString, fields);
    QFETCH(bool, buttonShown);
    QFETCH(int, misses);
    GameFixture f({"ananas"});
    f.game.g.AnzTips = int16_t(allowed);
    f.game.start();
    QCOMPARE(f.game.board.tip_Enabled, allowed != 0);
    for (QChar c : played) f.game.key(c.unicode());
    const int16_t turn = f.game.g.AktSpieler;
    f.tk.whenHeld([&] { f.game.weiter(); });
    for (int i = 0; i < tips; ++i) f.game.tip();
    if (fields == "ANANAS") {
        // The tip solved the word for the player at turn.
        QCOMPARE(f.game.g.Punkte[turn], int16_t(1));
        QVERIFY(f.tk.log.contains("hold"));
    } else {
        QCOMPARE(f.fields(), fields);
    }
    QCOMPARE(int(f.game.g.Fehler), fields == "ANANAS" ? 0 : misses);
    QCOMPARE(f.game.g.AktSpieler, turn);
    if (fields != "ANANAS") {
        QCOMPARE(f.game.board.PicBut_Visible[2], buttonShown);
        QCOMPARE(f.game.board.tip_Enabled, buttonShown);
    }
}

void Guesses::tipInWordEndedUncoversNothing()
{
    GameFixture f({"ox"});
    f.game.start();
    f.tk.whenHeld([&] {
        const QString before = f.fields();
        const auto points = f.game.g.Punkte;
        f.game.picBut(2);
        QCOMPARE(f.fields(), before);
        QCOMPARE(f.game.g.Punkte, points);
        QCOMPARE(f.game.g.TipZaehler, int16_t(1));
        QVERIFY(f.game.board.weiter_Enabled);
        f.game.weiter();
    });
    type(f.game, "ox");
    QVERIFY(f.tk.log.contains("hold"));
    QCOMPARE(f.game.g.TipZaehler, int16_t(0)); // the next word starts its count afresh
}

void Guesses::tipsBeforeTheFirstWordHideTheButton()
{
    GameFixture f;
    QVERIFY(!f.game.board.tip_Enabled);
    f.game.tip(); // the menu entry is disabled: nothing
    QCOMPARE(f.game.g.TipZaehler, int16_t(0));
    for (int i = 0; i < 3; ++i) f.game.picBut(2);
    QVERIFY(!f.game.board.PicBut_Visible[2]);
    f.game.picBut(2); // hidden: raises no click
    QCOMPARE(f.game.g.TipZaehler, int16_t(0));
    f.game.start();
    QVERIFY(f.game.board.PicBut_Visible[2]);
    QVERIFY(f.game.board.tip_Enabled);
}

void Guesses::eighthMissWithOneLetterLeftKeepsWordOpen()
{
    GameFixture f;
    f.game.einst.Sound = 0;
    f.game.start();
    type(f.game, "apl");
    type(f.game, "bcdfghij");
    QCOMPARE(f.game.g.Fehler, int16_t(8));
    QCOMPARE(f.fields(), QString("APPL_"));
    f.tk.whenHeld([&] {
        QCOMPARE(f.visibleStage(), 9);
        QCOMPARE(f.fields(), QString("APPLE")); // shown by the solution
        f.game.weiter();
    });
    f.game.key('k');
    QVERIFY(f.tk.log.contains("hold"));
    QCOMPARE(f.game.g.Punkte[0] + f.game.g.Punkte[1], 0);
}

void Guesses::wholeGame_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("once again: yes") << int(core::kAnswerYes);
    QTest::newRow("once again: no") << int(core::kAnswerNo);
}

void Guesses::wholeGame()
{
    QFETCH(int, answer);
    GameFixture f({"ox", "ant", "bee"}, 2);
    f.game.einst.wiederh = {true, false};
    f.game.einst.Sound = 0;
    f.game.start();
    QVERIFY(f.game.g.SpielLaeuft);
    QVERIFY(f.tk.boxes().isEmpty()); // the first start asks nothing
    for (int word = 0; word < 7; ++word) {
        f.game.key('z'); // player 0 misses, player 1 misses, player 0 plays the word out
        f.game.key('y');
        QCOMPARE(f.game.g.AktSpieler, int16_t(0));
        f.tk.whenHeld([&] { f.game.key(13); });
        playOut(f.game);
        QVERIFY(!f.game.board.weiter_Enabled);
    }
    QCOMPARE(f.game.g.Punkte[0], int16_t(7));
    QCOMPARE(f.visiblePoints(0), 7);
    f.tk.answers.push_back(answer);
    f.tk.log.clear();
    playOut(f.game);
    QCOMPARE(f.tk.boxes(), (QStringList{"box 48 Yippieh!: Marta\rwon!", "box 36 : Once again?"}));
    if (answer == core::kAnswerYes) {
        QVERIFY(!f.game.ended());
        QCOMPARE(f.visiblePoints(0), 0);
        QVERIFY(f.game.g.SpielLaeuft);
        // Start now asks, since a game has been started.
        f.tk.answers.push_back(core::kAnswerNo);
        const QString word = f.game.g.Wort;
        f.game.start();
        QCOMPARE(f.tk.boxes().last(), QString("box 36 Start: Really start a new game?"));
        QCOMPARE(f.game.g.Wort, word);
    } else {
        QVERIFY(f.game.ended());
        f.game.start(); // nothing runs after the end
        QCOMPARE(f.tk.log.last(), QString("end"));
    }
}

QTEST_GUILESS_MAIN(Guesses)
#include "tst_guesses.moc"
