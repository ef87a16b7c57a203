#include "about/verschluesseln.h"

#include "vocabulary/codepage.h"

namespace about {

void Verschluesseln(QString& text, const QString& key)
{
    const QByteArray k = vocabulary::encodeCp1252(key);
    if (k.isEmpty()) return;
    QByteArray t = vocabulary::encodeCp1252(text);
    for (qsizetype i = 0; i < t.size(); ++i) t[i] = char(t[i] ^ k[i % k.size()]);
    text = vocabulary::decodeCp1252(t);
}

} // namespace about
