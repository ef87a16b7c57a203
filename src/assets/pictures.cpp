#include "assets/pictures.h"

namespace assets {

QPixmap picture(const QString& name, qreal devicePixelRatio)
{
    if (devicePixelRatio > 1.0) {
        QPixmap twice(QStringLiteral(":/pictures/%1@2x.png").arg(name));
        if (!twice.isNull()) {
            twice.setDevicePixelRatio(2.0);
            return twice;
        }
    }
    return QPixmap(QStringLiteral(":/pictures/%1.png").arg(name));
}

} // namespace assets
