// The shared widget library: every picture of the manifest built in at both scales, design
// values in twips brought to pixels, windows centred.
#include "widgets/twips.h"
#include "widgets/window_design.h"

#include <QFile>
#include <QImage>
#include <QTest>
#include <QWidget>

class WidgetsTest : public QObject {
    Q_OBJECT
private slots:
    void everyPictureLoadsAtBothScales()
    {
        QFile manifest(QStringLiteral(PICTURE_MANIFEST));
        QVERIFY(manifest.open(QIODevice::ReadOnly | QIODevice::Text));
        int count = 0;
        for (const QByteArray& line : manifest.readAll().split('\n')) {
            const QList<QByteArray> f = line.simplified().split(' '); // name width height [source]
            if (f.size() < 3 || line.startsWith('#')) continue;
            const QString path = ":/pictures/" + QString::fromUtf8(f[0]);
            const QSize size(f[1].toInt(), f[2].toInt());
            QCOMPARE(QImage(path + ".png").size(), size);
            QCOMPARE(QImage(path + "@2x.png").size(), size * 2);
            ++count;
        }
        QVERIFY(count > 60);
    }

    void twips()
    {
        // Halves go away from zero.
        for (auto [twips, pixels] : {std::pair{7.0, 0}, {7.5, 1}, {-7.5, -1}, {3732.0, 249}})
            QCOMPARE(widgets::twipsToPixels(twips), pixels);
        // Centred, halves are cut towards zero.
        QCOMPARE(widgets::centredIn({0, 0, 12000, 12000}, {5340, 4935}), QPoint(3330, 3532));
        // Every control takes its design value; a window takes its size only, where it stands
        // is for its load handler to say.
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
};

QTEST_MAIN(WidgetsTest)
#include "tst_widgets.moc"
