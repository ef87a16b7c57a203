// The pictures built into the program: every one the manifest names is there at its size
// and at twice that, drawn from its own source rather than the stand-in, and the pictures
// that sit on the game's backgrounds have the grounds the windows expect.
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QSvgRenderer>
#include <QtTest>

namespace {

struct Entry {
    QString name;
    QSize size;
    QString source; // SVG file in the manifest's folder
};

QList<Entry> readManifest()
{
    QList<Entry> out;
    QFile f(QStringLiteral(PICTURE_MANIFEST));
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text)) return out;
    static const QRegularExpression ws(QStringLiteral("\\s+"));
    while (!f.atEnd()) {
        const QString line = QString::fromUtf8(f.readLine()).trimmed();
        if (line.isEmpty() || !line.front().isLower()) continue;
        const QStringList f = line.split(ws);
        if (f.size() < 3) continue;
        out.append({f[0], QSize(f[1].toInt(), f[2].toInt()), f.size() > 3 ? f[3] : f[0] + ".svg"});
    }
    return out;
}

QString pictureDir() { return QFileInfo(QStringLiteral(PICTURE_MANIFEST)).absolutePath(); }

QImage resource(const QString& name, int scale)
{
    const QString suffix = scale == 2 ? QStringLiteral("@2x") : QString();
    return QImage(QStringLiteral(":/pictures/%1%2.png").arg(name, suffix))
        .convertToFormat(QImage::Format_ARGB32);
}

// The stand-in the build uses when a picture has no source, rendered the way the build does.
QImage placeholder(QSize size)
{
    QImage img(size, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::transparent);
    QSvgRenderer svg(pictureDir() + QStringLiteral("/placeholder.svg"));
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    svg.render(&p, QRectF(QPointF(0, 0), QSizeF(size)));
    p.end();
    return img.convertToFormat(QImage::Format_ARGB32);
}

// Share of pixels that are the stand-in's grey or its magenta cross (or a blend of both),
// so a stand-in is caught even if the renderer's settings drift.
double placeholderShare(const QImage& img)
{
    qint64 hits = 0;
    for (int y = 0; y < img.height(); ++y) {
        for (int x = 0; x < img.width(); ++x) {
            const QRgb c = img.pixel(x, y);
            const int r = qRed(c), g = qGreen(c), b = qBlue(c);
            const bool grey = qAbs(r - 128) <= 6 && qAbs(g - 128) <= 6 && qAbs(b - 128) <= 6;
            const bool magenta = qAbs(r - b) <= 12 && r >= 120 && g <= r - 40;
            hits += (grey || magenta) ? 1 : 0;
        }
    }
    return double(hits) / (qint64(img.width()) * img.height());
}

QString rgbText(QRgb c)
{
    return QStringLiteral("(%1,%2,%3,%4)").arg(qRed(c)).arg(qGreen(c)).arg(qBlue(c)).arg(qAlpha(c));
}

} // namespace

class TestPictures : public QObject {
    Q_OBJECT

private slots:
    void manifestLists();
    void builtAtBothSizes_data();
    void builtAtBothSizes();
    void drawnFromOwnSource_data();
    void drawnFromOwnSource();
    void grounds_data();
    void grounds();
    void letterTiles_data();
    void letterTiles();
    void letterTilesDiffer();
    void pointMarkIsTheBall_data();
    void pointMarkIsTheBall();
};

void TestPictures::manifestLists()
{
    const QList<Entry> all = readManifest();
    // 62 bitmaps the game shows and the program icon
    QCOMPARE(all.size(), 63);
    QSet<QString> names;
    for (const Entry& e : all) {
        QVERIFY2(!names.contains(e.name), qPrintable(e.name + " is listed twice"));
        names.insert(e.name);
        QVERIFY2(e.size.width() > 0 && e.size.height() > 0, qPrintable(e.name + " has no size"));
    }
}

void TestPictures::builtAtBothSizes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    const QList<Entry> all = readManifest();
    QVERIFY2(!all.isEmpty(), "cannot read " PICTURE_MANIFEST);
    for (const Entry& e : all) QTest::newRow(qPrintable(e.name)) << e.name << e.size;
}

void TestPictures::builtAtBothSizes()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    const QImage one = resource(name, 1);
    QVERIFY2(!one.isNull(), qPrintable(":/pictures/" + name + ".png does not load"));
    QCOMPARE(one.size(), size);
    const QImage two = resource(name, 2);
    QVERIFY2(!two.isNull(), qPrintable(":/pictures/" + name + "@2x.png does not load"));
    QCOMPARE(two.size(), size * 2);
}

void TestPictures::drawnFromOwnSource_data() { builtAtBothSizes_data(); }

void TestPictures::drawnFromOwnSource()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    const QList<Entry> all = readManifest();
    const auto it =
        std::find_if(all.begin(), all.end(), [&](const Entry& e) { return e.name == name; });
    QVERIFY(it != all.end());
    QVERIFY2(QFileInfo::exists(pictureDir() + u'/' + it->source),
             qPrintable(name + " has no source " + it->source));
    for (int scale : {1, 2}) {
        const QImage img = resource(name, scale);
        QVERIFY(!img.isNull());
        QVERIFY2(img != placeholder(size * scale), qPrintable(name + " is the stand-in picture"));
        const double share = placeholderShare(img);
        QVERIFY2(share < 0.5,
                 qPrintable(QStringLiteral("%1 at %2x is %3% stand-in grey and magenta")
                                .arg(name)
                                .arg(scale)
                                .arg(int(share * 100))));
    }
}

// Pixels (at 1x; checked at the matching place at 2x too) whose colour the windows rely on.
void TestPictures::grounds_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<QColor>("colour");
    const QColor window(0, 0, 128), face(192, 192, 192), black(0, 0, 0);
    for (const char* mark : {"symbol0", "symbol1", "punkt0"}) {
        QTest::addRow("%s top left", mark) << QString::fromLatin1(mark) << QPoint(0, 0) << window;
        QTest::addRow("%s bottom right", mark)
            << QString::fromLatin1(mark) << QPoint(25, 26) << window;
    }
    QTest::newRow("picture1 ground") << QStringLiteral("picture1") << QPoint(300, 110) << window;
    QTest::newRow("picture1 top") << QStringLiteral("picture1") << QPoint(100, 2) << window;
    for (const char* button : {"picbut0", "picbut1", "picbut2"}) {
        const QString n = QString::fromLatin1(button);
        QTest::addRow("%s rim", button) << n << QPoint(0, 0) << black;
        QTest::addRow("%s rim lower right", button) << n << QPoint(37, 37) << black;
        QTest::addRow("%s light edge", button) << n << QPoint(10, 1) << QColor(Qt::white);
        QTest::addRow("%s shade edge", button) << n << QPoint(36, 20) << QColor(128, 128, 128);
        QTest::addRow("%s face", button) << n << QPoint(4, 4) << face;
    }
    for (const char* spin : {"s0", "s1", "s2"}) {
        const QString n = QString::fromLatin1(spin);
        QTest::addRow("%s rim", spin) << n << QPoint(0, 0) << black;
        QTest::addRow("%s upper face", spin) << n << QPoint(3, 12) << face;
        QTest::addRow("%s lower face", spin) << n << QPoint(16, 7) << face;
    }
    QTest::newRow("feld0 frame top")
        << QStringLiteral("feld0") << QPoint(12, 1) << QColor(255, 0, 0);
    QTest::newRow("feld0 frame left")
        << QStringLiteral("feld0") << QPoint(1, 15) << QColor(255, 0, 0);
    QTest::newRow("feld0 right edge") << QStringLiteral("feld0") << QPoint(24, 15) << black;
}

void TestPictures::grounds()
{
    QFETCH(QString, name);
    QFETCH(QPoint, at);
    QFETCH(QColor, colour);
    for (int scale : {1, 2}) {
        const QImage img = resource(name, scale);
        QVERIFY(!img.isNull());
        // the middle of the 2x2 block the 1x pixel became
        const QPoint p = at * scale + QPoint(scale - 1, scale - 1) / 2;
        const QRgb got = img.pixel(p);
        QVERIFY2(got == colour.rgba(),
                 qPrintable(QStringLiteral("%1 at %2x (%3,%4) is %5, wanted %6")
                                .arg(name)
                                .arg(scale)
                                .arg(p.x())
                                .arg(p.y())
                                .arg(rgbText(got), rgbText(colour.rgba()))));
    }
}

void TestPictures::letterTiles_data()
{
    QTest::addColumn<QString>("name");
    static const QRegularExpression tile(QStringLiteral("^alpha\\d+$"));
    int n = 0;
    for (const Entry& e : readManifest()) {
        if (tile.match(e.name).hasMatch()) {
            QTest::newRow(qPrintable(e.name)) << e.name;
            ++n;
        }
    }
    QCOMPARE(n, 29); // A-Z and the three umlauts
}

// A tile is opaque white paper that hides the line behind it, with a dark-outlined
// coloured letter on it.
void TestPictures::letterTiles()
{
    QFETCH(QString, name);
    for (int scale : {1, 2}) {
        const QImage img = resource(name, scale);
        QVERIFY(!img.isNull());
        const int r = img.width() - 1, b = img.height() - 1;
        for (const QPoint& c : {QPoint(0, 0), QPoint(r, 0), QPoint(0, b), QPoint(r, b)}) {
            QVERIFY2(img.pixel(c) == qRgba(255, 255, 255, 255),
                     qPrintable(QStringLiteral("%1 at %2x corner (%3,%4) is %5")
                                    .arg(name)
                                    .arg(scale)
                                    .arg(c.x())
                                    .arg(c.y())
                                    .arg(rgbText(img.pixel(c)))));
        }
        int opaque = 0, dark = 0, coloured = 0;
        for (int y = 0; y < img.height(); ++y) {
            for (int x = 0; x < img.width(); ++x) {
                const QRgb p = img.pixel(x, y);
                opaque += qAlpha(p) == 255;
                dark += qMax(qRed(p), qMax(qGreen(p), qBlue(p))) < 48;
                coloured += qMax(qRed(p), qMax(qGreen(p), qBlue(p))) -
                                qMin(qRed(p), qMin(qGreen(p), qBlue(p))) >
                            90;
            }
        }
        const int area = img.width() * img.height();
        QCOMPARE(opaque, area);
        QVERIFY2(dark > area / 20, qPrintable(name + " has no outline"));
        QVERIFY2(coloured > area / 10, qPrintable(name + " has no coloured letter"));
    }
}

void TestPictures::letterTilesDiffer()
{
    QList<QPair<QString, QImage>> tiles;
    static const QRegularExpression tile(QStringLiteral("^alpha\\d+$"));
    for (const Entry& e : readManifest()) {
        if (tile.match(e.name).hasMatch()) tiles.append({e.name, resource(e.name, 1)});
    }
    QCOMPARE(tiles.size(), 29);
    for (qsizetype i = 0; i < tiles.size(); ++i) {
        for (qsizetype j = i + 1; j < tiles.size(); ++j) {
            QVERIFY2(
                tiles[i].second != tiles[j].second,
                qPrintable(tiles[i].first + " and " + tiles[j].first + " are the same picture"));
        }
    }
}

void TestPictures::pointMarkIsTheBall_data()
{
    QTest::addColumn<int>("scale");
    QTest::newRow("1x") << 1;
    QTest::newRow("2x") << 2;
}

void TestPictures::pointMarkIsTheBall()
{
    QFETCH(int, scale);
    const QImage point = resource(QStringLiteral("punkt0"), scale);
    const QImage ball = resource(QStringLiteral("symbol1"), scale);
    QVERIFY(!point.isNull() && !ball.isNull());
    QCOMPARE(point, ball);
    // and the apple is a different mark
    QVERIFY(point != resource(QStringLiteral("symbol0"), scale));
}

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
