// The options window from the menu, a word under way: clicks, keys, held spin buttons; which
// changes start a new game, what OK stores for the next start and what the close box drops.
#include "editor/vocabulary_editor.h"
#include "settings/options_window.h"
#include "support/files.h"
#include "support/main_window_start.h"
#include "support/windows.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>

namespace {

using W = settings::OptionsWindow;
using Act = std::function<void(W*)>;

// Clicks on a spin button at (at, at) pixels: above the diagonal counts up.
Act spin(int index, int at, int times = 1)
{
    return [=](W* w) {
        for (int i = 0; i < times; ++i)
            QTest::mouseClick(w->plumin()[index], Qt::LeftButton, {}, {at, at});
    };
}

// Keys where the focus is; a button's access key clicks it a moment later, which is waited for.
Act keys(const QList<QKeyCombination>& keys)
{
    return [=](W*) {
        for (QKeyCombination k : keys) {
            QTest::keyClick(QApplication::focusWidget(), k.key(), k.keyboardModifiers());
            QTRY_VERIFY(!qobject_cast<QAbstractButton*>(QApplication::focusWidget()) ||
                        !static_cast<QAbstractButton*>(QApplication::focusWidget())->isDown());
        }
    };
}

} // namespace

Q_DECLARE_METATYPE(Act)

class OptionsDialogTest : public QObject, support::MainWindowStart {
    Q_OBJECT
    std::unique_ptr<mainwindow::MainWindow> w_;
private slots:
    void init() { QVERIFY(enter()); }
    void cleanup() { w_.reset(), leave(); }

    void changes_data()
    {
        QTest::addColumn<Act>("act"); // Enter follows, which is OK, if the window still stands
        QTest::addColumn<QString>("after"); // "options[, new game][ | at the next start]"
        auto row = [](const char* tag, const QList<Act>& acts, const char* after) {
            const Act all = [=](W* w) {
                for (const Act& act : acts + QList<Act>{keys({Qt::Key_Return})})
                    if (!QTest::currentTestFailed() && w->isVisible()) act(w);
            };
            QTest::newRow(tag) << all << QString(after).replace("~", "Marta,Helene,Matthis,Svenja");
        };
        row("players: down to 1 at least; Esc does nothing",
            {spin(0, 15, 5), keys({Qt::Key_Escape})}, "1 3 1 011 frostel.dat ~, new game");
        row("held down, it counts on every 200 ms until let go", {[](W* w) {
                auto state = [w] { // the count and which name boxes are enabled
                    QString s = w->Zahl()[0]->text() + ' ';
                    for (QLineEdit* box : w->Spieler_Name()) s += box->isEnabled() ? '1' : '0';
                    return s;
                };
                QElapsedTimer clock;
                clock.start();
                // Its lower right half.
                QTest::mousePress(w->plumin()[0], Qt::RightButton, {}, {15, 15});
                QCOMPARE(state(), QString("3 1110"));
                QTRY_COMPARE_WITH_TIMEOUT(state(), QString("2 1100"), 3000);
                QVERIFY2(clock.elapsed() >= 180, "repeats after 200 ms, not before");
                QTest::mouseRelease(w->plumin()[0], Qt::RightButton, {}, {2, 2});
                QVERIFY(!w->findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly)->isActive());
            }},
            "2 3 1 011 frostel.dat ~, new game");
        row("players: up above it, at most 4", {spin(0, 9)}, "4 3 1 011 frostel.dat ~");
        row("tips: down to 0 at least", {spin(1, 15, 5)}, "4 0 1 011 frostel.dat ~, new game");
        row("Alt+A: all words", {keys({Qt::ALT | Qt::Key_A})}, "4 3 1 111 frostel.dat ~, new game");
        row("Alt+S, Alt+H: sound, show solution",
            {keys({Qt::ALT | Qt::Key_S, Qt::ALT | Qt::Key_H})}, "4 3 1 000 frostel.dat ~");
        // Each counter by its label's key; P also names the picture list, which a second press
        // reaches.
        row("Alt+P, Alt+T: the counters by the keyboard, not above 3 tips",
            {keys({Qt::ALT | Qt::Key_P, Qt::Key_Down, Qt::ALT | Qt::Key_T, Qt::Key_Down, Qt::Key_Up,
                   Qt::Key_Up, Qt::ALT | Qt::Key_P, Qt::ALT | Qt::Key_P, Qt::Key_Up})},
            "3 3 0 011 frostel.dat ~, new game");
        // Centred, with the word files of the start-up; the editor centred over it, and back from
        // it, the focus on OK.
        row("centred, the editor over it", {[](W* w) {
                const QPoint offCentre =
                    support::framed(w).center() - w->screen()->geometry().center();
                QVERIFY(offCentre.manhattanLength() <= 2);
                QCOMPARE(w->wortsch()->count(), 2);
                QPoint off;
                support::onNextModal<editor::VocabularyEditor>([&](QWidget* e) {
                    off = support::framed(e).center() - support::framed(w).center();
                    QTest::keyClick(e, Qt::Key_Escape);
                });
                QTest::mouseClick(support::child(w, "EditButt"), Qt::LeftButton);
                QVERIFY(off.manhattanLength() <= 2);
                QApplication::setActiveWindow(w);
                QCOMPARE(QApplication::focusWidget(), support::child(w, "OK"));
            }},
            "4 3 1 011 frostel.dat ~");
        row("a resize clears the flag",
            {keys({Qt::Key_K}), [](W* w) { w->resize(w->size() + QSize(9, 9)); }},
            "4 3 1 011 frostel.dat k,Helene,Matthis,Svenja");
        // Design values come back, but for the counts and the motif; the change still counts.
        row("the close box drops",
            {spin(0, 10), keys({Qt::Key_K, Qt::ALT | Qt::Key_H, Qt::ALT | Qt::Key_V, Qt::Key_Down}),
             [](W* w) { w->close(); }},
            "3 3 1 111 frostel.dat ~, new game | 4 3 1 011 frostel.dat ~");
    }

    void changes()
    {
        QFETCH(Act, act);
        QFETCH(QString, after);
        // With APPLE under way and one miss, the options window from the menu.
        w_ = startWindow();
        QVERIFY(support::writeBytes("late.dat", "owl\r\n")); // too late for the list
        w_->findChild<QAction*>("start")->trigger();
        QTest::keyClick(w_.get(), Qt::Key_Z);
        support::onNextModal<W>([&](W* o) { o->Spieler_Name()[0]->setFocus(), act(o); });
        w_->findChild<QAction*>("opt")->trigger();
        const QString now = support::optionsLine(w_->game());
        QString seen = now + (w_->game().g.Fehler == 0 ? ", new game" : "");
        w_.reset();
        w_ = startWindow();
        if (support::optionsLine(w_->game()) != now)
            seen += " | " + support::optionsLine(w_->game());
        QCOMPARE(seen, after);
    }
};

QTEST_MAIN(OptionsDialogTest)
#include "tst_options_dialog.moc"
