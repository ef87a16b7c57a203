#include "widgets/window_design.h"

#include "widgets/pictures.h"
#include "widgets/twips.h"

#include <QApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QVariant>
#ifdef FROSTEL_XCB
#include <QtGui/qguiapplication_platform.h>
#include <xcb/xcb.h>
#endif

namespace widgets {
namespace {

// The frame the window manager puts around the window: its own once it has shown, before that
// that of another window of the program, which it frames alike; none for a frameless window.
QMargins frameOf(const QWidget* window)
{
    auto frameless = [](const QWidget* w) { return w->windowFlags() & Qt::FramelessWindowHint; };
    auto margins = [](const QWidget* w) {
        const QRect f = w->frameGeometry(), c = w->geometry();
        return QMargins(c.left() - f.left(), c.top() - f.top(), f.right() - c.right(),
                        f.bottom() - c.bottom());
    };
    if (frameless(window)) return {};
    if (const QMargins own = margins(window); !own.isNull()) return own;
    for (const QWidget* other : QApplication::topLevelWidgets())
        if (other->isVisible() && !frameless(other) && !margins(other).isNull())
            return margins(other);
    return {};
}

} // namespace

void applyPointSizes(QWidget* widget)
{
    const QVariant size = widget->property("pointSizeF");
    if (size.isValid()) {
        QFont font = widget->font();
        font.setPointSizeF(size.toDouble());
        widget->setFont(font);
    }
    for (QWidget* child : widget->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        applyPointSizes(child);
}

QPoint centredIn(const QRect& area, const QSize& size)
{
    // Integer division truncates towards zero, also for negative differences.
    return area.topLeft() +
           QPoint((area.width() - size.width()) / 2, (area.height() - size.height()) / 2);
}

void centreOnScreen(QWidget* window)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return;
    const QSize screenPx = screen->geometry().size();
    const QMargins frame = frameOf(window);
    const QSize outerPx = window->size().grownBy(frame);
    const QPoint twips =
        centredIn(QRect(QPoint(), screenPx * kTwipsPerPixel), outerPx * kTwipsPerPixel);
    // A move places the frame's corner.
    window->move(twipsToPixels(twips.x()), twipsToPixels(twips.y()));
}

void centreOnOwner(QWidget* window, const QWidget* owner)
{
    window->move(centredIn(owner->frameGeometry(), window->size().grownBy(frameOf(window))));
}

void keepEmptyTitle(QWidget* window)
{
#ifdef FROSTEL_XCB
    auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* c = x11 ? x11->connection() : nullptr;
    if (!c || !window->windowTitle().isEmpty()) return;
    auto atom = [c](const QByteArray& name) {
        xcb_intern_atom_reply_t* r =
            xcb_intern_atom_reply(c, xcb_intern_atom(c, 0, uint16_t(name.size()), name), nullptr);
        const xcb_atom_t a = r ? r->atom : xcb_atom_t(XCB_ATOM_NONE);
        free(r);
        return a;
    };
    xcb_change_property(c, XCB_PROP_MODE_REPLACE, xcb_window_t(window->winId()),
                        atom("_NET_WM_NAME"), atom("UTF8_STRING"), 8, 0, nullptr);
    xcb_flush(c);
#else
    Q_UNUSED(window);
#endif
}

DesignDialog::DesignDialog(QWidget* parent, Qt::WindowFlags flags) : QDialog(parent, flags) {}

QPushButton* DesignDialog::cancelButton() const
{
    for (QPushButton* button : findChildren<QPushButton*>())
        if (button->property("cancel").toBool()) return button;
    return nullptr;
}

void DesignDialog::applyDesign()
{
    applyTwips(this);
    applyPointSizes(this);
    setWindowIcon(widgets::windowIcon());
}

void DesignDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        QPushButton* button = cancelButton();
        if (button && button->isVisible() && button->isEnabled()) button->click();
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

} // namespace widgets
