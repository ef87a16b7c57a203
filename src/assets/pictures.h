#pragma once
// The game's pictures, rendered at build time at their size and at twice that size.
#include <QPixmap>
#include <QProxyStyle>
#include <QString>

namespace assets {

// ":/pictures/<name>.png", the 2x rendering on screens that want it.
QPixmap picture(const QString& name, qreal devicePixelRatio = 1.0);
// The game's icon, for every window.
const QIcon& windowIcon();

// The desktop's own style, but for the menu bar's overflow arrow: the style loads that from a
// file by sniffing every image plugin, which costs half a megabyte at start-up for an arrow
// the game's menu never needs. The arrow is drawn instead.
class LeanStyle : public QProxyStyle {
public:
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
};

} // namespace assets
