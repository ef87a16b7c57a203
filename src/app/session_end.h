#pragma once
#include <functional>

namespace app {

// Ends the game as closing its window does when the desktop ends it: at SIGTERM (systemd at
// logout), SIGHUP (the terminal gone), SIGINT (Ctrl+C), and when the session manager asks the
// program to save before the session ends. `end` runs once, from the event loop; a second
// signal while it runs does nothing.
void endWithTheSession(std::function<void()> end);
// Holds those signals from here on until endWithTheSession() takes them: one that comes
// while the game starts ends it once the start is done.
void catchTheSessionsEnd();

} // namespace app
