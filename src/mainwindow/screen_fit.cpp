#include "mainwindow/screen_fit.h"

#include "widgets/window_design.h"

#include <QtGlobal>

namespace mainwindow {
namespace {

// One axis: the stored start and length on a screen from `first` that is `room` long.
struct Span {
    long long start, length;
};

Span fit(long long start, long long length, long long first, long long room, long long minimum,
         long long centre)
{
    length = qBound(minimum, length, qMax(minimum, room));
    const long long last = first + room - length; // the furthest start that shows it whole
    if (start < first || start > last) start = qMax(first, qMin(centre, last));
    return {start, length};
}

} // namespace

QRect fitToScreen(const settings::WindowPlace& stored, const QRect& screen, const QSize& minimum)
{
    const QPoint centre = widgets::centredIn(screen, minimum);
    const Span x =
        fit(stored.left, stored.width, screen.left(), screen.width(), minimum.width(), centre.x());
    const Span y =
        fit(stored.top, stored.height, screen.top(), screen.height(), minimum.height(), centre.y());
    return QRect(int(x.start), int(y.start), int(x.length), int(y.length));
}

} // namespace mainwindow
