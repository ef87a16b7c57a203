#pragma once
// The main window: starts and ends the program, turns clicks, keys and menu entries into the
// game's commands, keeps itself and the board in place; the board draws what the game holds.
#include "core/game.h"
#include "mainwindow/board_view.h"
#include "mainwindow/layout.h"
#include "platform/qt_toolkit.h"
#include "settings/profile.h"
#include "settings/stored_settings.h"

#include <QMainWindow>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QLabel;
namespace Ui {
class MainWindow;
}
namespace settings {
class OptionsHost;
}

namespace help {
class HelpWindow;
}

namespace mainwindow {

class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    struct Setup {
        QString profilePath = settings::Profile::defaultPath();
        int splashMs = 2500;                  // 0: no splash (tests)
        std::function<void(int)> exitProgram; // ends the process; the application's exit by default
    };

    MainWindow();
    explicit MainWindow(Setup setup);
    ~MainWindow() override;

    core::Game& game() { return game_; }
    platform::QtToolkit& toolkit() { return tk_; }

    // Start-up, once: captions, splash, place and size, options, scoreboard, motif, a new
    // game, layout, show, and last the word list.
    void Form_Load();
    void Anordnen();
    // Shows what the game holds now.
    void sync();

    // The commands of the menu and the buttons, as a click gives them.
    void about_Click();
    void hilfe_Click(int Index);
    void opt_Click();
    // A tile pressed by a screen reader.
    Q_INVOKABLE void tileClicked(int i);

    // Shows the options window modally; tests may put their own in its place.
    std::function<void()> showOptions;

    // For tests.
    const BoardView& board() const { return *board_; }
    QLabel* tileLabel(int i) const { return board_->tileLabel(i); }
    QLabel* fieldLabel(int i) const { return board_->fieldLabel(i); }
    QLabel* pictureLabel(int i) const { return board_->pictureLabel(i); }
    QWidget* picBut(int i) const { return board_->picBut(i); }
    QLabel* playerLabel(int i) const { return board_->playerLabel(i); }
    QLabel* pointLabel(int i) const { return board_->pointLabel(i); }

protected:
    void resizeEvent(QResizeEvent* event) override; // Form_Resize
    void changeEvent(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void closeEvent(QCloseEvent* event) override; // Form_Unload
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The design size, frame included: the smallest the window gets.
    static constexpr QSize kDesignOuter{kDesignWidth / 15, kDesignHeight / 15};

    void command(const std::function<void()>& submit);
    void setCaptions();
    // Place and size as stored; returns the stored state, which the show then sets.
    int16_t restorePlace();
    void setOuterSize(int widthTwips, int heightTwips);
    void fitFrame();
    void storePlace();
    void unloadMainWindow();
    void Form_Unload();

    Setup setup_;
    std::unique_ptr<Ui::MainWindow> ui_;
    platform::QtToolkit tk_;
    core::Game game_{tk_};
    settings::Profile profile_;

    std::unique_ptr<BoardView> board_;

    help::HelpWindow* help_ = nullptr;
    settings::OptionsHost* options_ = nullptr;
    QSize outerWanted_; // the outer size asked for, in pixels, until the frame is known
    QSize lastFrame_;
    // Started maximised, the corner the window takes when first restored.
    std::optional<QPoint> cornerWhenRestored_;
    bool unloaded_ = false;
};

} // namespace mainwindow
