// Renders the game's SVG picture sources to PNG bitmaps at 1x and 2x, and lays out a
// contact sheet of everything rendered, for review.
//
//   render_pictures render SRC.svg WIDTH HEIGHT OUT.png       (writes OUT.png and OUT@2x.png)
//   render_pictures sizes SRC.svg OUTDIR SIZE...              (writes OUTDIR/SRC-SIZE.png, square)
//   render_pictures sheet OUT.png PNG...                      (contact sheet of the given 1x files)
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

namespace {

int fail(const QString& why)
{
    std::fprintf(stderr, "render_pictures: %s\n", qPrintable(why));
    return 1;
}

bool renderOne(QSvgRenderer& svg, int w, int h, int scale, const QString& out)
{
    QImage img(w * scale, h * scale, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::transparent);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    svg.render(&p, QRectF(0, 0, img.width(), img.height()));
    p.end();
    return img.save(out, "PNG");
}

int render(const QStringList& a)
{
    if (a.size() != 4) return fail("render needs SRC W H OUT");
    QSvgRenderer svg(a[0]);
    if (!svg.isValid()) return fail(a[0] + " is not a valid SVG");
    const int w = a[1].toInt(), h = a[2].toInt();
    if (w <= 0 || h <= 0) return fail("bad size");
    QString out2 = a[3];
    out2.insert(out2.lastIndexOf('.'), "@2x");
    if (!renderOne(svg, w, h, 1, a[3]) || !renderOne(svg, w, h, 2, out2))
        return fail("cannot write " + a[3]);
    return 0;
}

// An icon at each of the sizes a desktop asks for, each drawn afresh from the SVG.
int sizes(const QStringList& a)
{
    if (a.size() < 3) return fail("sizes needs SRC OUTDIR and at least one SIZE");
    QSvgRenderer svg(a[0]);
    if (!svg.isValid()) return fail(a[0] + " is not a valid SVG");
    for (qsizetype i = 2; i < a.size(); ++i) {
        const int size = a[i].toInt();
        if (size <= 0) return fail("bad size " + a[i]);
        const QString out = a[1] + '/' + QFileInfo(a[0]).completeBaseName() + '-' + a[i] + ".png";
        if (!renderOne(svg, size, size, 1, out)) return fail("cannot write " + out);
    }
    return 0;
}

// Each picture at 1x and 2x side by side, on a mid grey so both light and dark art reads.
// The cells flow into rows of a fixed width, each row as tall as its tallest cell.
int sheet(const QStringList& a)
{
    if (a.size() < 2) return fail("sheet needs OUT and at least one PNG");
    const int width = 2000, pad = 12, label = 16;
    struct Cell {
        QImage one, two;
        QString name;
        QRect place;
    };
    QList<Cell> cells;
    int x = 0, y = 0, rowH = 0;
    for (qsizetype i = 1; i < a.size(); ++i) {
        QString two = a[i];
        two.insert(two.lastIndexOf('.'), "@2x");
        Cell c{QImage(a[i]), QImage(two), QFileInfo(a[i]).completeBaseName(), {}};
        // Shown pixel for pixel: the reader would take "@2x" as a cue to halve it.
        c.two.setDevicePixelRatio(1);
        const int w = c.one.width() + c.two.width() + 3 * pad;
        const int h = qMax(c.one.height(), c.two.height()) + 2 * pad + label;
        if (x > 0 && x + w > width) {
            x = 0;
            y += rowH;
            rowH = 0;
        }
        c.place = QRect(x, y, w, h);
        x += w;
        rowH = qMax(rowH, h);
        cells << c;
    }
    QImage img(width, y + rowH, QImage::Format_RGB32);
    img.fill(QColor(128, 128, 128));
    QPainter p(&img);
    p.setFont(QFont("DejaVu Sans", 8));
    for (const Cell& c : cells) {
        const QRect& r = c.place;
        p.drawImage(r.x() + pad, r.y() + pad, c.one);
        p.drawImage(r.x() + 2 * pad + c.one.width(), r.y() + pad, c.two);
        p.drawText(QRect(r.x(), r.bottom() - label - 2, r.width(), label), Qt::AlignCenter, c.name);
    }
    p.end();
    return img.save(a[0], "PNG") ? 0 : fail("cannot write " + a[0]);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QStringList args = app.arguments().mid(1);
    if (args.isEmpty()) return fail("usage: render_pictures render|sizes|sheet ...");
    const QString cmd = args.takeFirst();
    if (cmd == "render") return render(args);
    if (cmd == "sizes") return sizes(args);
    if (cmd == "sheet") return sheet(args);
    return fail("unknown command " + cmd);
}
