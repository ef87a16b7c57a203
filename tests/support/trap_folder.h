#pragma once
// A folder where writing fails as it does on a player's machine, also as root (as in CI),
// where permissions stop nothing: the write runs in a child process without root's powers.
// A full disk is a small tmpfs, mounted and filled where the test may mount one, else a file
// size limit of zero in the child (EFBIG stands in for ENOSPC). A read-only folder takes no
// new file, while the files in it stay writable.
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
    enum Kind { FullDisk, ReadOnly };

    TrapFolder(const QString& path, Kind kind) : path_(path), kind_(kind)
    {
        QDir().mkpath(path);
        if (kind != FullDisk) return;
        mounted_ = mount("tmpfs", qPrintable(path), "tmpfs", 0, "size=64k") == 0;
        qInfo("full disk: %s", mounted_ ? "a small tmpfs, filled" : "a file size limit of 0");
    }
    ~TrapFolder()
    {
        if (mounted_) umount2(qPrintable(path_), MNT_DETACH);
    }

    // Runs `write` with the trap set and returns its result (0 to 255).
    int run(const std::function<int()>& write)
    {
        QFile filler(path_ + "/filler");
        const QByteArray page(4096, 'f');
        if (mounted_ && filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            while (filler.write(page) > 0) continue;
        const auto permissions = QFile::permissions(path_);
        if (kind_ == ReadOnly) QFile::setPermissions(path_, QFile::ReadOwner | QFile::ExeOwner);
        const pid_t child = fork();
        if (child == 0) {
            __user_cap_header_struct head{_LINUX_CAPABILITY_VERSION_3, 0};
            __user_cap_data_struct none[2]{};
            syscall(SYS_capset, &head, none);
            if (kind_ == FullDisk && !mounted_) {
                const rlimit zero{0, 0};
                signal(SIGXFSZ, SIG_IGN); // so that the write fails instead
                setrlimit(RLIMIT_FSIZE, &zero);
            }
            _exit(write());
        }
        int status = -1;
        if (child > 0) waitpid(child, &status, 0);
        QFile::setPermissions(path_, permissions);
        filler.remove();
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    QString path_;
    Kind kind_;
    bool mounted_ = false;
};

} // namespace support
