#include "assets/options_window.h"

#include "assets/pictures.h"
#include "ui_einst.h"

#include <QTimer>

namespace assets {

OptionsWindow::OptionsWindow(QWidget* parent)
    : DesignDialog(parent), ui_(std::make_unique<Ui::Einst>())
{
    ui_->setupUi(this);
    applyDesign();
    spielerName_ = {ui_->Spieler_Name_0, ui_->Spieler_Name_1, ui_->Spieler_Name_2,
                    ui_->Spieler_Name_3};
    wiederh_ = {ui_->wiederh_0, ui_->wiederh_1};
    label_ = {ui_->Label_0, ui_->Label_1, ui_->Label_2, ui_->Label_3};
    zahl_ = {ui_->Zahl_0, ui_->Zahl_1};
    plumin_ = {ui_->plumin_0, ui_->plumin_1};
    s_ = {ui_->s_0, ui_->s_1, ui_->s_2};

    // The three faces of a spin button; the spin buttons themselves get theirs when painted.
    const qreal dpr = devicePixelRatioF();
    for (int i = 0; i < 3; ++i) s_[i]->setPixmap(picture(QStringLiteral("s%1").arg(i), dpr));

    timer1_ = new QTimer(this);
    timer1_->setInterval(200);

    Form_Load();
}

OptionsWindow::~OptionsWindow() = default;

void OptionsWindow::Form_Load()
{
    setWindowTitle(QStringLiteral("Options"));
    ui_->Label_0->setText(QStringLiteral("&Players:"));
    ui_->Label_1->setText(QStringLiteral("&Tips:"));
    ui_->Label_2->setText(QStringLiteral("Names"));
    ui_->Label_3->setText(QStringLiteral("Repeat"));
    ui_->Anzeige->setText(QStringLiteral("s&how solution"));
    ui_->Label1->setText(QStringLiteral(" "));
    ui_->Label2->setText(QStringLiteral("&Vocabulary:"));
    ui_->Label3->setText(QStringLiteral("&Picture:"));
    ui_->Sound->setText(QStringLiteral("&soundeffects"));
    ui_->wiederh_0->setText(QStringLiteral("&all words"));
    ui_->wiederh_1->setText(QStringLiteral("&words not guessed"));
    ui_->EditButt->setText(QStringLiteral("&Edit vocabulary"));
    centreOnScreen(this);
}

QCheckBox* OptionsWindow::Anzeige() const { return ui_->Anzeige; }
QCheckBox* OptionsWindow::Sound() const { return ui_->Sound; }
QPushButton* OptionsWindow::OK() const { return ui_->OK; }
QPushButton* OptionsWindow::EditButt() const { return ui_->EditButt; }
QLabel* OptionsWindow::Label1() const { return ui_->Label1; }
QLabel* OptionsWindow::Label2() const { return ui_->Label2; }
QLabel* OptionsWindow::Label3() const { return ui_->Label3; }
QListWidget* OptionsWindow::wortsch() const { return ui_->wortsch; }
QListWidget* OptionsWindow::Motiv() const { return ui_->Motiv; }

} // namespace assets
