#include "platform/lean_style.h"

#include "widgets/focus_ring.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace platform {

void LeanStyle::polish(QApplication* app)
{
    QProxyStyle::polish(app);
    widgets::FocusRing::follow();
}

void LeanStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const
{
    if (element == PE_FrameFocusRect) widgets::drawFocusRing(*painter, option->rect);
    else QProxyStyle::drawPrimitive(element, option, painter, widget);
}

QIcon LeanStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                              const QWidget* widget) const
{
    if (icon != SP_ToolBarHorizontalExtensionButton)
        return QProxyStyle::standardIcon(icon, option, widget);
    QPixmap arrow(16, 16);
    arrow.fill(Qt::transparent);
    QPainter p(&arrow);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(widget ? widget->palette().color(QPalette::ButtonText) : Qt::black, 1.5));
    for (int x : {4, 9})
        p.drawPolyline(QPolygonF({QPointF(x, 4), QPointF(x + 4, 8), QPointF(x, 12)}));
    return QIcon(arrow);
}

} // namespace platform
