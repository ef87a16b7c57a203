#include "widgets/pictures.h"

#include <QIcon>
#include <QImageReader>

namespace widgets {

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

} // namespace widgets
