#pragma once
// A button that is all picture: the face carries its own raised look, and pressing it
// moves the face one pixel down and right, as a pressed button does.
#include <QAbstractButton>
#include <QPixmap>

namespace widgets {

class PictureButton : public QAbstractButton {
    Q_OBJECT
public:
    explicit PictureButton(QWidget* parent = nullptr);
    void setPicture(const QPixmap& picture);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QPixmap picture_;
};

} // namespace widgets
