// The about window in its two uses, its load handler, and the text scrambler beside it.
#include "about/verschluesseln.h"
#include "about/info_window.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

namespace {

int openInfoWindows()
{
    int n = 0;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (qobject_cast<about::InfoWindow*>(w)) ++n;
    return n;
}

} // namespace

class AboutWindow : public QObject {
    Q_OBJECT
private slots:
    void formLoadCentres_data();
    void formLoadCentres();
    void closing_data();
    void closing();
    void verschluesseln_data();
    void verschluesseln();
};

void AboutWindow::formLoadCentres_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("expected");

    // On the 800 x 800 screen of the test platform, 12000 x 12000 twips.
    QTest::newRow("as designed") << QSize(356, 329) << QPoint(222, 235);
    // Halving cuts towards zero: -15 twips give -7, which is nearer 0 pixels than -1.
    QTest::newRow("one pixel larger") << QSize(801, 801) << QPoint(0, 0);
    QTest::newRow("larger, odd") << QSize(1001, 901) << QPoint(-100, -50);
}

void AboutWindow::formLoadCentres()
{
    QFETCH(QSize, size);
    QFETCH(QPoint, expected);
    if (QGuiApplication::primaryScreen()->geometry().size() != QSize(800, 800))
        QSKIP("needs the 800 x 800 screen of the offscreen platform");

    QMainWindow main;
    main.setWindowTitle("changed");
    about::InfoWindow info(&main);
    QCOMPARE(main.windowTitle(), QString("Frostel32 v2.31"));
    info.resize(size);
    info.Form_Load();
    QCOMPARE(info.pos(), expected);
    info.show();
    QVERIFY(QTest::qWaitForWindowExposed(&info) || expected.x() < 0);
    QCOMPARE(info.frameGeometry().topLeft(), expected);
}

void AboutWindow::closing_data()
{
    QTest::addColumn<int>("splash"); // the splash's interval in ms; 0: the about window
    QTest::addColumn<int>("key");    // pressed while it shows; 0: none, -1: OK clicked

    QTest::newRow("splash 100 ms") << 100 << 0;
    QTest::newRow("splash 400 ms, Esc does nothing") << 400 << int(Qt::Key_Escape);
    QTest::newRow("splash 400 ms, Enter does nothing") << 400 << int(Qt::Key_Return);
    QTest::newRow("about, Esc") << 0 << int(Qt::Key_Escape);
    QTest::newRow("about, Enter") << 0 << int(Qt::Key_Return);
    QTest::newRow("about, OK clicked") << 0 << -1;
}

void AboutWindow::closing()
{
    QFETCH(int, splash);
    QFETCH(int, key);

    QMainWindow main;
    bool seen = false, okShown = false, timerRuns = false;
    // A quarter into the splash, or well past the time a splash would have taken.
    QTimer::singleShot(splash ? splash / 4 : 600, [&] {
        auto* info = qobject_cast<about::InfoWindow*>(QApplication::activeModalWidget());
        if (!info) return;
        seen = info->isVisible();
        okShown = info->OK()->isVisible();
        timerRuns = info->Timer1()->isActive() && info->Timer1()->interval() == splash;
        // OK, the only control that takes the focus, has it without being given it.
        QWidget* focus = QApplication::focusWidget();
        if (key > 0) QTest::keyClick(focus ? focus : info, Qt::Key(key));
        if (key < 0) QTest::mouseClick(info->OK(), Qt::LeftButton);
    });
    // Closes a window that should have gone long ago, so a fault fails instead of hanging.
    bool hung = false;
    QTimer::singleShot(splash + 5000, [&] {
        hung = true;
        if (QWidget* w = QApplication::activeModalWidget()) w->close();
    });
    QElapsedTimer clock;
    clock.start();
    if (splash) about::InfoWindow::splash(&main, splash);
    else about::InfoWindow::about(&main);

    QVERIFY(!hung);
    QVERIFY(seen);
    QCOMPARE(okShown, !splash);
    QCOMPARE(timerRuns, bool(splash));
    // Coarse timers may come up to 5 % early.
    QVERIFY2(clock.elapsed() >= splash * 95 / 100, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(openInfoWindows(), 0);
    QCOMPARE(main.windowTitle(), QString("Frostel32 v2.31"));
}

void AboutWindow::verschluesseln_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected"); // worked by hand on the Windows-1252 codes

    auto row = [](const char* tag, const QString& text, const QString& key, const QString& out) {
        QTest::newRow(tag) << text << key << out;
    };
    // F^a=27 r^b=10 o^a=0E s^b=11 t^a=15: the key starts again at the third letter.
    row("key repeats", "Frost", "ab", QString::fromLatin1("\x27\x10\x0e\x11\x15", 5));
    // H^E=0D, i^i=00.
    row("text shorter than the key", "Hi", "Eiszap", QString::fromLatin1("\x0d\x00", 2));
    // The euro sign is byte 80: 80^41=C1, "Á".
    row("euro sign", QString::fromUtf8("€"), "A", QString::fromUtf8("Á"));
    row("umlauts and a blank", QString::fromUtf8("äöü"), "   ", QString::fromUtf8("ÄÖÜ"));
    // 41^C0=81, a byte Windows-1252 leaves undefined.
    row("undefined byte", "A", QString::fromUtf8("À"), QString(QChar(0x81)));
    row("empty key", "Frost", "", "Frost");
}

void AboutWindow::verschluesseln()
{
    QFETCH(QString, text);
    QFETCH(QString, key);
    QFETCH(QString, expected);
    QString t = text;
    about::Verschluesseln(t, key);
    QCOMPARE(t, expected);
    about::Verschluesseln(t, key); // applied again it gives the text back
    QCOMPARE(t, text);
}

QTEST_MAIN(AboutWindow)
#include "tst_about_window.moc"
