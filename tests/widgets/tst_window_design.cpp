// Design values in twips brought to pixels, and where a window stands centred.
#include "widgets/twips.h"
#include "widgets/window_design.h"

#include <QTest>
#include <QWidget>

class WindowDesignTest : public QObject {
    Q_OBJECT
private slots:
    void twips();
};

void WindowDesignTest::twips()
{
    // Halves go away from zero.
    for (auto [twips, pixels] : {std::pair{7.0, 0}, {7.5, 1}, {-7.5, -1}, {3732.0, 249}})
        QCOMPARE(widgets::twipsToPixels(twips), pixels);
    // Centred, halves are cut towards zero, also for a window larger than the screen.
    QCOMPARE(widgets::centredTwips({12000, 12000}, {5340, 4935}), QPoint(3330, 3532));
    QCOMPARE(widgets::centredTwips({12000, 12000}, {15015, 13515}), QPoint(-1507, -757));
    // Every control takes its design value; a window takes its size only, where it stands is
    // for its load handler to say.
    QWidget window;
    window.setGeometry(40, 50, 100, 100);
    window.setProperty("twips", "150,300,1500,3000");
    auto* c = new QWidget(&window);
    auto* g = new QWidget(c);
    c->setProperty("twips", "7,8,22,23");
    g->setProperty("twips", " -150, 300 ,450,600");
    widgets::applyTwips(&window);
    QCOMPARE(QList<QRect>({window.geometry(), c->geometry(), g->geometry()}),
             QList<QRect>({{40, 50, 100, 200}, {0, 1, 1, 2}, {-10, 20, 30, 40}}));
    QCOMPARE(widgets::twipsOf(c), QRect(7, 8, 22, 23)); // the design value stays exact
}

QTEST_MAIN(WindowDesignTest)
#include "tst_window_design.moc"
