// The about window in its two uses, its load handler, and the text scrambler beside it.
#include "assets/global.h"
#include "assets/info_window.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <functional>

namespace {

int openInfoWindows()
{
    int n = 0;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (qobject_cast<assets::InfoWindow*>(w)) ++n;
    return n;
}

assets::InfoWindow* shownInfo()
{
    return qobject_cast<assets::InfoWindow*>(QApplication::activeModalWidget());
}

// Closes a modal window that should have gone by itself long ago, so a fault fails the test
// instead of hanging it.
struct Watchdog {
    QTimer timer;
    bool fired = false;
    explicit Watchdog(int ms)
    {
        timer.setSingleShot(true);
        QObject::connect(&timer, &QTimer::timeout, [this] {
            fired = true;
            if (QWidget* w = QApplication::activeModalWidget()) w->close();
        });
        timer.start(ms);
    }
};

} // namespace

class AboutWindow : public QObject {
    Q_OBJECT
private slots:
    void formLoadSetsTextsAndTitle();
    void centredTwips_data();
    void centredTwips();
    void formLoadCentres_data();
    void formLoadCentres();
    void splashEndsItself_data();
    void splashEndsItself();
    void aboutStaysUntilClosed_data();
    void aboutStaysUntilClosed();
    void timerEndsTheWindow();
    void verschluesseln_data();
    void verschluesseln();
    void verschluesselnTwiceGivesTheTextBack_data();
    void verschluesselnTwiceGivesTheTextBack();
    void storedTexts_data();
    void storedTexts();
};

void AboutWindow::formLoadSetsTextsAndTitle()
{
    QMainWindow main;
    main.setWindowTitle("untitled");
    {
        assets::InfoWindow info(&main);
        QCOMPARE(info.Label()[0]->text(), QString("Frostel32 v2.31"));
        QCOMPARE(info.Label()[3]->text(), QString("For more Information see README.TXT!"));
        QCOMPARE(main.windowTitle(), QString("Frostel32 v2.31"));
    }
    // Each load titles the main window again, the same way.
    main.setWindowTitle("changed");
    assets::InfoWindow again(&main);
    QCOMPARE(main.windowTitle(), QString("Frostel32 v2.31"));

    assets::InfoWindow untitled(nullptr);
    QCOMPARE(untitled.Label()[0]->text(), QString("Frostel32 v2.31"));
}

void AboutWindow::centredTwips_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QSize>("window");
    QTest::addColumn<QPoint>("expected");

    QTest::newRow("fits") << QSize(12000, 9000) << QSize(5340, 4935) << QPoint(3330, 2032);
    QTest::newRow("same size") << QSize(12000, 9000) << QSize(12000, 9000) << QPoint(0, 0);
    QTest::newRow("odd difference") << QSize(12000, 9000) << QSize(11985, 8985) << QPoint(7, 7);
    QTest::newRow("larger, even") << QSize(12000, 9000) << QSize(15000, 10500)
                                  << QPoint(-1500, -750);
    // Halving cuts towards zero: -15 / 2 is -7, not -8.
    QTest::newRow("larger, odd") << QSize(12000, 9000) << QSize(12015, 9015) << QPoint(-7, -7);
}

void AboutWindow::centredTwips()
{
    QFETCH(QSize, screen);
    QFETCH(QSize, window);
    QFETCH(QPoint, expected);
    QCOMPARE(assets::centredTwips(screen, window), expected);
}

void AboutWindow::formLoadCentres_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("expected");

    // On the 800 x 800 screen of the test platform, 12000 x 12000 twips.
    QTest::newRow("as designed") << QSize(356, 329) << QPoint(222, 235);
    QTest::newRow("odd") << QSize(357, 330) << QPoint(221, 235);
    QTest::newRow("as large as the screen") << QSize(800, 800) << QPoint(0, 0);
    // -15 twips halve to -7, which is nearer 0 pixels than -1.
    QTest::newRow("one pixel larger") << QSize(801, 801) << QPoint(0, 0);
    QTest::newRow("larger than the screen") << QSize(1000, 900) << QPoint(-100, -50);
    QTest::newRow("larger, odd") << QSize(1001, 901) << QPoint(-100, -50);
}

void AboutWindow::formLoadCentres()
{
    QFETCH(QSize, size);
    QFETCH(QPoint, expected);
    if (QGuiApplication::primaryScreen()->geometry().size() != QSize(800, 800))
        QSKIP("needs the 800 x 800 screen of the offscreen platform");

    QMainWindow main;
    assets::InfoWindow info(&main);
    info.resize(size);
    info.Form_Load();
    QCOMPARE(info.pos(), expected);
    info.show();
    QVERIFY(QTest::qWaitForWindowExposed(&info) || expected.x() < 0);
    QCOMPARE(info.frameGeometry().topLeft(), expected);
}

void AboutWindow::splashEndsItself_data()
{
    QTest::addColumn<int>("interval");
    QTest::addColumn<bool>("pressEsc");
    QTest::newRow("100 ms") << 100 << false;
    QTest::newRow("400 ms") << 400 << false;
    QTest::newRow("400 ms, Esc does nothing") << 400 << true;
}

void AboutWindow::splashEndsItself()
{
    QFETCH(int, interval);
    QFETCH(bool, pressEsc);

    QMainWindow main;
    bool seen = false, okHidden = false, timerRuns = false;
    QString title;
    QTimer::singleShot(interval / 4, [&] {
        assets::InfoWindow* info = shownInfo();
        if (!info) return;
        seen = info->isVisible();
        okHidden = !info->OK()->isVisible();
        timerRuns = info->Timer1()->isActive() && info->Timer1()->interval() == interval;
        title = main.windowTitle();
        if (pressEsc) {
            QTest::keyClick(info, Qt::Key_Escape);
            QTest::keyClick(info, Qt::Key_Return);
        }
    });
    Watchdog watchdog(interval + 5000);
    QElapsedTimer clock;
    clock.start();
    assets::InfoWindow::splash(&main, interval);
    const qint64 took = clock.elapsed();

    QVERIFY(!watchdog.fired);
    QVERIFY(seen);
    QVERIFY(okHidden);
    QVERIFY(timerRuns);
    QCOMPARE(title, QString("Frostel32 v2.31"));
    // Coarse timers may come up to 5 % early.
    QVERIFY2(took >= interval * 95 / 100, qPrintable(QString::number(took)));
    QCOMPARE(openInfoWindows(), 0);
    QCOMPARE(main.windowTitle(), QString("Frostel32 v2.31"));
}

void AboutWindow::aboutStaysUntilClosed_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("Esc") << "Esc";
    QTest::newRow("Esc in the focused button") << "Esc focus";
    QTest::newRow("Enter") << "Enter";
    QTest::newRow("OK clicked") << "click";
}

void AboutWindow::aboutStaysUntilClosed()
{
    QFETCH(QString, how);

    QMainWindow main;
    bool openLater = false, timerOff = false, okShown = false;
    // Well past the time a splash would have taken, the window still stands.
    QTimer::singleShot(600, [&] {
        assets::InfoWindow* info = shownInfo();
        if (!info) return;
        openLater = info->isVisible();
        timerOff = !info->Timer1()->isActive();
        okShown = info->OK()->isVisible();
        if (how == "Esc") QTest::keyClick(info, Qt::Key_Escape);
        if (how == "Esc focus") {
            info->OK()->setFocus();
            QTest::keyClick(info->OK(), Qt::Key_Escape);
        }
        if (how == "Enter") {
            // OK, the only control that takes the focus, has it without being given it.
            QWidget* focus = QApplication::focusWidget();
            QTest::keyClick(focus ? focus : info, Qt::Key_Return);
        }
        if (how == "click") QTest::mouseClick(info->OK(), Qt::LeftButton);
    });
    Watchdog watchdog(5000);
    assets::InfoWindow::about(&main);

    QVERIFY(!watchdog.fired);
    QVERIFY(openLater);
    QVERIFY(timerOff);
    QVERIFY(okShown);
    QCOMPARE(openInfoWindows(), 0);
    QCOMPARE(main.windowTitle(), QString("Frostel32 v2.31"));
}

void AboutWindow::timerEndsTheWindow()
{
    assets::InfoWindow info(nullptr);
    info.show();
    info.Timer1()->setInterval(10);
    info.Timer1()->start();
    QTRY_VERIFY_WITH_TIMEOUT(!info.isVisible(), 3000);
    QVERIFY(!info.Timer1()->isActive());
}

void AboutWindow::verschluesseln_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");

    // Worked by hand on the Windows-1252 codes.
    QTest::newRow("one-letter key") << "AB"
                                    << "!"
                                    << "`c"; // 41^21=60, 42^21=63
    // F^a=27 r^b=10 o^a=0E s^b=11 t^a=15: the key starts again at the third letter.
    QTest::newRow("key repeats") << "Frost"
                                 << "ab" << QString::fromLatin1("\x27\x10\x0e\x11\x15", 5);
    // H^E=0D, i^i=00.
    QTest::newRow("text shorter than the key") << "Hi"
                                               << "Eiszap" << QString::fromLatin1("\x0d\x00", 2);
    // The euro sign is byte 80 in Windows-1252: 80^41=C1, "Á".
    QTest::newRow("euro sign") << QString::fromUtf8("€") << "A" << QString::fromUtf8("Á");
    QTest::newRow("umlauts and a blank")
        << QString::fromUtf8("äöü") << "   " << QString::fromUtf8("ÄÖÜ");
    // 41^C0=81, a byte Windows-1252 leaves undefined.
    QTest::newRow("undefined byte") << "A" << QString::fromUtf8("À") << QString(QChar(0x81));
    QTest::newRow("back to the euro sign")
        << QString::fromUtf8("Á") << "A" << QString::fromUtf8("€");
    QTest::newRow("empty text") << ""
                                << "key"
                                << "";
    QTest::newRow("empty key") << "Frost"
                               << ""
                               << "Frost";
}

void AboutWindow::verschluesseln()
{
    QFETCH(QString, text);
    QFETCH(QString, key);
    QFETCH(QString, expected);
    QString t = text;
    assets::Verschluesseln(t, key);
    QCOMPARE(t, expected);
}

void AboutWindow::verschluesselnTwiceGivesTheTextBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("key");
    QTest::newRow("sentence, six-letter key") << "Frostel32 melts away, one stage a miss."
                                              << "Eiszap";
    QTest::newRow("key longer than the text") << "Eis"
                                              << "Schneemann";
    QTest::newRow("umlauts and euro") << QString::fromUtf8("Größe: 5 € für Äpfel") << "kälte!";
    QTest::newRow("same letters cancel") << "aaaaaa"
                                         << "aaaaaa";
    QTest::newRow("control characters")
        << QString::fromLatin1("\x01\x1f\x7f\x81\x9d\xff", 6) << QString::fromUtf8("€ÿ");
}

void AboutWindow::verschluesselnTwiceGivesTheTextBack()
{
    QFETCH(QString, text);
    QFETCH(QString, key);
    QString t = text;
    assets::Verschluesseln(t, key);
    if (!text.isEmpty() && text != key) QVERIFY(t != text);
    assets::Verschluesseln(t, key);
    QCOMPARE(t, text);
}

void AboutWindow::storedTexts_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("expected");
    QTest::newRow("credit") << 0 << "Pictures drawn by hand, one pixel at a time.";
    QTest::newRow("build note") << 1 << "Built for the Linux desktop with Qt 6.";
}

void AboutWindow::storedTexts()
{
    QFETCH(int, index);
    QFETCH(QString, expected);
    QCOMPARE(assets::InfoWindow::storedText(index), expected);
    // They stand nowhere in the window.
    assets::InfoWindow info(nullptr);
    for (QLabel* l : info.findChildren<QLabel*>()) QVERIFY(!l->text().contains(expected));
}

QTEST_MAIN(AboutWindow)
#include "tst_about_window.moc"
