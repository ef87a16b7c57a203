// The real main window, offscreen and under window managers: the splash, a game by keys and
// clicks, a real key during a wait, the menus, the end, a screen reader.
#include "about/info_window.h"
#include "help/help_window.h"
#include "platform/lean_style.h"
#include "settings/options_window.h"
#include "support/focus_marks.h"
#include "support/main_window_start.h"
#include "support/windows.h"
#include "widgets/pictures.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>

using support::readAll;

namespace {

bool shows(const QLabel* label, const QString& picture)
{
    return label && label->isVisible() &&
           label->pixmap().toImage() == widgets::picture(picture).toImage();
}

// How many letter tiles stand on the panel.
int tilesOnShow(const mainwindow::MainWindow& w)
{
    int tiles = 0;
    for (int i = 0; i < core::kTiles; ++i) tiles += w.tileLabel(i)->isVisible();
    return tiles;
}

// Notes when a key press reaches the program.
struct KeySeen : QObject {
    bool seen = false;
    bool eventFilter(QObject*, QEvent* e) override
    {
        seen = seen || e->type() == QEvent::KeyPress;
        return false;
    }
};

// The names a screen reader reads for the controls, one after the other.
QString namesOf(std::initializer_list<QWidget*> controls)
{
    QStringList names;
    for (QWidget* w : controls)
        names << QAccessible::queryAccessibleInterface(w)->text(QAccessible::Name);
    return names.join(" | ");
}

} // namespace

class MainWindowTest : public QObject, support::MainWindowStart {
    Q_OBJECT
    std::unique_ptr<mainwindow::MainWindow> w_;
    QAction* action(const char* name) { return support::child<QAction>(w_.get(), name); }
private slots:
    // The style the game draws with.
    void initTestCase() { QApplication::setStyle(new platform::LeanStyle); }
    void init() { QVERIFY(enter()); }
    void cleanup() { w_.reset(), leave(); }

    void splashGoesByItself()
    {
        splashMs_ = 300;
        support::onNextModal<about::InfoWindow>([](about::InfoWindow* splash) {
            QVERIFY(!splash->OK()->isVisible());
            QTest::keyClick(splash, Qt::Key_Escape); // does nothing
        });
        QElapsedTimer clock;
        clock.start();
        w_ = startWindow();
        QVERIFY2(clock.elapsed() >= 285, "the splash went early"); // timers may fire 5 % early
    }

    void aGameByKeysAndClicks()
    {
        w_ = startWindow("[Einstellungen]\r\nSound= 0\r\n");
        core::Game& g = w_->game();
        QAction* weiter = action("weiter");
        QApplication::setActiveWindow(w_.get()); // also where no keyboard can give it the focus
        QVERIFY(QTest::qWaitForWindowActive(w_.get()));
        // No game: letters and Enter do nothing, the tip button only counts; Ctrl+E asks, Esc is
        // No.
        QVERIFY(!action("tip")->isEnabled() && !weiter->isEnabled());
        QTest::keyClicks(w_.get(), "a\r");
        QTest::mouseClick(w_->picBut(2), Qt::LeftButton);
        QVERIFY(g.g.Wort.isEmpty() && g.g.TipZaehler == 1);
        QString box;
        support::onNextModal<QMessageBox>([&](QMessageBox* b) {
            box = b->windowTitle() + ": " + b->text();
            QTest::keyClick(b, Qt::Key_Escape);
        });
        QTest::keyClick(w_.get(), Qt::Key_E, Qt::ControlModifier);
        QVERIFY(exits_ == 0 && box == "Program end: Really end the game?");
        // A narrow box keeps its title whole beside the frame's icon and three buttons; a CR in
        // its text breaks the line; an exclamation box shows the warning sign.
        int room = 0;
        support::onNextModal<QMessageBox>([&](QMessageBox* b) {
            box = b->text() + (b->icon() == QMessageBox::Warning ? " (!)" : "");
            QFont bold = b->font();
            bold.setBold(true);
            room = b->width() - QFontMetrics(bold).horizontalAdvance("Yippieh!") -
                   4 * std::max(b->geometry().top() - b->frameGeometry().top(), 20);
            b->close();
        });
        w_->toolkit().msgBox("Kim\rwon!", core::kOkExclamation, "Yippieh!");
        QVERIFY2(room >= 0 && box == "Kim\nwon! (!)", qPrintable(QString::number(room) + box));
        // A word by the traffic light; a letter by its key, another by its tile.
        QTest::mouseClick(w_->picBut(0), Qt::LeftButton);
        QVERIFY(g.g.Wort == "APPLE" && action("tip")->isEnabled());
        QTest::keyClick(w_.get(), Qt::Key_P);
        QTest::mouseClick(w_->tileLabel(0), Qt::LeftButton);
        QCOMPARE(tilesOnShow(*w_), 24);
        QVERIFY(shows(w_->fieldLabel(1), "alpha0") && shows(w_->fieldLabel(2), "alpha15"));
        QVERIFY(shows(w_->fieldLabel(4), "feld0"));
        // Solving holds the wait with its button up; Enter ends it.
        bool held = false;
        support::whenEnabled(weiter, [&] {
            held = w_->picBut(3)->isVisible();
            QTest::keyClick(w_.get(), Qt::Key_Return);
        });
        QTest::keyClicks(w_.get(), "le");
        QVERIFY(held && !weiter->isEnabled() && !w_->picBut(3)->isVisible());
        // The next word too, by its button: every point shows the motif's symbol.
        support::whenEnabled(weiter, [&] { QTest::mouseClick(w_->picBut(3), Qt::LeftButton); });
        QTest::keyClicks(w_.get(), "aple");
        QVERIFY(shows(w_->pointLabel(0), "symbol1") && shows(w_->pointLabel(1), "symbol1"));
        // The apple tree chosen in the options: the points take its symbol, the game goes on.
        support::onNextModal<settings::OptionsWindow>([](settings::OptionsWindow* o) {
            const QPoint at = o->Motiv()->visualItemRect(o->Motiv()->item(0)).center();
            QTest::mouseClick(o->Motiv()->viewport(), Qt::LeftButton, {}, at);
            QTest::keyClick(o, Qt::Key_Return);
        });
        action("opt")->trigger();
        QVERIFY(shows(w_->pointLabel(0), "symbol0") && shows(w_->pointLabel(1), "symbol0") &&
                shows(w_->pictureLabel(0), "apfelbaum0"));
        // The help menu: the contents with the search open, centred on the game; help on help.
        action("hilfe_1")->trigger();
        auto* help = w_->findChild<help::HelpWindow*>();
        QVERIFY(help->currentPage() == "index.html" && help->searchField()->isVisible());
        const QPoint off = support::framed(help).center() - w_->frameGeometry().center();
        QVERIFY2(off.manhattanLength() <= 2 || support::onWayland(),
                 qPrintable(QString::number(off.x()) + "," + QString::number(off.y())));
        action("hilfe_2")->trigger();
        QCOMPARE(help->currentPage(), QString("helponhelp.html"));
        // About, centred where the program places it: OK, the only control that takes the focus,
        // has it; Esc or OK closes it.
        for (bool byKey : {true, false}) {
            QPoint offCentre(9999, 0); // stays so if it closed before anyone saw it
            support::onNextModal<about::InfoWindow>([&](about::InfoWindow* info) {
                offCentre = info->frameGeometry().center() - info->screen()->geometry().center();
                QCOMPARE(QApplication::focusWidget(), info->OK());
                if (byKey) QTest::keyClick(info->OK(), Qt::Key_Escape);
                else QTest::mouseClick(info->OK(), Qt::LeftButton);
            });
            action("about")->trigger();
            QVERIFY(offCentre.manhattanLength() <= 2 || support::onWayland()); // placed there
        }
    }

    // A focus a player sees, at 1x and again at 2x (tst_main_window_2x), in every window.
    void aFocusYouCanSee()
    {
        w_ = startWindow("[Einstellungen]\r\nSound= 0\r\n");
        QStringList unseen = support::unseenFoci(w_.get());
        action("hilfe_1")->trigger();
        unseen << support::unseenFoci(w_->findChild<help::HelpWindow*>());
        support::onNextModal<settings::OptionsWindow>([&](settings::OptionsWindow* o) {
            unseen << support::unseenFoci(o);
            support::onNextModal<QDialog>([&](QDialog* editor) {
                unseen << support::unseenFoci(editor);
                editor->reject();
            });
            support::child<QPushButton>(o, "EditButt")->click();
            o->accept();
        });
        action("opt")->trigger();
        support::onNextModal<about::InfoWindow>([&](about::InfoWindow* info) {
            unseen << support::unseenFoci(info);
            info->reject();
        });
        action("about")->trigger();
        QCOMPARE(unseen, QStringList());
    }

    // The real draw spreads evenly over 0 up to below 1, so a list's last words come up too.
    void theRealDrawReachesBothEnds()
    {
        w_ = startWindow();
        double low = 1, high = 0;
        for (int i = 0; i < 2000; ++i) {
            const double r = w_->toolkit().random();
            QVERIFY(r >= 0 && r < 1);
            low = std::min(low, r), high = std::max(high, r);
        }
        QVERIFY2(low < 0.01 && high > 0.99, qPrintable(QString("%1 to %2").arg(low).arg(high)));
    }

    // The game's queue is the core's; here a real X key press meets the toolkit's wait.
    void aKeyDuringAWaitIsPlayedAfterIt()
    {
        if (QGuiApplication::platformName() != "xcb" ||
            QStandardPaths::findExecutable("xdotool").isEmpty())
            QSKIP("needs an X server and xdotool (runs under Xvfb)");
        w_ = startWindow(); // with sound, a miss waits a moment
        w_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(w_.get()));
        core::Game& g = w_->game();
        action("start")->trigger();
        // A P comes during the wait after the miss of Z; it has arrived before the wait ends.
        bool wasBusy = false, playedDuringWait = true;
        QTimer::singleShot(0, w_.get(), [&] {
            wasBusy = g.busy();
            KeySeen input;
            qApp->installEventFilter(&input);
            QProcess::execute("xdotool", {"key", "p"}); // to the active window, through XTEST
            QVERIFY(QTest::qWaitFor([&] { return input.seen; }));
            playedDuringWait = !w_->tileLabel(15)->isVisible();
        });
        QTest::keyClick(w_.get(), Qt::Key_Z);
        QVERIFY(wasBusy && !playedDuringWait);
        // Played once the miss had returned: both P of APPLE.
        QTRY_COMPARE(g.g.Treffer, int16_t(2));
        QVERIFY(g.g.Fehler == 1 && !w_->tileLabel(15)->isVisible());
    }

    void optionsAndClosingWhileAWordWaits()
    {
        w_ = startWindow("[Einstellungen]\r\nSound= 0\r\n");
        core::Game& g = w_->game();
        action("start")->trigger();
        // Another vocabulary chosen while the solved word waits: a new game on the new list.
        support::whenEnabled(action("weiter"), [&] {
            support::onNextModal<settings::OptionsWindow>([](settings::OptionsWindow* o) {
                const QPoint at = o->wortsch()->visualItemRect(o->wortsch()->item(1)).center();
                QTest::mouseClick(o->wortsch()->viewport(), Qt::LeftButton, {}, at); // as sent
                QTest::mouseDClick(o->wortsch()->viewport(), Qt::LeftButton, {}, at);
            });
            action("opt")->trigger();
        });
        QTest::keyClicks(w_.get(), "aple");
        QVERIFY(g.g.Wort == "GNU" && g.g.Punkte[0] == 0 && !action("weiter")->isEnabled());
        QVERIFY(shows(w_->fieldLabel(3), "feld0") && !w_->fieldLabel(4));
        QVERIFY2(readAll(ini_).contains("Datei=zoo.dat\r\n"), readAll(ini_));
        // Closing while the next solved word waits ends the program at once, and every later wait.
        QElapsedTimer clock;
        clock.start();
        support::whenEnabled(action("weiter"), [&] { w_->close(); });
        QTest::keyClicks(w_.get(), "gnu");
        QVERIFY(exits_ == 1 && g.ended());
        w_->toolkit().waitScale = 1;
        w_->toolkit().wait(30);
        QCOMPARE(w_->toolkit().msgBox("Really?", 36, "Frostel"), 7);
        QVERIFY(clock.elapsed() < 5000);
    }

    // What a screen reader reads of the board's controls, and presses: what it says of the
    // game is heard through Orca itself (e2e_spoken_game).
    void whatAScreenReaderReads()
    {
        if (qEnvironmentVariableIsEmpty("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"))
            QSKIP("needs the accessibility bus (runs under with_atspi.sh)");
        QAccessible::setActive(true);
        w_ = startWindow("[Einstellungen]\r\nSound= 0\r\nAnzahl= 2\r\n");
        QCOMPARE(QAccessible::queryAccessibleInterface(w_->tileLabel(0))->role(),
                 QAccessible::Button);
        QCOMPARE(namesOf({w_->tileLabel(0), w_->picBut(0), w_->playerLabel(0), w_->playerLabel(1)}),
                 "Letter A | Start game | Marta, points: 0, at turn | Helene, points: 0");
        QTest::mouseClick(static_cast<QWidget*>(w_->picBut(0)), Qt::LeftButton);
        QTest::keyClick(w_.get(), Qt::Key_P);
        QTest::keyClick(w_.get(), Qt::Key_Z);
        QCOMPARE(namesOf({w_->fieldLabel(1), w_->fieldLabel(2), w_->pictureLabel(1),
                          w_->playerLabel(1)}),
                 "Letter 1 of 5, covered | Letter 2 of 5, P | Frostel, stage 1 of 9 | "
                 "Helene, points: 0, at turn");

        // A screen reader presses tiles itself; the rest of the word wins Helene her point.
        for (int t : {0, 11}) {
            QAccessibleInterface* i = QAccessible::queryAccessibleInterface(w_->tileLabel(t));
            i->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            QTRY_VERIFY(!w_->tileLabel(t)->isVisible());
        }
        support::whenEnabled(action("weiter"), [this] { action("weiter")->trigger(); });
        QTest::keyClick(w_.get(), Qt::Key_E);
        QCOMPARE(namesOf({w_->playerLabel(1)}), "Helene, points: 1, at turn");
        QAccessible::setActive(false);
    }
};

QTEST_MAIN(MainWindowTest)
#include "tst_main_window.moc"
