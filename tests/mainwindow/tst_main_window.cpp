// The real main window, offscreen and under a window manager: start-up from the settings
// file, its place and state, shutdown, the place of its controls, and commands in each phase.
#include "assets/editor_window.h"
#include "assets/options_window.h"
#include "assets/pictures.h"
#include "mainwindow/main_window.h"
#include "support/files.h"
#include "support/modal.h"
#include "vocabulary/word_file.h"

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

namespace {

long long tw(int px) { return px * 15LL; }
int px(long long twips) { return int(std::lround(twips / 15.0)); }

// Where a window of that outer size stands centred: the differences in twips, halved.
QPoint centred(QSize outer)
{
    const QSize s = QGuiApplication::primaryScreen()->geometry().size();
    return {px((tw(s.width()) - tw(outer.width())) / 2),
            px((tw(s.height()) - tw(outer.height())) / 2)};
}

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
    return label->pixmap().toImage() == assets::picture(name).toImage();
}

} // namespace

class MainWindowTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void firstStartWithNoFile();
    void restartRestoresWhatWasStored();
    void storedStateComesBack_data();
    void storedStateComesBack();
    void screenBounds_data();
    void screenBounds();
    void namesAndOptionsFromTheFile();
    void handEditedFileStartsSafely_data();
    void handEditedFileStartsSafely();
    void missingWordFileSaysSoOverTheWindow();
    void minimumSizeAndLayout();
    void commandsInEachPhase();
    void motifChangeSwapsPictures();
    void optionsChangeEndsTheWaitWithANewWord();
    void closingDuringTheWaitEndsAtOnce();
    void theRealOptionsWindow();

private:
    std::unique_ptr<MainWindow> startWindow(const QByteArray& ini = {});
    QTemporaryDir dir_;
    QString oldCwd_;
    QString ini_;
    int exits_ = 0;
};

void MainWindowTest::init()
{
    oldCwd_ = QDir::currentPath();
    QVERIFY(QDir::setCurrent(dir_.path()));
    for (const QString& f : QDir().entryList(QDir::Files)) QFile::remove(f);
    QVERIFY(!vocabulary::writeWordFile("frostel.dat", {"apple"}));
    QVERIFY(!vocabulary::writeWordFile("zoo.dat", {"gnu"}));
    ini_ = dir_.filePath("config/frostel.ini");
    QDir(dir_.filePath("config")).removeRecursively();
    exits_ = 0;
}

void MainWindowTest::cleanup() { QDir::setCurrent(oldCwd_); }

std::unique_ptr<MainWindow> MainWindowTest::startWindow(const QByteArray& ini)
{
    if (!ini.isNull()) {
        QDir().mkpath(dir_.filePath("config"));
        QFile f(ini_);
        f.open(QIODevice::WriteOnly);
        f.write(ini);
    }
    MainWindow::Setup setup;
    setup.profilePath = ini_;
    setup.splashMs = 1; // a splash all the same: it is the main window's first owned window
    setup.exitProgram = [this](int) { ++exits_; };
    auto w = std::make_unique<MainWindow>(setup);
    w->toolkit().waitScale = 0.01;
    w->Form_Load();
    // Where there is a window manager, it has framed the window by then (else its place fails).
    static_cast<void>(QTest::qWaitFor([&w] { return w->frameGeometry() != w->geometry(); }));
    return w;
}

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

void MainWindowTest::restartRestoresWhatWasStored()
{
    const QRect moved(50, 40, 700, 495);
    {
        auto w = startWindow();
        QTRY_COMPARE(w->frameGeometry().size(), QSize(640, 465));
        w->move(moved.topLeft());
        w->resize(w->size() + QSize(60, 30));
        QTRY_COMPARE(w->frameGeometry(), moved);
        w->close();
        QCOMPARE(exits_, 1);
    }
    // The place of the frame, which options never come with.
    const QByteArray ini = support::readAll(ini_);
    QCOMPARE(ini, "[Window]\r\nLeft= 750\r\nTop= 600\r\nWidth= 10500\r\nHeight= 7425\r\n"
                  "Status= 0\r\n");
    // Every start comes up there again, and leaves the file as it was.
    for (int start = 0; start < 2; ++start) {
        auto w = startWindow();
        QTRY_COMPARE(w->frameGeometry(), moved);
        w->close();
        QCOMPARE(support::readAll(ini_), ini);
    }
}

void MainWindowTest::storedStateComesBack_data()
{
    QTest::addColumn<QByteArray>("ini");
    QTest::addColumn<int>("state");      // as the window comes up
    QTest::addColumn<bool>("minimise");  // by the player before the end
    QTest::addColumn<QByteArray>("end"); // null: the file as it was
    const QByteArray place =
        "[Window]\r\nLeft= 900\r\nTop= 600\r\nWidth= 10500\r\nHeight= 7500\r\n";
    QTest::newRow("maximised: the place keys stay")
        << place + "Status= 2\r\n"
        << int(Qt::WindowMaximized) << false << QByteArray();
    QTest::newRow("minimised, in its place") << place + "Status= 1\r\n"
                                             << int(Qt::WindowMinimized) << false << QByteArray();
    QTest::newRow("minimised from maximised: state 1 and the place")
        << place + "Status= 2\r\n"
        << int(Qt::WindowMaximized) << true
        << QByteArray("[Window]\r\nLeft=%1\r\nTop=%2\r\nWidth=%3\r\nHeight=%4\r\nStatus= 1\r\n");
}

void MainWindowTest::storedStateComesBack()
{
    QFETCH(QByteArray, ini);
    QFETCH(int, state);
    QFETCH(bool, minimise);
    QFETCH(QByteArray, end);
    auto w = startWindow(ini);
    QCOMPARE(int(w->windowState()), state);
    if (minimise) w->showMinimized();
    QTRY_COMPARE(bool(w->windowState() & Qt::WindowMinimized),
                 minimise || state == Qt::WindowMinimized);
    const QRect r = w->frameGeometry();
    w->close();
    auto n = [](int px) { return settings::numberForm(double(tw(px))); };
    QCOMPARE(support::readAll(ini_),
             end.isNull()
                 ? ini
                 : QString(end).arg(n(r.x()), n(r.y()), n(r.width()), n(r.height())).toLatin1());
}

void MainWindowTest::screenBounds_data()
{
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("top");
    QTest::addColumn<bool>("leftKept");
    QTest::addColumn<bool>("topKept");
    const QRect s = QGuiApplication::primaryScreen()->geometry();
    const int maxLeft = int(tw(s.width())) - 9600, maxTop = int(tw(s.height())) - 6975;
    QTest::newRow("right edge exactly") << maxLeft << 300 << true << true;
    QTest::newRow("one twip further") << maxLeft + 1 << 300 << false << true;
    QTest::newRow("left of the screen, top judged alone") << -15 << 300 << false << true;
    QTest::newRow("below the screen") << 300 << maxTop + 1 << true << false;
    QTest::newRow("above the screen") << 300 << -1 << true << false;
}

void MainWindowTest::screenBounds()
{
    QFETCH(int, left);
    QFETCH(int, top);
    QFETCH(bool, leftKept);
    QFETCH(bool, topKept);
    auto w = startWindow(
        QStringLiteral("[Window]\r\nLeft=%1\r\nTop=%2\r\n").arg(left).arg(top).toLatin1());
    const QPoint centre = centred({640, 465});
    QTRY_COMPARE(w->frameGeometry().topLeft(),
                 QPoint(leftKept ? px(left) : centre.x(), topKept ? px(top) : centre.y()));
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
    // A game plays with whatever it read.
    QAction* start = w->findChild<QAction*>("start");
    start->trigger();
    QTest::keyClick(w.get(), Qt::Key_Q);
    QTest::keyClick(w.get(), Qt::Key_A);
    QCOMPARE(w->game().g.Fehler, int16_t(1));
    w->close();
    // A clean file at the end: readable lines only, the window's place in it.
    const QByteArray out = support::readAll(ini_);
    QVERIFY(out.contains("[Window]"));
    for (char c : out) QVERIFY(c == '\r' || c == '\n' || static_cast<unsigned char>(c) >= 0x20);
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
    support::onNextModal<assets::OptionsWindow>([](assets::OptionsWindow* o) { o->OK()->click(); });
    w->findChild<QAction*>("opt")->trigger();
    QVERIFY2(support::readAll(ini_).contains("Datei=frostel.dat\r\n"), support::readAll(ini_));
}

void MainWindowTest::minimumSizeAndLayout()
{
    auto w = startWindow();
    QTRY_COMPARE(tw(w->frameGeometry().width()), 9600LL);
    w->findChild<QAction*>("start")->trigger();
    // The draw puts the word 50 twips right of where the layout will.
    QCOMPARE(w->game().board.Feld[1].Left, 3725);
    w->resize(w->width() + 1, w->height());
    QTRY_COMPARE(tw(w->frameGeometry().width()), 9615LL);
    w->resize(w->width() - 1, w->height());
    QTRY_COMPARE(tw(w->frameGeometry().width()), 9600LL);
    // Laid out anew at the resize: the word where the layout puts it, and shown there.
    QCOMPARE(w->game().board.Feld[1].Left, 3675);
    QCOMPARE(w->fieldLabel(1)->pos(), QPoint(px(3675), px(3273)));
    // Smaller is not allowed.
    w->resize(300, 200);
    QCOMPARE(w->frameGeometry().size(), QSize(640, 465));
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
    QVERIFY(w->fieldLabel(2)->pixmap().toImage() == assets::picture("alpha15").toImage());
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
    support::onNextModal<assets::OptionsWindow>([&](assets::OptionsWindow* options) {
        for (int i = 0; i < options->wortsch()->count(); ++i)
            rows << options->wortsch()->item(i)->text() +
                        (i == options->wortsch()->currentRow() ? "*" : "");
        title = support::shownTitle(options);
        outer = framed(options);
        support::onNextModal<assets::EditorWindow>([&](assets::EditorWindow* e) {
            editor = framed(e);
            e->Abbruch()->click();
        });
        options->EditButt()->click();
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
