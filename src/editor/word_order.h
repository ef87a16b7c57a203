#pragma once
// The list's alphabetical order: letters by their base ("Ä" files with "A"), then plain before
// accented, then small before capital.
#include <QStringList>
#include <QStringView>

namespace editor {

// <0, 0 or >0; 0 only for equal words.
int compareWords(QStringView a, QStringView b);
// Puts the words in that order.
void sortWords(QStringList& words);

} // namespace editor
