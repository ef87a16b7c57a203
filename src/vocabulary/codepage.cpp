#include "vocabulary/codepage.h"

#include <QHash>
#include <array>

namespace vocabulary {
namespace {

// Windows-1252 is Latin-1 but for 0x80..0x9F. The five bytes it leaves undefined stand for
// the C1 controls of the same number, so every byte survives a round trip. A fixed table,
// not a codec: no library to load, and far faster than a decoder call per word.
constexpr char16_t kHigh[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

struct Tables {
    std::array<char16_t, 256> toUnicode{};
    QHash<char16_t, unsigned char> fromUnicode;

    Tables()
    {
        for (int b = 0; b < 256; ++b) {
            toUnicode[b] = b >= 0x80 && b < 0xA0 ? kHigh[b - 0x80] : char16_t(b);
            fromUnicode.insert(toUnicode[b], static_cast<unsigned char>(b));
        }
    }
};

const Tables& tables()
{
    static const Tables t;
    return t;
}

} // namespace

QString decodeCp1252(QByteArrayView bytes)
{
    const auto& t = tables().toUnicode;
    QString out(bytes.size(), Qt::Uninitialized);
    QChar* d = out.data();
    for (char c : bytes) *d++ = QChar(t[static_cast<unsigned char>(c)]);
    return out;
}

QByteArray encodeCp1252(QStringView text)
{
    const auto& t = tables().fromUnicode;
    QByteArray out;
    out.reserve(text.size());
    for (QChar c : text) {
        const auto it = t.constFind(c.unicode());
        out.append(it == t.constEnd() ? '?' : char(*it));
    }
    return out;
}

} // namespace vocabulary
