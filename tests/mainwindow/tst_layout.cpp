// Where the layout puts the main window's controls.
#include "mainwindow/layout.h"

#include <QTest>

using mainwindow::Twips;

class LayoutTest : public QObject {
    Q_OBJECT
private slots:
    void minimumSizeWithAFiveLetterWord();
    void noWordMovesOnlyThePattern_data();
    void noWordMovesOnlyThePattern();
    void growingPictureLowersNothingYet();
    void wideWindowKeepsProportions();
};

void LayoutTest::minimumSizeWithAFiveLetterWord()
{
    const auto l = mainwindow::Anordnen(9600, 6975, 2400, 5);
    QCOMPARE(l.bFolge, (Twips{5760, 360}));
    QCOMPARE(l.picBut[0], (Twips{8605, 480}));
    QCOMPARE(l.picBut[1], (Twips{8605, 1320}));
    QCOMPARE(l.picBut[2], (Twips{8605, 2160}));
    QCOMPARE(l.picture1, (Twips{300, 4507}));
    QCOMPARE(l.feld.size(), size_t(6));
    QCOMPARE(l.feld[0], (Twips{3225, 3273}));
    for (int i = 1; i <= 5; ++i) QCOMPARE(l.feld[i], (Twips{3675 + (i - 1) * 450, 3273}));
    QCOMPARE(l.picBut3, (Twips{3802, 4073}));
}

void LayoutTest::noWordMovesOnlyThePattern_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<long long>("left");
    QTest::newRow("minimum") << 9600.0 << 4350LL; // W \ 2 - 450
    QTest::newRow("odd") << 9601.0 << 4350LL;
    QTest::newRow("wide") << 15000.0 << 7050LL;
}

void LayoutTest::noWordMovesOnlyThePattern()
{
    QFETCH(double, width);
    QFETCH(long long, left);
    const auto l = mainwindow::Anordnen(width, 6975, 2400, 0);
    QCOMPARE(l.feld.size(), size_t(1));
    QCOMPARE(l.feld[0].left, left);
}

void LayoutTest::growingPictureLowersNothingYet()
{
    // While the first picture grows, its smaller height pulls the panel and the word up.
    const auto l = mainwindow::Anordnen(9600, 6975, 300, 5);
    QCOMPARE(l.picture1.top, 3457LL);
    QCOMPARE(l.feld[1].top, 1698LL);
    QCOMPARE(l.picBut3.top, 1698LL + 450 + 350);
}

void LayoutTest::wideWindowKeepsProportions()
{
    const auto l = mainwindow::Anordnen(19200, 14400, 2400, 3);
    QCOMPARE(l.bFolge.left, 11520LL); // 60 percent
    QCOMPARE(l.picBut[0].left, (11520LL + 19200 + 2400 - 550) / 2);
    QCOMPARE(l.picture1, (Twips{5100, 8220}));
    QCOMPARE(l.feld[1].left, (19200LL - 1350) / 2);
}

QTEST_GUILESS_MAIN(LayoutTest)
#include "tst_layout.moc"
