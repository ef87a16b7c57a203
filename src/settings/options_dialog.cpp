#include "settings/options_dialog.h"

#include "assets/options_window.h"
#include "assets/panel.h"
#include "assets/twips.h"
#include "settings/options.h"

#include <QCheckBox>
#include <QEvent>
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

const QString kSettings = QStringLiteral("Einstellungen");

// The two raised group frames, in twips: around the names and around the repeat choice.
constexpr float kNamesFrame[4] = {200, 2100, 650, 2300};
constexpr float kRepeatFrame[4] = {2600, 2600, 650, 1300};
constexpr int kWhite = 15, kGrey = 8;

void drawRaisedFrame(QPainter& painter, const float (&r)[4])
{
    const double t = assets::kTwipsPerPixel;
    assets::drawPanelLines(painter, assets::RahmenObenLinks(r[0], r[1], r[2], r[3], 1, t), kWhite,
                           t);
    assets::drawPanelLines(painter, assets::RahmenUntenRechts(r[0], r[1], r[2], r[3], 1, t), kGrey,
                           t);
}

// The stored vocabulary as it is read back: the default is all blanks, which come back empty.
QString storedWordFile(const Profile& profile)
{
    return profile.GetPrivateProfileString(kSettings, QStringLiteral("Datei"), QString(255, u' '),
                                           255);
}

} // namespace

OptionsDialog::OptionsDialog(core::Game& game, Profile& profile, QWidget* parent)
    : QObject(parent), game_(game), profile_(profile), parent_(parent)
{
}

OptionsDialog::~OptionsDialog() { delete window_.data(); }

void OptionsDialog::load()
{
    rows_ = wordFileRows();
    // The stored name if the list holds it exactly, else the first row.
    game_.g.WortDatei = chooseWordFile(storedWordFile(profile_), rows_);
    loaded_ = true;
}

assets::OptionsWindow* OptionsDialog::window()
{
    if (!loaded_) load();
    if (!window_) Form_Load();
    return window_;
}

void OptionsDialog::show()
{
    assets::OptionsWindow* w = window();
    // The close box is the only way to reject: there is no cancel button, and Esc does nothing.
    if (w->exec() == QDialog::Rejected) unload();
}

void OptionsDialog::Form_Load()
{
    auto* w = new assets::OptionsWindow(parent_);
    window_ = w;
    face_ = {-1, -1};
    held_ = -1;
    loading_ = true;

    for (int i = 0; i < core::kPlayers; ++i) {
        QLineEdit* box = w->Spieler_Name()[i];
        box->installEventFilter(this);
        connect(box, &QLineEdit::textChanged, this,
                [this, i](const QString& text) { Spieler_Name_Change(i, text); });
        if (i < game_.g.AnzSpieler) box->setEnabled(true);
    }
    for (QRadioButton* b : w->wiederh())
        connect(b, &QRadioButton::clicked, this, &OptionsDialog::wiederh_Click);
    connect(w->Sound(), &QCheckBox::toggled, this, [this](bool on) {
        game_.einst.Sound = on ? 1 : 0;
        changed(OptionChange::Sound);
    });
    connect(w->Anzeige(), &QCheckBox::toggled, this, [this](bool on) {
        game_.einst.Anzeige = on ? 1 : 0;
        changed(OptionChange::Anzeige);
    });
    for (int i = 0; i < 2; ++i) w->plumin()[i]->installEventFilter(this);
    connect(w->Timer1(), &QTimer::timeout, this, &OptionsDialog::Timer1_Timer);
    connect(w->OK(), &QPushButton::clicked, this, &OptionsDialog::OK_Click);
    connect(w->EditButt(), &QPushButton::clicked, this, &OptionsDialog::EditButt_Click);
    w->installEventFilter(this);

    // The vocabulary as loaded: its rows, and the one WortDatei names.
    QListWidget* list = w->wortsch();
    list->addItems(rows_);
    connect(list, &QListWidget::currentRowChanged, this, &OptionsDialog::WortSch_Click);
    connect(list, &QListWidget::itemDoubleClicked, this, [this, list](QListWidgetItem* item) {
        WortSch_Click(list->row(item));
        OK_Click();
    });
    if (const int index = int(rows_.indexOf(game_.g.WortDatei)); index >= 0)
        list->setCurrentRow(index);

    QListWidget* motiv = w->Motiv();
    motiv->addItems({QStringLiteral("Apple tree"), QStringLiteral("Frostel")});
    connect(motiv, &QListWidget::currentRowChanged, this, &OptionsDialog::Motiv_Click);
    connect(motiv, &QListWidget::itemDoubleClicked, this, [this, motiv](QListWidgetItem* item) {
        Motiv_Click(motiv->row(item));
        OK_Click();
    });
    motiv->setCurrentRow(game_.g.MotivNr);

    // Loaded again after the close box, the window keeps its design values: the name boxes
    // enabled, the motif and the vocabulary above are all it takes then.
    if (!presetDone_) presetFromGame();
    presetDone_ = true;
    loading_ = false;
}

void OptionsDialog::presetFromGame()
{
    const core::Global& g = game_.g;
    const core::Options& einst = game_.einst;
    assets::OptionsWindow* w = window_;
    w->Zahl()[0]->setText(numberForm(g.AnzSpieler));
    Zahl_Change(0);
    w->Zahl()[1]->setText(numberForm(g.AnzTips));
    Zahl_Change(1);
    w->wiederh()[einst.wiederh[0] ? 0 : 1]->setChecked(true);
    // A hand-edited value other than 0 or 1 stays in the game as it was read.
    const QSignalBlocker sound(w->Sound()), anzeige(w->Anzeige());
    w->Sound()->setChecked(einst.Sound == 1);
    w->Anzeige()->setChecked(einst.Anzeige == 1);
    for (int i = 0; i < core::kPlayers; ++i) w->Spieler_Name()[i]->setText(einst.Spieler_Name[i]);
}

void OptionsDialog::unload()
{
    delete window_.data();
    // What the game reads from the window is back at the design values; the counts and the
    // motif live in the game and stay. The next use loads it anew: folder and stored name.
    game_.einst = core::Options{};
    load();
}

bool OptionsDialog::eventFilter(QObject* watched, QEvent* event)
{
    assets::OptionsWindow* w = window_;
    if (!w) return false;
    if (watched == w) {
        switch (event->type()) {
        case QEvent::Resize: game_.g.EinstGeaendert = false; break;
        case QEvent::Paint: Form_Paint(); break;
        case QEvent::Hide:
            // A button held while the window goes away sends no release.
            w->Timer1()->stop();
            held_ = -1;
            break;
        default: break;
        }
        return false;
    }
    for (int i = 0; i < 2; ++i) {
        if (watched != w->plumin()[i]) continue;
        switch (event->type()) {
        // A quick second press comes as a double click; it is a press all the same.
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick: {
            auto* m = static_cast<QMouseEvent*>(event);
            const QPointF p = m->position();
            plumin_MouseDown(i, int(m->button()), int(m->modifiers()), assets::pixelsToTwips(p.x()),
                             assets::pixelsToTwips(p.y()));
            return true;
        }
        case QEvent::MouseButtonRelease: plumin_MouseUp(i); return true;
        default: return false;
        }
    }
    if (event->type() == QEvent::FocusIn) {
        for (QLineEdit* box : w->Spieler_Name()) {
            if (watched != box) continue;
            // Typing replaces the name. A click would place the cursor after the focus came,
            // so the selection is made again once the click is done.
            box->selectAll();
            QMetaObject::invokeMethod(box, &QLineEdit::selectAll, Qt::QueuedConnection);
        }
    }
    return false;
}

void OptionsDialog::Form_Paint()
{
    assets::OptionsWindow* w = window_;
    {
        QPainter painter(w);
        drawRaisedFrame(painter, kNamesFrame);
    }
    for (int i = 0; i < 2; ++i) {
        if (i != held_) setFace(i, 0);
        // The number fits its spin button, and its type fits the number.
        QLabel* zahl = w->Zahl()[i];
        QRect r = assets::twipsOf(zahl);
        const int height = int(std::lround(0.9 * assets::pixelsToTwips(w->plumin()[i]->height())));
        if (r.height() != height) {
            r.setHeight(height);
            assets::setTwips(zahl, r);
        }
        const double limit = 0.85 * height / 20.0; // points
        QFont font = zahl->font();
        if (limit < font.pointSizeF()) {
            font.setPointSizeF(limit);
            zahl->setFont(font);
        }
    }
    QPainter painter(w);
    drawRaisedFrame(painter, kRepeatFrame);
    // Pending events are not run from here: Qt allows no repaint inside a repaint.
}

void OptionsDialog::setFace(int Index, int face)
{
    if (face_[Index] == face) return;
    face_[Index] = face;
    QLabel* plumin = window_->plumin()[Index];
    const QPixmap picture = window_->s()[face]->pixmap();
    plumin->setPixmap(picture);
    if (!picture.isNull()) plumin->resize(picture.deviceIndependentSize().toSize());
}

void OptionsDialog::plumin_MouseDown(int Index, int Button, int Shift, double x, double y)
{
    letzterDruck_ = {Index, Button, Shift, x, y};
    held_ = Index;
    QTimer* timer = window_->Timer1();
    if (!timer->isActive()) timer->start();
    QLabel* zahl = window_->Zahl()[Index];
    const SpinStep step = spinStep(Spin(Index), zahl->text(), x, y);
    setFace(Index, step.face);
    if (step.caption) {
        zahl->setText(*step.caption);
        Zahl_Change(Index);
    }
}

void OptionsDialog::plumin_MouseUp(int Index)
{
    window_->Timer1()->stop();
    held_ = -1;
    setFace(Index, 0);
}

void OptionsDialog::Timer1_Timer()
{
    const Press p = letzterDruck_;
    plumin_MouseDown(p.Ix, p.Bn, p.St, p.x, p.y);
}

void OptionsDialog::Zahl_Change(int Index)
{
    assets::OptionsWindow* w = window_;
    const int16_t n = int16_t(captionNumber(w->Zahl()[Index]->text()));
    if (Index == 0) {
        game_.g.AnzSpieler = n;
        // A disabled box keeps its name; OK stores it all the same.
        for (int i = 0; i < core::kPlayers; ++i) w->Spieler_Name()[i]->setEnabled(i < n);
        changed(OptionChange::Players);
    } else {
        game_.g.AnzTips = n;
        changed(OptionChange::Tips);
    }
}

void OptionsDialog::Spieler_Name_Change(int Index, const QString& text)
{
    game_.einst.Spieler_Name[Index] = text;
    changed(OptionChange::Name);
}

void OptionsDialog::wiederh_Click()
{
    game_.einst.wiederh = {window_->wiederh()[0]->isChecked(), window_->wiederh()[1]->isChecked()};
    changed(OptionChange::Repeat);
}

void OptionsDialog::WortSch_Click(int row)
{
    QListWidgetItem* item = window_->wortsch()->item(row);
    if (!item) return;
    changed(OptionChange::Vocabulary);
    game_.g.WortDatei = item->text();
}

void OptionsDialog::Motiv_Click(int row)
{
    if (row < 0) return;
    game_.g.MotivNr = int16_t(row);
    changed(OptionChange::Motif);
}

void OptionsDialog::EditButt_Click()
{
    if (openEditor) openEditor();
    changed(OptionChange::EditorClosed);
    if (window_) window_->OK()->setFocus();
}

void OptionsDialog::OK_Click()
{
    for (const auto& [key, value] : storedOptions(game_.g, game_.einst))
        profile_.WritePrivateProfileString(kSettings, key, value);
    window_->accept();
}

void OptionsDialog::changed(OptionChange change)
{
    if (!loading_ && restartsGame(change)) game_.g.EinstGeaendert = true;
}

} // namespace settings
