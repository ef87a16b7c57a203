#pragma once
// Driving real windows: controls by name, modal windows acted on as they show, waits ended.
#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace support {

// The control of that name inside `window`; a missing one ends the test run.
template <class T = QWidget> T* child(const QObject* window, const char* name)
{
    T* found = window->findChild<T*>(QString::fromLatin1(name));
    if (!found) qFatal("no control named %s", name);
    return found;
}

// Runs `act` on the next modal window of type T once it shows and is active. None within five
// seconds fails, and so does one left open five seconds: it is closed, so the test goes on.
template <class T> void onNextModal(std::function<void(T*)> act)
{
    struct Watch : QObject {
        std::function<void(T*)> act;
        bool seen = false; // deleted later, which a nested loop puts off
        bool eventFilter(QObject* o, QEvent* e) override
        {
            auto* window = qobject_cast<T*>(o);
            if (e->type() != QEvent::Show || !window || !window->isModal()) return false;
            // Its own event loop runs once the show is done.
            QTimer::singleShot(0, window, [act = act, window] {
                QApplication::setActiveWindow(window);
                if (QTest::qWaitForWindowActive(window)) act(window);
            });
            QTimer::singleShot(5000, window, [window] {
                if (!window->isVisible()) return;
                QTest::qFail("a modal window stayed open", __FILE__, __LINE__);
                window->close();
            });
            seen = true;
            deleteLater();
            qApp->removeEventFilter(this);
            return false;
        }
    };
    auto* watch = new Watch;
    watch->act = std::move(act);
    qApp->installEventFilter(watch);
    QTimer::singleShot(5000, watch, [watch] {
        if (watch->seen) return;
        QTest::qFail("no modal window showed", __FILE__, __LINE__);
        delete watch;
    });
}

// Runs `act` once, from the loop, the first time `action` comes up enabled. `act` is to end
// that wait: one still open five seconds later fails, and the window is closed, which ends it.
inline void whenEnabled(QAction* action, const std::function<void()>& act)
{
    auto once = std::make_shared<QMetaObject::Connection>();
    *once = QObject::connect(action, &QAction::enabledChanged, action, [=](bool on) {
        if (!on || !QObject::disconnect(*once)) return;
        QTimer::singleShot(0, action, act);
        QTimer::singleShot(5000, action, [action] {
            if (!action->isEnabled()) return;
            QTest::qFail("the wait did not end", __FILE__, __LINE__);
            qobject_cast<QWidget*>(action->parent())->window()->close();
        });
    });
}

} // namespace support
