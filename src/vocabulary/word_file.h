#pragma once
// Word files: one word an item, items ended by CR LF or a comma (neither ends one inside
// double quotes), Windows-1252 bytes.
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <array>
#include <functional>
#include <optional>

namespace vocabulary {

constexpr int kMaxWordLength = 20;
constexpr int kFileNotFound = 53;

// A failure in the numbers and words the game reports it by.
struct Failure {
    int number = 0;
    QString text;
    bool operator==(const Failure&) const = default;
};
// The failure's words in the player's language.
QString failureText(const Failure& failure);

// Splits bytes into items the way the game's sequential input reads them. Fed in chunks,
// so a file of any size is read in bounded memory: an item longer than a word can be is
// only measured, not kept.
class ItemReader {
public:
    struct Item {
        QByteArrayView bytes; // at most kMaxWordLength + 1 bytes of the item
        qsizetype length;     // the item's whole length
        bool hasSharpS;       // holds a "ß" anywhere
    };
    using Sink = std::function<void(const Item&)>;

    explicit ItemReader(Sink sink) : sink_(std::move(sink)) {}
    void feed(QByteArrayView chunk);
    // End of file. Returns false when there was not a single byte to read an item from.
    bool finish();

private:
    enum class State { Start, Lead, Bare, Quoted, AfterQuote };
    void append(char c);
    void endItem();

    Sink sink_;
    State state_ = State::Start;
    bool skipLf_ = false;
    bool sawAny_ = false;
    // The kept bytes of the item: a fixed buffer, no allocation per item.
    std::array<char, kMaxWordLength + 1> cur_{};
    qsizetype length_ = 0;
    bool sharpS_ = false;
};

struct ReadResult {
    QStringList words;              // the items that passed the filter, in file order
    std::optional<Failure> failure; // set when reading stopped early or never began
};

// Reads a word file by name, relative to the working folder.
ReadResult readWordFile(const QString& fileName);
// The same for bytes already in memory (a zero-length input is the failure it is on disk).
ReadResult readWords(QByteArrayView bytes);

// Writes the words as CR LF lines, the last one too. The old file is replaced only once
// the new one is whole; on failure it stays as it was.
std::optional<Failure> writeWordFile(const QString& fileName, const QStringList& words);

} // namespace vocabulary
