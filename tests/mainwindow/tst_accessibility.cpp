// What a screen reader gets of a short game: names and roles of the board's controls, and
// the events that tell what happened, read through Qt's accessibility interfaces.
#include "support/main_window_start.h"

#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QTest>
#include <QTimer>

namespace {

// Every description a screen reader is told of as news, in order.
QStringList heard;

void listen(QAccessibleEvent* event)
{
    if (event->type() != QAccessible::Alert) return;
    if (auto* w = qobject_cast<QWidget*>(event->object())) heard << w->accessibleDescription();
}

QString nameOf(QWidget* w)
{
    return QAccessible::queryAccessibleInterface(w)->text(QAccessible::Name);
}

} // namespace

class AccessibilityTest : public QObject, support::MainWindowStart {
    Q_OBJECT
private slots:
    void init() { QVERIFY(enter()); }
    void cleanup() { leave(); }

    void aShortGame()
    {
        QAccessible::setActive(true);
        QAccessible::installUpdateHandler(listen);
        auto w = startWindow("[Einstellungen]\r\nSound= 0\r\nAnzahl= 2\r\n");
        QAccessibleInterface* tile = QAccessible::queryAccessibleInterface(w->tileLabel(0));
        QCOMPARE(tile->role(), QAccessible::Button);
        QCOMPARE(tile->text(QAccessible::Name), QString("Letter A"));
        QCOMPARE(nameOf(w->picBut(0)), QString("Start game"));
        QCOMPARE(nameOf(w->playerLabel(0)), QString("Marta, points: 0, at turn"));
        QCOMPARE(nameOf(w->playerLabel(1)), QString("Helene, points: 0"));

        heard.clear();
        QTest::mouseClick(static_cast<QWidget*>(w->picBut(0)), Qt::LeftButton);
        QTest::keyClick(w.get(), Qt::Key_P);
        QTest::keyClick(w.get(), Qt::Key_Z);
        QCOMPARE(heard, (QStringList{"New word: 5 letters", "P uncovered", "No Z: stage 1 of 9",
                                     "Helene's turn"}));
        QCOMPARE(nameOf(w->fieldLabel(1)), QString("Letter 1 of 5, covered"));
        QCOMPARE(nameOf(w->fieldLabel(2)), QString("Letter 2 of 5, P"));
        QCOMPARE(nameOf(w->pictureLabel(1)), QString("Frostel, stage 1 of 9"));
        QCOMPARE(nameOf(w->playerLabel(1)), QString("Helene, points: 0, at turn"));

        // A screen reader presses tiles itself; the rest of the word wins Helene her point, and
        // the next word follows once the finished one has been seen.
        heard.clear();
        for (int t : {0, 11}) {
            QAccessibleInterface* i = QAccessible::queryAccessibleInterface(w->tileLabel(t));
            i->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            QTRY_VERIFY(!w->tileLabel(t)->isVisible());
        }
        auto* weiter = w->findChild<QAction*>("weiter");
        QObject::connect(weiter, &QAction::enabledChanged, weiter, [weiter](bool on) {
            if (on) QTimer::singleShot(0, weiter, &QAction::trigger);
        });
        QTest::keyClick(w.get(), Qt::Key_E);
        QCOMPARE(heard.mid(0, 5),
                 (QStringList{"A uncovered", "L uncovered", "E uncovered", "Word solved: APPLE",
                              "Helene scores a point, 1 in all"}));
        QCOMPARE(nameOf(w->playerLabel(1)), QString("Helene, points: 1, at turn"));
        QAccessible::installUpdateHandler(nullptr);
    }
};

QTEST_MAIN(AccessibilityTest)
#include "tst_accessibility.moc"
