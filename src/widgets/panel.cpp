#include "widgets/panel.h"

#include <QPainter>
#include <cmath>

namespace widgets {

QColor QBColor(int index)
{
    static const QColor colours[16] = {
        {0, 0, 0},       {0, 0, 128},   {0, 128, 0},   {0, 128, 128},
        {128, 0, 0},     {128, 0, 128}, {128, 128, 0}, {192, 192, 192},
        {128, 128, 128}, {0, 0, 255},   {0, 255, 0},   {0, 255, 255},
        {255, 0, 0},     {255, 0, 255}, {255, 255, 0}, {255, 255, 255},
    };
    return colours[index & 15];
}

std::vector<PanelLine> RahmenObenLinks(float left, float width, float top, float height, int lines,
                                       double t)
{
    const double R = double(left) + width, B = double(top) + height;
    std::vector<PanelLine> out;
    for (int i = 1; i <= lines; ++i) {
        out.push_back({left - i * t, top - i * t, R + i * t, top - i * t});
        out.push_back({left - i * t, top - i * t, left - i * t, B + i * t});
    }
    return out;
}

std::vector<PanelLine> RahmenUntenRechts(float left, float width, float top, float height,
                                         int lines, double t)
{
    const double R = double(left) + width, B = double(top) + height;
    std::vector<PanelLine> out;
    for (int i = 1; i <= lines; ++i) {
        out.push_back({left - i * t, B + (i - 1) * t, R + (i - 1) * t, B + (i - 1) * t});
        out.push_back({R + (i - 1) * t, top - i * t, R + (i - 1) * t, B + i * t});
    }
    return out;
}

void drawPanelLines(QPainter& painter, const std::vector<PanelLine>& lines, int colour, double t)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(QBColor(colour), 0));
    auto px = [t](double twips) { return int(std::lround(twips / t)); };
    for (const PanelLine& l : lines) {
        // The end point is not part of a line, as with the old toolkit's Line.
        const QPoint a(px(l.x1), px(l.y1)), b(px(l.x2), px(l.y2));
        if (a == b) continue;
        const QPoint step((b.x() > a.x()) - (b.x() < a.x()), (b.y() > a.y()) - (b.y() < a.y()));
        painter.drawLine(a, b - step);
    }
    painter.restore();
}

void drawFrame(QPainter& painter, const QRect& twips, bool raised)
{
    constexpr int kWhite = 15, kGrey = 8;
    const QRect& r = twips;
    drawPanelLines(painter, RahmenObenLinks(r.x(), r.width(), r.y(), r.height(), 1),
                   raised ? kWhite : kGrey);
    drawPanelLines(painter, RahmenUntenRechts(r.x(), r.width(), r.y(), r.height(), 1),
                   raised ? kGrey : kWhite);
}

} // namespace widgets
