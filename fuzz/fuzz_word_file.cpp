// Any bytes as a word file: the reader must come back with words that pass the filter, and
// plain words must read back as the writer wrote them. (Words with commas or quotes do not:
// the writer stores lines as they are, as it always has.)
#include "vocabulary/word_file.h"

#include <QTemporaryDir>
#include <algorithm>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto r = vocabulary::readWords(QByteArrayView(data, qsizetype(size)));
    // The reader's filter: at most 20 characters and no sharp s.
    for (const QString& w : r.words)
        if (w.size() > vocabulary::kMaxWordLength || w.contains(u'ß') || w.contains(u'ẞ'))
            std::abort();
    static QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("w.dat"));
    if (!vocabulary::writeWordFile(path, r.words)) {
        const auto back = vocabulary::readWordFile(path);
        const bool plain = std::all_of(r.words.begin(), r.words.end(), [](const QString& w) {
            return !w.isEmpty() &&
                   std::all_of(w.begin(), w.end(), [](QChar c) { return c.isLetter(); });
        });
        if (plain && !r.words.isEmpty() && back.words != r.words) std::abort();
    }
    return 0;
}
