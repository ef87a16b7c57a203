#include "widgets/focus_ring.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>

namespace widgets {
namespace {

constexpr int kWidth = 2; // one white line and one black one, outside the control

} // namespace

void drawFocusRing(QPainter& painter, const QRect& r)
{
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 0));
    painter.drawRect(r.adjusted(0, 0, -1, -1));
    painter.setPen(QPen(Qt::black, 0));
    painter.drawRect(r.adjusted(1, 1, -2, -2));
    painter.restore();
}

FocusRing::FocusRing() : QWidget(nullptr)
{
    // Inside the ring the control shows through, and takes the clicks.
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
}

void FocusRing::follow()
{
    static bool following = false;
    if (following) return;
    following = true;
    // The ring lives in the window of the focus and goes when that window goes; the next
    // focus makes a new one.
    static QPointer<FocusRing> ring;
    connect(qApp, &QApplication::focusChanged, qApp, [](QWidget*, QWidget* now) {
        if (ring) ring->moveTo(now);
        else if (now && !now->isWindow()) (ring = new FocusRing)->moveTo(now);
    });
}

void FocusRing::moveTo(QWidget* control)
{
    if (control_) control_->removeEventFilter(this);
    control_ = control;
    // A window itself holds the focus where none of its controls does: nothing to mark.
    if (!control || control->isWindow()) {
        hide();
        return;
    }
    control->installEventFilter(this);
    if (parentWidget() != control->window()) setParent(control->window());
    place();
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == control_) {
        switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Hide: place(); break;
        default: break;
        }
    }
    return false;
}

void FocusRing::place()
{
    QWidget* window = parentWidget();
    if (!control_ || !window || !control_->isVisible()) {
        hide();
        return;
    }
    const QRect around(control_->mapTo(window, QPoint(-kWidth, -kWidth)),
                       control_->size() + QSize(2 * kWidth, 2 * kWidth));
    // At the window's edge the ring keeps inside it.
    setGeometry(around & window->rect());
    raise();
    show();
    update();
}

void FocusRing::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    drawFocusRing(p, rect());
}

} // namespace widgets
