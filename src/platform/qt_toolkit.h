#pragma once
// The game's toolkit port on Qt: the event loop, waits that sleep, boxes, sounds, fonts.
#include "core/toolkit.h"

#include <QPointer>
#include <QWidget>
#include <array>
#include <functional>
#include <memory>
#include <random>

class QEventLoop;
class QLibrary;

namespace platform {

class SoundPlayer;

class QtToolkit : public core::Toolkit {
public:
    QtToolkit();
    ~QtToolkit() override;

    // The window the boxes belong to, whose width and font the game measures.
    void setMainWindow(QWidget* window) { main_ = window; }
    // Called before events are served or a box shows, so the window paints what the game
    // holds at that moment.
    std::function<void()> beforeEvents;
    // Unloads the main window; called once when the game ends the program.
    std::function<void()> onEnd;
    // Waits last this share of their time; tests shorten them.
    double waitScale = 1.0;
    // Where frostl<n>.wav is looked up when the working folder has none.
    QString soundFolder;

    // Ends whatever wait runs now, and every later one at once.
    void stopWaiting();

    void serveEvents() override;
    void waitForEvents() override;
    void wait(double seconds) override;
    double clock() override;
    void seedRandom(double seed) override;
    double random() override;
    int msgBox(const QString& text, int type, const QString& title) override;
    void playSound(int n) override;
    double textWidth(const QString& text) override;
    double windowWidth() override;
    void endProgram() override;

private:
    void present();

    QPointer<QWidget> main_;
    QEventLoop* waitLoop_ = nullptr;
    bool stopped_ = false;
    std::mt19937_64 random_;
    SoundPlayer* soundPlayer();
    std::unique_ptr<QLibrary> soundModule_;
    std::unique_ptr<SoundPlayer> player_;
    bool soundTried_ = false;
};

} // namespace platform
