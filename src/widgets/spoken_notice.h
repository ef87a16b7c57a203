#pragma once
// Says sentences through a screen reader without moving the focus: Orca speaks a notification
// each time one appears. Qt 6.4 has no other event Orca speaks for an object that does not hold
// the focus. A reader keeps only the last of several said at one time, so what is said within
// a moment is gathered and said as one.
#include <QStringList>
#include <QTimer>
#include <QWidget>

namespace widgets {

class SpokenNotice : public QWidget {
    Q_OBJECT
public:
    explicit SpokenNotice(QWidget* parent);
    void say(const QStringList& sentences);

private:
    void tell();

    QStringList untold_;
    QTimer gather_;
};

} // namespace widgets
