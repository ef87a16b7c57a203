#pragma once
// Acting on modal windows from inside the event loop that shows them.
#include <QApplication>
#include <QTimer>
#include <functional>

namespace support {

// Runs `act` on the next modal window of type T once it shows.
template <class T> void onNextModal(std::function<void(T*)> act)
{
    QTimer::singleShot(10, [act] {
        auto* window = qobject_cast<T*>(QApplication::activeModalWidget());
        if (!window) return onNextModal<T>(act);
        act(window);
    });
}

} // namespace support
