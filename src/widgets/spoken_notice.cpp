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
    gather_.setSingleShot(true);
    gather_.setInterval(200); // a miss and the turn it passes, but not the next move
    connect(&gather_, &QTimer::timeout, this, &SpokenNotice::tell);
}

void SpokenNotice::say(const QStringList& sentences)
{
    untold_ << sentences;
    if (!gather_.isActive()) gather_.start();
}

void SpokenNotice::tell()
{
    hide();
    setAccessibleName(untold_.join(' '));
    untold_.clear();
    show();
}

} // namespace widgets
