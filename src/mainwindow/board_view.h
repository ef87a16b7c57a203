#pragma once
// The board as the main window shows it: letter tiles, the word's fields, the picture
// series, the scoreboard and the state of the commands, drawn from the game's state, and
// what a screen reader is told of it. It draws and never writes the game's state.
#include "core/game.h"
#include "mainwindow/announcements.h"
#include "mainwindow/layout.h"

#include <QCoreApplication>
#include <QPixmap>
#include <array>
#include <optional>
#include <vector>

class QLabel;
class QWidget;
namespace Ui {
class MainWindow;
}
namespace widgets {
class PictureButton;
class SpokenNotice;
} // namespace widgets

namespace mainwindow {

class BoardView {
    Q_DECLARE_TR_FUNCTIONS(BoardView)

public:
    BoardView(Ui::MainWindow& ui, const core::Game& game, qreal devicePixelRatio);

    // A letter panel that is not 9000 twips wide carries its tiles to scale; the first
    // picture starts at the size of the others.
    void fitToPanel();
    // Shows what the game holds now, and tells a screen reader what changed.
    void sync();
    // Moves the pictures and buttons to the layout's places, then the fields to theirs.
    void arrange(const Layout& layout);

    QLabel* tileLabel(int i) const { return alpha_[i]; }
    QLabel* fieldLabel(int i) const;
    QLabel* pictureLabel(int i) const { return B_Folge_[i]; }
    QWidget* picBut(int i) const;
    QLabel* playerLabel(int i) const { return Spieler_[i]; }
    QLabel* pointLabel(int i) const { return Punkt_[i]; }

private:
    void loadPictures(qreal dpr);
    void syncTiles();
    void syncSeries(qreal dpr);
    void syncPlayers();
    void syncPoints();
    void syncFields();
    void syncCommands();
    void announce();

    Ui::MainWindow& ui_;
    const core::Game& game_;
    qreal dpr_;

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
};

} // namespace mainwindow
