#pragma once
// Acting on modal windows from inside the event loop that shows them, and reading titles as
// the window manager is given them.
#include <QApplication>
#include <QTest>
#include <QTimer>
#include <functional>
#ifdef FROSTEL_XCB
#include <QtGui/qguiapplication_platform.h>
#include <cstring>
#include <xcb/xcb.h>
#endif

namespace support {

// Runs `act` on the next modal window of type T once it shows; no such window within five
// seconds fails the test.
template <class T> void onNextModal(std::function<void(T*)> act)
{
    struct Watch : QObject {
        std::function<void(T*)> act;
        bool eventFilter(QObject* o, QEvent* e) override
        {
            auto* window = qobject_cast<T*>(o);
            if (e->type() != QEvent::Show || !window || !window->isModal()) return false;
            // Its own event loop runs once the show is done.
            QTimer::singleShot(0, window, [act = act, window] { act(window); });
            deleteLater();
            qApp->removeEventFilter(this);
            return false;
        }
    };
    auto* watch = new Watch;
    watch->act = std::move(act);
    qApp->installEventFilter(watch);
    QTimer::singleShot(5000, watch, [watch] {
        QTest::qFail("no modal window showed", __FILE__, __LINE__);
        qApp->removeEventFilter(watch);
        watch->deleteLater();
    });
}

// The title the window manager shows: on X11 the window's _NET_WM_NAME.
inline QString shownTitle(QWidget* window)
{
#ifdef FROSTEL_XCB
    auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (xcb_connection_t* c = x11 ? x11->connection() : nullptr) {
        auto atom = [c](const char* name) {
            xcb_intern_atom_reply_t* r = xcb_intern_atom_reply(
                c, xcb_intern_atom(c, 0, uint16_t(strlen(name)), name), nullptr);
            const xcb_atom_t a = r ? r->atom : xcb_atom_t(XCB_ATOM_NONE);
            free(r);
            return a;
        };
        const auto cookie = xcb_get_property(c, 0, xcb_window_t(window->winId()),
                                             atom("_NET_WM_NAME"), atom("UTF8_STRING"), 0, 256);
        xcb_get_property_reply_t* r = xcb_get_property_reply(c, cookie, nullptr);
        const QString title =
            r ? QString::fromUtf8(static_cast<const char*>(xcb_get_property_value(r)),
                                  xcb_get_property_value_length(r))
              : QStringLiteral("<none>");
        free(r);
        return title;
    }
#endif
    return window->windowTitle();
}

} // namespace support
