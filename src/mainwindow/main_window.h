#pragma once
// The main window: draws what the game holds, turns clicks, keys and menu entries into the
// game's commands, keeps its controls in place, and starts and ends the program.
#include "core/game.h"
#include "mainwindow/announcements.h"
#include "mainwindow/layout.h"
#include "platform/qt_toolkit.h"
#include "settings/profile.h"
#include "settings/stored_settings.h"

#include <QMainWindow>
#include <QPixmap>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QLabel;
namespace Ui {
class MainWindow;
}
namespace widgets {
class PictureButton;
class SpokenNotice;
} // namespace widgets
namespace settings {
class OptionsHost;
}

namespace mainwindow {

class HelpWindow;

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
    QLabel* tileLabel(int i) const { return alpha_[i]; }
    QLabel* fieldLabel(int i) const;
    QLabel* pictureLabel(int i) const { return B_Folge_[i]; }
    QWidget* picBut(int i) const;
    QLabel* playerLabel(int i) const { return Spieler_[i]; }
    QLabel* pointLabel(int i) const { return Punkt_[i]; }

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
    void loadPictures();
    void syncTiles();
    void syncSeries();
    void syncPlayers();
    void syncPoints();
    void syncFields();
    void syncCommands();
    void announce();
    void setOuterSize(int widthTwips, int heightTwips);
    void fitFrame();
    void storePlace();
    void unloadMainWindow();
    void Form_Unload();
    void moveTwips(QWidget* w, long long left, long long top);

    Setup setup_;
    std::unique_ptr<Ui::MainWindow> ui_;
    platform::QtToolkit tk_;
    core::Game game_{tk_};
    settings::Profile profile_;

    std::array<QLabel*, core::kTiles> alpha_{};
    std::array<QLabel*, core::kStages> B_Folge_{};
    std::array<QLabel*, core::kPlayers> Spieler_{};
    std::array<QLabel*, core::kSymbols> Punkt_{};
    std::array<widgets::PictureButton*, 3> picButs_{};
    std::vector<QLabel*> Feld_; // Feld_[0] is the pattern

    std::array<QPixmap, 2> symbols_;
    std::array<QPixmap, core::kTiles> tilePictures_;
    QPixmap covered_;

    // What is on show, so a redraw touches only what changed.
    std::optional<core::Motif> shownSeries_;
    std::array<bool, core::kStages> stageLoaded_{};
    std::array<std::optional<core::Motif>, core::kSymbols> shownSymbol_{};
    int shownHeight_ = -1;
    Seen heard_; // what a screen reader was last told of
    widgets::SpokenNotice* notice_ = nullptr;

    HelpWindow* help_ = nullptr;
    settings::OptionsHost* options_ = nullptr;
    QSize outerWanted_; // the outer size asked for, in pixels, until the frame is known
    QSize lastFrame_;
    // Started maximised, the corner the window takes when first restored.
    std::optional<QPoint> cornerWhenRestored_;
    bool unloaded_ = false;
    bool loaded_ = false;
};

} // namespace mainwindow
