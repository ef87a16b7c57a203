#include "app/session_end.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <csignal>
#include <memory>
#include <sys/socket.h>
#include <unistd.h>

namespace app {
namespace {

int pipeEnds[2] = {-1, -1};

// Only what is safe in a signal handler: one byte down a socket the event loop watches.
void onSignal(int)
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t n = ::write(pipeEnds[0], &byte, 1);
}

} // namespace

void catchTheSessionsEnd()
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, pipeEnds) != 0) return;
    struct sigaction action = {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int sig : {SIGTERM, SIGHUP, SIGINT}) ::sigaction(sig, &action, nullptr);
}

void endWithTheSession(std::function<void()> end)
{
    auto once = [end = std::move(end), done = std::make_shared<bool>(false)] {
        if (*done) return;
        *done = true;
        end();
    };
    if (pipeEnds[1] >= 0) {
        // What came meanwhile waits in the socket and is read at the first turn of the loop.
        auto* notifier = new QSocketNotifier(pipeEnds[1], QSocketNotifier::Read, qApp);
        QObject::connect(notifier, &QSocketNotifier::activated, qApp, [once] {
            char bytes[16];
            while (::read(pipeEnds[1], bytes, sizeof bytes) > 0) {
            }
            once();
        });
    }
    // The session manager's last word before it ends the session: nothing to ask, all to keep.
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, qApp,
                     [once](QSessionManager&) { once(); });
}

} // namespace app
