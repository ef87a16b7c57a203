// Commands that come at odd moments: during a guess, a draw or a wait they queue and run
// afterwards, judged then; a held wait runs them as they come; the end stops everything.
#include "support/scripted_toolkit.h"

#include <QTest>

using support::GameFixture;

class Commands : public QObject {
    Q_OBJECT
private slots:
    void queuedUntilTheRoutineEnds_data();
    void queuedUntilTheRoutineEnds();
    void queuedInputIsJudgedWhenItRuns();
    void closingDuringTheDrawStopsAtOnce();
};

void Commands::queuedUntilTheRoutineEnds_data()
{
    QTest::addColumn<QString>("routine"); // "start" or the key of a guess
    QTest::addColumn<int>("waitsBefore");
    QTest::addColumn<QString>("command"); // "start", "tip" or a key
    QTest::addColumn<int>("draws");
    QTest::addColumn<QString>("fields");
    QTest::addColumn<int>("misses");
    QTest::newRow("key while the picture grows") << "start" << 2 << "p" << 1 << "_PP__" << 0;
    QTest::newRow("key while the fields are laid out") << "start" << 9 << "p" << 1 << "_PP__" << 0;
    QTest::newRow("start during the draw") << "start" << 0 << "start" << 2 << "_____" << 0;
    QTest::newRow("tip during a miss") << "z" << 0 << "tip" << 0 << "A____" << 1;
    QTest::newRow("start during a miss") << "z" << 0 << "start" << 1 << "_____" << 0;
    QTest::newRow("key during a miss") << "z" << 0 << "p" << 0 << "_PP__" << 1;
}

void Commands::queuedUntilTheRoutineEnds()
{
    QFETCH(QString, routine);
    QFETCH(int, waitsBefore);
    QFETCH(QString, command);
    QFETCH(int, draws);
    QFETCH(QString, fields);
    QFETCH(int, misses);
    GameFixture f;
    if (routine != "start") {
        f.game.start();
        f.tk.log.clear();
    }
    for (int i = 0; i < waitsBefore; ++i) f.tk.duringWait([] {});
    QString fieldsWhenQueued = "none";
    f.tk.duringWait([&] {
        if (command == "start") f.game.start();
        else if (command == "tip") f.game.tip();
        else f.game.key(command[0].unicode());
        fieldsWhenQueued = f.fields();
    });
    f.tk.answers.push_back(core::kAnswerYes);
    routine == "start" ? f.game.start() : f.game.key(routine[0].unicode());
    // Nothing ran inside the routine; afterwards the command ran as if it came then.
    QCOMPARE(fieldsWhenQueued, QString(fieldsWhenQueued.size(), '_'));
    QCOMPARE(f.fields(), fields);
    QCOMPARE(int(f.tk.log.count("sound 0")), draws);
    QCOMPARE(int(f.game.g.Fehler), misses);
    QCOMPARE(f.visibleStage(), misses);
    QCOMPARE(f.tk.boxes().size(), command == "start" ? 1 : 0); // a game was running by then
}

void Commands::queuedInputIsJudgedWhenItRuns()
{
    GameFixture f;
    f.game.einst.Sound = 0;
    f.game.start();
    for (const char* k = "bcdfghij"; *k; ++k) f.game.key(*k);
    // The ninth miss serves events while the tiles are still enabled; a click and a key come
    // then, and find the tiles shut by the end of the word.
    f.tk.atServe([&] {
        f.game.tile(0);
        f.game.key('p');
    });
    f.tk.whenHeld([&] { f.game.weiter(); });
    f.tk.log.clear();
    f.game.key('k');
    QCOMPARE(int(f.tk.log.count("hold")), 1); // one end of the word
    QCOMPARE(f.game.List1.count("APPLE"), 1); // put back once
    QCOMPARE(f.fields(), QString("_____"));   // and nothing played in the next word
}

void Commands::closingDuringTheDrawStopsAtOnce()
{
    GameFixture f;
    f.tk.duringWait([&] { f.game.programEnded(); }); // the window has gone
    f.game.start();
    QVERIFY(f.game.ended());
    QCOMPARE(f.tk.log.last(), QString("wait 0.1")); // the draw went no further
    f.game.start();
    QCOMPARE(f.tk.log.last(), QString("wait 0.1"));
}

QTEST_GUILESS_MAIN(Commands)
#include "tst_commands.moc"
