#pragma once
// A stored outer place and size, fitted to the screen the window opens on: whatever a
// hand-edited settings file holds, the window comes up whole and within reach. In twips.
#include "settings/stored_settings.h"

#include <QPoint>
#include <QRect>
#include <QSize>

namespace mainwindow {

// The place and size a stored one (any values at all) takes on `screen`, the available area
// of its screen. The size lies between `minimum` and the screen's; a corner off the screen, judged
// by that size, goes back to the centre for a window of `minimum` size, moved in as far as the
// window needs to stand whole. A stored place on the screen stays as it is.
QRect fitToScreen(const settings::WindowPlace& stored, const QRect& screen, const QSize& minimum);

} // namespace mainwindow
