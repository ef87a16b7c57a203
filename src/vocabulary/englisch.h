#pragma once
// The built-in English word list.
#include <QStringList>
#include <array>

namespace vocabulary {

extern const std::array<const char*, 48> kBuiltinWords;

// Appends the 48 built-in words in their fixed order; clears nothing.
void WortlisteFuellen(QStringList& list);

} // namespace vocabulary
