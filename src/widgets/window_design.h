#pragma once
// What the three dialog windows share beyond their .ui files: the design values a .ui
// cannot hold (twips, fractional point sizes, the cancel button), the program icon, centring
// frame and all, and titles as the window manager shows them.
#include <QDialog>
#include <QPoint>
#include <QSize>

class QPushButton;

namespace widgets {

// Sets the point size of the widget and its children from their "pointSizeF" property:
// .ui files hold whole points only, the windows use 8.25 and 9.75.
void applyPointSizes(QWidget* widget);

// The corner that centres a window of `size` in `area`, in any one unit: each difference
// halved and cut towards zero, so a window larger than the area starts before it.
QPoint centredIn(const QRect& area, const QSize& size);
// Moves the window, frame and all, to the middle of the primary screen by one move.
void centreOnScreen(QWidget* window);
// Moves the window, frame and all, to the middle of its owner.
void centreOnOwner(QWidget* window, const QWidget* owner);
// Qt on X11 shows the program's name where a window has no title. Writes the empty title to
// the window itself; call it once the window is made, before it maps (from its show event).
void keepEmptyTitle(QWidget* window);

class DesignDialog : public QDialog {
    Q_OBJECT
public:
    explicit DesignDialog(QWidget* parent = nullptr, Qt::WindowFlags flags = {});

    // The button that Esc presses: the one marked with the property "cancel".
    QPushButton* cancelButton() const;

protected:
    // Call once the .ui is set up.
    void applyDesign();
    // Esc presses the cancel button if it can be pressed, and does nothing else: a window
    // without one is not closed by Esc.
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace widgets
