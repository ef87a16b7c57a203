// Starting games, drawing words, the repeat modes, the word list, and the options command.
#include "support/files.h"
#include "support/scripted_toolkit.h"
#include "vocabulary/word_file.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

using support::GameFixture;

namespace {

void type(core::Game& game, const char* keys)
{
    for (const char* c = keys; *c; ++c) game.key(*c);
}

} // namespace

class WordCycle : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void firstDraw_data();
    void firstDraw();
    void repeatModes_data();
    void repeatModes();
    void readingTheWordFile_data();
    void readingTheWordFile();
    void optionsCommand_data();
    void optionsCommand();

private:
    std::unique_ptr<QTemporaryDir> dir_; // the working folder, fresh for each test
    QString oldCwd_;
};

void WordCycle::init()
{
    dir_ = std::make_unique<QTemporaryDir>();
    oldCwd_ = QDir::currentPath();
    QVERIFY(QDir::setCurrent(dir_->path()));
}

void WordCycle::cleanup()
{
    QDir::setCurrent(oldCwd_);
    dir_.reset();
}

void WordCycle::firstDraw_data()
{
    QTest::addColumn<int>("sound");
    QTest::addColumn<QString>("word");
    QTest::addColumn<double>("width");
    QTest::addColumn<int>("firstLeft");
    // Fields centred: half the room left in whole twips, ties to even, the remainder dropped.
    QTest::newRow("sound on, the minimum width") << 1 << "apple" << 9600.0 << 3725;
    QTest::newRow("sound off, an odd room drops the half") << 0 << "apple" << 9601.0 << 3725;
    QTest::newRow("wide window") << 0 << "owl" << 19200.0 << 8975;
    QTest::newRow("word wider than the window: towards zero")
        << 1 << "abcdefghijklmnopqrstuvwxy" << 9599.0 << -775;
    QTest::newRow("a sharp s stays one letter") << 0 << "straße" << 9600.0 << 3500;
}

void WordCycle::firstDraw()
{
    QFETCH(int, sound);
    QFETCH(QString, word);
    QFETCH(double, width);
    QFETCH(int, firstLeft);
    GameFixture f({word});
    f.game.einst.Sound = sound;
    f.tk.width = width;
    f.game.board.Feld[0].Top = 3273; // as the layout leaves the pattern
    QList<int> heights;
    for (int i = 0; i < 8; ++i) f.tk.duringWait([&] { heights << f.game.board.B_Folge0_Height; });
    f.game.start();
    QVERIFY(f.tk.boxes().isEmpty()); // the first start asks nothing
    // Jingle, the picture grows, the seed from the clock, then a sound and a wait a field.
    QStringList trace = QStringList(8, "wait 0.1") << "seed";
    if (sound) {
        trace.prepend("sound 0");
        for (qsizetype i = 0; i < word.size(); ++i)
            trace << "sound 4"
                  << "wait 0.1";
    }
    QCOMPARE(f.tk.trace({"sound", "wait", "seed"}), trace);
    QCOMPARE(heights, (QList<int>{300, 600, 900, 1200, 1500, 1800, 2100, 2400}));
    QCOMPARE(f.game.g.Wort.size(), word.size()); // each character in capitals, one for one
    for (qsizetype i = 0; i < word.size(); ++i) QCOMPARE(f.game.g.Wort[i], word[i].toUpper());
    QCOMPARE(f.fields(), QString(word.size(), '_'));
    for (size_t i = 1; i < f.game.board.Feld.size(); ++i) {
        QCOMPARE(f.game.board.Feld[i].Left, firstLeft + int(i - 1) * 450);
        QCOMPARE(f.game.board.Feld[i].Top, 3273);
        QVERIFY(f.game.board.Feld[i].Visible);
    }
    for (int i = 0; i < core::kTiles; ++i) {
        QCOMPARE(f.game.board.alpha[i].Visible, i < core::kLetters); // umlauts never show
        QCOMPARE(f.game.board.alpha[i].Enabled, i < core::kLetters);
    }
    QVERIFY(f.game.g.SpielLaeuft);
    QVERIFY(f.game.board.tip_Enabled);
    QCOMPARE(f.visibleStage(), 0);
}

void WordCycle::repeatModes_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<bool>("allWords");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("all words: nothing leaves")
        << QStringList{"cat", "dog", "emu"} << true << QStringList{"cat", "dog", "emu"};
    QTest::newRow("words not guessed: the drawn word leaves")
        << QStringList{"cat", "dog", "emu"} << false << QStringList{"cat", "emu"};
    QTest::newRow("words not guessed, one word: read anew at once")
        << QStringList{"kiwi"} << false << QStringList{"kiwi"};
}

void WordCycle::repeatModes()
{
    QFETCH(QStringList, words);
    QFETCH(bool, allWords);
    QFETCH(QStringList, left);
    QVERIFY(!vocabulary::writeWordFile("frostel.dat", words));
    GameFixture f(words);
    f.game.einst.wiederh = {allWords, !allWords};
    f.game.einst.Sound = 0;
    f.drawIndex(int(words.size() / 2));
    f.game.start();
    const QString word = words[words.size() / 2].toUpper();
    QCOMPARE(f.game.g.Wort, word);
    QCOMPARE(f.game.List1, left);
    QVERIFY(f.tk.boxes().isEmpty());
    // A lost word goes back in, so it can come up again even where it already stands.
    QStringList atHold;
    f.tk.whenHeld([&] {
        atHold = f.game.List1;
        f.game.weiter();
    });
    type(f.game, "bcfhjlmnq");
    QCOMPARE(atHold, left + QStringList{word});
}

void WordCycle::readingTheWordFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content"); // null: no file; "dir": a folder in its place
    QTest::addColumn<QString>("message");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("no name, no file")
        << "" << QByteArray() << "File frostel.dat not found!" << QStringList();
    QTest::newRow("missing") << "gone.dat" << QByteArray() << "File gone.dat not found!"
                             << QStringList();
    QTest::newRow("a directory") << "x.dat" << QByteArray("dir") << "Path/File access error"
                                 << QStringList();
    QTest::newRow("good") << "ok.dat" << QByteArray("fig\r\npear\r\n") << ""
                          << QStringList{"fig", "pear"};
}

void WordCycle::readingTheWordFile()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, message);
    QFETCH(QStringList, words);
    if (content == "dir") QVERIFY(QDir().mkdir(name));
    else if (!content.isNull()) QVERIFY(support::writeBytes(name, content));
    GameFixture f({"stale"});
    f.game.g.WortDatei = name;
    f.game.WoerterLaden();
    QCOMPARE(f.game.List1, words);
    const QStringList boxes = f.tk.boxes();
    QCOMPARE(boxes, message.isEmpty() ? QStringList() : QStringList{"box 48 Error: " + message});
    QCOMPARE(f.game.g.WortDatei, name.isEmpty() ? QString("frostel.dat") : name);
    if (!words.isEmpty()) return;
    // No word: nothing drawn, tiles and tip shut, input does nothing and says nothing.
    f.game.start();
    QVERIFY(f.game.g.Wort.isEmpty());
    QCOMPARE(f.game.board.Feld.size(), size_t(1));
    for (int i = 0; i < core::kLetters; ++i) QVERIFY(!f.game.board.alpha[i].Enabled);
    QVERIFY(!f.game.board.tip_Enabled);
    f.game.key('a');
    f.game.picBut(2);
    f.game.tip();
    QCOMPARE(f.game.g.Fehler, int16_t(0));
    QCOMPARE(f.game.g.TipZaehler, int16_t(0));
    QCOMPARE(f.tk.boxes(), boxes);
}

void WordCycle::optionsCommand_data()
{
    QTest::addColumn<bool>("running");
    QTest::addColumn<int>("motif");
    QTest::addColumn<bool>("changed");
    QTest::addColumn<int>("series");
    QTest::newRow("a setting changed before any game") << false << 0 << true << 0;
    QTest::newRow("a setting changed during a word") << true << 1 << true << 1;
    QTest::newRow("only the motif changed during a word") << true << 0 << false << 0;
    QTest::newRow("a motif out of range takes Frostel") << true << 5 << false << 1;
}

void WordCycle::optionsCommand()
{
    QFETCH(bool, running);
    QFETCH(int, motif);
    QFETCH(bool, changed);
    QFETCH(int, series);
    QVERIFY(!vocabulary::writeWordFile("frostel.dat", {"gnu"}));
    GameFixture f({"apple"});
    if (running) {
        f.game.start();
        f.game.g.Punkte[2] = 4;
        f.game.board.Punkt[16].Visible = true;
        type(f.game, "za");
    }
    f.game.run([&] {
        f.game.opt_Click([&] {
            f.game.einst.Spieler_Name[0] = "Kim";
            f.game.g.AnzSpieler = 2;
            f.game.g.MotivNr = int16_t(motif);
            f.game.g.EinstGeaendert = changed; // names and counts raise it, the motif does not
        });
    });
    QVERIFY(f.tk.boxes().isEmpty());
    QCOMPARE(f.game.board.seriesMotif, series);
    for (const auto& s : f.game.board.Punkt) QCOMPARE(s.symbol, series);
    QCOMPARE(int(f.tk.log.count("sound 0")), running + changed);
    QVERIFY(f.game.g.SpielLaeuft);
    // A change starts a new game on the list read anew; the motif alone keeps the word.
    QCOMPARE(f.game.g.Wort, QString(changed ? "GNU" : "APPLE"));
    QCOMPARE(f.fields(), QString(changed ? "___" : "A____"));
    QCOMPARE(f.game.board.Spieler[0].Caption, QString(changed ? "Kim" : "Marta"));
    QCOMPARE(f.game.board.Spieler[2].Visible, !changed);
    QCOMPARE(f.visiblePoints(2), changed ? 0 : 1);
    QCOMPARE(int(f.game.g.AktSpieler), changed ? 0 : 1);
    QCOMPARE(f.visibleStage(), changed ? 0 : 1);
}

QTEST_GUILESS_MAIN(WordCycle)
#include "tst_word_cycle.moc"
