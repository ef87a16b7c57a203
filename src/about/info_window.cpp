#include "about/info_window.h"

#include "ui_info_window.h"
#include "widgets/pictures.h"

#include <QTimer>

namespace about {

InfoWindow::InfoWindow(QWidget* mainWindow, QWidget* parent)
    : DesignDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), ui_(std::make_unique<Ui::InfoWindow>()),
      mainWindow_(mainWindow)
{
    ui_->setupUi(this);
    applyDesign();
    const qreal dpr = devicePixelRatioF();
    ui_->Image2->setPixmap(widgets::picture(QStringLiteral("info_back"), dpr));
    ui_->Image1_1->setPixmap(widgets::picture(QStringLiteral("info_emblem"), dpr));

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
    widgets::centreOnScreen(this);
    ui_->Label_0->setText(kProductText);
    ui_->Label_3->setText(tr("For more Information see README.TXT!"));
    // The main window gets its title here and nowhere else.
    if (mainWindow_) mainWindow_->setWindowTitle(kProductText);
}

void InfoWindow::OK_Click() { close(); }

void InfoWindow::Timer1_Timer()
{
    timer1_->stop();
    close();
}

QPushButton* InfoWindow::OK() const { return ui_->OK; }

} // namespace about
