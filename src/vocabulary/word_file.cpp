#include "vocabulary/word_file.h"

#include "vocabulary/codepage.h"
#include "vocabulary/whole_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

namespace vocabulary {
namespace {

constexpr char kSharpS = char(0xDF); // "ß" in Windows-1252
constexpr qsizetype kKeep = kMaxWordLength + 1;

// The words the game's toolkit used for these failures.
const Failure kPastEnd{
    62, QString::fromLatin1(QT_TRANSLATE_NOOP("vocabulary", "Input past end of file"))};
const Failure kAccess{
    75, QString::fromLatin1(QT_TRANSLATE_NOOP("vocabulary", "Path/File access error"))};
const Failure kPermission{
    70, QString::fromLatin1(QT_TRANSLATE_NOOP("vocabulary", "Permission denied"))};
const Failure kDeviceIo{57,
                        QString::fromLatin1(QT_TRANSLATE_NOOP("vocabulary", "Device I/O error"))};
const Failure kPathNotFound{76,
                            QString::fromLatin1(QT_TRANSLATE_NOOP("vocabulary", "Path not found"))};
const Failure kDiskFull{61, QString::fromLatin1(QT_TRANSLATE_NOOP("vocabulary", "Disk full"))};

bool isLineEnd(char c) { return c == '\r' || c == '\n'; }

} // namespace

QString failureText(const Failure& failure)
{
    return QCoreApplication::translate("vocabulary", failure.text.toLatin1().constData());
}

void ItemReader::append(char c)
{
    if (length_ < kKeep) cur_[size_t(length_)] = c;
    ++length_;
    sharpS_ = sharpS_ || c == kSharpS;
}

void ItemReader::endItem()
{
    sink_(Item{QByteArrayView(cur_.data(), std::min(length_, kKeep)), length_, sharpS_});
    length_ = 0;
    sharpS_ = false;
    state_ = State::Start;
}

void ItemReader::feed(QByteArrayView chunk)
{
    if (!chunk.isEmpty()) sawAny_ = true;
    for (const char c : chunk) {
        if (skipLf_) {
            skipLf_ = false;
            if (c == '\n') continue; // the LF of a CR LF
        }
        const bool delim = c == ',' || isLineEnd(c);
        switch (state_) {
        case State::Start:
        case State::Lead:
            if (c == ' ' || c == '\t') {
                state_ = State::Lead;
            } else if (c == '"') {
                state_ = State::Quoted;
            } else if (delim) {
                endItem();
            } else {
                state_ = State::Bare;
                append(c);
            }
            break;
        case State::Bare:
            if (delim) endItem();
            else append(c);
            break;
        case State::Quoted:
            // Line ends belong to the item; a stray quote runs to the end of the file, and
            // only the item's first bytes are kept.
            if (c == '"') state_ = State::AfterQuote;
            else append(c);
            break;
        case State::AfterQuote:
            if (delim) endItem(); // whatever stood between the quote and the delimiter is dropped
            break;
        }
        if (c == '\r' && state_ == State::Start) skipLf_ = true;
    }
}

bool ItemReader::finish()
{
    if (!sawAny_) return false;
    if (state_ != State::Start) endItem(); // end of file inside an item ends the item
    return true;
}

namespace {

ItemReader::Sink collector(QStringList& words)
{
    return [&words](const ItemReader::Item& item) {
        if (item.length <= kMaxWordLength && !item.hasSharpS)
            words.append(decodeCp1252(item.bytes));
    };
}

} // namespace

ReadResult readWords(QByteArrayView bytes)
{
    ReadResult r;
    ItemReader reader(collector(r.words));
    reader.feed(bytes);
    if (!reader.finish()) r.failure = kPastEnd;
    return r;
}

ReadResult readWordFile(const QString& fileName)
{
    ReadResult r;
    const QFileInfo info(fileName);
    if (!info.exists()) {
        r.failure = Failure{kFileNotFound,
                            QString::fromLatin1(QT_TRANSLATE_NOOP("vocabulary", "File not found"))};
        return r;
    }
    if (!info.isFile()) {
        // A folder, a device or a pipe: reading one would never end, or never begin.
        r.failure = kAccess;
        return r;
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        // Qt reports a refused open as an open error; the file's permissions say why.
        r.failure = info.isReadable() ? kAccess : kPermission;
        return r;
    }
    ItemReader reader(collector(r.words));
    QByteArray chunk(64 * 1024, Qt::Uninitialized);
    for (;;) {
        const qint64 n = file.read(chunk.data(), chunk.size());
        if (n < 0) {
            r.failure = kDeviceIo; // keep what was read up to here
            return r;
        }
        if (n == 0) break;
        reader.feed(QByteArrayView(chunk.constData(), n));
    }
    if (!reader.finish()) r.failure = kPastEnd;
    return r;
}

std::optional<Failure> writeWordFile(const QString& fileName, const QStringList& words)
{
    const QFileInfo info(fileName);
    if (!info.absoluteDir().exists()) return kPathNotFound;
    // A folder, a device or a pipe (or a link to one) is no word file: a save would replace
    // it, or pour the words into it.
    if (info.exists() && !info.isFile()) return kAccess;
    // One byte a character and two a line end: the bytes are counted first and written into
    // place, a million words in one allocation.
    qsizetype size = 0;
    for (const QString& w : words) size += w.size() + 2;
    QByteArray bytes(size, Qt::Uninitialized);
    char* out = bytes.data();
    for (qsizetype i = 0; i < words.size(); ++i) {
        // A long list's words lie scattered in memory, a sorted one's most of all: each is
        // asked for a few words ahead, so that the waits for memory overlap.
        if (i + 16 < words.size()) __builtin_prefetch(words[i + 16].constData());
        out = encodeCp1252(words[i], out);
        *out++ = '\r';
        *out++ = '\n';
    }
    const auto failure = writeWhole(fileName, bytes, true);
    if (!failure) return std::nullopt;
    if (failure->diskFull) return kDiskFull;
    return failure->stage == WriteFailure::Write ? kDeviceIo : kAccess;
}

} // namespace vocabulary
