#include "assets/info_window.h"

#include "assets/global.h"
#include "assets/pictures.h"
#include "ui_info.h"
#include "vocabulary/codepage.h"

#include <QTimer>

namespace assets {
namespace {

// Kept out of plain sight in the binary; Verschluesseln with the key gives them back.
constexpr char kKey[] = "Eiszap";
constexpr char kCredit[] = "\x15\x00\x10\x0e\x14\x02\x20\x1a\x53\x1e\x13\x11\x32\x07\x53\x18\x18"
                           "\x50\x2d\x08\x1d\x1e\x4d\x50\x2a\x07\x16\x5a\x11\x19\x3d\x0c\x1f\x5a"
                           "\x00\x04\x65\x08\x53\x0e\x08\x1d\x20\x47";
constexpr char kBuild[] = "\x07\x1c\x1a\x16\x15\x50\x23\x06\x01\x5a\x15\x18\x20\x49\x3f\x13\x0f"
                          "\x05\x3d\x49\x17\x1f\x12\x1b\x31\x06\x03\x5a\x16\x19\x31\x01\x53\x2b"
                          "\x15\x50\x73\x47";

} // namespace

InfoWindow::InfoWindow(QWidget* mainWindow, QWidget* parent)
    : DesignDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), ui_(std::make_unique<Ui::Info>()),
      mainWindow_(mainWindow)
{
    ui_->setupUi(this);
    applyDesign();
    label_ = {ui_->Label_0, nullptr, nullptr, ui_->Label_3};
    image1_ = {ui_->Image1_0, ui_->Image1_1};
    const qreal dpr = devicePixelRatioF();
    ui_->Image2->setPixmap(picture(QStringLiteral("info_back"), dpr));
    ui_->Image1_1->setPixmap(picture(QStringLiteral("info_emblem"), dpr));

    // Interval 0 and not running: it fires only once a caller gives it an interval.
    timer1_ = new QTimer(this);
    timer1_->setInterval(0);
    connect(timer1_, &QTimer::timeout, this, &InfoWindow::Timer1_Timer);
    connect(ui_->OK, &QPushButton::clicked, this, &InfoWindow::OK_Click);

    Form_Load();
}

InfoWindow::~InfoWindow() = default;

void InfoWindow::splash(QWidget* mainWindow, int milliseconds)
{
    InfoWindow info(mainWindow, mainWindow);
    info.OK()->hide();
    info.Timer1()->setInterval(milliseconds);
    info.Timer1()->start();
    info.exec();
}

void InfoWindow::about(QWidget* mainWindow)
{
    InfoWindow info(mainWindow, mainWindow);
    info.Timer1()->stop();
    info.exec();
}

void InfoWindow::Form_Load()
{
    centreOnScreen(this);
    ui_->Label_0->setText(kProductText);
    ui_->Label_3->setText(QStringLiteral("For more Information see README.TXT!"));
    // The main window gets its title here and nowhere else.
    if (mainWindow_) mainWindow_->setWindowTitle(kProductText);
}

void InfoWindow::OK_Click() { close(); }

void InfoWindow::Timer1_Timer()
{
    timer1_->stop();
    close();
}

QLabel* InfoWindow::Image2() const { return ui_->Image2; }

QPushButton* InfoWindow::OK() const { return ui_->OK; }

QString InfoWindow::storedText(int index)
{
    QString text = index == 0
                       ? vocabulary::decodeCp1252(QByteArrayView(kCredit, sizeof kCredit - 1))
                       : vocabulary::decodeCp1252(QByteArrayView(kBuild, sizeof kBuild - 1));
    Verschluesseln(text, QString::fromLatin1(kKey));
    return text;
}

} // namespace assets
