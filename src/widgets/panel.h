#pragma once
// Raised and sunken frames drawn on a window's own surface around flat controls: one
// routine for the upper and left edge, one for the lower and right, each with its colour.
#include <QColor>
#include <QRect>
#include <vector>

class QPainter;

namespace widgets {

// A line from (x1, y1) to (x2, y2), in twips.
struct PanelLine {
    double x1, y1, x2, y2;
    bool operator==(const PanelLine&) const = default;
};

// The classic sixteen colours; 8 is grey, 15 white.
QColor QBColor(int index);

// The lines of the upper and left edge: i pixels outside the rectangle for i = 1..lines.
// The order of the numbers is left, width, top, height. t is twips per pixel.
std::vector<PanelLine> RahmenObenLinks(float left, float width, float top, float height, int lines,
                                       double t = 15.0);
// The lines of the lower and right edge: i - 1 pixels outside, so the first runs on the
// rectangle's own right and bottom coordinates.
std::vector<PanelLine> RahmenUntenRechts(float left, float width, float top, float height,
                                         int lines, double t = 15.0);

// Draws lines given in twips with a painter that works in pixels.
void drawPanelLines(QPainter& painter, const std::vector<PanelLine>& lines, int colour,
                    double t = 15.0);

// A one-pixel frame just around a rectangle in twips: raised is white above and left, grey
// below and right; sunken the other way round.
void drawFrame(QPainter& painter, const QRect& twips, bool raised);

} // namespace widgets
