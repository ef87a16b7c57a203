// Commands that come at odd moments: input on a control that is shut when it arrives does
// nothing; the rest queues while a guess, a draw or a wait runs and is judged when it runs;
// a held wait runs commands as they come until one has ended it; the end stops everything.
#include "support/scripted_toolkit.h"
#include "vocabulary/word_file.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using support::GameFixture;

class Commands : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void atOddMoments_data();
    void atOddMoments();
    void queuedInputIsJudgedWhenItRuns();
    void closingDuringTheDrawStopsAtOnce();

private:
    QTemporaryDir dir_; // the working folder, with the word file the options read
};

void Commands::initTestCase()
{
    QVERIFY(QDir::setCurrent(dir_.path()));
    QVERIFY(!vocabulary::writeWordFile("frostel.dat", {"elk"}));
}

namespace {

// Small letters are keys, "\r" is Enter; S start, E end, T tip, O the options with a change.
void act(GameFixture& f, const QString& inputs)
{
    for (const QChar c : inputs) {
        switch (c.unicode()) {
        case 'S': f.game.start(); break;
        case 'E': f.game.ende(); break;
        case 'T': f.game.tip(); break;
        case 'O':
            f.game.run([&f] { f.game.opt_Click([&f] { f.game.g.EinstGeaendert = true; }); });
            break;
        default: f.game.key(c.unicode());
        }
    }
}

const QString kHalf = QStringLiteral("wait 0.5");

} // namespace

void Commands::atOddMoments_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("routine"); // what runs: keys, S start; a digit: points before
    QTest::addColumn<int>("wait");        // the wait of it the inputs come in; 0: the held wait
    QTest::addColumn<QString>("inputs");
    QTest::addColumn<QString>("answers"); // y or n for each question
    QTest::addColumn<QStringList>("trace");
    QTest::addColumn<QString>("fields");
    QTest::addColumn<int>("misses");
    QTest::addColumn<int>("points");
    const QString lose = "abcdefghi", draw = "sound 0", half = kHalf;
    // clang-format off
    // During a draw and a guess.
    QTest::newRow("a key while the picture grows does nothing")       << "apple" << "S" << 2 << "p" << "" << QStringList{draw} << "_____" << 0 << 0;
    QTest::newRow("a key before the fields stand does nothing")       << "apple" << "S" << 9 << "p" << "" << QStringList{draw} << "_____" << 0 << 0;
    QTest::newRow("a key during the draw of a new game does nothing") << "apple" << "zS" << 3 << "p" << "y" << QStringList{"box", draw} << "_____" << 0 << 0;
    QTest::newRow("start during the draw asks once it stands")        << "apple" << "S" << 1 << "S" << "y" << QStringList{draw, "box", draw} << "_____" << 0 << 0;
    QTest::newRow("tip during a miss")                                << "apple" << "z" << 1 << "T" << "" << QStringList{} << "A____" << 1 << 0;
    QTest::newRow("start during a miss")                              << "apple" << "z" << 1 << "S" << "y" << QStringList{"box", draw} << "_____" << 0 << 0;
    QTest::newRow("key during a miss")                                << "apple" << "z" << 1 << "p" << "" << QStringList{} << "_PP__" << 1 << 0;
    // Around the end of a word: one draw, whatever comes in whatever order.
    QTest::newRow("lost: Enter and start in the loss's wait draw once")     << "ox" << lose << 9 << "\rS" << "y" << QStringList{"box", draw} << "__" << 0 << 0;
    QTest::newRow("solved: Enter and start in the jingle's wait draw once") << "ox" << "ox" << 1 << "\rS" << "y" << QStringList{"box", half, draw} << "__" << 0 << 0;
    QTest::newRow("solved: Enter and the options draw once")                << "ox" << "ox" << 1 << "\rO" << "" << QStringList{half, draw} << "___" << 0 << 0;
    QTest::newRow("solved: once the options end the wait, start waits")     << "ox" << "ox" << 1 << "OS" << "y" << QStringList{half, draw, "box", draw} << "___" << 0 << 0;
    QTest::newRow("a key in the half second after the wait is not played")  << "ox" << "ox" << 2 << "o" << "" << QStringList{"hold", half, draw} << "__" << 0 << 1;
    QTest::newRow("a key in the half second after \"Once again?\" neither") << "ox" << "7ox" << 3 << "z" << "y" << QStringList{"box", half, draw} << "__" << 0 << 0;
    QTest::newRow("Enter while the solution uncovers keeps the wait")       << "ox" << lose << 10 << "\r" << "" << QStringList{"hold", draw} << "__" << 0 << 0;
    // In the held wait itself.
    QTest::newRow("held: start, yes")                    << "ox" << "ox" << 0 << "S" << "y" << QStringList{"hold", "box", half, draw} << "__" << 0 << 0;
    QTest::newRow("held: start, no, then the next word") << "ox" << "ox" << 0 << "S" << "n" << QStringList{"hold", "box", "hold", half, draw} << "__" << 0 << 1;
    QTest::newRow("held: options changed")               << "ox" << "ox" << 0 << "O" << "" << QStringList{"hold", half, draw} << "___" << 0 << 0;
    QTest::newRow("held: end, no, then the next word")   << "ox" << "ox" << 0 << "E" << "n" << QStringList{"hold", "box", "hold", half, draw} << "__" << 0 << 1;
    QTest::newRow("held: end, yes")                      << "ox" << "ox" << 0 << "E" << "y" << QStringList{"hold", "box", "end"} << "OX" << 0 << 1;
    // clang-format on
}

void Commands::atOddMoments()
{
    QFETCH(QString, word);
    QFETCH(QString, routine);
    QFETCH(int, wait);
    QFETCH(QString, inputs);
    QFETCH(QString, answers);
    QFETCH(QStringList, trace);
    QFETCH(QString, fields);
    QFETCH(int, misses);
    QFETCH(int, points);
    GameFixture f({word});
    if (!routine.startsWith('S')) {
        f.game.start();
        f.tk.log.clear();
    }
    if (routine[0].isDigit()) f.game.g.Punkte[0] = int16_t(routine[0].digitValue());
    for (const QChar a : answers)
        f.tk.answers.push_back(a == 'y' ? core::kAnswerYes : core::kAnswerNo);
    const auto arrive = [&] {
        const QString before = f.fields();
        act(f, inputs);
        QCOMPARE(f.fields(), before); // nothing ran inside the routine
    };
    if (wait == 0) {
        f.tk.whenHeld([&] { act(f, inputs); });
    } else {
        for (int i = 1; i < wait; ++i) f.tk.duringWait([] {});
        f.tk.duringWait(arrive);
    }
    f.tk.whenHeld([&] { f.game.weiter(); });
    act(f, routine);
    QStringList seen;
    for (const QString& e : f.tk.trace({"hold", kHalf, "sound 0", "box 36", "end"}))
        seen << (e.startsWith("box") ? QString("box") : e);
    QCOMPARE(seen, trace);
    QCOMPARE(f.fields(), fields);
    QCOMPARE(int(f.game.g.Fehler), misses);
    QCOMPARE(f.visibleStage(), misses);
    QCOMPARE(int(f.game.g.Punkte[0]), points);
    QCOMPARE(f.game.board.PicBut_Visible[3], f.game.ended());
    if (!f.game.ended()) return;
    f.game.start(); // nothing after the end
    QCOMPARE(f.tk.log.last(), QString("end"));
}

void Commands::queuedInputIsJudgedWhenItRuns()
{
    GameFixture f;
    f.game.einst.Sound = 0;
    f.game.start();
    for (const char* k = "bcdfghij"; *k; ++k) f.game.key(*k);
    // The ninth miss serves events while the tiles are still enabled; a click and a key come
    // then, and play nothing: the word is decided.
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
