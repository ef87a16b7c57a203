#include "widgets/spoken_notice.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace widgets {
namespace {

QAccessibleInterface* noticeFactory(const QString&, QObject* object)
{
    if (!qobject_cast<SpokenNotice*>(object)) return nullptr;
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Notification);
}

} // namespace

SpokenNotice::SpokenNotice(QWidget* parent) : QWidget(parent)
{
    static const bool factory = (QAccessible::installFactory(noticeFactory), true);
    Q_UNUSED(factory);
    // Out of sight and out of the way: a pixel that paints nothing and takes no input.
    setGeometry(0, 0, 1, 1);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void SpokenNotice::say(const QString& sentence)
{
    hide();
    setAccessibleName(sentence);
    show();
}

} // namespace widgets
