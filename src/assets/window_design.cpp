#include "assets/window_design.h"

#include "assets/pictures.h"
#include "assets/twips.h"

#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QVariant>

namespace assets {

void applyPointSizes(QWidget* widget)
{
    const QVariant size = widget->property("pointSizeF");
    if (size.isValid()) {
        QFont font = widget->font();
        font.setPointSizeF(size.toDouble());
        widget->setFont(font);
    }
    for (QWidget* child : widget->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        applyPointSizes(child);
}

QPoint centredTwips(QSize screenTwips, QSize windowTwips)
{
    // Integer division truncates towards zero, also for negative differences.
    return QPoint((screenTwips.width() - windowTwips.width()) / 2,
                  (screenTwips.height() - windowTwips.height()) / 2);
}

void centreOnScreen(QWidget* window)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return;
    const QSize screenPx = screen->geometry().size();
    const QSize windowPx = window->frameGeometry().size();
    const QPoint twips = centredTwips(screenPx * kTwipsPerPixel, windowPx * kTwipsPerPixel);
    window->move(twipsToPixels(twips.x()), twipsToPixels(twips.y()));
}

DesignDialog::DesignDialog(QWidget* parent, Qt::WindowFlags flags) : QDialog(parent, flags) {}

QPushButton* DesignDialog::cancelButton() const
{
    for (QPushButton* button : findChildren<QPushButton*>())
        if (button->property("cancel").toBool()) return button;
    return nullptr;
}

void DesignDialog::applyDesign()
{
    applyTwips(this);
    applyPointSizes(this);
    setWindowIcon(assets::windowIcon());
}

void DesignDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        QPushButton* button = cancelButton();
        if (button && button->isVisible() && button->isEnabled()) button->click();
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

} // namespace assets
