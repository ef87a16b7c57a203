#pragma once
// Where the main window's movable controls stand for a given outer size, in twips.
// Nothing grows: the picture keeps to 60 percent of the width, the buttons to the strip
// right of it, the letter panel and the word to the middle.
#include <vector>

namespace mainwindow {

struct Twips {
    long long left = 0, top = 0;
    bool operator==(const Twips&) const = default;
};

// The window's design size, frame included, which is also its smallest; and the letter
// panel's design width.
constexpr int kDesignWidth = 9600, kDesignHeight = 6975;
constexpr int kPicture1Width = 9000;

struct Layout {
    Twips bFolge;    // all ten pictures
    Twips picBut[3]; // their tops stay as designed
    Twips picture1;
    std::vector<Twips> feld; // index 0 is the hidden pattern
    Twips picBut3;
};

// W, H: the window's outer size; bFolge0Height: the first picture's height, smaller while
// it grows; letters: the length of the word, 0 with none.
Layout layoutFor(double W, double H, int bFolge0Height, int letters);

} // namespace mainwindow
