#pragma once
// The about window: a diskette with the product text, shown as a splash at start-up and for
// the menu entry. It is made anew for each use and destroyed after it.
#include "widgets/window_design.h"

#include <QPointer>
#include <memory>

class QLabel;
class QTimer;
namespace Ui {
class InfoWindow;
}

namespace about {

inline const QString kProductText = QStringLiteral("Frostel32 v2.31");

class InfoWindow : public widgets::DesignDialog {
    Q_OBJECT
public:
    // Loading the window runs Form_Load, which titles `mainWindow` (may be null).
    explicit InfoWindow(QWidget* mainWindow, QWidget* parent = nullptr);
    ~InfoWindow() override;

    // Start-up: without a button, for `milliseconds`; Esc does nothing.
    static void splash(QWidget* mainWindow, int milliseconds = 2500);
    // Menu entry: until OK, Enter or Esc.
    static void about(QWidget* mainWindow);

    void Form_Load();
    void OK_Click();
    void Timer1_Timer();

    QPushButton* OK() const;
    QTimer* Timer1() const { return timer1_; }

private:
    std::unique_ptr<Ui::InfoWindow> ui_;
    QPointer<QWidget> mainWindow_;
    QTimer* timer1_ = nullptr;
};

} // namespace about
