// Every picture the manifest names is built into the program at its size and at twice that.
#include <QFile>
#include <QImage>
#include <QtTest>

class TestPictures : public QObject {
    Q_OBJECT

private slots:
    void everyPictureLoadsAtBothScales()
    {
        QFile manifest(QStringLiteral(PICTURE_MANIFEST));
        QVERIFY(manifest.open(QIODevice::ReadOnly | QIODevice::Text));
        int count = 0;
        while (!manifest.atEnd()) {
            const QString line = QString::fromUtf8(manifest.readLine()).trimmed();
            if (line.isEmpty() || !line.front().isLower()) continue;
            const QStringList f = line.split(u' ', Qt::SkipEmptyParts);
            const QSize size(f.value(1).toInt(), f.value(2).toInt());
            const QString path = QStringLiteral(":/pictures/") + f[0];
            QCOMPARE(QImage(path + ".png").size(), size);
            QCOMPARE(QImage(path + "@2x.png").size(), size * 2);
            ++count;
        }
        QVERIFY(count > 60);
    }
};

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
