#include "settings/spin_accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>

namespace settings {
namespace {

const char* const kNumber = "spinNumber";
const char* const kRange = "spinRange";

class SpinAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit SpinAccessible(QWidget* spin) : QAccessibleWidget(spin, QAccessible::SpinBox) {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text t) const override
    {
        return t == QAccessible::Value ? number()->text().trimmed() : QAccessibleWidget::text(t);
    }
    // A hand-edited number outside the range is told as it reads.
    QVariant currentValue() const override { return current(); }
    void setCurrentValue(const QVariant& value) override
    {
        const int want = value.toInt();
        for (int now = current(); now != want;) {
            QKeyEvent key(QEvent::KeyPress, want > now ? Qt::Key_Up : Qt::Key_Down, Qt::NoModifier);
            QCoreApplication::sendEvent(widget(), &key);
            const int before = now;
            if ((now = current()) == before) return; // the end of the range
        }
    }
    QVariant maximumValue() const override { return range().maximum; }
    QVariant minimumValue() const override { return range().minimum; }
    QVariant minimumStepSize() const override { return 1; }

private:
    QLabel* number() const { return widget()->property(kNumber).value<QLabel*>(); }
    int current() const { return captionNumber(number()->text()); }
    SpinRange range() const { return spinRange(Spin(widget()->property(kRange).toInt())); }
};

QAccessibleInterface* spinFactory(const QString&, QObject* object)
{
    auto* w = qobject_cast<QWidget*>(object);
    if (!w || !w->property(kNumber).isValid()) return nullptr;
    return new SpinAccessible(w);
}

} // namespace

void makeSpinButton(QWidget* spin, QLabel* number, Spin range)
{
    // Before the first question about the spin button: that makes its interface.
    static const bool factory = (QAccessible::installFactory(spinFactory), true);
    Q_UNUSED(factory);
    spin->setProperty(kNumber, QVariant::fromValue(number));
    spin->setProperty(kRange, int(range));
}

void spinValueChanged(QWidget* spin, int value)
{
    QAccessibleValueChangeEvent event(spin, value);
    QAccessible::updateAccessibility(&event);
}

} // namespace settings
