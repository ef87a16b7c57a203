#pragma once
// The rules of the vocabulary editor that need no window: which keys the word box takes,
// what the box selects when it gets the focus, and the messages (the list's order is in
// word_order.h).
#include "vocabulary/word_file.h"

#include <QString>
#include <QStringList>
#include <QStringView>

namespace editor {

// Whether a typed character reaches the word box: letters A to Z and the umlauts in either
// case, and every control code (Backspace, Tab, the Ctrl keys) so editing still works.
bool keyPasses(QChar c);
// The characters of an input that pass, in order.
QString passingKeys(QStringView typed);

// What the word box selects when the focus enters it: from where the cursor stands to
// the end of the text. Returns the selection's length.
int selectionOnFocus(int start, int textLength);

// The message for a word file that could not be read, and for one that could not be saved.
QString loadFailureText(const QString& fileName, const vocabulary::Failure& failure);
QString saveFailureText(const QString& fileName, const vocabulary::Failure& failure);
// The title of the editor's error boxes.
QString errorTitle();

} // namespace editor
