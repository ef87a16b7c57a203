#include "editor/word_order.h"

#include "vocabulary/codepage.h"

#include <QVarLengthArray>
#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

namespace editor {
namespace {

// A word's two keys, one after the other: decomposed and case-folded, first without its
// accents, then with them. Returns where the first ends.
qsizetype appendKeys(QStringView word, QString& keys)
{
    const QString decomposed = word.toString().normalized(QString::NormalizationForm_D);
    for (QChar c : decomposed)
        if (c.category() != QChar::Mark_NonSpacing) keys += c.toCaseFolded();
    const qsizetype base = keys.size();
    for (QChar c : decomposed) keys += c.toCaseFolded();
    return base;
}

// Words whose keys are equal: small before capital, then one fixed order for the rest, or
// the list would not be stable.
int compareCase(QStringView a, QStringView b)
{
    for (qsizetype i = 0; i < qMin(a.size(), b.size()); ++i)
        if (a[i] != b[i] && a[i].toCaseFolded() == b[i].toCaseFolded())
            return a[i].isLower() ? -1 : 1;
    return a.compare(b);
}

// The order of any two words, the long way: by their keys, the base letters first, then the
// accents, then by case.
int compareLongWay(QStringView a, QStringView b)
{
    QString ka, kb;
    const qsizetype ba = appendKeys(a, ka), bb = appendKeys(b, kb);
    if (int c = QStringView(ka).left(ba).compare(QStringView(kb).left(bb))) return c;
    if (int c = QStringView(ka).mid(ba).compare(QStringView(kb).mid(bb))) return c;
    return compareCase(a, b);
}

// The same keys for words of Windows-1252 characters, the short way: what each of the 256
// characters adds to a word's keys, worked out once the long way. The letters of the keys are
// numbered in their order from 1 up, so that keys compare as plain bytes and 0 can end one.
struct Fold {
    std::array<uchar, 256> base{};    // the letter without its accent; 0: the long way only
    std::array<uchar, 256> accent{};  // its accent, 0 for none
    std::array<uchar, 256> capital{}; // 1 small, 2 anything else

    Fold()
    {
        std::array<QString, 256> keys;
        std::vector<char16_t> letters;
        for (int b = 0; b < 256; ++b) {
            const QChar c(vocabulary::cp1252Char(uchar(b)));
            // One letter in the first key and the same with at most an accent in the second:
            // then a word's keys are its characters' keys one after the other.
            if (appendKeys(QStringView(&c, 1), keys[b]) != 1 || keys[b].size() > 3 ||
                keys[b][1] != keys[b][0])
                keys[b].clear();
            for (QChar k : keys[b]) letters.push_back(k.unicode());
        }
        std::sort(letters.begin(), letters.end());
        letters.erase(std::unique(letters.begin(), letters.end()), letters.end());
        if (letters.size() > 255) return;
        const auto rank = [&](QChar k) {
            return uchar(std::lower_bound(letters.begin(), letters.end(), k.unicode()) -
                         letters.begin() + 1);
        };
        for (int b = 0; b < 256; ++b) {
            if (keys[b].isEmpty()) continue;
            base[b] = rank(keys[b][0]);
            accent[b] = keys[b].size() == 3 ? rank(keys[b][2]) : 0;
            capital[b] = QChar(vocabulary::cp1252Char(uchar(b))).isLower() ? 1 : 2;
        }
        // Characters alike in both keys must be the small and the capital of one letter, or
        // their case would not decide between them as it does the long way.
        for (int x = 0; x < 256; ++x)
            for (int y = x + 1; y < 256; ++y) {
                const QChar cx(vocabulary::cp1252Char(uchar(x))),
                    cy(vocabulary::cp1252Char(uchar(y)));
                if (base[x] && base[x] == base[y] && accent[x] == accent[y] &&
                    (capital[x] == capital[y] || cx.toCaseFolded() != cy.toCaseFolded()))
                    base[x] = base[y] = 0;
            }
    }

    // The byte of a character that goes the short way, or -1.
    int byteOf(QChar c) const
    {
        const int b = vocabulary::cp1252Byte(c.unicode());
        return b >= 0 && base[size_t(b)] ? b : -1;
    }
};

const Fold& fold()
{
    static const Fold f;
    return f;
}

using Key = QVarLengthArray<uchar, 64>;

// A word's whole key the short way: its letters, 0, its letters with their accents, 0, its
// case. False for a word that must go the long way.
bool shortKey(QStringView word, Key& key)
{
    const Fold& f = fold();
    QVarLengthArray<uchar, 32> bytes;
    for (QChar c : word) {
        const int b = f.byteOf(c);
        if (b < 0) return false;
        bytes.append(uchar(b));
    }
    for (uchar b : bytes) key.append(f.base[b]);
    key.append(0);
    for (uchar b : bytes) {
        key.append(f.base[b]);
        if (f.accent[b]) key.append(f.accent[b]);
    }
    key.append(0);
    for (uchar b : bytes) key.append(f.capital[b]);
    return true;
}

} // namespace

int compareWords(QStringView a, QStringView b)
{
    Key ka, kb;
    if (!shortKey(a, ka) || !shortKey(b, kb)) return compareLongWay(a, b);
    if (int c = std::memcmp(ka.data(), kb.data(), size_t(std::min(ka.size(), kb.size())))) return c;
    return int(ka.size() - kb.size());
}

void sortWords(QStringList& words)
{
    // Every word's first key, ended by 0, side by side in one buffer, and its first eight bytes
    // in one number: most comparisons end at the number, nearly all the rest in the buffer.
    struct Entry {
        quint64 head;
        quint32 word, at;
    };
    const Fold& f = fold();
    qsizetype size = 0;
    for (const QString& w : words) size += w.size() + 1;
    std::vector<uchar> keys(static_cast<size_t>(size));
    std::vector<Entry> entries(static_cast<size_t>(words.size()));
    uchar* out = keys.data();
    for (qsizetype i = 0; i < words.size(); ++i) {
        uchar* const start = out;
        for (QChar c : words[i]) {
            const int b = f.byteOf(c);
            if (b < 0) {
                // A character beyond the table: the whole list the long way.
                std::stable_sort(
                    words.begin(), words.end(),
                    [](const QString& x, const QString& y) { return compareWords(x, y) < 0; });
                return;
            }
            *out++ = f.base[size_t(b)];
        }
        *out++ = 0;
        quint64 head = 0;
        for (qsizetype k = 0; k < 8; ++k) head = head << 8 | (k < out - start ? start[k] : 0);
        entries[size_t(i)] = {head, quint32(i), quint32(start - keys.data())};
    }
    const auto* all = reinterpret_cast<const char*>(keys.data());
    std::sort(entries.begin(), entries.end(), [&](const Entry& a, const Entry& b) {
        if (a.head != b.head) return a.head < b.head;
        if (int c = std::strcmp(all + a.at, all + b.at)) return c < 0;
        return compareWords(words.at(a.word), words.at(b.word)) < 0;
    });
    QStringList sorted;
    sorted.reserve(words.size());
    for (const Entry& e : entries) sorted.append(std::move(words[e.word]));
    words = std::move(sorted);
}

} // namespace editor
