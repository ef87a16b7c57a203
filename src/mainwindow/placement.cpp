// The main window's place, size and state: brought back at the start, kept at the end. All of
// them count the frame that a window manager puts around the window.
#include "mainwindow/main_window.h"

#include "mainwindow/screen_fit.h"
#include "widgets/twips.h"
#include "widgets/window_design.h"

#include <QGuiApplication>
#include <QScreen>

namespace mainwindow {
namespace {

using widgets::twipsToPixels;

long long tw(int pixels) { return (long long)widgets::pixelsToTwips(pixels); }

// The part of the screen that windows may take, without panels and docks.
QRect available(const QScreen* screen)
{
    const QRect r = screen->availableGeometry();
    return {int(tw(r.x())), int(tw(r.y())), int(tw(r.width())), int(tw(r.height()))};
}

} // namespace

int16_t MainWindow::restorePlace()
{
    // The splash, owned by this window, has made its native window already. Placed that way,
    // the window would take the stored corner for its client area's and come up a title bar
    // higher than it was left. Made anew when it shows, its frame goes where it is asked.
    if (testAttribute(Qt::WA_WState_Created)) destroy();
    // The state itself is set by the show: set before, it would make the window as well.
    settings::WindowPlace stored;
    stored.state = settings::readWindowState(profile_);
    const QSize design(int(tw(kDesignOuter.width())), int(tw(kDesignOuter.height())));
    const QPoint centre = widgets::centredIn(available(QGuiApplication::primaryScreen()), design);
    // Maximised, the stored place waits for a close in another state; restored, the window
    // stands as at a first start, and not wherever the window manager made it.
    if (stored.state == 2)
        cornerWhenRestored_ = QPoint(twipsToPixels(centre.x()), twipsToPixels(centre.y()));
    else settings::readWindowPlace(profile_, stored, centre.x(), centre.y());
    // It opens on the screen that holds its stored corner, else on the primary one.
    const QScreen* screen = QGuiApplication::screenAt(
        QPoint(twipsToPixels(double(stored.left)), twipsToPixels(double(stored.top))));
    if (!screen) screen = QGuiApplication::primaryScreen();
    const QRect place = fitToScreen(stored, available(screen), design);
    setOuterSize(place.width(), place.height());
    // Before the window is made, a move places the corner of its frame.
    move(twipsToPixels(double(place.x())), twipsToPixels(double(place.y())));
    return stored.state;
}

void MainWindow::setOuterSize(int widthTwips, int heightTwips)
{
    outerWanted_ = QSize(twipsToPixels(widthTwips), twipsToPixels(heightTwips));
    lastFrame_ = QSize(-1, -1); // fitted to the frame known now, and again to the real one
    fitFrame();
}

void MainWindow::fitFrame()
{
    // Sizes count the frame, which the window manager adds only once the window shows.
    const QSize frame = frameGeometry().size() - geometry().size();
    setMinimumSize(kDesignOuter.width() - frame.width(), kDesignOuter.height() - frame.height());
    if (frame == lastFrame_) return;
    // Not while minimised: a new size would restore the window. It is fitted once restored.
    if (outerWanted_.isValid() && windowState() == Qt::WindowNoState) {
        lastFrame_ = frame;
        resize((outerWanted_ - frame).expandedTo(minimumSize()));
    }
}

void MainWindow::storePlace()
{
    // A window minimised from maximised is minimised: its place is kept, with state 1.
    const Qt::WindowStates state = windowState();
    settings::WindowPlace place;
    if ((state & Qt::WindowMaximized) && !(state & Qt::WindowMinimized)) {
        place.state = 2;
    } else {
        QRect r = frameGeometry();
        if (cornerWhenRestored_) r.moveTopLeft(*cornerWhenRestored_); // never restored yet
        // Minimised from the start, it is not fitted to its frame yet: it has the size asked for.
        if (outerWanted_.isValid() && lastFrame_ != r.size() - geometry().size())
            r.setSize(outerWanted_.expandedTo(kDesignOuter));
        place = {int16_t((state & Qt::WindowMinimized) ? 1 : 0), tw(r.x()), tw(r.y()),
                 int(tw(r.width())), int(tw(r.height()))};
        // On Wayland the compositor places the window and Qt reports zeros: the stored place
        // stays for the next start under X11.
        place.placed = !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
    }
    settings::writeWindowPlace(profile_, place);
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    if (windowState() & Qt::WindowMinimized) return;
    Anordnen();
}

void MainWindow::Anordnen()
{
    fitFrame();
    const QRect outer = frameGeometry();
    const Layout l =
        layoutFor(widgets::pixelsToTwips(outer.width()), widgets::pixelsToTwips(outer.height()),
                  game_.board.B_Folge0_Height, int(game_.g.Wort.size()));
    std::vector<QPoint> fields;
    for (const Twips& f : l.feld) fields.emplace_back(int(f.left), int(f.top));
    game_.placeFields(fields);
    board_->arrange(l);
}

void MainWindow::moveEvent(QMoveEvent* event)
{
    QMainWindow::moveEvent(event);
    fitFrame();
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    // No event tells of the frame a window manager puts around the window; by the time the
    // window is activated it is there.
    if (event->type() == QEvent::ActivationChange) fitFrame();
    if (event->type() == QEvent::WindowStateChange && windowState() == Qt::WindowNoState &&
        cornerWhenRestored_)
        move(*std::exchange(cornerWhenRestored_, std::nullopt));
    if (event->type() == QEvent::WindowStateChange && !(windowState() & Qt::WindowMinimized))
        Anordnen();
}

} // namespace mainwindow
