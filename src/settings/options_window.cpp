#include "settings/options_window.h"

#include "settings/spin_accessible.h"
#include "settings/stored_settings.h"
#include "ui_options_window.h"
#include "widgets/panel.h"
#include "widgets/pictures.h"
#include "widgets/twips.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <cmath>

namespace settings {
namespace {

// The two raised group frames, in twips: around the names and around the repeat choice.
constexpr QRect kNamesFrame{200, 650, 2100, 2300};
constexpr QRect kRepeatFrame{2600, 650, 2600, 1300};

} // namespace

OptionsWindow::OptionsWindow(core::Game& game, Profile& profile, const QStringList& rows,
                             bool preset, QWidget* parent)
    : DesignDialog(parent), game_(game), profile_(profile),
      ui_(std::make_unique<Ui::OptionsWindow>())
{
    ui_->setupUi(this);
    applyDesign();
    spielerName_ = {ui_->Spieler_Name_0, ui_->Spieler_Name_1, ui_->Spieler_Name_2,
                    ui_->Spieler_Name_3};
    wiederh_ = {ui_->wiederh_0, ui_->wiederh_1};
    zahl_ = {ui_->Zahl_0, ui_->Zahl_1};
    plumin_ = {ui_->plumin_0, ui_->plumin_1};
    s_ = {ui_->s_0, ui_->s_1, ui_->s_2};
    // The three faces of a spin button; the spin buttons themselves get theirs when painted.
    const qreal dpr = devicePixelRatioF();
    for (int i = 0; i < 3; ++i)
        s_[i]->setPixmap(widgets::picture(QStringLiteral("s%1").arg(i), dpr));
    timer1_ = new QTimer(this);
    timer1_->setInterval(200);

    setWindowTitle(tr("Options"));
    ui_->Label_0->setText(tr("&Players:"));
    ui_->Label_1->setText(tr("&Tips:"));
    ui_->Label_2->setText(tr("Names"));
    ui_->Label_3->setText(tr("Repeat"));
    ui_->Anzeige->setText(tr("s&how solution"));
    ui_->Label1->setText(QStringLiteral(" "));
    ui_->Label2->setText(tr("&Vocabulary:"));
    ui_->Label3->setText(tr("&Picture:"));
    ui_->Sound->setText(tr("&soundeffects"));
    ui_->wiederh_0->setText(tr("&all words"));
    ui_->wiederh_1->setText(tr("&words not guessed"));
    ui_->EditButt->setText(tr("&Edit vocabulary"));
    widgets::centreOnScreen(this);

    Form_Load(rows);
    // Loaded again after the close box, the counts keep their design values.
    if (preset) {
        zahl_[0]->setText(numberForm(game_.g.AnzSpieler));
        Zahl_Change(0);
        zahl_[1]->setText(numberForm(game_.g.AnzTips));
        Zahl_Change(1);
    }
    presetFromGame();
    loading_ = false;
}

OptionsWindow::~OptionsWindow() = default;

void OptionsWindow::Form_Load(const QStringList& rows)
{
    for (int i = 0; i < core::kPlayers; ++i) {
        QLineEdit* box = spielerName_[i];
        box->installEventFilter(this);
        connect(box, &QLineEdit::textChanged, this, [this, i](const QString& text) {
            game_.einst.Spieler_Name[i] = text;
            changed(OptionChange::Name);
        });
        if (i < game_.g.AnzSpieler) box->setEnabled(true);
    }
    for (QRadioButton* b : wiederh_)
        connect(b, &QRadioButton::clicked, this, &OptionsWindow::wiederh_Click);
    connect(ui_->Sound, &QCheckBox::toggled, this, [this](bool on) {
        game_.einst.Sound = on ? 1 : 0;
        changed(OptionChange::Sound);
    });
    connect(ui_->Anzeige, &QCheckBox::toggled, this, [this](bool on) {
        game_.einst.Anzeige = on ? 1 : 0;
        changed(OptionChange::Anzeige);
    });
    // Also by keyboard: the counters follow OK in the tab order, each reached by its label's key.
    for (int i = 0; i < 2; ++i) {
        plumin_[i]->installEventFilter(this);
        makeSpinButton(plumin_[i], zahl_[i], Spin(i));
    }
    plumin_[0]->setAccessibleName(tr("Players"));
    plumin_[1]->setAccessibleName(tr("Tips"));
    for (int i = 0; i < core::kPlayers; ++i)
        spielerName_[i]->setAccessibleName(tr("Name of player %1").arg(i + 1));
    ui_->wortsch->setAccessibleName(tr("Vocabulary"));
    ui_->Motiv->setAccessibleName(tr("Picture"));
    connect(timer1_, &QTimer::timeout, this, &OptionsWindow::Timer1_Timer);
    connect(ui_->OK, &QPushButton::clicked, this, &OptionsWindow::OK_Click);
    connect(ui_->EditButt, &QPushButton::clicked, this, &OptionsWindow::EditButt_Click);

    // The vocabulary as loaded: its rows, and the one WortDatei names.
    QListWidget* list = ui_->wortsch;
    list->addItems(rows);
    connect(list, &QListWidget::currentRowChanged, this, &OptionsWindow::WortSch_Click);
    connect(list, &QListWidget::itemDoubleClicked, this, [this, list](QListWidgetItem* item) {
        WortSch_Click(list->row(item));
        OK_Click();
    });
    if (const int index = int(rows.indexOf(game_.g.WortDatei)); index >= 0)
        list->setCurrentRow(index);

    QListWidget* motiv = ui_->Motiv;
    motiv->addItems({tr("Apple tree"), tr("Frostel")});
    connect(motiv, &QListWidget::currentRowChanged, this, &OptionsWindow::Motiv_Click);
    connect(motiv, &QListWidget::itemDoubleClicked, this, [this, motiv](QListWidgetItem* item) {
        Motiv_Click(motiv->row(item));
        OK_Click();
    });
    motiv->setCurrentRow(game_.g.MotivNr);
}

void OptionsWindow::presetFromGame()
{
    const core::Options& einst = game_.einst;
    wiederh_[einst.wiederh[0] ? 0 : 1]->setChecked(true);
    // A hand-edited value other than 0 or 1 stays in the game as it was read.
    const QSignalBlocker sound(ui_->Sound), anzeige(ui_->Anzeige);
    ui_->Sound->setChecked(einst.Sound == 1);
    ui_->Anzeige->setChecked(einst.Anzeige == 1);
    for (int i = 0; i < core::kPlayers; ++i) spielerName_[i]->setText(einst.Spieler_Name[i]);
}

QListWidget* OptionsWindow::wortsch() const { return ui_->wortsch; }

QListWidget* OptionsWindow::Motiv() const { return ui_->Motiv; }

void OptionsWindow::resizeEvent(QResizeEvent* event)
{
    DesignDialog::resizeEvent(event);
    game_.g.EinstGeaendert = false;
}

void OptionsWindow::hideEvent(QHideEvent* event)
{
    // A button held while the window goes away sends no release.
    timer1_->stop();
    held_ = -1;
    DesignDialog::hideEvent(event);
}

bool OptionsWindow::eventFilter(QObject* watched, QEvent* event)
{
    for (int i = 0; i < 2; ++i) {
        if (watched != plumin_[i]) continue;
        switch (event->type()) {
        // A quick second press comes as a double click; it is a press all the same.
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick: {
            auto* m = static_cast<QMouseEvent*>(event);
            const QPointF p = m->position();
            plumin_MouseDown(i, int(m->button()), int(m->modifiers()),
                             widgets::pixelsToTwips(p.x()), widgets::pixelsToTwips(p.y()));
            return true;
        }
        case QEvent::MouseButtonRelease: plumin_MouseUp(i); return true;
        case QEvent::KeyPress: {
            // Up and Down press the upper or the lower half of the spin button once.
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key != Qt::Key_Up && key != Qt::Key_Down) return false;
            const double at = key == Qt::Key_Up ? 0 : 300;
            plumin_MouseDown(i, Qt::NoButton, 0, at, at);
            plumin_MouseUp(i);
            return true;
        }
        default: return false;
        }
    }
    if (event->type() == QEvent::FocusIn) {
        for (QLineEdit* box : spielerName_) {
            if (watched != box) continue;
            // Typing replaces the name. A click would place the cursor after the focus came,
            // so the selection is made again once the click is done.
            box->selectAll();
            QMetaObject::invokeMethod(box, &QLineEdit::selectAll, Qt::QueuedConnection);
        }
    }
    return DesignDialog::eventFilter(watched, event);
}

void OptionsWindow::paintEvent(QPaintEvent* event)
{
    DesignDialog::paintEvent(event);
    fitNumbers();
    QPainter painter(this);
    widgets::drawFrame(painter, kNamesFrame, true);
    widgets::drawFrame(painter, kRepeatFrame, true);
}

void OptionsWindow::fitNumbers()
{
    for (int i = 0; i < 2; ++i) {
        if (i != held_) setFace(i, 0);
        // The number fits its spin button, and its type fits the number.
        QLabel* zahl = zahl_[i];
        QRect r = widgets::twipsOf(zahl);
        const int height = int(std::lround(0.9 * widgets::pixelsToTwips(plumin_[i]->height())));
        if (r.height() != height) {
            r.setHeight(height);
            widgets::setTwips(zahl, r);
        }
        const double limit = 0.85 * height / 20.0; // points
        QFont font = zahl->font();
        if (limit < font.pointSizeF()) {
            font.setPointSizeF(limit);
            zahl->setFont(font);
        }
    }
}

void OptionsWindow::setFace(int Index, int face)
{
    if (face_[Index] == face) return;
    face_[Index] = face;
    const QPixmap picture = s_[face]->pixmap();
    plumin_[Index]->setPixmap(picture);
    if (!picture.isNull()) plumin_[Index]->resize(picture.deviceIndependentSize().toSize());
}

void OptionsWindow::plumin_MouseDown(int Index, int Button, int Shift, double x, double y)
{
    letzterDruck_ = {Index, Button, Shift, x, y};
    held_ = Index;
    if (!timer1_->isActive()) timer1_->start();
    const SpinStep step = spinStep(Spin(Index), zahl_[Index]->text(), x, y);
    setFace(Index, step.face);
    if (step.caption) {
        zahl_[Index]->setText(*step.caption);
        Zahl_Change(Index);
    }
}

void OptionsWindow::plumin_MouseUp(int Index)
{
    timer1_->stop();
    held_ = -1;
    setFace(Index, 0);
}

void OptionsWindow::Timer1_Timer()
{
    const Press p = letzterDruck_;
    plumin_MouseDown(p.Ix, p.Bn, p.St, p.x, p.y);
}

void OptionsWindow::Zahl_Change(int Index)
{
    const int16_t n = int16_t(captionNumber(zahl_[Index]->text()));
    spinValueChanged(plumin_[Index], n);
    if (Index == 0) {
        game_.g.AnzSpieler = n;
        // A disabled box keeps its name; OK stores it all the same.
        for (int i = 0; i < core::kPlayers; ++i) spielerName_[i]->setEnabled(i < n);
        changed(OptionChange::Players);
    } else {
        game_.g.AnzTips = n;
        changed(OptionChange::Tips);
    }
}

void OptionsWindow::wiederh_Click()
{
    game_.einst.wiederh = {wiederh_[0]->isChecked(), wiederh_[1]->isChecked()};
    changed(OptionChange::Repeat);
}

void OptionsWindow::WortSch_Click(int row)
{
    QListWidgetItem* item = ui_->wortsch->item(row);
    if (!item) return;
    changed(OptionChange::Vocabulary);
    game_.g.WortDatei = item->text();
}

void OptionsWindow::Motiv_Click(int row)
{
    if (row < 0) return;
    game_.g.MotivNr = int16_t(row);
    changed(OptionChange::Motif);
}

void OptionsWindow::EditButt_Click()
{
    // The editor may end the program, and this window with it.
    const QPointer<OptionsWindow> alive(this);
    if (openEditor) openEditor();
    if (!alive) return;
    changed(OptionChange::EditorClosed);
    ui_->OK->setFocus();
}

void OptionsWindow::OK_Click()
{
    writeOptions(profile_, game_.g, game_.einst);
    accept();
}

void OptionsWindow::changed(OptionChange change)
{
    if (!loading_ && restartsGame(change)) game_.g.EinstGeaendert = true;
}

OptionsHost::OptionsHost(core::Game& game, Profile& profile, QWidget* owner,
                         std::function<void()> openEditor)
    : game_(game), profile_(profile), owner_(owner), openEditor_(std::move(openEditor))
{
}

OptionsHost::~OptionsHost() { delete window_.data(); }

void OptionsHost::load()
{
    rows_ = wordFileRows();
    // The stored name if the list holds it exactly, else the first row.
    game_.g.WortDatei = chooseWordFile(readWordFileName(profile_), rows_);
    loaded_ = true;
}

OptionsWindow* OptionsHost::window()
{
    if (!loaded_) load();
    if (!window_) {
        window_ = new OptionsWindow(game_, profile_, rows_, !presetDone_, owner_);
        window_->openEditor = openEditor_;
        presetDone_ = true;
    }
    return window_;
}

void OptionsHost::show()
{
    // The close box is the only way to reject: there is no cancel button, and Esc does nothing.
    if (window()->exec() != QDialog::Rejected) return;
    delete window_.data();
    // What the game reads from the window is back at the design values; the counts and the
    // motif live in the game and stay. The next use loads it anew: folder and stored name.
    game_.einst = core::Options{};
    load();
}

} // namespace settings
