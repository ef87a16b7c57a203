#include "mainwindow/main_window.h"

#include "about/info_window.h"
#include "editor/vocabulary_editor.h"
#include "help/help_window.h"
#include "settings/options_window.h"
#include "ui_main_window.h"
#include "widgets/pictures.h"
#include "widgets/twips.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QTimer>
#include <cmath>

namespace mainwindow {

MainWindow::MainWindow() : MainWindow(Setup{}) {}

MainWindow::MainWindow(Setup setup)
    : setup_(std::move(setup)), ui_(std::make_unique<Ui::MainWindow>()),
      profile_(setup_.profilePath)
{
    if (!setup_.exitProgram) setup_.exitProgram = [](int code) { QCoreApplication::exit(code); };
    ui_->setupUi(this);
    setWindowIcon(widgets::windowIcon());
    QPalette pal = ui_->client->palette();
    pal.setColor(QPalette::Window, QColor(0, 0, 128));
    ui_->client->setPalette(pal);
    ui_->client->setAutoFillBackground(true);
    setMinimumSize(kDesignOuter.width(), kDesignOuter.height());

    board_ = std::make_unique<BoardView>(*ui_, game_, devicePixelRatioF());

    tk_.setMainWindow(this);
    tk_.beforeEvents = [this] { sync(); };
    tk_.onEnd = [this] { close(); };

    // The options window loads at its first showing and then stays, hidden, as the place
    // where the player edits the live options.
    options_ = new settings::OptionsHost(
        game_, profile_, this, [this] { editor::showEditor(game_, tk_, options_->window()); });
    showOptions = [this] { options_->show(); };

    connect(ui_->start, &QAction::triggered, this, [this] { command([this] { game_.start(); }); });
    connect(ui_->ende, &QAction::triggered, this, [this] { command([this] { game_.ende(); }); });
    connect(ui_->tip, &QAction::triggered, this, [this] { command([this] { game_.tip(); }); });
    connect(ui_->weiter, &QAction::triggered, this,
            [this] { command([this] { game_.weiter(); }); });
    connect(ui_->opt, &QAction::triggered, this, [this] { opt_Click(); });
    connect(ui_->about, &QAction::triggered, this, [this] { about_Click(); });
    const std::array<QAction*, 3> help{ui_->hilfe_0, ui_->hilfe_1, ui_->hilfe_2};
    for (int i = 0; i < 3; ++i)
        connect(help[i], &QAction::triggered, this, [this, i] { hilfe_Click(i); });
    for (int i = 0; i < 4; ++i)
        connect(static_cast<QAbstractButton*>(board_->picBut(i)), &QAbstractButton::clicked, this,
                [this, i] { command([this, i] { game_.picBut(i); }); });
    // Keys reach the window before its controls, wherever the focus stands.
    qApp->installEventFilter(this);
}

MainWindow::~MainWindow()
{
    qApp->removeEventFilter(this);
    delete options_;
    tk_.beforeEvents = nullptr;
    tk_.onEnd = nullptr;
}

// --- start-up and shutdown --------------------------------------------------------------

void MainWindow::sync()
{
    if (!unloaded_) board_->sync();
}

void MainWindow::setCaptions()
{
    ui_->spiel->setTitle(tr("&Game"));
    ui_->about->setText(tr("&About..."));
    ui_->ende->setText(tr("&End"));
    ui_->hilf->setTitle(tr("&Help"));
    ui_->hilfe_0->setText(tr("&Help"));
    ui_->hilfe_1->setText(tr("&Search"));
    ui_->hilfe_2->setText(tr("Help &on Help"));
    ui_->opt->setText(tr("&Options..."));
    ui_->weiter->setText(tr("next &Word"));
    ui_->PicBut_3->setText(tr("next word"));
}

void MainWindow::Form_Load()
{
    setCaptions();
    // The about window, loaded as the splash, gives this window its title.
    if (setup_.splashMs > 0) about::InfoWindow::splash(this, setup_.splashMs);
    else about::InfoWindow load(this); // loaded and unloaded at once: the title only
    board_->fitToPanel();
    const int16_t state = restorePlace();
    // The options window loads after the counts and before the rest of the options.
    settings::readCounts(profile_, game_.g);
    options_->load();
    settings::readChoices(profile_, game_.g, game_.einst);
    settings::readNames(profile_, game_.einst);
    game_.setUpBoard();
    Anordnen();
    sync();
    if (state == 2) showMaximized();
    else if (state == 1) showMinimized();
    else show();
    QTimer::singleShot(200, this, &MainWindow::fitFrame);
    // The word list comes last, so its message stands over the finished screen.
    game_.routine([this] { game_.WoerterLaden(); });
    sync();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    Form_Unload();
    event->accept();
}

void MainWindow::Form_Unload()
{
    if (unloaded_) return;
    unloaded_ = true;
    storePlace();
    // Ends every wait at once; the game's routines stop where they stand.
    game_.programEnded();
    tk_.stopWaiting();
    if (help_) help_->close();
    setup_.exitProgram(0);
}

// --- commands -------------------------------------------------------------------------------

void MainWindow::command(const std::function<void()>& submit)
{
    submit();
    if (!unloaded_) sync();
}

void MainWindow::opt_Click()
{
    command([this] {
        game_.run([this] {
            game_.opt_Click([this] {
                if (showOptions) showOptions();
            });
        });
    });
}

void MainWindow::about_Click()
{
    command([this] { game_.run([this] { about::InfoWindow::about(this); }); });
}

void MainWindow::hilfe_Click(int Index)
{
    command([this, Index] {
        game_.run([this, Index] {
            if (!help_) help_ = new help::HelpWindow(this);
            switch (Index) {
            case 0: help_->showContents(); break;
            case 1:
                help_->showContents();
                help_->search();
                break;
            case 2: help_->showHelpOnHelp(); break;
            default: break;
            }
        });
    });
}

void MainWindow::tileClicked(int i)
{
    command([this, i] { game_.tile(i); });
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        for (int i = 0; i < core::kLetters; ++i) {
            if (watched == board_->tileLabel(i)) {
                auto* me = static_cast<QMouseEvent*>(event);
                if (board_->tileLabel(i)->rect().contains(me->position().toPoint())) tileClicked(i);
                return true;
            }
        }
    }
    if (event->type() == QEvent::KeyPress && !unloaded_) {
        auto* ke = static_cast<QKeyEvent*>(event);
        auto* w = qobject_cast<QWidget*>(watched);
        if (!w || w->window() != this) return false; // a box or another window has it
        if (ke->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
            return false;
        if (ke->key() == Qt::Key_Return || ke->key() == Qt::Key_Enter) {
            command([this] { game_.key(13); });
            return true;
        }
        const QString text = ke->text();
        if (text.size() == 1 && text[0].isPrint()) {
            const QChar c = text[0];
            command([this, c] { game_.key(c.unicode()); });
            return !c.isSpace();
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

} // namespace mainwindow
