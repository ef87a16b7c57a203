#pragma once
// The rules behind the options window's handlers, apart from the window: the step of a
// spin button, what a change means for the running game, which vocabulary the list offers.
#include <QString>
#include <QStringList>
#include <optional>

namespace settings {

// A caption read as a number the way the window always has: blanks anywhere are skipped,
// an optional sign, then digits up to the first other character; nothing readable is 0.
int captionNumber(const QString& caption);

// The two counts of the window: 0 players (1 to 4), 1 tips (0 to 3).
enum class Spin { Players = 0, Tips = 1 };
struct SpinRange {
    int minimum, maximum;
};
SpinRange spinRange(Spin spin);

struct SpinStep {
    int face = 0;                   // the face the spin button shows: 1 up, 2 down
    std::optional<QString> caption; // the new caption, or none when the count stays
};

// One step of a spin button pressed at (x, y), in twips inside its picture: the upper left
// triangle counts up, the lower right one down. A step that would leave the range, or that
// starts from a number already outside it, leaves the caption as it is.
SpinStep spinStep(Spin spin, const QString& caption, double x, double y);

// What can change while the window is open.
enum class OptionChange {
    Players,
    Tips,
    Name,
    Repeat,
    Vocabulary,
    Motif,
    Sound,
    Anzeige,
    EditorClosed,
};

// True when the change must restart the game once the window closes. Motif, sound and
// show-solution never disturb a game: the motif is compared on return, the other two are
// read at each use.
bool restartsGame(OptionChange change);

// The vocabulary files of the working folder: bare names of "*.dat", sorted by name.
QStringList wordFileRows();
// The row that names the stored file, else the first row; the stored name when there is
// no row at all.
QString chooseWordFile(const QString& stored, const QStringList& rows);

} // namespace settings
