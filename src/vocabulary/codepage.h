#pragma once
// Word files are single-byte Windows-1252 text, whatever the platform.
#include <QByteArray>
#include <QString>

namespace vocabulary {

// Undefined bytes such as 0x81 map to the C1 control of the same number, so every byte
// survives a round trip.
QString decodeCp1252(QByteArrayView bytes);
// Characters that Windows-1252 cannot hold become '?'.
QByteArray encodeCp1252(QStringView text);

} // namespace vocabulary
