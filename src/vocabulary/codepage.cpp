#include "vocabulary/codepage.h"

#include <QHash>
#include <QStringDecoder>
#include <array>

namespace vocabulary {
namespace {

struct Tables {
    std::array<char16_t, 256> toUnicode{};
    QHash<char16_t, unsigned char> fromUnicode;

    Tables()
    {
        // Taken from the platform's codec once, then used as a plain table: far faster than
        // a decoder call per word, and the same mapping.
        QStringDecoder dec("windows-1252");
        for (int b = 0; b < 256; ++b) {
            const char c = char(b);
            QString s = dec.isValid() ? dec.decode(QByteArrayView(&c, 1)) : QString();
            dec.resetState();
            toUnicode[b] = s.size() == 1 ? s[0].unicode() : char16_t(b);
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

QChar fromCp1252(unsigned char byte) { return QChar(tables().toUnicode[byte]); }

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
