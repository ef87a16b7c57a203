// The toolkit on Qt with the real main window: message boxes and their answers, waits that
// sleep, and input that comes during a wait. Runs offscreen, and again under Xvfb where the
// input rows send real X key presses.
#include "mainwindow/main_window.h"
#include "support/modal.h"
#include "vocabulary/word_file.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <ctime>

using mainwindow::MainWindow;

namespace {

double cpuSeconds()
{
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return double(t.tv_sec) + double(t.tv_nsec) / 1e9;
}

int uncovered(const core::Game& game)
{
    int n = 0;
    for (size_t i = 1; i < game.board.Feld.size(); ++i) n += game.board.Feld[i].picture >= 0;
    return n;
}

} // namespace

class QtToolkitTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void messageBoxes_data();
    void messageBoxes();
    void waitsSleep();
    void inputDuringAWaitIsPlayedAfterIt_data();
    void inputDuringAWaitIsPlayedAfterIt();

private:
    std::unique_ptr<MainWindow> startWindow();
    QTemporaryDir dir_;
    QString oldCwd_;
};

void QtToolkitTest::init()
{
    oldCwd_ = QDir::currentPath();
    QVERIFY(QDir::setCurrent(dir_.path()));
    QVERIFY(!vocabulary::writeWordFile("frostel.dat", {"apple"}));
}

void QtToolkitTest::cleanup() { QDir::setCurrent(oldCwd_); }

std::unique_ptr<MainWindow> QtToolkitTest::startWindow()
{
    QFile::remove(dir_.filePath("frostel.ini"));
    QFile ini(dir_.filePath("frostel.ini"));
    ini.open(QIODevice::WriteOnly);
    ini.write("[Einstellungen]\r\nSound= 0\r\n");
    ini.close();
    MainWindow::Setup setup;
    setup.profilePath = ini.fileName();
    setup.splashMs = 0;
    setup.exitProgram = [](int) {};
    auto w = std::make_unique<MainWindow>(setup);
    w->toolkit().waitScale = 0.01;
    w->Form_Load();
    return w;
}

void QtToolkitTest::messageBoxes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("press"); // a button's text, or a key
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("icon");
    QTest::addColumn<int>("buttons");
    QTest::addColumn<QString>("title"); // as given, and as the window manager shows it

    const int yesNo = QMessageBox::Yes | QMessageBox::No, ok = QMessageBox::Ok;
    const int question = QMessageBox::Question, warning = QMessageBox::Warning;
    QTest::newRow("question, Yes") << 36 << "Yes" << 6 << question << yesNo << "Frostel";
    QTest::newRow("question, No") << 36 << "No" << 7 << question << yesNo << "Frostel";
    QTest::newRow("question, Enter takes Yes") << 36 << "Enter" << 6 << question << yesNo << "";
    QTest::newRow("question, Esc takes No") << 36 << "Esc" << 7 << question << yesNo << "";
    QTest::newRow("exclamation, OK") << 48 << "OK" << 1 << warning << ok << "Frostel";
    QTest::newRow("exclamation, Enter") << 48 << "Enter" << 1 << warning << ok << "";
}

void QtToolkitTest::messageBoxes()
{
    QFETCH(int, type);
    QFETCH(QString, press);
    QFETCH(int, answer);
    QFETCH(int, icon);
    QFETCH(int, buttons);
    QFETCH(QString, title);

    auto w = startWindow();
    QMessageBox::Icon shownIcon{};
    int shownButtons = 0;
    QString shownTitle, text;
    support::onNextModal<QMessageBox>([&](QMessageBox* box) {
        shownIcon = box->icon();
        shownButtons = int(box->standardButtons());
        shownTitle = support::shownTitle(box);
        text = box->text();
        if (press == "Enter") QTest::keyClick(box, Qt::Key_Return);
        else if (press == "Esc") QTest::keyClick(box, Qt::Key_Escape);
        else
            for (QAbstractButton* b : box->buttons())
                if (b->text().remove('&') == press) b->click();
    });
    QCOMPARE(w->toolkit().msgBox("Line one\rline two", type, title), answer);
    QCOMPARE(int(shownIcon), icon);
    QCOMPARE(shownButtons, buttons);
    QCOMPARE(shownTitle, title);
    QCOMPARE(text, QString("Line one\nline two"));
}

void QtToolkitTest::waitsSleep()
{
    auto w = startWindow();
    platform::QtToolkit& tk = w->toolkit();
    // A plain wait of half a second.
    tk.waitScale = 1;
    double cpu = cpuSeconds();
    QElapsedTimer clock;
    clock.start();
    tk.wait(0.5);
    QVERIFY(clock.elapsed() >= 450);
    const double waitCpu = cpuSeconds() - cpu;

    // The wait for the next word, held for half a second, then ended by the player.
    tk.waitScale = 0.01;
    w->game().start();
    double heldCpu = -1;
    std::function<void()> whenHeld = [&] {
        if (!w->game().board.weiter_Enabled) return QTimer::singleShot(20, whenHeld);
        cpu = cpuSeconds();
        QTimer::singleShot(500, [&] {
            heldCpu = cpuSeconds() - cpu;
            w->game().weiter();
        });
    };
    QTimer::singleShot(0, whenHeld);
    for (const char* k = "aple"; *k; ++k) QTest::keyClick(w.get(), *k);
    QVERIFY(heldCpu >= 0);
    QVERIFY(!w->game().board.weiter_Enabled);
    // Sleeping costs next to nothing; a spinning loop would use the whole half second.
    QVERIFY2(waitCpu < 0.1, qPrintable(QString::number(waitCpu)));
    QVERIFY2(heldCpu < 0.1, qPrintable(QString::number(heldCpu)));
}

void QtToolkitTest::inputDuringAWaitIsPlayedAfterIt_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("key") << "key";
    QTest::newRow("tile click") << "click";
    QTest::newRow("real X key press") << "x11";
}

void QtToolkitTest::inputDuringAWaitIsPlayedAfterIt()
{
    QFETCH(QString, how);
    if (how == "x11") {
        if (QGuiApplication::platformName() != "xcb") QSKIP("needs an X server (runs under Xvfb)");
        if (QStandardPaths::findExecutable("xdotool").isEmpty()) QSKIP("needs xdotool");
    }
    auto w = startWindow();
    w->activateWindow();
    QVERIFY(QTest::qWaitForWindowExposed(w.get()));
    core::Game& g = w->game();
    g.einst.Sound = 1; // a miss then waits a moment
    g.start();
    // A P comes during the wait after the miss of Z.
    int duringWait = -1;
    bool wasBusy = false;
    QTimer::singleShot(0, [&] {
        wasBusy = g.busy();
        if (how == "key") {
            QTest::keyClick(w.get(), Qt::Key_P);
        } else if (how == "click") {
            QTest::mouseClick(w->tileLabel(15), Qt::LeftButton);
        } else {
            const QString id = QString::number(w->winId());
            QProcess::execute("xdotool", {"windowfocus", "--sync", id});
            QProcess::execute("xdotool", {"key", "p"});
        }
        QTest::qWait(150); // the press arrives and is served within the wait
        duringWait = uncovered(g);
    });
    QTest::keyClick(w.get(), Qt::Key_Z);
    QVERIFY(wasBusy);
    QCOMPARE(duringWait, 0);
    // Played once the miss had returned: both P of APPLE.
    QTRY_COMPARE(uncovered(g), 2);
    QCOMPARE(g.g.Fehler, int16_t(1));
}

QTEST_MAIN(QtToolkitTest)
#include "tst_qt_toolkit.moc"
