#include "mainwindow/main_window.h"

#include "assets/info_window.h"
#include "assets/options_window.h"
#include "assets/picture_button.h"
#include "assets/pictures.h"
#include "mainwindow/help_window.h"
#include "settings/options.h"
#include "settings/options_dialog.h"
#include "ui_eisfig.h"
#include "vocabulary/editor/vocabulary_editor.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QTimer>
#include <cmath>

namespace mainwindow {
namespace {

constexpr double kTwipsPerPixel = 15.0;
constexpr int kPicture1Width = 9000;

int px(double twips) { return int(std::lround(twips / kTwipsPerPixel)); }
long long tw(int pixels) { return (long long)pixels * 15; }

const QString kSettings = QStringLiteral("Einstellungen");

} // namespace

MainWindow::MainWindow() : MainWindow(Setup{}) {}

MainWindow::MainWindow(Setup setup)
    : setup_(std::move(setup)), ui_(std::make_unique<Ui::eisfig>()), profile_(setup_.profilePath)
{
    if (!setup_.exitProgram) setup_.exitProgram = [](int code) { QCoreApplication::exit(code); };
    ui_->setupUi(this);
    setWindowIcon(assets::windowIcon());
    QPalette pal = ui_->client->palette();
    pal.setColor(QPalette::Window, QColor(0, 0, 128));
    ui_->client->setPalette(pal);
    ui_->client->setAutoFillBackground(true);
    setMinimumSize(kDesignOuter.width(), kDesignOuter.height());

    for (int i = 0; i < core::kTiles; ++i) {
        alpha_[i] = findChild<QLabel*>(QStringLiteral("alpha_%1").arg(i));
        alpha_[i]->installEventFilter(this);
    }
    for (int i = 0; i < core::kStages; ++i)
        B_Folge_[i] = findChild<QLabel*>(QStringLiteral("B_Folge_%1").arg(i));
    picButs_ = {ui_->PicBut_0, ui_->PicBut_1, ui_->PicBut_2};
    Spieler_[0] = ui_->Spieler_0;
    Punkt_[0] = ui_->Punkt_0;
    Feld_.push_back(ui_->Feld_0);
    loadPictures();

    tk_.setMainWindow(this);
    tk_.beforeEvents = [this] { sync(); };
    tk_.onEnd = [this] { unloadMainWindow(); };

    // The options window loads at its first showing and then stays, hidden, as the place
    // where the player edits the live options.
    options_ = new settings::OptionsDialog(game_, profile_, this);
    options_->openEditor = [this] {
        vocabulary::editor::showEditor(game_, tk_, options_->window());
    };
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
    for (int i = 0; i < 3; ++i)
        connect(picButs_[i], &QAbstractButton::clicked, this,
                [this, i] { command([this, i] { game_.picBut(i); }); });
    connect(ui_->PicBut_3, &QAbstractButton::clicked, this,
            [this] { command([this] { game_.picBut(3); }); });
    // Keys reach the window before its controls, wherever the focus stands.
    qApp->installEventFilter(this);
}

MainWindow::~MainWindow()
{
    qApp->removeEventFilter(this);
    tk_.beforeEvents = nullptr;
    tk_.onEnd = nullptr;
}

// --- start-up and shutdown --------------------------------------------------------------

void MainWindow::setCaptions()
{
    ui_->spiel->setTitle(QStringLiteral("&Game"));
    ui_->about->setText(QStringLiteral("&About..."));
    ui_->ende->setText(QStringLiteral("&End"));
    ui_->hilf->setTitle(QStringLiteral("&Help"));
    ui_->hilfe_0->setText(QStringLiteral("&Help"));
    ui_->hilfe_1->setText(QStringLiteral("&Search"));
    ui_->hilfe_2->setText(QStringLiteral("Help &on Help"));
    ui_->opt->setText(QStringLiteral("&Options..."));
    ui_->weiter->setText(QStringLiteral("next &Word"));
    ui_->PicBut_3->setText(QStringLiteral("next word"));
}

void MainWindow::Form_Load()
{
    setCaptions();
    // The about window, loaded as the splash, gives this window its title.
    if (setup_.splashMs > 0) assets::InfoWindow::splash(this, setup_.splashMs);
    else assets::InfoWindow load(this); // loaded and unloaded at once: the title only
    // A panel that is not 9000 twips wide carries its tiles to scale.
    const double panelWidth = tw(ui_->Picture1->width());
    if (panelWidth != kPicture1Width) {
        const float factor = float(panelWidth / kPicture1Width);
        for (int i = 0; i < core::kLetters; ++i)
            alpha_[i]->move(int(alpha_[i]->x() * factor), int(alpha_[i]->y() * factor));
    }
    B_Folge_[0]->resize(B_Folge_[1]->size());
    const int16_t state = restorePlace();
    presetOptions();
    readNames();
    game_.setUpBoard();
    Anordnen();
    sync();
    if (state == 2) showMaximized();
    else if (state == 1) showMinimized();
    else show();
    loaded_ = true;
    QTimer::singleShot(200, this, &MainWindow::fitFrame);
    // The word list comes last, so its message stands over the finished screen.
    game_.routine([this] { game_.WoerterLaden(); });
    sync();
}

void MainWindow::presetOptions()
{
    core::Global& g = game_.g;
    g.AnzSpieler = int16_t(profile_.GetPrivateProfileInt(kSettings, "Anzahl", 4));
    g.AnzTips = int16_t(profile_.GetPrivateProfileInt(kSettings, "Tips", 3));
    // The options window loads here, after the counts and before the motif; its controls are
    // made at its first showing, from what it loaded now.
    options_->load();
    g.MotivNr = int16_t(profile_.GetPrivateProfileInt(kSettings, "Motiv", 1));
    const bool all = int16_t(profile_.GetPrivateProfileInt(kSettings, "Wiederholung", 1)) == -1;
    game_.einst.wiederh = {all, !all};
    game_.einst.Sound = int16_t(profile_.GetPrivateProfileInt(kSettings, "Sound", 1));
    game_.einst.Anzeige = int16_t(profile_.GetPrivateProfileInt(kSettings, "Anzeige", 1));
}

void MainWindow::readNames()
{
    for (int i = 0; i < core::kPlayers; ++i) {
        const QString n = QString::number(i + 1);
        const QString name =
            profile_.GetPrivateProfileString(kSettings, "Spieler" + n, "Spieler " + n, 25)
                .trimmed();
        if (!settings::isDefaultName(name)) game_.einst.Spieler_Name[i] = name;
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    Form_Unload();
    event->accept();
}

void MainWindow::unloadMainWindow() { close(); }

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
    command([this] { game_.run([this] { assets::InfoWindow::about(this); }); });
}

void MainWindow::hilfe_Click(int Index)
{
    command([this, Index] {
        game_.run([this, Index] {
            if (!help_) help_ = new HelpWindow(this);
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

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        for (int i = 0; i < core::kLetters; ++i) {
            if (watched == alpha_[i]) {
                auto* me = static_cast<QMouseEvent*>(event);
                if (alpha_[i]->rect().contains(me->position().toPoint()))
                    command([this, i] { game_.tile(i); });
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

// --- layout ---------------------------------------------------------------------------------

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    if (windowState() & Qt::WindowMinimized) return;
    Anordnen();
}

void MainWindow::moveTwips(QWidget* w, long long left, long long top)
{
    w->move(px(double(left)), px(double(top)));
}

void MainWindow::Anordnen()
{
    fitFrame();
    const QRect outer = frameGeometry();
    const Layout l = mainwindow::Anordnen(double(tw(outer.width())), double(tw(outer.height())),
                                          game_.board.B_Folge0_Height, int(game_.g.Wort.size()));
    for (QLabel* b : B_Folge_) moveTwips(b, l.bFolge.left, l.bFolge.top);
    for (int i = 0; i < 3; ++i) moveTwips(picButs_[i], l.picBut[i].left, l.picBut[i].top);
    moveTwips(ui_->Picture1, l.picture1.left, l.picture1.top);
    auto& fields = game_.board.Feld;
    for (size_t i = 0; i < l.feld.size() && i < fields.size(); ++i) {
        if (!fields[i].loaded) continue; // fields come and go while a word is drawn
        fields[i].Left = int(l.feld[i].left);
        fields[i].Top = int(l.feld[i].top);
    }
    moveTwips(ui_->PicBut_3, l.picBut3.left, l.picBut3.top);
    syncFields();
}

} // namespace mainwindow
