// The toolkit on Qt: input that comes during a wait is played after it, also a real X key press.
#include "support/main_window_start.h"
#include "support/windows.h"

#include <QLabel>
#include <QProcess>
#include <QStandardPaths>

namespace {

// Notes when a key press or a mouse release reaches the program.
struct InputSeen : QObject {
    bool seen = false;
    bool eventFilter(QObject*, QEvent* e) override
    {
        seen = seen || e->type() == QEvent::KeyPress || e->type() == QEvent::MouseButtonRelease;
        return false;
    }
};

} // namespace

class QtToolkitTest : public QObject, support::MainWindowStart {
    Q_OBJECT
public:
    QtToolkitTest() { framed_ = false; }
private slots:
    void init() { QVERIFY(enter()); }
    void cleanup() { leave(); }

    void inputDuringAWaitIsPlayedAfterIt_data()
    {
        QTest::addColumn<QString>("how");
        QTest::newRow("key") << "key";
        QTest::newRow("real X key press") << "x11";
    }

    void inputDuringAWaitIsPlayedAfterIt()
    {
        QFETCH(QString, how);
        if (how == "x11" && (QGuiApplication::platformName() != "xcb" ||
                             QStandardPaths::findExecutable("xdotool").isEmpty()))
            QSKIP("needs an X server and xdotool (runs under Xvfb)");
        auto w = startWindow(); // with sound, a miss waits a moment
        w->activateWindow();
        QVERIFY(QTest::qWaitForWindowExposed(w.get()));
        core::Game& g = w->game();
        w->findChild<QAction*>("start")->trigger();
        // A P comes during the wait after the miss of Z; it has arrived before the wait ends.
        bool wasBusy = false, playedDuringWait = true;
        QTimer::singleShot(0, w.get(), [&] {
            wasBusy = g.busy();
            InputSeen input;
            qApp->installEventFilter(&input);
            if (how == "key") QTest::keyClick(w.get(), Qt::Key_P);
            if (how == "x11") {
                QProcess::execute("xdotool",
                                  {"windowfocus", "--sync", QString::number(w->winId())});
                QProcess::execute("xdotool", {"key", "p"});
            }
            QVERIFY(QTest::qWaitFor([&] { return input.seen; }));
            playedDuringWait = !w->tileLabel(15)->isVisible();
        });
        QTest::keyClick(w.get(), Qt::Key_Z);
        QVERIFY(wasBusy && !playedDuringWait);
        // Played once the miss had returned: both P of APPLE.
        QTRY_COMPARE(g.g.Treffer, int16_t(2));
        QVERIFY(g.g.Fehler == 1 && !w->tileLabel(15)->isVisible());
    }
};

QTEST_MAIN(QtToolkitTest)
#include "tst_qt_toolkit.moc"
