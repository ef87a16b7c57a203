#include "vocabulary/whole_file.h"

#include <QSaveFile>
#include <cerrno>

namespace vocabulary {

std::optional<WriteFailure> writeWhole(const QString& path, const QByteArray& bytes,
                                       bool inPlaceFallback)
{
    QSaveFile file(path);
    file.setDirectWriteFallback(inPlaceFallback);
    if (!file.open(QIODevice::WriteOnly))
        return WriteFailure{WriteFailure::Open, file.error(), file.errorString()};
    // commit() would rename a short file over the old one when the last buffered write failed
    // (a full disk), so every byte must have reached the file first.
    errno = 0;
    if (file.write(bytes) != bytes.size() || !file.flush() ||
        file.error() != QFileDevice::NoError) {
        const int error = errno;
        WriteFailure failure{WriteFailure::Write, file.error(), file.errorString(),
                             error == ENOSPC || error == EFBIG ||
                                 file.error() == QFileDevice::ResourceError};
        file.cancelWriting();
        return failure;
    }
    if (file.commit()) return std::nullopt;
    return WriteFailure{WriteFailure::Commit, file.error(), file.errorString(),
                        file.error() == QFileDevice::ResourceError};
}

} // namespace vocabulary
