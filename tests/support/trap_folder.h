#pragma once
// Writes that fail as on a player's machine, also as root (as in CI), where permissions stop
// nothing: the write runs in a child without root's powers. "full disk": no file may grow;
// "read-only": no new file in the folder, its files stay writable; "unreadable": no file read.
#include <QDir>
#include <QFile>
#include <csignal>
#include <functional>
#include <linux/capability.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace support {

// Runs `write` with the trap set on the folder, or as it is for any other trap; returns its
// result (0 to 255).
inline int inTrap(const QString& folder, const QString& trap, const std::function<int()>& write)
{
    if (trap != "full disk" && trap != "read-only" && trap != "unreadable") return write();
    QDir().mkpath(folder);
    const auto permissions = QFile::permissions(folder);
    if (trap == "read-only") QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
    for (const QString& name : QDir(folder).entryList(QDir::Files))
        if (trap == "unreadable") QFile::setPermissions(folder + '/' + name, QFile::WriteOwner);
    int status = -1;
    if (const pid_t child = fork(); child == 0) {
        __user_cap_header_struct head{_LINUX_CAPABILITY_VERSION_3, 0};
        __user_cap_data_struct none[2]{};
        const rlimit zero{0, 0};
        syscall(SYS_capset, &head, none);
        signal(SIGXFSZ, SIG_IGN); // the write fails instead
        if (trap == "full disk") setrlimit(RLIMIT_FSIZE, &zero);
        _exit(write());
    } else if (child > 0) {
        waitpid(child, &status, 0);
    }
    QFile::setPermissions(folder, permissions);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace support
