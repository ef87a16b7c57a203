#pragma once
// Word files are single-byte Windows-1252 text, whatever the platform.
#include <QByteArray>
#include <QString>
#include <array>

namespace vocabulary {

namespace detail {
extern const std::array<qint16, 256> kLatin1Bytes;
int byteAboveLatin1(char16_t c);
} // namespace detail

// The character a byte stands for. Undefined bytes such as 0x81 stand for the C1 control of
// the same number, so every byte survives a round trip.
char16_t cp1252Char(unsigned char byte);
// The byte that stands for a character, or -1 where Windows-1252 has none. Inline: it is asked
// for every character of a long list.
inline int cp1252Byte(char16_t c)
{
    return c < 256 ? detail::kLatin1Bytes[c] : detail::byteAboveLatin1(c);
}

QString decodeCp1252(QByteArrayView bytes);
// Characters that Windows-1252 cannot hold become '?'.
QByteArray encodeCp1252(QStringView text);
// The same into `out`, which has room for text.size() bytes (always one byte a character).
// Returns the end of what was written.
char* encodeCp1252(QStringView text, char* out);

} // namespace vocabulary
