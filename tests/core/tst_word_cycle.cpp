// Starting games, drawing words, the repeat modes, the word list, and the options command.
#include "support/scripted_toolkit.h"
#include "vocabulary/word_file.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using support::GameFixture;

namespace {

int count(const QStringList& log, const QString& entry) { return int(log.count(entry)); }

} // namespace

class WordCycle : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void firstStartDrawsWithoutAQuestion();
    void drawGrowsThePictureAndLaysOutFields_data();
    void drawGrowsThePictureAndLaysOutFields();
    void secondStartAsks_data();
    void secondStartAsks();
    void startDuringTheWaitDrawsOnce_data();
    void startDuringTheWaitDrawsOnce();
    void repeatModes_data();
    void repeatModes();
    void oneWordListIsReadAgainWhenItRunsEmpty();
    void newGameDoesNotRefillTheList();
    void emptyVocabularyDrawsNothing();
    void readerMessages_data();
    void readerMessages();
    void optionsChangeRestarts_data();
    void optionsChangeRestarts();
    void optionsMotifOnlySwapsPictures();
    void optionsDuringTheWaitDrawsOnce();

private:
    QTemporaryDir dir_;
    QString oldCwd_;
};

void WordCycle::init()
{
    oldCwd_ = QDir::currentPath();
    QVERIFY(dir_.isValid());
    QVERIFY(QDir::setCurrent(dir_.path()));
}

void WordCycle::cleanup()
{
    QDir::setCurrent(oldCwd_);
    for (const QString& f : QDir(dir_.path()).entryList(QDir::Files))
        QFile::remove(dir_.filePath(f));
}

void WordCycle::firstStartDrawsWithoutAQuestion()
{
    GameFixture f;
    f.game.board.Spieler[0].Caption = "Marta"; // from start-up
    f.game.start();
    QVERIFY(f.tk.boxes().isEmpty());
    QVERIFY(f.game.g.SpielLaeuft);
    QCOMPARE(f.game.g.Wort, QString("APPLE"));
    QCOMPARE(f.game.FeldZahl, int16_t(5));
    for (int i = 0; i < core::kLetters; ++i) {
        QVERIFY(f.game.board.alpha[i].Visible);
        QVERIFY(f.game.board.alpha[i].Enabled);
    }
    for (int i = core::kLetters; i < core::kTiles; ++i) {
        QVERIFY(!f.game.board.alpha[i].Visible); // the umlaut tiles are never touched
        QVERIFY(!f.game.board.alpha[i].Enabled);
    }
    QVERIFY(f.game.board.tip_Enabled);
    QVERIFY(!f.game.board.weiter_Enabled);
    QVERIFY(!f.game.board.PicBut_Visible[3]);
    QCOMPARE(f.visibleStage(), 0);
    QCOMPARE(f.game.board.B_Folge0_Height, core::kPictureSize);
}

void WordCycle::drawGrowsThePictureAndLaysOutFields_data()
{
    QTest::addColumn<int>("sound");
    QTest::addColumn<QStringList>("expected");
    QStringList grow;
    for (int i = 0; i < 8; ++i) grow << "wait 0.1";
    QStringList fields;
    for (int i = 0; i < 3; ++i)
        fields << "sound 4"
               << "wait 0.1";
    QTest::newRow("sound on") << 1 << (QStringList{"sound 0"} + grow + fields);
    QTest::newRow("sound off") << 0 << grow;
}

void WordCycle::drawGrowsThePictureAndLaysOutFields()
{
    QFETCH(int, sound);
    QFETCH(QStringList, expected);
    GameFixture f({"owl"});
    f.game.einst.Sound = sound;
    QList<int> heights;
    for (int i = 0; i < 8; ++i) f.tk.duringWait([&] { heights << f.game.board.B_Folge0_Height; });
    f.game.start();
    QCOMPARE(f.tk.soundsAndWaits(), expected);
    QCOMPARE(heights, (QList<int>{300, 600, 900, 1200, 1500, 1800, 2100, 2400}));
    QCOMPARE(f.tk.trace({"seed"}).size(), 1); // seeded from the clock at the draw
}

void WordCycle::secondStartAsks_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("yes") << int(core::kAnswerYes);
    QTest::newRow("no") << int(core::kAnswerNo);
}

void WordCycle::secondStartAsks()
{
    QFETCH(int, answer);
    GameFixture f({"apple", "lemon"});
    f.drawIndex(0);
    f.game.start();
    f.game.g.Punkte[0] = 3; // say earlier words were won
    f.game.board.Punkt[0].Visible = true;
    for (const char* k = "bcdfg"; *k; ++k) f.game.key(*k); // 5 misses
    QCOMPARE(f.visibleStage(), 5);
    f.tk.log.clear();
    f.tk.answers.push_back(answer);
    f.drawIndex(1);
    f.game.start();
    QCOMPARE(f.tk.boxes(), QStringList{"box 36 Start: Really start a new game?"});
    if (answer == core::kAnswerYes) {
        QCOMPARE(f.game.g.Wort, QString("LEMON"));
        QCOMPARE(f.visibleStage(), 0); // no picture of the old word is left
        QCOMPARE(f.game.g.Punkte[0], int16_t(0));
        QVERIFY(!f.game.board.Punkt[0].Visible);
        QCOMPARE(f.game.g.AktSpieler, int16_t(0));
        // The dropped word does not come back into the list.
        QCOMPARE(f.game.List1, (QStringList{"apple", "lemon"}));
    } else {
        QCOMPARE(f.game.g.Wort, QString("APPLE"));
        QCOMPARE(f.visibleStage(), 5);
        QCOMPARE(f.game.g.Punkte[0], int16_t(3));
        QCOMPARE(f.game.g.AktSpieler, int16_t(1));
        QVERIFY(f.tk.sounds().isEmpty());
    }
}

void WordCycle::startDuringTheWaitDrawsOnce_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("yes") << int(core::kAnswerYes);
    QTest::newRow("no, then next word") << int(core::kAnswerNo);
}

void WordCycle::startDuringTheWaitDrawsOnce()
{
    QFETCH(int, answer);
    GameFixture f({"ox"});
    f.game.start();
    f.tk.log.clear();
    f.tk.answers.push_back(answer);
    f.tk.whenHeld([&] { f.game.start(); });
    if (answer == core::kAnswerNo) f.tk.whenHeld([&] { f.game.picBut(3); });
    f.game.key('o');
    f.game.key('x');
    QCOMPARE(count(f.tk.log, "sound 0"), 1); // exactly one new word
    QCOMPARE(f.game.g.Punkte[0], int16_t(answer == core::kAnswerYes ? 0 : 1));
    QVERIFY(!f.game.board.weiter_Enabled);
    QVERIFY(!f.game.board.PicBut_Visible[3]);
    QVERIFY(f.game.board.alpha[0].Enabled);
    // After a solved word half a second stands between the end of the wait and the draw.
    const QStringList w = f.tk.trace({"wait 0.5", "sound 0"});
    QCOMPARE(w, (QStringList{"wait 0.5", "sound 0"}));
}

void WordCycle::repeatModes_data()
{
    QTest::addColumn<bool>("allWords");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("all words: nothing leaves") << true << QStringList{"cat", "dog", "emu"};
    QTest::newRow("words not guessed: the drawn word leaves") << false << QStringList{"cat", "emu"};
}

void WordCycle::repeatModes()
{
    QFETCH(bool, allWords);
    QFETCH(QStringList, left);
    GameFixture f({"cat", "dog", "emu"});
    f.game.einst.wiederh = {allWords, !allWords};
    f.drawIndex(1);
    f.game.start();
    QCOMPARE(f.game.g.Wort, QString("DOG"));
    QCOMPARE(f.game.List1, left);
}

void WordCycle::oneWordListIsReadAgainWhenItRunsEmpty()
{
    QVERIFY(!vocabulary::writeWordFile("one.dat", {"kiwi"}));
    GameFixture f({"kiwi"});
    f.game.g.WortDatei = "one.dat";
    f.game.einst.wiederh = {false, true};
    f.game.start();
    QCOMPARE(f.game.g.Wort, QString("KIWI"));
    QCOMPARE(f.game.List1, QStringList{"kiwi"}); // read anew at once
    QVERIFY(f.tk.boxes().isEmpty());
    // Lost now, the word stands twice: the new reading holds it already.
    f.game.einst.Sound = 0;
    f.tk.whenHeld([&] {
        QCOMPARE(f.game.List1, (QStringList{"kiwi", "KIWI"}));
        f.game.weiter();
    });
    for (const char* k = "abcdefghj"; *k; ++k) f.game.key(*k);
    QVERIFY(f.tk.log.contains("hold"));
    QCOMPARE(f.game.g.Wort, QString("KIWI")); // the same word can come up next
}

void WordCycle::newGameDoesNotRefillTheList()
{
    GameFixture f({"cat", "dog", "emu"});
    f.game.einst.wiederh = {false, true};
    f.drawIndex(0);
    f.game.start();
    QCOMPARE(f.game.List1, (QStringList{"dog", "emu"}));
    f.tk.answers.push_back(core::kAnswerYes);
    f.drawIndex(0);
    f.game.start();
    // Solved and dropped words stay away until the list has run empty.
    QCOMPARE(f.game.g.Wort, QString("DOG"));
    QCOMPARE(f.game.List1, QStringList{"emu"});
}

void WordCycle::emptyVocabularyDrawsNothing()
{
    GameFixture f(QStringList{});
    f.game.WoerterLaden(); // no frostel.dat here
    QCOMPARE(f.tk.boxes(), QStringList{"box 48 Error: File frostel.dat not found!"});
    QCOMPARE(f.game.g.WortDatei, QString("frostel.dat"));
    f.game.start();
    QVERIFY(f.game.g.Wort.isEmpty());
    QCOMPARE(f.game.board.Feld.size(), size_t(1));
    for (int i = 0; i < core::kLetters; ++i) QVERIFY(!f.game.board.alpha[i].Enabled);
    QVERIFY(!f.game.board.tip_Enabled);
    f.game.key('a');
    f.game.picBut(2);
    f.game.tip();
    QCOMPARE(f.game.g.Fehler, int16_t(0));
    QCOMPARE(f.game.g.Punkte[0], int16_t(0));
    QCOMPARE(f.tk.boxes().size(), 1); // said once, at the reading
    // Once words arrive, the next start plays again.
    f.game.List1 = {"yak"};
    f.tk.answers.push_back(core::kAnswerYes);
    f.game.start();
    QCOMPARE(f.game.g.Wort, QString("YAK"));
    QVERIFY(f.game.board.alpha[0].Enabled);
}

void WordCycle::readerMessages_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isDirectory");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("message");
    QTest::newRow("missing") << "gone.dat" << QByteArray() << false << QStringList()
                             << "box 48 Error: File gone.dat not found!";
    QTest::newRow("zero bytes") << "empty.dat" << QByteArray("") << false << QStringList()
                                << "box 48 Error: Input past end of file";
    QTest::newRow("a directory") << "x.dat" << QByteArray() << true << QStringList()
                                 << "box 48 Error: Path/File access error";
    QTest::newRow("good") << "ok.dat" << QByteArray("fig\r\npear\r\n") << false
                          << QStringList{"fig", "pear"} << QString();
}

void WordCycle::readerMessages()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(bool, isDirectory);
    QFETCH(QStringList, words);
    QFETCH(QString, message);
    if (isDirectory) QVERIFY(QDir().mkdir(name));
    else if (!content.isNull()) {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    GameFixture f({"stale"});
    f.game.g.WortDatei = name;
    f.game.WoerterLaden();
    QCOMPARE(f.game.List1, words);
    QCOMPARE(f.tk.boxes(), message.isEmpty() ? QStringList() : QStringList{message});
    QCOMPARE(f.game.g.WortDatei, name);
    if (isDirectory) QDir().rmdir(name);
}

void WordCycle::optionsChangeRestarts_data()
{
    QTest::addColumn<bool>("gameRunning");
    QTest::newRow("no game yet") << false;
    QTest::newRow("during a word") << true;
}

void WordCycle::optionsChangeRestarts()
{
    QFETCH(bool, gameRunning);
    QVERIFY(!vocabulary::writeWordFile("frostel.dat", {"gnu"}));
    GameFixture f({"apple"});
    if (gameRunning) {
        f.game.start();
        f.game.g.Punkte[2] = 4;
        f.game.key('z');
    }
    f.game.run([&] {
        f.game.opt_Click([&] {
            f.game.einst.Spieler_Name[0] = "Kim";
            f.game.g.EinstGeaendert = true; // as a changed name does
        });
    });
    QVERIFY(f.tk.boxes().isEmpty()); // no question
    QVERIFY(f.game.g.SpielLaeuft);
    QCOMPARE(f.game.g.Wort, QString("GNU")); // from the list read anew
    QCOMPARE(f.game.board.Spieler[0].Caption, QString("Kim"));
    QCOMPARE(f.game.g.Punkte[2], int16_t(0));
    QCOMPARE(f.game.g.AktSpieler, int16_t(0));
    QCOMPARE(f.game.g.Fehler, int16_t(0));
    QCOMPARE(count(f.tk.log, "sound 0"), gameRunning ? 2 : 1);
}

void WordCycle::optionsMotifOnlySwapsPictures()
{
    GameFixture f({"apple"});
    f.game.start();
    f.game.g.Punkte[0] = 2;
    f.game.board.Punkt[0].Visible = f.game.board.Punkt[1].Visible = true;
    f.game.key('z');
    f.game.key('a');
    const auto before = f.game.g;
    f.game.run([&] { f.game.opt_Click([&] { f.game.g.MotivNr = 0; }); });
    QCOMPARE(f.game.board.seriesMotif, 0);
    for (const auto& s : f.game.board.Punkt) QCOMPARE(s.symbol, 0);
    QCOMPARE(f.visiblePoints(0), 2);
    QCOMPARE(f.visibleStage(), 1);
    QCOMPARE(f.game.g.Wort, before.Wort);
    QCOMPARE(f.game.g.Fehler, before.Fehler);
    QCOMPARE(f.game.g.AktSpieler, before.AktSpieler);
    QCOMPARE(f.fields(), QString("A____"));
    QCOMPARE(count(f.tk.log, "sound 0"), 1);
}

void WordCycle::optionsDuringTheWaitDrawsOnce()
{
    QVERIFY(!vocabulary::writeWordFile("frostel.dat", {"elk"}));
    GameFixture f({"ox"});
    f.game.start();
    f.tk.log.clear();
    f.tk.whenHeld([&] {
        f.game.run([&] {
            f.game.opt_Click([&] {
                f.game.g.AnzTips = 1;
                f.game.g.EinstGeaendert = true;
                f.game.g.MotivNr = 0;
            });
        });
    });
    f.game.key('o');
    f.game.key('x');
    QCOMPARE(count(f.tk.log, "sound 0"), 1);
    QCOMPARE(f.game.g.Wort, QString("ELK"));
    QCOMPARE(f.game.g.Punkte[0], int16_t(0));
    QCOMPARE(f.game.board.seriesMotif, 0);
    QVERIFY(!f.game.board.weiter_Enabled);
}

QTEST_GUILESS_MAIN(WordCycle)
#include "tst_word_cycle.moc"
