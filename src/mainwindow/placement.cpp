// The main window's place, size and state: brought back at the start, kept at the end. All of
// them count the frame that a window manager puts around the window.
#include "mainwindow/main_window.h"

#include "widgets/twips.h"

#include <QGuiApplication>
#include <QScreen>

namespace mainwindow {
namespace {

using widgets::twipsToPixels;

long long tw(int pixels) { return (long long)widgets::pixelsToTwips(pixels); }

} // namespace

int16_t MainWindow::restorePlace()
{
    // The splash, owned by this window, has made its native window already. Placed that way,
    // the window would take the stored corner for its client area's and come up a title bar
    // higher than it was left. Made anew when it shows, its frame goes where it is asked.
    if (testAttribute(Qt::WA_WState_Created)) destroy();
    // The state itself is set by the show: set before, it would make the window as well.
    settings::WindowPlace place;
    place.state = settings::readWindowState(profile_);
    const bool maximized = place.state == 2;
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const long long screenW = tw(screen.width()), screenH = tw(screen.height());
    long long centreLeft = 0, centreTop = 0;
    long long left = tw(x()), top = tw(y());
    if (!maximized) {
        centreLeft = core::idiv(double(screenW - tw(kDesignOuter.width())), 2);
        centreTop = core::idiv(double(screenH - tw(kDesignOuter.height())), 2);
        settings::readWindowPlace(profile_, place, centreLeft, centreTop);
        left = place.left;
        top = place.top;
        setOuterSize(place.width, place.height);
    }
    // Off the screen, by the size the window has now: back to the centre.
    const long long w = tw(frameGeometry().width()), h = tw(frameGeometry().height());
    if (left < 0 || left > screenW - w) left = centreLeft;
    if (top < 0 || top > screenH - h) top = centreTop;
    // Before the window is made, a move places the corner of its frame.
    if (!maximized) move(twipsToPixels(double(left)), twipsToPixels(double(top)));
    return place.state;
}

void MainWindow::setOuterSize(int widthTwips, int heightTwips)
{
    // Sizes from a hand-edited file stay within what a screen can hold.
    outerWanted_ = QSize(qBound(1, twipsToPixels(widthTwips), 16384),
                         qBound(1, twipsToPixels(heightTwips), 16384));
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
    if (event->type() == QEvent::WindowStateChange && !(windowState() & Qt::WindowMinimized))
        Anordnen();
}

} // namespace mainwindow
