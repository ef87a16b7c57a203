#pragma once
#include <QProxyStyle>

namespace platform {

// The desktop's own style, but for two things. The menu bar's overflow arrow: the style loads
// that from a file by sniffing every image plugin, which costs half a megabyte at start-up for
// an arrow the game's menu never needs; the arrow is drawn instead. And the keyboard focus,
// which a ring marks plainly in every window.
class LeanStyle : public QProxyStyle {
public:
    void polish(QApplication* app) override;
    using QProxyStyle::polish;
    // The focus inside a control (a link, a row) takes the ring's lines too.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
};

} // namespace platform
