// The real main window, offscreen and under a window manager: start-up from the settings
// file, titles, shutdown, commands in each phase, and the options window from its menu.
#include "editor/vocabulary_editor.h"
#include "mainwindow/main_window.h"
#include "settings/options_window.h"
#include "support/files.h"
#include "support/main_window_start.h"
#include "support/modal.h"
#include "widgets/pictures.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using mainwindow::MainWindow;
using support::centred;

namespace {

// Answers the next modal box with the given button once it shows; notes title and text.
void answerNextBox(QMessageBox::StandardButton button, QStringList* texts = nullptr)
{
    support::onNextModal<QMessageBox>([=](QMessageBox* box) {
        if (texts) texts->append(support::shownTitle(box) + ": " + box->text());
        box->button(button)->click();
    });
}

// Runs `act` from the wait once a finished word waits for "next word".
void whenHeld(MainWindow* w, const std::function<void()>& act)
{
    auto* weiter = w->findChild<QAction*>("weiter");
    auto held = std::make_shared<QMetaObject::Connection>();
    *held = QObject::connect(weiter, &QAction::enabledChanged, weiter, [=](bool on) {
        if (on && QObject::disconnect(*held)) QTimer::singleShot(0, weiter, act);
    });
}

bool samePicture(const QLabel* label, const QString& name)
{
    return label->pixmap().toImage() == widgets::picture(name).toImage();
}

} // namespace

class MainWindowTest : public QObject, support::MainWindowStart {
    Q_OBJECT
private slots:
    void init() { QVERIFY(enter()); }
    void cleanup() { leave(); }
    void firstStartWithNoFile();
    void namesAndOptionsFromTheFile();
    void handEditedFileStartsSafely_data();
    void handEditedFileStartsSafely();
    void missingWordFileSaysSoOverTheWindow();
    void commandsInEachPhase();
    void motifChangeSwapsPictures();
    void optionsChangeEndsTheWaitWithANewWord();
    void closingDuringTheWaitEndsAtOnce();
    void theRealOptionsWindow();
};

void MainWindowTest::firstStartWithNoFile()
{
    auto w = startWindow();
    // Centred by its outer size, 9600 x 6975 twips: the stored height 6900 is below the minimum.
    const QSize outer(640, 465);
    QTRY_COMPARE(w->frameGeometry(), QRect(centred(outer), outer));
    QCOMPARE(support::shownTitle(w.get()), QString("Frostel32 v2.31"));
    const core::Game& g = w->game();
    QCOMPARE(g.g.AnzSpieler, int16_t(4));
    QCOMPARE(g.g.AnzTips, int16_t(3));
    QCOMPARE(g.g.MotivNr, int16_t(1));
    QCOMPARE(g.einst.wiederh, (std::array<bool, 2>{false, true}));
    QCOMPARE(g.einst.Sound, 1);
    QCOMPARE(g.einst.Anzeige, 1);
    QCOMPARE(g.g.WortDatei, QString("frostel.dat")); // the first row of the file list
    QCOMPARE(g.List1, QStringList{"apple"});
    const QStringList names{"Marta", "Helene", "Matthis", "Svenja"};
    for (int i = 0; i < 4; ++i) {
        QVERIFY(w->playerLabel(i)->isVisible());
        QCOMPARE(w->playerLabel(i)->text(), names[i]);
    }
    QVERIFY(w->pictureLabel(0)->isVisible());
    QVERIFY(samePicture(w->pictureLabel(0), "eisfigur0"));
    for (int i = 1; i < 10; ++i) QVERIFY(!w->pictureLabel(i)->isVisible());
    for (int i = 0; i < 26; ++i) QVERIFY(w->tileLabel(i)->isVisible());
    for (int i = 26; i < 29; ++i) QVERIFY(!w->tileLabel(i)->isVisible());
    for (int i = 0; i < 32; ++i) QVERIFY(!w->pointLabel(i) || !w->pointLabel(i)->isVisible());
    QVERIFY(!w->findChild<QAction*>("tip")->isEnabled());
    QVERIFY(!w->findChild<QAction*>("weiter")->isEnabled());
    for (int i = 0; i < 3; ++i) QVERIFY(w->picBut(i)->isVisible());
    QVERIFY(!w->picBut(3)->isVisible());
    QVERIFY(!QFile::exists(ini_)); // nothing is written before the end
}

void MainWindowTest::namesAndOptionsFromTheFile()
{
    auto w =
        startWindow("[Einstellungen]\r\nAnzahl= 2\r\nTips= 0\r\nMotiv= 0\r\nWiederholung=-1\r\n"
                    "Sound= 0\r\nAnzeige= 0\r\nSpieler1=Spieler 3\r\nSpieler2=Kim\r\n"
                    "Datei=zoo.dat\r\n");
    const core::Game& g = w->game();
    QCOMPARE(g.g.AnzSpieler, int16_t(2));
    QCOMPARE(g.g.AnzTips, int16_t(0));
    QCOMPARE(g.g.MotivNr, int16_t(0));
    QCOMPARE(g.einst.wiederh, (std::array<bool, 2>{true, false}));
    QCOMPARE(g.einst.Sound, 0);
    QCOMPARE(g.einst.Anzeige, 0);
    QCOMPARE(g.g.WortDatei, QString("zoo.dat"));
    QCOMPARE(g.List1, QStringList{"gnu"});
    QCOMPARE(w->playerLabel(0)->text(), QString("Marta")); // a stored default name gives way
    QCOMPARE(w->playerLabel(1)->text(), QString("Kim"));
    QVERIFY(!w->playerLabel(2)->isVisible());
    QVERIFY(samePicture(w->pictureLabel(0), "apfelbaum0"));
    w->findChild<QAction*>("start")->trigger();
    QVERIFY(!w->picBut(2)->isVisible()); // no tips: the button hides at the draw
}

void MainWindowTest::handEditedFileStartsSafely_data()
{
    QTest::addColumn<QByteArray>("ini");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("binary") << QByteArray("\x00\xff\x13[Win\x00dow]\nStatus=\x01", 20);
    QTest::newRow("out of range") << QByteArray(
        "[Window]\r\nStatus= 7\r\nWidth=-5\r\nHeight= 99999999\r\n"
        "[Einstellungen]\r\nAnzahl= 9\r\nTips=-4\r\nMotiv= 3\r\nSound= 5\r\n");
    QTest::newRow("keys without equals, long line")
        << (QByteArray("[Einstellungen]\r\nAnzahl\r\n") + QByteArray(10240, 'z') + "\r\n");
}

void MainWindowTest::handEditedFileStartsSafely()
{
    QFETCH(QByteArray, ini);
    auto w = startWindow(ini);
    QVERIFY(w->isVisible());
    QVERIFY(w->frameGeometry().width() >= 640);
    QVERIFY(w->frameGeometry().height() >= 465);
    // Whole on the screen, within reach.
    QVERIFY(w->screen()->availableGeometry().contains(w->frameGeometry()));
    // A game plays with whatever it read.
    QAction* start = w->findChild<QAction*>("start");
    start->trigger();
    QTest::keyClick(w.get(), Qt::Key_Q);
    QTest::keyClick(w.get(), Qt::Key_A);
    QCOMPARE(w->game().g.Fehler, int16_t(1));
    w->close();
    // The window's place is in the file at the end, whatever else the file holds.
    QVERIFY(support::readAll(ini_).contains("[Window]"));
}

void MainWindowTest::missingWordFileSaysSoOverTheWindow()
{
    QFile::remove("frostel.dat");
    QFile::remove("zoo.dat");
    QStringList texts;
    answerNextBox(QMessageBox::Ok, &texts);
    auto w = startWindow();
    QCOMPARE(texts, QStringList{"Error: File frostel.dat not found!"});
    QVERIFY(w->isVisible());
    w->findChild<QAction*>("start")->trigger();
    QVERIFY(w->game().g.Wort.isEmpty());
    for (int i = 0; i < 26; ++i) QVERIFY(!w->game().board.alpha[i].Enabled);
    // The name the word list fell back to is the one the options store.
    support::onNextModal<settings::OptionsWindow>(
        [](settings::OptionsWindow* o) { support::child<QPushButton>(o, "OK")->click(); });
    w->findChild<QAction*>("opt")->trigger();
    QVERIFY2(support::readAll(ini_).contains("Datei=frostel.dat\r\n"), support::readAll(ini_));
}

void MainWindowTest::commandsInEachPhase()
{
    auto w = startWindow("[Einstellungen]\r\nSound= 0\r\n");
    auto* tip = w->findChild<QAction*>("tip");
    auto* weiter = w->findChild<QAction*>("weiter");
    auto* start = w->findChild<QAction*>("start");
    auto* ende = w->findChild<QAction*>("ende");
    core::Game& g = w->game();
    // No game: letters and Enter do nothing, the tip button only counts.
    QTest::keyClick(w.get(), Qt::Key_A);
    QTest::keyClick(w.get(), Qt::Key_Return);
    QVERIFY(g.g.Wort.isEmpty());
    QTest::mouseClick(static_cast<QAbstractButton*>(w->picBut(2)), Qt::LeftButton);
    QCOMPARE(g.g.TipZaehler, int16_t(1));
    // The end, answered No, changes nothing.
    QStringList texts;
    answerNextBox(QMessageBox::No, &texts);
    ende->trigger();
    QCOMPARE(texts, QStringList{"Program end: Really end the game?"});
    QCOMPARE(exits_, 0);
    // Word under way, by the traffic light.
    QTest::mouseClick(static_cast<QAbstractButton*>(w->picBut(0)), Qt::LeftButton);
    QCOMPARE(g.g.Wort, QString("APPLE"));
    QVERIFY(tip->isEnabled());
    QVERIFY(!weiter->isEnabled());
    QTest::keyClick(w.get(), Qt::Key_P);
    QTest::mouseClick(w->tileLabel(0), Qt::LeftButton);
    QCOMPARE(w->game().board.Feld[1].picture, 0);
    QVERIFY(!w->tileLabel(0)->isVisible());
    QVERIFY(w->fieldLabel(2)->pixmap().toImage() == widgets::picture("alpha15").toImage());
    // A second start asks; No leaves the word.
    answerNextBox(QMessageBox::No, &texts);
    start->trigger();
    QCOMPARE(texts.last(), QString("Start: Really start a new game?"));
    QCOMPARE(g.g.Wort, QString("APPLE"));
    // Solving holds the wait: weiter and its button come up; Enter ends it.
    bool heldSeen = false;
    whenHeld(w.get(), [&] {
        heldSeen = w->picBut(3)->isVisible();
        QTest::keyClick(w.get(), Qt::Key_Return);
    });
    QTest::keyClick(w.get(), Qt::Key_L);
    QTest::keyClick(w.get(), Qt::Key_E);
    QVERIFY(heldSeen);
    QVERIFY(!weiter->isEnabled());
    QVERIFY(!w->picBut(3)->isVisible());
    QCOMPARE(g.g.Punkte[0], int16_t(1));
    QVERIFY(w->pointLabel(0)->isVisible());
    QVERIFY(samePicture(w->pointLabel(0), "symbol1"));
    // The end, answered Yes, unloads the window.
    answerNextBox(QMessageBox::Yes);
    w->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(w.get()));
    QTest::keyClick(w.get(), Qt::Key_E, Qt::ControlModifier);
    QCOMPARE(exits_, 1);
    QVERIFY(g.ended());
    QVERIFY(QFile::exists(ini_));
}

void MainWindowTest::motifChangeSwapsPictures()
{
    auto w = startWindow("[Einstellungen]\r\nSound= 0\r\n");
    core::Game& g = w->game();
    w->findChild<QAction*>("start")->trigger();
    g.g.Punkte[0] = 1;
    g.board.Punkt[0].Visible = true;
    QTest::keyClick(w.get(), Qt::Key_Z);
    QTest::keyClick(w.get(), Qt::Key_Y);
    QVERIFY(samePicture(w->pictureLabel(2), "eisfigur2"));
    w->showOptions = [&] { g.g.MotivNr = 0; };
    w->opt_Click();
    QVERIFY(w->pictureLabel(2)->isVisible());
    QVERIFY(samePicture(w->pictureLabel(2), "apfelbaum2"));
    QVERIFY(samePicture(w->pointLabel(0), "symbol0"));
    QVERIFY(w->pointLabel(0)->isVisible());
    QCOMPARE(g.g.Fehler, int16_t(2));
    QCOMPARE(g.g.Wort, QString("APPLE"));
    // Also while the finished word waits: the picture changes, the wait goes on.
    bool stillHeld = false;
    whenHeld(w.get(), [&] {
        w->showOptions = [&] { g.g.MotivNr = 1; };
        w->opt_Click();
        stillHeld = w->findChild<QAction*>("weiter")->isEnabled() &&
                    w->pictureLabel(g.g.Fehler)->isVisible() &&
                    samePicture(w->pictureLabel(g.g.Fehler), QString("eisfigur%1").arg(g.g.Fehler));
        w->findChild<QAction*>("weiter")->trigger();
    });
    for (const char* k = "aple"; *k; ++k) QTest::keyClick(w.get(), *k);
    QVERIFY(stillHeld);
    QCOMPARE(g.g.Punkte[2], int16_t(1)); // two misses passed the turn to player 2
}

void MainWindowTest::optionsChangeEndsTheWaitWithANewWord()
{
    auto w = startWindow("[Einstellungen]\r\nSound= 0\r\n");
    core::Game& g = w->game();
    w->findChild<QAction*>("start")->trigger();
    whenHeld(w.get(), [&] {
        w->showOptions = [&] {
            g.g.WortDatei = "zoo.dat";
            g.g.EinstGeaendert = true;
        };
        w->opt_Click();
    });
    for (const char* k = "aple"; *k; ++k) QTest::keyClick(w.get(), *k);
    QCOMPARE(g.g.Wort, QString("GNU"));
    QCOMPARE(g.g.Punkte[0], int16_t(0)); // a new game
    QVERIFY(!w->findChild<QAction*>("weiter")->isEnabled());
    QVERIFY(g.g.SpielLaeuft);
    QCOMPARE(g.board.Feld.size(), size_t(4));
}

void MainWindowTest::theRealOptionsWindow()
{
    auto w = startWindow("[Einstellungen]\r\nSound= 0\r\nMotiv= 1\r\n");
    QVERIFY(support::writeBytes("late.dat", "owl\r\n")); // the list is the folder at the start
    core::Game& g = w->game();
    w->findChild<QAction*>("start")->trigger();
    QTest::keyClick(w.get(), Qt::Key_Z);
    // From the menu: the options window, centred, and the editor over it. A double click on
    // "Apple tree" closes the options.
    QString title;
    QStringList rows; // the chosen one marked
    QRect outer, editor;
    auto framed = [](QWidget* w) {
        static_cast<void>(QTest::qWaitFor([w] { return w->frameGeometry() != w->geometry(); }));
        return w->frameGeometry();
    };
    support::onNextModal<settings::OptionsWindow>([&](settings::OptionsWindow* options) {
        for (int i = 0; i < options->wortsch()->count(); ++i)
            rows << options->wortsch()->item(i)->text() +
                        (i == options->wortsch()->currentRow() ? "*" : "");
        title = support::shownTitle(options);
        outer = framed(options);
        support::onNextModal<editor::VocabularyEditor>([&](editor::VocabularyEditor* e) {
            editor = framed(e);
            support::child<QPushButton>(e, "Abbruch")->click();
        });
        support::child<QPushButton>(options, "EditButt")->click();
        QListWidget* motif = options->Motiv();
        const QPoint at = motif->visualItemRect(motif->item(0)).center();
        QTest::mouseClick(motif->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(motif->viewport(), Qt::LeftButton, {}, at);
    });
    w->findChild<QAction*>("opt")->trigger();
    QCOMPARE(rows, QStringList({"frostel.dat*", "zoo.dat"}));
    QCOMPARE(title, QString("Options"));
    QCOMPARE(outer.topLeft(), centred(outer.size()));
    QVERIFY((editor.center() - outer.center()).manhattanLength() <= 2);
    QCOMPARE(g.g.MotivNr, int16_t(0));
    // The word and its miss stay; the picture is the apple tree's now; the file has it all.
    QCOMPARE(g.g.Fehler, int16_t(1));
    QVERIFY(samePicture(w->pictureLabel(1), "apfelbaum1"));
    const QByteArray ini = support::readAll(ini_);
    QVERIFY2(ini.contains("Motiv= 0\r\n"), ini.constData());
    QVERIFY2(ini.contains("Datei=frostel.dat\r\n"), ini.constData());
    QVERIFY2(ini.contains("Spieler4=Svenja\r\n"), ini.constData());
}

void MainWindowTest::closingDuringTheWaitEndsAtOnce()
{
    auto w = startWindow("[Einstellungen]\r\nSound= 0\r\n");
    w->findChild<QAction*>("start")->trigger();
    QElapsedTimer clock;
    clock.start();
    whenHeld(w.get(), [&] { w->close(); });
    for (const char* k = "aple"; *k; ++k) QTest::keyClick(w.get(), *k);
    QVERIFY(clock.elapsed() < 5000);
    QCOMPARE(exits_, 1);
    QVERIFY(w->game().ended());
    QVERIFY(QFile::exists(ini_));
    // Every later wait and box returns at once.
    w->toolkit().wait(30);
    QCOMPARE(w->toolkit().msgBox("Really?", 36, "Frostel"), 7);
    QVERIFY(clock.elapsed() < 5000);
}

QTEST_MAIN(MainWindowTest)
#include "tst_main_window.moc"
