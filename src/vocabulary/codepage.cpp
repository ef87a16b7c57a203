#include "vocabulary/codepage.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vocabulary {
namespace {

// Windows-1252 is Latin-1 but for 0x80..0x9F. The five bytes it leaves undefined stand for
// the C1 controls of the same number, so every byte survives a round trip. Fixed tables, not
// a codec: no library to load, and far faster than a decoder call per word.
constexpr char16_t kHigh[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr auto kToUnicode = [] {
    std::array<char16_t, 256> t{};
    for (int b = 0; b < 256; ++b) t[b] = b >= 0x80 && b < 0xA0 ? kHigh[b - 0x80] : char16_t(b);
    return t;
}();

// The 27 characters above Latin-1, by character for a binary search, with their bytes.
constexpr auto kAbove = [] {
    std::array<std::pair<char16_t, unsigned char>, 27> above{};
    size_t n = 0;
    for (int b = 0x80; b < 0xA0; ++b)
        if (kToUnicode[b] >= 256) above[n++] = {kToUnicode[b], static_cast<unsigned char>(b)};
    std::sort(above.begin(), above.end());
    return above;
}();

} // namespace

namespace detail {

// Latin-1 characters to bytes: themselves, but for the C1 controls whose bytes Windows-1252
// gives to other characters.
constexpr std::array<qint16, 256> kLatin1Bytes = [] {
    std::array<qint16, 256> t{};
    for (int c = 0; c < 256; ++c) t[c] = c >= 0x80 && c < 0xA0 ? -1 : c;
    for (int b = 0x80; b < 0xA0; ++b)
        if (kToUnicode[b] < 256) t[kToUnicode[b]] = qint16(b);
    return t;
}();

int byteAboveLatin1(char16_t c)
{
    const auto it =
        std::lower_bound(kAbove.begin(), kAbove.end(), c,
                         [](const auto& entry, char16_t key) { return entry.first < key; });
    return it != kAbove.end() && it->first == c ? it->second : -1;
}

} // namespace detail

char16_t cp1252Char(unsigned char byte) { return kToUnicode[byte]; }

QString decodeCp1252(QByteArrayView bytes)
{
    QString out(bytes.size(), Qt::Uninitialized);
    QChar* d = out.data();
    for (char c : bytes) *d++ = QChar(kToUnicode[static_cast<unsigned char>(c)]);
    return out;
}

char* encodeCp1252(QStringView text, char* out)
{
    for (QChar c : text) {
        const int b = cp1252Byte(c.unicode());
        *out++ = b < 0 ? '?' : char(b);
    }
    return out;
}

QByteArray encodeCp1252(QStringView text)
{
    QByteArray out(text.size(), Qt::Uninitialized);
    encodeCp1252(text, out.data());
    return out;
}

} // namespace vocabulary
