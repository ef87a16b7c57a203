// The frames of flat panels: where their lines run, in twips and on the screen.
#include "widgets/panel.h"

#include <QImage>
#include <QPainter>
#include <QTest>

using widgets::PanelLine;

class PanelTest : public QObject {
    Q_OBJECT
private slots:
    void lines();
    void drawnPixels();
};

void PanelTest::lines()
{
    // The raised frame around the names of the options window.
    QCOMPARE(widgets::RahmenObenLinks(200, 2100, 650, 2300, 1),
             (std::vector<PanelLine>{{185, 635, 2315, 635}, {185, 635, 185, 2965}}));
    QCOMPARE(widgets::RahmenUntenRechts(200, 2100, 650, 2300, 1),
             (std::vector<PanelLine>{{185, 2950, 2300, 2950}, {2300, 635, 2300, 2965}}));
    QCOMPARE(widgets::RahmenObenLinks(200, 2100, 650, 2300, 1, 12)[0],
             (PanelLine{188, 638, 2312, 638})); // another pixel size
    QVERIFY(widgets::RahmenUntenRechts(200, 2100, 650, 2300, 0).empty());

    // A second line lies one pixel further out.
    const auto up2 = widgets::RahmenObenLinks(100, 300, 100, 300, 2);
    const auto low2 = widgets::RahmenUntenRechts(100, 300, 100, 300, 2);
    QCOMPARE(up2.size(), size_t(4));
    QCOMPARE(up2[2], (PanelLine{70, 70, 430, 70}));
    QCOMPARE(low2[2], (PanelLine{70, 415, 415, 415}));
    QCOMPARE(low2[3].x1, 415.0);
}

void PanelTest::drawnPixels()
{
    // A sunken frame around a control at (30, 30) px, 60 x 45 px.
    QImage img(120, 100, QImage::Format_RGB32);
    img.fill(widgets::QBColor(7));
    QPainter p(&img);
    widgets::drawPanelLines(p, widgets::RahmenObenLinks(450, 900, 450, 675, 1), 8);
    widgets::drawPanelLines(p, widgets::RahmenUntenRechts(450, 900, 450, 675, 1), 15);
    p.end();
    const QRgb grey = widgets::QBColor(8).rgb(), white = widgets::QBColor(15).rgb(),
               back = widgets::QBColor(7).rgb();
    QCOMPARE(img.pixel(29, 29), grey);  // top left corner, outside
    QCOMPARE(img.pixel(60, 29), grey);  // upper edge
    QCOMPARE(img.pixel(29, 60), grey);  // left edge
    QCOMPARE(img.pixel(60, 75), white); // lower edge on the bottom coordinate
    QCOMPARE(img.pixel(90, 60), white); // right edge on the right coordinate
    QCOMPARE(img.pixel(60, 60), back);  // inside untouched
    QCOMPARE(img.pixel(60, 28), back);  // one line only
}

QTEST_MAIN(PanelTest)
#include "tst_panel.moc"
