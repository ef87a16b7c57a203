#include "widgets/picture_button.h"

#include <QPainter>

namespace widgets {

PictureButton::PictureButton(QWidget* parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void PictureButton::setPicture(const QPixmap& picture)
{
    picture_ = picture;
    update();
}

QSize PictureButton::sizeHint() const
{
    return picture_.isNull() ? QSize(38, 38) : picture_.deviceIndependentSize().toSize();
}

void PictureButton::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    const int shift = isDown() ? 1 : 0;
    if (!picture_.isNull()) p.drawPixmap(rect().translated(shift, shift), picture_);
    if (isDown()) {
        // The face sinks: a dark edge where the light one was.
        p.setPen(QColor(64, 64, 64));
        p.drawLine(0, 0, width() - 1, 0);
        p.drawLine(0, 0, 0, height() - 1);
    }
}

} // namespace widgets
