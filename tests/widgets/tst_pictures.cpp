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
};

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
