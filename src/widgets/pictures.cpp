#include "widgets/pictures.h"

#include <QDir>
#include <QIcon>
#include <QIconEngine>
#include <QImageReader>
#include <QMap>
#include <QPainter>
#include <algorithm>

namespace widgets {

namespace {

QPixmap load(const QString& path)
{
    // Named as PNG and not sniffed: sniffing loads every image plugin there is.
    QImageReader reader(path, "PNG");
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImage(reader.read());
}

// The icon at each size rendered for it, each file read only when its size is first asked
// for: X11 takes every size with the first window, Wayland only the one its title bar draws.
// QIcon::addFile would read them all at once. One look for every mode: a window icon is never
// shown disabled.
class IconEngine final : public QIconEngine {
public:
    IconEngine()
    {
        for (const QString& f : QDir(QStringLiteral(":/icons")).entryList(QDir::Files)) {
            const int side = f.section(u'-', 1).section(u'.', 0, 0).toInt();
            if (side > 0) sides_.insert(side, {});
        }
    }
    QIconEngine* clone() const override { return new IconEngine(*this); }
    QString key() const override { return QStringLiteral("frostel32"); }
    bool isNull() override { return sides_.isEmpty(); }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override
    {
        QList<QSize> sizes;
        for (int side : sides_.keys()) sizes << QSize(side, side);
        return sizes;
    }
    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override
    {
        const int side = std::min({size.width(), size.height(), best(size)});
        return {side, side};
    }
    // The smallest that is big enough, else the biggest; scaled down where it is too big.
    QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State) override
    {
        if (isNull() || size.isEmpty()) return {};
        const int side = best(size);
        QPixmap& p = sides_[side];
        if (p.isNull()) p = load(QStringLiteral(":/icons/icon-%1.png").arg(side));
        if (side <= std::min(size.width(), size.height())) return p;
        return p.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal dpr = painter->device() ? painter->device()->devicePixelRatio() : 1.0;
        painter->drawPixmap(rect, pixmap(rect.size() * dpr, mode, state));
    }

private:
    int best(const QSize& size) const
    {
        const int want = std::max(size.width(), size.height());
        const auto it = sides_.lowerBound(want);
        return it != sides_.end() ? it.key() : sides_.lastKey();
    }
    QMap<int, QPixmap> sides_;
};

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
    static const QIcon icon(new IconEngine);
    return icon;
}

} // namespace widgets
