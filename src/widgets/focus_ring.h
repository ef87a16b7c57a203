#pragma once
// A ring around whichever control holds the keyboard focus, in every window: a white and a
// black line side by side, so that one of them stands out from any colour around it. The
// desktop's own styles mark the focus by a shade that is barely seen.
#include <QPointer>
#include <QWidget>

class QPainter;

namespace widgets {

// The ring's two lines just inside `r`: white outside, black inside.
void drawFocusRing(QPainter& painter, const QRect& r);

class FocusRing : public QWidget {
    Q_OBJECT
public:
    // Makes the ring follow the focus in every window of the application, from now on.
    static void follow();

protected:
    void paintEvent(QPaintEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    FocusRing();
    void moveTo(QWidget* control);
    void place();

    QPointer<QWidget> control_;
};

} // namespace widgets
