#pragma once
#include <QProxyStyle>

namespace platform {

// The desktop's own style, but for the menu bar's overflow arrow: the style loads that from a
// file by sniffing every image plugin, which costs half a megabyte at start-up for an arrow
// the game's menu never needs. The arrow is drawn instead.
class LeanStyle : public QProxyStyle {
public:
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
};

} // namespace platform
