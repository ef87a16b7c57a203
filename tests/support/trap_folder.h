#pragma once
// Writes that fail as on a player's machine, also as root (as in CI), where permissions stop
// nothing: the write runs in a child without root's powers. "full disk": the small file system
// the test runs on (see on_small_disk.sh) is filled, elsewhere no file may grow; "read-only":
// no new file in the folder, its files stay writable; "unreadable": no file read.
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
    const auto files = [&folder](QFile::Permissions p) {
        for (const QString& name : QDir(folder).entryList(QDir::Files))
            QFile::setPermissions(folder + '/' + name, p);
    };
    if (trap == "unreadable") files(QFile::WriteOwner);
    // Filled beside the folder, so that what a write leaves in it can be seen.
    const QString disk = qEnvironmentVariable("FROSTEL_SMALL_DISK"), filler = folder + "/../filler";
    const bool real = trap == "full disk" && !disk.isEmpty() && folder.startsWith(disk);
    if (real) {
        QFile f(filler);
        static_cast<void>(f.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        for (qint64 block = 1 << 20; block > 0; block /= 2)
            while (f.write(QByteArray(block, 'x')) == block) continue;
    }
    int status = -1;
    if (const pid_t child = fork(); child == 0) {
        __user_cap_header_struct head{_LINUX_CAPABILITY_VERSION_3, 0};
        __user_cap_data_struct none[2]{};
        const rlimit zero{0, 0};
        syscall(SYS_capset, &head, none);
        signal(SIGXFSZ, SIG_IGN); // the write fails instead
        if (trap == "full disk" && !real) setrlimit(RLIMIT_FSIZE, &zero);
        _exit(write());
    } else if (child > 0) {
        waitpid(child, &status, 0);
    }
    QFile::setPermissions(folder, permissions);
    if (trap == "unreadable") files(QFile::ReadOwner | QFile::WriteOwner); // to be looked at
    QFile::remove(filler);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace support
