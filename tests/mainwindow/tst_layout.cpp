// Where the layout puts the main window's controls, in twips.
#include "mainwindow/layout.h"

#include <QTest>

using mainwindow::Twips;

class LayoutTest : public QObject {
    Q_OBJECT
private slots:
    void anordnen();
};

void LayoutTest::anordnen()
{
    // The smallest window with a five-letter word: the pictures, the buttons, the panel, the
    // fields one pitch apart behind their pattern, the next-word button.
    auto l = mainwindow::Anordnen(9600, 6975, 2400, 5);
    QCOMPARE(QList<Twips>(
                 {l.bFolge, l.picBut[0], l.picBut[2], l.picture1, l.feld[0], l.feld[5], l.picBut3}),
             QList<Twips>({{5760, 360},
                           {8605, 480},
                           {8605, 2160},
                           {300, 4507},
                           {3225, 3273},
                           {5475, 3273},
                           {3802, 4073}}));
}

QTEST_GUILESS_MAIN(LayoutTest)
#include "tst_layout.moc"
