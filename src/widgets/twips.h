#pragma once
// The window definitions give places and sizes in twips. Each widget keeps its exact design
// value in the dynamic property "twips" ("Left,Top,Width,Height"), because many of them are
// no whole number of pixels; the pixel geometry is always derived from it.
#include <QRect>

class QWidget;

namespace widgets {

constexpr int kTwipsPerPixel = 15;

// Nearest whole pixel; halves go away from zero.
int twipsToPixels(double twips);
double pixelsToTwips(double pixels);
QRect twipsToPixels(const QRect& twips);

// Sets the geometry of the widget and of all its children from their "twips" property.
// A window takes only its size from it: its place is up to its load handler or the toolkit.
void applyTwips(QWidget* widget);
// The design value of the widget's place and size; without one, its geometry in twips.
QRect twipsOf(const QWidget* widget);
// Gives the widget a new design value and the geometry that goes with it.
void setTwips(QWidget* widget, const QRect& twips);

} // namespace widgets
