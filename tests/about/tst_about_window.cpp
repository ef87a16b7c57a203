// The about window in its two uses: the splash that goes by itself, and the window that OK, Enter
// or Esc closes; both centred on the screen.
#include "about/info_window.h"
#include "support/windows.h"

#include <QElapsedTimer>
#include <QScreen>

class AboutWindow : public QObject {
    Q_OBJECT
private slots:
    void closing_data()
    {
        QTest::addColumn<int>("splash"); // how long the splash stands, in ms; 0: the about window
        QTest::addColumn<int>("key");    // pressed as it shows; 0: OK clicked
        QTest::newRow("splash, Esc does nothing") << 300 << int(Qt::Key_Escape);
        QTest::newRow("about, Esc") << 0 << int(Qt::Key_Escape);
        QTest::newRow("about, OK clicked") << 0 << 0;
    }

    void closing()
    {
        QFETCH(int, splash);
        QFETCH(int, key);
        QWidget main;
        bool okShown = false;
        QPoint offCentre;
        support::onNextModal<about::InfoWindow>([&](about::InfoWindow* info) {
            okShown = info->OK()->isVisible();
            offCentre = info->frameGeometry().center() - info->screen()->geometry().center();
            // OK, the only control that takes the focus, has it without being given it.
            QWidget* focus = QApplication::focusWidget();
            if (key) QTest::keyClick(focus ? focus : info, Qt::Key(key));
            else QTest::mouseClick(info->OK(), Qt::LeftButton);
        });
        QElapsedTimer clock;
        clock.start();
        if (splash) about::InfoWindow::splash(&main, splash);
        else about::InfoWindow::about(&main);
        QVERIFY(okShown == !splash && offCentre.manhattanLength() <= 2);
        // Timers may fire 5 % early.
        QVERIFY2(clock.elapsed() >= splash * 95 / 100, "the splash went early");
    }
};

QTEST_MAIN(AboutWindow)
#include "tst_about_window.moc"
