#include "widgets/twips.h"

#include <QVariant>
#include <QWidget>
#include <cmath>
#include <optional>

namespace widgets {
namespace {

constexpr const char* kProperty = "twips";

std::optional<QRect> designValue(const QWidget* widget)
{
    const QVariant v = widget->property(kProperty);
    if (!v.isValid()) return std::nullopt;
    const QStringList parts = v.toString().split(QLatin1Char(','));
    if (parts.size() != 4) return std::nullopt;
    int n[4];
    for (int i = 0; i < 4; ++i) {
        bool ok = false;
        n[i] = parts[i].trimmed().toInt(&ok);
        if (!ok) return std::nullopt;
    }
    return QRect(n[0], n[1], n[2], n[3]);
}

void place(QWidget* widget, const QRect& twips)
{
    const QRect px = twipsToPixels(twips);
    if (widget->isWindow()) widget->resize(px.size());
    else widget->setGeometry(px);
}

} // namespace

int twipsToPixels(double twips) { return int(std::lround(twips / kTwipsPerPixel)); }

double pixelsToTwips(double pixels) { return pixels * kTwipsPerPixel; }

QRect twipsToPixels(const QRect& twips)
{
    // Each value on its own, as the design gives them; neighbours may meet a pixel off.
    return QRect(twipsToPixels(twips.x()), twipsToPixels(twips.y()), twipsToPixels(twips.width()),
                 twipsToPixels(twips.height()));
}

void applyTwips(QWidget* widget)
{
    if (const auto twips = designValue(widget)) place(widget, *twips);
    for (QWidget* child : widget->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        applyTwips(child);
}

QRect twipsOf(const QWidget* widget)
{
    if (const auto twips = designValue(widget)) return *twips;
    const QRect g = widget->geometry();
    return QRect(g.x() * kTwipsPerPixel, g.y() * kTwipsPerPixel, g.width() * kTwipsPerPixel,
                 g.height() * kTwipsPerPixel);
}

void setTwips(QWidget* widget, const QRect& twips)
{
    widget->setProperty(kProperty, QStringLiteral("%1,%2,%3,%4")
                                       .arg(twips.x())
                                       .arg(twips.y())
                                       .arg(twips.width())
                                       .arg(twips.height()));
    place(widget, twips);
}

} // namespace widgets
