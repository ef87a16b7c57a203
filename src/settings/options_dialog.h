#pragma once
// The options window at work: it edits the game's live options in place while it is open,
// stores them when OK confirms, and stays loaded and hidden between showings.
#include "core/game.h"
#include "settings/options_rules.h"
#include "settings/profile.h"

#include <QObject>
#include <QPointer>
#include <array>
#include <functional>

class QTimer;

namespace assets {
class OptionsWindow;
}

namespace settings {

class OptionsDialog : public QObject {
    Q_OBJECT
public:
    // The window itself is a child of parent, loaded at its first use.
    OptionsDialog(core::Game& game, Profile& profile, QWidget* parent = nullptr);
    ~OptionsDialog() override;

    // What loading the window decides, done at start-up: the vocabulary files of the working
    // folder as it is then, and WortDatei from the stored name. The controls are made at the
    // first use of the window, with what was decided here.
    void load();
    // Shows the window modally and returns when OK, a double click in one of the lists or
    // the close box has ended it.
    void show();
    // The window, made if it is not: with the game's options the first time, with its
    // design values once the close box has discarded it.
    assets::OptionsWindow* window();

    // Opens the vocabulary editor; without one the button only moves the focus to OK.
    std::function<void()> openEditor;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The last press on a spin button, repeated while the button is held.
    struct Press {
        int Ix = 0;          // which spin button
        int Bn = 0;          // mouse button
        int St = 0;          // keyboard modifiers
        double x = 0, y = 0; // in twips inside the picture
    };

    void Form_Load();
    void presetFromGame();
    void Form_Paint();
    void plumin_MouseDown(int Index, int Button, int Shift, double x, double y);
    void plumin_MouseUp(int Index);
    void Timer1_Timer();
    void Zahl_Change(int Index);
    void Spieler_Name_Change(int Index, const QString& text);
    void wiederh_Click();
    void WortSch_Click(int row);
    void Motiv_Click(int row);
    void EditButt_Click();
    void OK_Click();
    void unload();
    void setFace(int Index, int face);
    void changed(OptionChange change);

    core::Game& game_;
    Profile& profile_;
    QWidget* parent_;
    QPointer<assets::OptionsWindow> window_;
    bool loaded_ = false;
    QStringList rows_;        // the vocabulary list as loaded
    bool presetDone_ = false; // the controls take the game's options at the first load only
    bool loading_ = false;    // filling the controls is no change of the user's
    Press letzterDruck_;
    int held_ = -1;                   // the spin button held down, if any
    std::array<int, 2> face_{-1, -1}; // the face each spin button shows
};

} // namespace settings
