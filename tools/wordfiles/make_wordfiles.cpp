// Writes the word files the game ships with, through the game's own writer, so they come
// out exactly as the vocabulary editor would save them.
//
//   make_wordfiles OUT_DIR [LIST.txt ...]
//
// OUT_DIR/frostel.dat gets the built-in words in their fixed order, or, for another
// language, the words of a frostel.txt among the lists in that list's order. Each other
// LIST.txt (UTF-8, one word a line) becomes OUT_DIR/LIST.dat, sorted. A list with a word the
// game cannot hold, or a word twice, fails the build rather than ship a file the game half
// reads.
#include "vocabulary/englisch.h"
#include "vocabulary/word_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QStringList>
#include <cstdio>

namespace {

bool isPlainWord(const QString& w)
{
    if (w.isEmpty() || w.size() > vocabulary::kMaxWordLength) return false;
    for (const QChar c : w)
        if (!((c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z'))) return false;
    return true;
}

bool readList(const QString& path, QStringList& words)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "make_wordfiles: cannot read %s\n", qPrintable(path));
        return false;
    }
    const QStringList lines = QString::fromUtf8(f.readAll()).split(u'\n');
    QSet<QString> seen;
    bool ok = true;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString w = lines[i].trimmed();
        if (w.isEmpty()) continue;
        if (!isPlainWord(w)) {
            std::fprintf(stderr, "%s:%lld: \"%s\" is not a word of 1 to %d letters A-Z\n",
                         qPrintable(path), static_cast<long long>(i + 1), qPrintable(w),
                         vocabulary::kMaxWordLength);
            ok = false;
        } else if (seen.contains(w.toLower())) {
            std::fprintf(stderr, "%s:%lld: \"%s\" is there twice\n", qPrintable(path),
                         static_cast<long long>(i + 1), qPrintable(w));
            ok = false;
        }
        seen.insert(w.toLower());
        words.append(w);
    }
    return ok;
}

bool write(const QString& path, const QStringList& words)
{
    if (const auto failure = vocabulary::writeWordFile(path, words)) {
        std::fprintf(stderr, "make_wordfiles: %s: %s (%d)\n", qPrintable(path),
                     qPrintable(failure->text), failure->number);
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: make_wordfiles OUT_DIR [LIST.txt ...]\n");
        return 2;
    }
    const QDir out(QString::fromLocal8Bit(argv[1]));
    if (!out.exists() && !QDir().mkpath(out.path())) {
        std::fprintf(stderr, "make_wordfiles: cannot make %s\n", argv[1]);
        return 1;
    }

    const QString frostel = QStringLiteral("frostel");
    bool ownFrostel = false;
    for (int i = 2; i < argc; ++i) {
        const QString list = QString::fromLocal8Bit(argv[i]);
        const QString base = QFileInfo(list).completeBaseName();
        QStringList words;
        if (!readList(list, words)) return 1;
        if (base == frostel) ownFrostel = true;
        else words.sort(Qt::CaseInsensitive);
        if (!write(out.filePath(base + QStringLiteral(".dat")), words)) return 1;
    }
    if (ownFrostel) return 0;
    QStringList builtin;
    vocabulary::WortlisteFuellen(builtin);
    return write(out.filePath(frostel + QStringLiteral(".dat")), builtin) ? 0 : 1;
}
