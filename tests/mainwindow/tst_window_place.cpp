// The main window's place, size and state, offscreen and under a window manager: as stored,
// within the screen, kept at the end, and the smallest size it allows.
#include "mainwindow/layout.h"
#include "mainwindow/screen_fit.h"
#include "support/main_window_start.h"

#include <QAction>
#include <QLabel>
#include <QScreen>
#include <limits>

using StoredPlace = settings::WindowPlace;

Q_DECLARE_METATYPE(settings::WindowPlace)

class WindowPlaceTest : public QObject, support::MainWindowStart {
    Q_OBJECT
private slots:
    void init() { QVERIFY(enter()); }
    void cleanup() { leave(); }

    void restartRestoresWhatWasStored()
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
            // Laid out anew at each resize, the word keeps to the middle; the design size is the
            // least.
            w->findChild<QAction*>("start")->trigger();
            auto offMiddle = [&w] {
                return w->fieldLabel(3)->geometry().center().x() - w->width() / 2;
            };
            w->resize(w->size() + QSize(150, 0));
            QTRY_COMPARE(w->frameGeometry().size(), QSize(790, 465));
            const int off = offMiddle();
            w->resize(300, 200);
            QTRY_COMPARE(w->frameGeometry().size(), QSize(640, 465));
            QVERIFY(qAbs(offMiddle() - off) <= 1);
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
        // The next start comes up there again, and leaves the file as it was.
        auto w = startWindow();
        QTRY_VERIFY(placed(w.get(), moved));
        w->close();
        QCOMPARE(support::readAll(ini_), ini);
    }

    void storedStateComesBack_data()
    {
        QTest::addColumn<int>("status");    // as stored: 0 normal, 1 minimised, 2 maximised
        QTest::addColumn<QString>("moves"); // the player's, before the end
        QTest::addColumn<QRect>("normal");  // the normal window, in twips; (-1, -1): centred
        QTest::addColumn<int>("end");       // the state written; -1: the file stays as it was
        const QRect stored(900, 600, 10500, 7500), centred(-1, -1, 9600, 6975);
        QTest::newRow("maximised: the place keys stay") << 2 << "" << stored << -1;
        QTest::newRow("minimised, in its place") << 1 << "" << stored << -1;
        QTest::newRow("maximised, then normal: the least size, centred")
            << 2 << "normal" << centred << 0;
        QTest::newRow("maximised, then minimised: state 1 and the normal place")
            << 2 << "min" << centred << 1;
        QTest::newRow("normal, maximised, minimised: state 1 and the normal place")
            << 0 << "max min" << stored << 1;
    }

    void storedStateComesBack()
    {
        QFETCH(int, status);
        QFETCH(QString, moves);
        QFETCH(QRect, normal);
        QFETCH(int, end);
        const QByteArray ini =
            "[Window]\r\nLeft= 900\r\nTop= 600\r\nWidth= 10500\r\nHeight= 7500\r\n"
            "Status= " +
            QByteArray::number(status) + "\r\n";
        auto w = startWindow(ini);
        const std::map<QString, Qt::WindowState> states{
            {"0", Qt::WindowNoState},     {"1", Qt::WindowMinimized},
            {"2", Qt::WindowMaximized},   {"normal", Qt::WindowNoState},
            {"min", Qt::WindowMinimized}, {"max", Qt::WindowMaximized}};
        for (const QString& move :
             (QString::number(status) + ' ' + moves).split(' ', Qt::SkipEmptyParts)) {
            const Qt::WindowState state = states.at(move);
            if (move != QString::number(status)) w->setWindowState(state);
            QTRY_VERIFY(w->windowState().testFlag(state)); // minimised may stay maximised
            if (state == Qt::WindowNoState)
                QTRY_COMPARE(w->frameGeometry().size(), normal.size() / 15);
        }
        const QRect screen = w->screen()->availableGeometry();
        w->close();
        QCOMPARE(support::readAll(ini_) == ini, end < 0);
        if (end < 0) return;
        if (normal.x() < 0)
            normal.moveTopLeft(QPoint(screen.x() * 15 + (screen.width() * 15 - 9600) / 2,
                                      screen.y() * 15 + (screen.height() * 15 - 6975) / 2));
        if (support::onWayland()) normal.moveTopLeft({900, 600}); // there the place read stays
        // Written in whole pixels: a centre within one of the rule's.
        const QList<int> want{normal.x(), normal.y(), normal.width(), normal.height(), end};
        const QStringList keys{"Left", "Top", "Width", "Height", "Status"},
            lines = QString(support::readAll(ini_)).split("\r\n").mid(1, 5);
        QCOMPARE(lines.size(), 5);
        for (int i = 0; i < 5; ++i)
            QVERIFY2(lines[i].startsWith(keys[i] + '=') &&
                         qAbs(lines[i].section('=', 1).trimmed().toInt() - want[i]) < 15,
                     qPrintable(lines.join(',')));
    }

    // At the least size with a five-letter word: the picture at 0.6 of the width, the buttons
    // in the strip right of it, the panel and the word centred, the next-word button below.
    void layoutAtTheLeastSize()
    {
        const mainwindow::Layout l = mainwindow::layoutFor(9600, 6975, 2400, 5);
        QString at;
        for (const mainwindow::Twips& t : {l.bFolge, l.picBut[0], l.picBut[2], l.picture1,
                                           l.feld[0], l.feld[1], l.feld[5], l.picBut3})
            at += QString("%1,%2 ").arg(t.left).arg(t.top);
        QCOMPARE(at,
                 "5760,360 8605,480 8605,2160 300,4507 3225,3273 3675,3273 5475,3273 3802,4073 ");
    }

    void fitsTheScreen_data()
    {
        QTest::addColumn<StoredPlace>("stored");
        QTest::addColumn<QRect>("screen"); // its available area
        QTest::addColumn<QRect>("place");
        const QRect s(0, 0, 15360, 11520); // 1024 x 768 pixels
        const int far = std::numeric_limits<int>::max(), near = std::numeric_limits<int>::min();
        QTest::newRow("on the right edge exactly, one twip below the bottom: only the top centred")
            << StoredPlace{0, 5760, 4546, 9600, 6975} << s << QRect(5760, 2272, 9600, 6975);
        QTest::newRow("smaller than the design, or below zero: the design size")
            << StoredPlace{0, 750, 600, -5, 100} << s << QRect(750, 600, 9600, 6975);
        QTest::newRow("wider and taller than the screen, far off: as large, from its corner")
            << StoredPlace{0, far, near, far, 99999999} << s << QRect(0, 0, 15360, 11520);
        QTest::newRow("a corner off the screen: centred, moved in to stand whole")
            << StoredPlace{0, -15, 600, 14000, 7425} << s << QRect(1360, 600, 14000, 7425);
        QTest::newRow("a second screen under a panel: judged and centred on its own")
            << StoredPlace{0, 15660, 300, 9600, 6975} << QRect(15360, 450, 19200, 10800)
            << QRect(15660, 2362, 9600, 6975);
        QTest::newRow("a screen smaller than the design: the design size, from its corner")
            << StoredPlace{0, 300, 300, 9600, 6975} << QRect(0, 0, 9000, 6000)
            << QRect(0, 0, 9600, 6975);
    }

    void fitsTheScreen()
    {
        QFETCH(StoredPlace, stored);
        QFETCH(QRect, screen);
        QFETCH(QRect, place);
        QCOMPARE(mainwindow::fitToScreen(stored, screen, QSize(9600, 6975)), place);
    }

    void offTheScreen()
    {
        if (support::onWayland()) QSKIP("the compositor places the window, on the screen");
        // The rule at start-up, on the real screen's available area: stored off it and taller,
        // the window stands whole on it, as tall as it is.
        auto w = startWindow("[Window]\r\nLeft=-99999\r\nTop=600\r\nHeight=99999999\r\n");
        const QRect s = w->screen()->availableGeometry();
        QTRY_VERIFY(s.contains(w->frameGeometry()) && w->frameGeometry().height() == s.height());
    }
};

QTEST_MAIN(WindowPlaceTest)
#include "tst_window_place.moc"
