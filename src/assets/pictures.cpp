#include "assets/pictures.h"

#include <QIcon>
#include <QImageReader>
#include <QPainter>
#include <QWidget>

namespace assets {

namespace {

QPixmap load(const QString& path)
{
    // Named as PNG and not sniffed: sniffing loads every image plugin there is.
    QImageReader reader(path, "PNG");
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImage(reader.read());
}

} // namespace

QPixmap picture(const QString& name, qreal devicePixelRatio)
{
    if (devicePixelRatio > 1.0) {
        QPixmap twice = load(QStringLiteral(":/pictures/%1@2x.png").arg(name));
        if (!twice.isNull()) {
            twice.setDevicePixelRatio(2.0);
            return twice;
        }
    }
    return load(QStringLiteral(":/pictures/%1.png").arg(name));
}

const QIcon& windowIcon()
{
    static const QIcon icon = [] {
        QIcon i;
        i.addPixmap(picture(QStringLiteral("icon"), 1.0));
        i.addPixmap(load(QStringLiteral(":/pictures/icon@2x.png")));
        return i;
    }();
    return icon;
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

} // namespace assets
