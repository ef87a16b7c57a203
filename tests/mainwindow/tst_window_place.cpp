// The main window's place, size and state, offscreen and under a window manager: as stored,
// within the screen, kept at the end, and the smallest size it allows.
#include "mainwindow/screen_fit.h"
#include "support/files.h"
#include "support/main_window_start.h"

#include <QAction>
#include <QLabel>
#include <limits>

using mainwindow::StoredPlace;
using support::centred;
using support::px;
using support::tw;

Q_DECLARE_METATYPE(mainwindow::StoredPlace)

class WindowPlaceTest : public QObject, support::MainWindowStart {
    Q_OBJECT
private slots:
    void init() { QVERIFY(enter()); }
    void cleanup() { leave(); }
    void restartRestoresWhatWasStored();
    void storedStateComesBack_data();
    void storedStateComesBack();
    void fitsTheScreen_data();
    void fitsTheScreen();
    void screenBounds_data();
    void screenBounds();
    void minimumSizeAndLayout();
};

void WindowPlaceTest::restartRestoresWhatWasStored()
{
    const QRect moved(50, 40, 700, 495);
    // Where the player cannot be moved by the program, the size is all that comes back.
    auto placed = [](QWidget* w, QRect r) {
        return support::onWayland() ? w->frameGeometry().size() == r.size()
                                    : w->frameGeometry() == r;
    };
    {
        auto w = startWindow("[Window]\r\nLeft= 1500\r\nTop= 1200\r\n");
        QTRY_COMPARE(w->frameGeometry().size(), QSize(640, 465));
        w->move(moved.topLeft());
        w->resize(w->size() + QSize(60, 30));
        QTRY_VERIFY(placed(w.get(), moved));
        w->close();
        QCOMPARE(exits_, 1);
    }
    // The place of the frame, which options never come with; on Wayland the place read stays.
    const QByteArray ini = support::readAll(ini_);
    QCOMPARE(ini, QByteArray(support::onWayland() ? "[Window]\r\nLeft= 1500\r\nTop= 1200\r\n"
                                                  : "[Window]\r\nLeft= 750\r\nTop= 600\r\n") +
                      "Width= 10500\r\nHeight= 7425\r\nStatus= 0\r\n");
    // Every start comes up there again, and leaves the file as it was.
    for (int start = 0; start < 2; ++start) {
        auto w = startWindow();
        QTRY_VERIFY(placed(w.get(), moved));
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
    // On Wayland the place of the rows' file stays.
    const bool kept = support::onWayland();
    QCOMPARE(support::readAll(ini_),
             end.isNull() ? ini
                          : QString(end)
                                .arg(kept ? " 900" : n(r.x()), kept ? " 600" : n(r.y()),
                                     n(r.width()), n(r.height()))
                                .toLatin1());
}

void WindowPlaceTest::fitsTheScreen_data()
{
    QTest::addColumn<StoredPlace>("stored");
    QTest::addColumn<QRect>("screen"); // its available area
    QTest::addColumn<QRect>("place");
    const QRect s(0, 0, 15360, 11520); // 1024 x 768 pixels
    const int far = std::numeric_limits<int>::max(), near = std::numeric_limits<int>::min();
    QTest::newRow("on the screen: as stored")
        << StoredPlace{750, 600, 10500, 7425} << s << QRect(750, 600, 10500, 7425);
    QTest::newRow("smaller than the design, or below zero: the design size")
        << StoredPlace{750, 600, -5, 100} << s << QRect(750, 600, 9600, 6975);
    QTest::newRow("taller than the screen: as tall, from its top")
        << StoredPlace{750, 600, 10500, 99999999} << s << QRect(750, 0, 10500, 11520);
    QTest::newRow("wider than the screen, far off: from its left edge")
        << StoredPlace{far, near, far, 7425} << s << QRect(0, 2272, 15360, 7425);
    QTest::newRow("a corner off the screen: centred, moved in to stand whole")
        << StoredPlace{-15, 600, 14000, 7425} << s << QRect(1360, 600, 14000, 7425);
    QTest::newRow("a second screen under a panel: judged and centred on its own")
        << StoredPlace{15660, 300, 9600, 6975} << QRect(15360, 450, 19200, 10800)
        << QRect(15660, 2362, 9600, 6975);
    QTest::newRow("a screen smaller than the design: the design size, from its corner")
        << StoredPlace{300, 300, 9600, 6975} << QRect(0, 0, 9000, 6000) << QRect(0, 0, 9600, 6975);
}

void WindowPlaceTest::fitsTheScreen()
{
    QFETCH(StoredPlace, stored);
    QFETCH(QRect, screen);
    QFETCH(QRect, place);
    QCOMPARE(mainwindow::fitToScreen(stored, screen, QSize(9600, 6975)), place);
}

void WindowPlaceTest::screenBounds_data()
{
    QTest::addColumn<QByteArray>("window"); // the keys of [Window]
    QTest::addColumn<QRect>("frame");
    const QRect s = QGuiApplication::primaryScreen()->availableGeometry();
    const int maxLeft = int(tw(s.width())) - 9600, maxTop = int(tw(s.height())) - 6975;
    const QPoint c = centred({640, 465});
    auto at = [](int left, int top) {
        return QStringLiteral("Left=%1\r\nTop=%2\r\n").arg(left).arg(top).toLatin1();
    };
    QTest::newRow("right edge exactly") << at(maxLeft, 300) << QRect(px(maxLeft), 20, 640, 465);
    QTest::newRow("one twip further") << at(maxLeft + 1, 300) << QRect(c.x(), 20, 640, 465);
    QTest::newRow("left of the screen, top judged alone")
        << at(-15, 300) << QRect(c.x(), 20, 640, 465);
    QTest::newRow("below the screen") << at(300, maxTop + 1) << QRect(20, c.y(), 640, 465);
    QTest::newRow("above the screen") << at(300, -1) << QRect(20, c.y(), 640, 465);
    QTest::newRow("taller than the screen: as tall, from its top")
        << at(300, 600) + "Height=99999999\r\n"
        << QRect(20, s.top(), 640, s.height());
}

void WindowPlaceTest::screenBounds()
{
    QFETCH(QByteArray, window);
    QFETCH(QRect, frame);
    if (support::onWayland()) QSKIP("the compositor places the window, on the screen");
    auto w = startWindow("[Window]\r\n" + window);
    QTRY_COMPARE(w->frameGeometry(), frame);
}

void WindowPlaceTest::minimumSizeAndLayout()
{
    auto w = startWindow();
    w->findChild<QAction*>("start")->trigger();
    // Laid out anew at each resize: the word keeps to the middle.
    auto offMiddle = [&w](int wider) {
        const int width = w->width() + wider;
        w->resize(width, w->height());
        static_cast<void>(QTest::qWaitFor([&] { return w->width() == width; }));
        return w->fieldLabel(3)->geometry().center().x() - width / 2;
    };
    const int before = offMiddle(2);
    QVERIFY(qAbs(offMiddle(150) - before) <= 1);
    // Smaller than the design is not allowed.
    w->resize(300, 200);
    QCOMPARE(w->frameGeometry().size(), QSize(640, 465));
}

QTEST_MAIN(WindowPlaceTest)
#include "tst_window_place.moc"
