#pragma once
// The game's pictures, rendered at build time at their size and at twice that size.
#include <QPixmap>
#include <QString>

namespace widgets {

// ":/pictures/<name>.png", the 2x rendering on screens that want it.
QPixmap picture(const QString& name, qreal devicePixelRatio = 1.0);
// The game's icon, for every window.
const QIcon& windowIcon();

} // namespace widgets
