// The main window's place, size and state, offscreen and under a window manager: as stored,
// within the screen, kept at the end, and the smallest size it allows.
#include "support/files.h"
#include "support/main_window_start.h"

using support::centred;
using support::px;
using support::tw;

class WindowPlaceTest : public QObject, support::MainWindowStart {
    Q_OBJECT
private slots:
    void init() { QVERIFY(enter()); }
    void cleanup() { leave(); }
    void restartRestoresWhatWasStored();
    void storedStateComesBack_data();
    void storedStateComesBack();
    void screenBounds_data();
    void screenBounds();
    void minimumSize();
};

void WindowPlaceTest::restartRestoresWhatWasStored()
{
    const QRect moved(50, 40, 700, 495);
    {
        auto w = startWindow(); // no file: centred, at the smallest size
        QTRY_COMPARE(w->frameGeometry(), QRect(centred({640, 465}), QSize(640, 465)));
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

void WindowPlaceTest::storedStateComesBack_data()
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

void WindowPlaceTest::storedStateComesBack()
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

void WindowPlaceTest::screenBounds_data()
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

void WindowPlaceTest::screenBounds()
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

void WindowPlaceTest::minimumSize()
{
    auto w = startWindow();
    w->resize(300, 200);
    QCOMPARE(w->frameGeometry().size(), QSize(640, 465));
}

QTEST_MAIN(WindowPlaceTest)
#include "tst_window_place.moc"
