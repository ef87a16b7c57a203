// Commands that come at odd moments: during a guess, a draw or a wait they queue and run
// afterwards, judged then; a held wait runs them as they come; the end stops everything.
#include "support/scripted_toolkit.h"

#include <QTest>

using support::GameFixture;

class Commands : public QObject {
    Q_OBJECT
private slots:
    void keyDuringTheDrawPlaysAfterIt_data();
    void keyDuringTheDrawPlaysAfterIt();
    void secondGuessWaitsForTheFirst();
    void commandsDuringAMissWaitRunAfterIt_data();
    void commandsDuringAMissWaitRunAfterIt();
    void letterAfterTheNinthMissWithSoundOffIsNoSecondEnd();
    void startDuringTheDrawIsNoSecondDraw();
    void queuedTilesAreJudgedWhenTheyRun();
    void endAnsweredNoChangesNothing();
    void endDuringTheHeldWaitStopsTheGuess();
    void closingDuringAWaitStopsAtOnce();
    void enterKeyEndsOnlyTheHeldWait();
    void picButDispatch_data();
    void picButDispatch();
};

void Commands::keyDuringTheDrawPlaysAfterIt_data()
{
    QTest::addColumn<int>("waitIndex");
    QTest::newRow("while the picture grows") << 2;
    QTest::newRow("while the fields are laid out") << 9;
}

void Commands::keyDuringTheDrawPlaysAfterIt()
{
    QFETCH(int, waitIndex);
    GameFixture f;
    for (int i = 0; i < waitIndex; ++i) f.tk.duringWait([] {});
    QString fieldsWhenQueued = "none";
    f.tk.duringWait([&] {
        f.game.key('p');
        fieldsWhenQueued = f.fields(); // nothing played yet: the key only queued
    });
    f.game.start();
    QVERIFY(fieldsWhenQueued != "none");
    QVERIFY(!fieldsWhenQueued.contains('P'));
    QCOMPARE(f.fields(), QString("_PP__")); // played once the draw was done
    QCOMPARE(f.game.FeldZahl, int16_t(5));
}

void Commands::secondGuessWaitsForTheFirst()
{
    GameFixture f({"apple"}, 2);
    f.game.start();
    // The first serve inside the miss (tile hidden) brings a second key.
    int turnWhenSecondRan = -1;
    f.tk.atServe([&] { f.game.key('a'); });
    f.tk.atServe([&] { turnWhenSecondRan = f.game.g.AktSpieler; });
    f.game.key('z');
    QCOMPARE(f.game.g.Fehler, int16_t(1));
    QCOMPARE(f.fields(), QString("A____"));
    QCOMPARE(f.game.g.AktSpieler, int16_t(1)); // the miss passed the turn, the hit kept it
    QCOMPARE(turnWhenSecondRan, 0);            // still inside the first guess then
}

void Commands::commandsDuringAMissWaitRunAfterIt_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("fields");
    QTest::addColumn<int>("words");
    QTest::newRow("tip") << "tip"
                         << "A____" << 1;
    QTest::newRow("start") << "start"
                           << "_____" << 2;
    QTest::newRow("another letter") << "key"
                                    << "_PP__" << 1;
}

void Commands::commandsDuringAMissWaitRunAfterIt()
{
    QFETCH(QString, command);
    QFETCH(QString, fields);
    QFETCH(int, words);
    GameFixture f;
    f.game.start();
    QString stageWhenQueued;
    f.tk.duringWait([&] {
        if (command == "tip") f.game.tip();
        else if (command == "start") f.game.start();
        else f.game.key('p');
        stageWhenQueued = f.fields();
    });
    f.tk.answers.push_back(core::kAnswerYes);
    f.game.key('z'); // sound 3 and its wait
    QCOMPARE(stageWhenQueued, QString("_____"));
    QCOMPARE(f.fields(), fields);
    QCOMPARE(int(f.tk.log.count("sound 0")), words);
    if (command != "start") QCOMPARE(f.game.g.Fehler, int16_t(1));
}

void Commands::letterAfterTheNinthMissWithSoundOffIsNoSecondEnd()
{
    GameFixture f;
    f.game.einst.Sound = 0;
    f.game.start();
    for (const char* k = "bcdfghij"; *k; ++k) f.game.key(*k);
    // The ninth miss serves events with the tiles still enabled; a letter comes then.
    f.tk.atServe([&] { f.game.key('a'); });
    f.tk.whenHeld([&] { f.game.weiter(); });
    const qsizetype before = f.tk.log.size();
    f.game.key('k');
    QCOMPARE(int(f.tk.log.mid(before).count("hold")), 1); // one end of the word, one wait
    QCOMPARE(f.game.List1.count("APPLE"), 1);             // put back once
    QCOMPARE(f.fields(), QString("_____"));               // and the next word is untouched
    QCOMPARE(f.game.g.Fehler, int16_t(0));
}

void Commands::startDuringTheDrawIsNoSecondDraw()
{
    GameFixture f({"apple", "melon"});
    f.tk.duringWait([&] { f.game.start(); });
    f.tk.answers.push_back(core::kAnswerYes);
    f.drawIndex(0);
    f.drawIndex(1);
    f.game.start();
    // The second start waited for the first draw to end, then asked and drew once.
    QCOMPARE(f.tk.boxes(), QStringList{"box 36 Start: Really start a new game?"});
    QCOMPARE(int(f.tk.log.count("sound 0")), 2);
    QCOMPARE(f.game.g.Wort, QString("MELON"));
    QCOMPARE(f.game.board.Feld.size(), size_t(6));
}

void Commands::queuedTilesAreJudgedWhenTheyRun()
{
    GameFixture f({"ox"});
    f.game.start();
    // During the jingle's wait, a click on a tile that the end of the word then disables.
    f.tk.duringWait([&] { f.game.tile(1); });
    f.tk.whenHeld([&] {
        QVERIFY(f.game.board.alpha[1].Visible); // the queued click found it disabled
        f.game.weiter();
    });
    f.game.key('o');
    f.game.key('x');
    QCOMPARE(f.game.g.Fehler, int16_t(0));
    QVERIFY(f.game.board.alpha[1].Visible);
}

void Commands::endAnsweredNoChangesNothing()
{
    GameFixture f;
    f.game.start();
    f.game.key('z');
    const auto g = f.game.g;
    f.tk.answers.push_back(core::kAnswerNo);
    f.game.picBut(1);
    QCOMPARE(f.tk.boxes(), QStringList{"box 36 Program end: Really end the game?"});
    QVERIFY(!f.game.ended());
    QCOMPARE(f.game.g.Wort, g.Wort);
    QCOMPARE(f.game.g.Fehler, g.Fehler);
    QCOMPARE(f.game.g.AktSpieler, g.AktSpieler);
}

void Commands::endDuringTheHeldWaitStopsTheGuess()
{
    GameFixture f({"ox"});
    f.game.start();
    f.tk.answers.push_back(core::kAnswerYes);
    f.tk.whenHeld([&] { f.game.ende(); });
    f.game.key('o');
    f.game.key('x');
    QVERIFY(f.game.ended());
    QCOMPARE(f.tk.log.last(), QString("end")); // no draw after the end
    f.game.key('o');
    f.game.start();
    QCOMPARE(f.tk.log.last(), QString("end"));
}

void Commands::closingDuringAWaitStopsAtOnce()
{
    GameFixture f;
    f.tk.duringWait([&] { f.game.programEnded(); }); // the window closed from its menu
    f.game.start();
    QVERIFY(f.game.ended());
    QCOMPARE(f.tk.log.last(), QString("wait 0.1"));
    QVERIFY(f.tk.trace({"seed"}).isEmpty()); // the draw never came
}

void Commands::enterKeyEndsOnlyTheHeldWait()
{
    GameFixture f({"ox"});
    f.game.key(13); // no game: nothing
    f.game.start();
    f.game.key(13); // a word under way: nothing
    QCOMPARE(f.fields(), QString("__"));
    f.tk.whenHeld([&] { f.game.key(13); });
    f.game.key('o');
    f.game.key('x');
    QCOMPARE(int(f.tk.log.count("hold")), 1);
    QCOMPARE(f.fields(), QString("__"));
}

void Commands::picButDispatch_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("effect");
    QTest::newRow("0 starts") << 0 << "word";
    QTest::newRow("1 asks to end") << 1 << "box 36 Program end: Really end the game?";
    QTest::newRow("2 counts a tip") << 2 << "tip";
    QTest::newRow("3 is hidden: nothing") << 3 << "";
    QTest::newRow("out of range: nothing") << 7 << "";
}

void Commands::picButDispatch()
{
    QFETCH(int, index);
    QFETCH(QString, effect);
    GameFixture f;
    f.tk.answers.push_back(core::kAnswerNo);
    f.game.picBut(index);
    QCOMPARE(f.game.g.Wort.isEmpty(), effect != "word");
    QCOMPARE(f.game.g.TipZaehler, int16_t(effect == "tip" ? 1 : 0));
    QCOMPARE(f.tk.boxes(), effect.startsWith("box") ? QStringList{effect} : QStringList());
}

QTEST_GUILESS_MAIN(Commands)
#include "tst_commands.moc"
