// One session of the vocabulary editor in the real game, on the frostel.dat of the working
// folder: "Edit vocabulary" until the editor has painted its list, one word added, then three
// deletes (the top row, the widest word, a block of 1,000 rows), Save; and the game's resident
// memory before and after the editor opened. Every step is timed until the list has painted.
// Prints: open add delete_top delete_widest delete_1000 save sync (seconds) rss_before rss_open
// rss_end (MB); sync is what the disk alone takes to make the saved bytes safe, for comparison.
// Run by bench/editor.sh, which gives it an X server and the word files (the widest word
// is kWidest, planted there).
#include "editor/vocabulary_editor.h"
#include "mainwindow/main_window.h"
#include "platform/lean_style.h"
#include "settings/options_window.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSaveFile>
#include <QTest>
#include <QTimer>
#include <cstdio>
#include <functional>
#ifdef __GLIBC__
#include <malloc.h>
#endif

using editor::VocabularyEditor;

namespace {

const QString kWidest(20, u'W');

QPushButton* button(QWidget* window, const char* name)
{
    return window->findChild<QPushButton*>(QString::fromLatin1(name));
}

double rssMb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ')[0].toDouble() / 1024;
    return 0;
}

// Calls `next` once the widget that `pick` finds has painted, after the paint has reached
// the screen; `pick` is asked at every paint, so it may find a window that is not there yet.
class AfterPaint : public QObject {
public:
    AfterPaint(std::function<bool(QObject*)> pick, std::function<void()> next)
        : pick_(std::move(pick)), next_(std::move(next))
    {
        qApp->installEventFilter(this);
        // No paint at all is a figure too, not a hang.
        QTimer::singleShot(20000, this, [this] { fire(); });
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && !fired_ && pick_(watched))
            QTimer::singleShot(0, this, [this] { fire(); });
        return false;
    }

private:
    void fire()
    {
        if (fired_) return;
        fired_ = true;
        qApp->removeEventFilter(this);
        deleteLater();
        next_();
    }
    std::function<bool(QObject*)> pick_;
    std::function<void()> next_;
    bool fired_ = false;
};

void afterPaintOf(QWidget* w, std::function<void()> next)
{
    new AfterPaint([w](QObject* o) { return o == w; }, std::move(next));
}

struct Figures {
    double open = 0, add = 0, delTop = 0, delWidest = 0, delBlock = 0, save = 0, sync = 0;
    double rssBefore = 0, rssOpen = 0, rssEnd = 0;
};

// Seconds the disk takes to make `bytes` safe in a new file: the sync a save cannot avoid.
double syncSeconds(const QByteArray& bytes)
{
    QSaveFile file(QStringLiteral("sync-probe.dat"));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        return -1;
    QElapsedTimer clock;
    clock.start();
    const bool ok = file.commit();
    const double s = clock.nsecsElapsed() / 1e9;
    QFile::remove(QStringLiteral("sync-probe.dat"));
    return ok ? s : -1;
}

class Session {
public:
    explicit Session(mainwindow::MainWindow& window) : window_(window) {}

    void run()
    {
        QTimer::singleShot(0, &window_, [this] { inOptions(); });
        window_.opt_Click(); // returns once the options window has gone
        std::printf("%.4f %.4f %.4f %.4f %.4f %.4f %.4f %.1f %.1f %.1f\n", f_.open, f_.add,
                    f_.delTop, f_.delWidest, f_.delBlock, f_.save, f_.sync, f_.rssBefore,
                    f_.rssOpen, f_.rssEnd);
        std::fflush(stdout);
        QCoreApplication::quit();
    }

private:
    void inOptions()
    {
        options_ = window_.findChild<settings::OptionsWindow*>();
        if (!options_ || !options_->isVisible()) {
            QTimer::singleShot(50, &window_, [this] { inOptions(); });
            return;
        }
        afterPaintOf(options_, [this] { QTimer::singleShot(300, &window_, [this] { open(); }); });
        options_->update();
    }

    void open()
    {
        f_.rssBefore = rssMb();
        new AfterPaint(
            [](QObject* o) {
                const auto* list = qobject_cast<QListView*>(o->parent());
                return list && o == list->viewport() &&
                       qobject_cast<VocabularyEditor*>(list->window());
            },
            [this] {
                f_.open = seconds();
                f_.rssOpen = rssMb();
                editor_ = options_->findChild<VocabularyEditor*>();
                add();
            });
        clock_.start();
        button(options_, "EditButt")->click(); // returns once the editor has gone
        QTimer::singleShot(0, button(options_, "OK"), &QPushButton::click);
    }

    void add()
    {
        // A word that files in the middle of the list.
        editor_->findChild<QLineEdit*>("Text1")->setText(QStringLiteral("Mittelwort"));
        clock_.start();
        button(editor_, "Hinzuf")->click();
        afterPaintOf(editor_->findChild<QListView*>("List1")->viewport(), [this] {
            f_.add = seconds();
            delTop();
        });
    }

    QListView* list() const { return editor_->findChild<QListView*>("List1"); }

    // Deletes the selected rows and goes on with `next` once the list has painted.
    void del(double& figure, void (Session::*next)())
    {
        clock_.start();
        button(editor_, "Loesch")->click();
        afterPaintOf(list()->viewport(), [this, &figure, next] {
            figure = seconds();
            (this->*next)();
        });
    }

    void delTop()
    {
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {},
                          list()->visualRect(list()->indexAt(QPoint(4, 4))).center());
        del(f_.delTop, &Session::delWidest);
    }

    // Selects rows `top` to `bottom` as a click and a shift-click would, once they have painted.
    void select(int top, int bottom, void (Session::*next)())
    {
        QItemSelectionModel* selection = list()->selectionModel();
        const QModelIndex first = list()->model()->index(top, 0);
        list()->scrollTo(first);
        selection->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        selection->select(QItemSelection(first, list()->model()->index(bottom, 0)),
                          QItemSelectionModel::ClearAndSelect);
        afterPaintOf(list()->viewport(), [this, next] { (this->*next)(); });
        list()->viewport()->update();
    }

    void delWidest()
    {
        const int row = int(editor_->words().indexOf(kWidest));
        if (row < 0) std::fprintf(stderr, "no %s in the list\n", qPrintable(kWidest));
        select(row, row, &Session::delWidestNow);
    }
    void delWidestNow() { del(f_.delWidest, &Session::delBlock); }

    void delBlock()
    {
        const int top = int(editor_->words().size() / 3);
        select(top, top + 999, &Session::delBlockNow);
    }
    void delBlockNow() { del(f_.delBlock, &Session::save); }

    void save()
    {
        clock_.start();
        button(editor_, "Speichern")->click();
        QTimer::singleShot(0, editor_, [this] {
            f_.save = seconds();
            f_.rssEnd = rssMb();
            QFile saved(QStringLiteral("frostel.dat"));
            f_.sync = saved.open(QIODevice::ReadOnly) ? syncSeconds(saved.readAll()) : -1;
            button(editor_, "OK")->click(); // saved: no question
        });
    }

    double seconds() const { return clock_.nsecsElapsed() / 1e9; }

    mainwindow::MainWindow& window_;
    settings::OptionsWindow* options_ = nullptr;
    VocabularyEditor* editor_ = nullptr;
    QElapsedTimer clock_;
    Figures f_;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setStyle(new platform::LeanStyle);
    mainwindow::MainWindow::Setup setup;
    setup.profilePath = QStringLiteral("frostel.ini");
    setup.splashMs = 0;
    mainwindow::MainWindow window(setup);
    window.Form_Load();
#ifdef __GLIBC__
    // As the game does once its window stands.
    QTimer::singleShot(0, [] { malloc_trim(0); });
#endif
    Session session(window);
    QTimer::singleShot(1000, &window, [&session] { session.run(); });
    return app.exec();
}
