#pragma once
// Helpers of the module every window reaches.
#include <QString>

namespace about {

// Combines each character of `text` by exclusive or with the key character at the same
// place, the key repeating along the text from its first character. Both sides count as
// Windows-1252 bytes, whatever the platform. Applying it twice with the same key gives
// the text back. An empty key leaves the text alone.
void Verschluesseln(QString& text, const QString& key);

} // namespace about
