#pragma once
// The options window: it edits the game's live options in place while it is open, stores them
// when OK confirms, and stays loaded and hidden between showings.
#include "core/game.h"
#include "settings/options_rules.h"
#include "settings/profile.h"
#include "widgets/window_design.h"

#include <QPointer>
#include <QStringList>
#include <array>
#include <functional>
#include <memory>

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;
class QTimer;
namespace Ui {
class OptionsWindow;
}

namespace settings {

class OptionsWindow : public widgets::DesignDialog {
    Q_OBJECT
public:
    // `rows` is the vocabulary list as loaded; `preset` fills the controls from the game's
    // options, else they keep their design values.
    OptionsWindow(core::Game& game, Profile& profile, const QStringList& rows, bool preset,
                  QWidget* parent);
    ~OptionsWindow() override;

    // Opens the vocabulary editor; without one the button only moves the focus to OK.
    std::function<void()> openEditor;

    const std::array<QLineEdit*, 4>& Spieler_Name() const { return spielerName_; }
    const std::array<QLabel*, 2>& Zahl() const { return zahl_; }
    const std::array<QLabel*, 2>& plumin() const { return plumin_; }
    QListWidget* wortsch() const;
    QListWidget* Motiv() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The last press on a spin button, repeated while the button is held.
    struct Press {
        int Ix = 0;          // which spin button
        int Bn = 0;          // mouse button
        int St = 0;          // keyboard modifiers
        double x = 0, y = 0; // in twips inside the picture
    };

    void Form_Load(const QStringList& rows);
    void presetFromGame();
    void fitNumbers();
    void plumin_MouseDown(int Index, int Button, int Shift, double x, double y);
    void plumin_MouseUp(int Index);
    void Timer1_Timer();
    void Zahl_Change(int Index);
    void wiederh_Click();
    void WortSch_Click(int row);
    void Motiv_Click(int row);
    void EditButt_Click();
    void OK_Click();
    void setFace(int Index, int face);
    void changed(OptionChange change);

    core::Game& game_;
    Profile& profile_;
    std::unique_ptr<Ui::OptionsWindow> ui_;
    std::array<QLineEdit*, 4> spielerName_{};
    std::array<QRadioButton*, 2> wiederh_{};
    std::array<QLabel*, 2> zahl_{};
    std::array<QLabel*, 2> plumin_{};
    std::array<QLabel*, 3> s_{};
    QTimer* timer1_ = nullptr; // repeats a held spin button
    bool loading_ = true;      // filling the controls is no change of the user's
    Press letzterDruck_;
    int held_ = -1;                   // the spin button held down, if any
    std::array<int, 2> face_{-1, -1}; // the face each spin button shows
};

// The options window from start-up to the end: loaded (folder and stored name) at start-up,
// its controls made at the first showing, discarded by its close box and loaded anew then.
class OptionsHost {
public:
    // `openEditor` opens the vocabulary editor over the window (the editor lives beside
    // this folder, so the main window hands it in).
    OptionsHost(core::Game& game, Profile& profile, QWidget* owner,
                std::function<void()> openEditor);
    ~OptionsHost();

    // What loading the window decides: the vocabulary files of the working folder as they are
    // now, and WortDatei from the stored name.
    void load();
    // Shows the window modally and returns when OK, a double click in one of the lists or the
    // close box has ended it.
    void show();
    // The window, made if it is not.
    OptionsWindow* window();

private:
    core::Game& game_;
    Profile& profile_;
    QWidget* owner_;
    std::function<void()> openEditor_;
    QPointer<OptionsWindow> window_;
    QStringList rows_;
    bool loaded_ = false;
    bool presetDone_ = false; // the controls take the game's options at the first load only
};

} // namespace settings
