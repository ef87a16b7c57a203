// Panel frames as they show on the screen: one pixel wide, the upper and left edge outside
// the panel, the lower and right edge on its own last row and column, on any pixel size.
#include "widgets/panel.h"

#include <QImage>
#include <QPainter>
#include <QTest>

class PanelTest : public QObject {
    Q_OBJECT
private slots:
    void sunkenFrame_data()
    {
        QTest::addColumn<int>("lines");
        QTest::addColumn<double>("t");       // twips a pixel
        QTest::addColumn<QString>("pixels"); // rows of g grey, w white; the panel 3 by 2 at (2, 2)
        QTest::newRow("one") << 1 << 15.0 << ".......|.ggggw.|.g...w.|.g...w.|.wwwww.|.......";
        QTest::newRow("two at 12")
            << 2 << 12.0 << "ggggggw|gggggww|gg...ww|gg...ww|gwwwwww|wwwwwww";
        QTest::newRow("none") << 0 << 15.0 << ".......|.......|.......|.......|.......|.......";
    }

    void sunkenFrame()
    {
        QFETCH(int, lines);
        QFETCH(double, t);
        QFETCH(QString, pixels);
        QImage image(7, 6, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        for (const auto& [edges, colour] :
             {std::pair{&widgets::RahmenObenLinks, 8}, std::pair{&widgets::RahmenUntenRechts, 15}})
            widgets::drawPanelLines(painter, edges(2 * t, 3 * t, 2 * t, 2 * t, lines, t), colour,
                                    t);
        painter.end();
        QString seen;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                seen += image.pixel(x, y) == widgets::QBColor(8).rgb()    ? 'g'
                        : image.pixel(x, y) == widgets::QBColor(15).rgb() ? 'w'
                                                                          : '.';
            seen += '|';
        }
        QCOMPARE(seen.chopped(1), pixels);
    }
};

QTEST_MAIN(PanelTest)
#include "tst_panel.moc"
