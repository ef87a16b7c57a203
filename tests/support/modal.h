#pragma once
// Acting on modal windows from inside the event loop that shows them, and reading titles as
// the window manager is given them.
#include <QApplication>
#include <QProcess>
#include <QTest>
#include <QTimer>
#include <functional>

namespace support {

// The control of that name inside `window`; a missing one ends the test run.
template <class T = QWidget> T* child(const QWidget* window, const char* name)
{
    T* found = window->findChild<T*>(QString::fromLatin1(name));
    if (!found) qFatal("no control named %s", name);
    return found;
}

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
        delete watch;
    });
}

// The title the window manager shows: on X11 the window's _NET_WM_NAME, as xprop reads it.
inline QString shownTitle(QWidget* window)
{
    if (QGuiApplication::platformName() != QLatin1String("xcb")) return window->windowTitle();
    QProcess xprop;
    xprop.start("xprop", {"-id", QString::number(window->winId()), "_NET_WM_NAME"});
    xprop.waitForFinished();
    const QString line = QString::fromUtf8(xprop.readAllStandardOutput()).trimmed();
    if (!line.startsWith("_NET_WM_NAME(")) return "<none>";
    const QString value = line.section(" =", 1).trimmed();
    return value.isEmpty() ? value : value.mid(1).chopped(1); // without its quotes
}

} // namespace support
