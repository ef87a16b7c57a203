// The pictures built into the program: every one the manifest names is there at its size
// and at twice that, drawn from its own source rather than the stand-in, and the pictures
// that sit on the game's backgrounds have the grounds the windows expect.
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
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

QImage resource(const QString& name, int scale)
{
    const QString suffix = scale == 2 ? QStringLiteral("@2x") : QString();
    return QImage(QStringLiteral(":/pictures/%1%2.png").arg(name, suffix))
        .convertToFormat(QImage::Format_ARGB32);
}

// Share of pixels that are the stand-in's grey or its magenta cross (or a blend of both).
double placeholderShare(const QImage& img)
{
    qint64 hits = 0;
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x) {
            const QRgb c = img.pixel(x, y);
            const int r = qRed(c), g = qGreen(c), b = qBlue(c);
            const bool grey = qAbs(r - 128) <= 6 && qAbs(g - 128) <= 6 && qAbs(b - 128) <= 6;
            hits += grey || (qAbs(r - b) <= 12 && r >= 120 && g <= r - 40);
        }
    return double(hits) / (qint64(img.width()) * img.height());
}

bool isTile(const QString& name) { return name.startsWith("alpha"); }

} // namespace

class TestPictures : public QObject {
    Q_OBJECT

private slots:
    void picture_data();
    void picture();
    void grounds_data();
    void grounds();
};

void TestPictures::picture_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("source");
    const QList<Entry> all = readManifest();
    QCOMPARE(all.size(), 63); // 62 bitmaps the game shows and the program icon
    QSet<QString> names;
    int tiles = 0;
    for (const Entry& e : all) {
        QVERIFY2(!names.contains(e.name), qPrintable(e.name + " is listed twice"));
        names.insert(e.name);
        tiles += isTile(e.name);
        QTest::newRow(qPrintable(e.name)) << e.name << e.size << e.source;
    }
    QCOMPARE(tiles, 29); // A-Z and the three umlauts
}

void TestPictures::picture()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    QFETCH(QString, source);
    QVERIFY2(QFileInfo::exists(QFileInfo(PICTURE_MANIFEST).absolutePath() + '/' + source),
             qPrintable(source));
    for (int scale : {1, 2}) {
        const QImage img = resource(name, scale);
        QVERIFY2(!img.isNull(),
                 qPrintable(QString("%1 at %2x does not load").arg(name).arg(scale)));
        QCOMPARE(img.size(), size * scale);
        QVERIFY2(placeholderShare(img) < 0.5,
                 qPrintable(QString("%1 at %2x looks like the stand-in").arg(name).arg(scale)));
        if (!isTile(name)) continue;

        // A tile is opaque white paper that hides the line behind it, with a dark-outlined
        // coloured letter on it, and no two tiles are alike.
        const int r = img.width() - 1, b = img.height() - 1;
        for (const QPoint& c : {QPoint(0, 0), QPoint(r, 0), QPoint(0, b), QPoint(r, b)})
            QCOMPARE(QColor::fromRgba(img.pixel(c)), QColor(Qt::white));
        int opaque = 0, dark = 0, coloured = 0;
        for (int y = 0; y <= b; ++y)
            for (int x = 0; x <= r; ++x) {
                const QColor p = QColor::fromRgba(img.pixel(x, y));
                opaque += p.alpha() == 255;
                dark += p.value() < 48;
                coloured += p.value() - qMin(p.red(), qMin(p.green(), p.blue())) > 90;
            }
        const int area = img.width() * img.height();
        QCOMPARE(opaque, area);
        QVERIFY2(dark > area / 20, "no outline");
        QVERIFY2(coloured > area / 10, "no coloured letter");
        for (const Entry& e : readManifest())
            if (isTile(e.name) && e.name != name)
                QVERIFY2(resource(e.name, scale) != img, qPrintable("same as " + e.name));
    }
}

// Pixels (at 1x, and at the matching place at 2x) whose colour the windows rely on.
void TestPictures::grounds_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<QString>("same"); // a picture that must be this one; "-": none
    const QColor window(0, 0, 128), face(192, 192, 192), black(0, 0, 0);
    auto row = [](const char* name, QPoint at, QColor colour, const char* same = "-") {
        QTest::addRow("%s at %d,%d", name, at.x(), at.y()) << name << at << colour << same;
    };
    // The point mark is the ball; the apple is another mark.
    row("punkt0", QPoint(0, 0), window, "symbol1");
    for (const char* mark : {"symbol0", "symbol1", "punkt0"}) row(mark, QPoint(25, 26), window);
    row("symbol0", QPoint(0, 0), window);
    row("picture1", QPoint(300, 110), window);
    row("picture1", QPoint(100, 2), window);
    for (const char* button : {"picbut0", "picbut1", "picbut2"}) {
        row(button, QPoint(0, 0), black);
        row(button, QPoint(37, 37), black);
        row(button, QPoint(10, 1), Qt::white);
        row(button, QPoint(36, 20), QColor(128, 128, 128));
        row(button, QPoint(4, 4), face);
    }
    for (const char* spin : {"s0", "s1", "s2"}) {
        row(spin, QPoint(0, 0), black);
        row(spin, QPoint(3, 12), face);
        row(spin, QPoint(16, 7), face);
    }
    row("feld0", QPoint(12, 1), Qt::red);
    row("feld0", QPoint(1, 15), Qt::red);
    row("feld0", QPoint(24, 15), black);
}

void TestPictures::grounds()
{
    QFETCH(QString, name);
    QFETCH(QPoint, at);
    QFETCH(QColor, colour);
    QFETCH(QString, same);
    for (int scale : {1, 2}) {
        const QImage img = resource(name, scale);
        QVERIFY(!img.isNull());
        // the middle of the 2x2 block the 1x pixel became
        QCOMPARE(QColor::fromRgba(img.pixel(at * scale + QPoint(scale - 1, scale - 1) / 2)),
                 colour);
        if (same != "-") QCOMPARE(img, resource(same, scale));
        if (same != "-") QVERIFY(img != resource("symbol0", scale));
    }
}

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
