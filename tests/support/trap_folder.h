#pragma once
// A folder where writes fail as on a player's machine, also as root (as in CI), where
// permissions stop nothing: the write runs in a child process without root's powers.
// "full disk": a small tmpfs, mounted and filled where the test may mount one, else a file
// size limit of 0 in the child. "read-only": no new file, but its files stay writable.
// "unreadable": its files may not be read.
#include <QDir>
#include <QFile>
#include <csignal>
#include <functional>
#include <linux/capability.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace support {

class TrapFolder {
public:
    TrapFolder(const QString& path, const QString& trap) : path_(path), trap_(trap)
    {
        if (!trapped()) return;
        QDir().mkpath(path);
        mounted_ = trap == "full disk" && !mount("tmpfs", qPrintable(path), "tmpfs", 0, "size=64k");
        if (trap == "full disk") qInfo("full disk: %s", mounted_ ? "a tmpfs" : "a size limit");
    }
    ~TrapFolder()
    {
        if (mounted_) umount2(qPrintable(path_), MNT_DETACH);
    }

    // Runs `write` with the trap set, in a child if there is one; returns its result (0-255).
    int run(const std::function<int()>& write)
    {
        if (!trapped()) return write();
        QFile filler(path_ + "/filler");
        if (mounted_ && filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            while (filler.write(QByteArray(4096, 'f')) > 0) continue;
        const auto permissions = QFile::permissions(path_);
        if (trap_ == "read-only") QFile::setPermissions(path_, QFile::ReadOwner | QFile::ExeOwner);
        if (trap_ == "unreadable")
            for (const QString& name : QDir(path_).entryList(QDir::Files))
                QFile::setPermissions(path_ + '/' + name, QFile::WriteOwner);
        int status = -1;
        if (const pid_t child = fork(); child == 0) {
            __user_cap_header_struct head{_LINUX_CAPABILITY_VERSION_3, 0};
            __user_cap_data_struct none[2]{};
            const rlimit zero{0, 0};
            syscall(SYS_capset, &head, none);
            signal(SIGXFSZ, SIG_IGN); // the write fails instead
            if (trap_ == "full disk" && !mounted_) setrlimit(RLIMIT_FSIZE, &zero);
            _exit(write());
        } else if (child > 0) {
            waitpid(child, &status, 0);
        }
        QFile::setPermissions(path_, permissions);
        filler.remove();
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    bool trapped() const
    {
        return trap_ == "full disk" || trap_ == "read-only" || trap_ == "unreadable";
    }
    QString path_, trap_;
    bool mounted_ = false;
};

} // namespace support
