#pragma once
// The vocabulary editor: a sorted working copy of the word file named by WortDatei, a box
// for a new word, and the buttons that add, delete, save and hand the list to the game.
#include "core/game.h"
#include "editor/sorted_words.h"
#include "editor/word_rows.h"
#include "widgets/window_design.h"

#include <memory>

namespace Ui {
class VocabularyEditor;
}

namespace editor {

class VocabularyEditor : public widgets::DesignDialog {
    Q_OBJECT
public:
    // g gives WortDatei and Geaendert; mainList is the game's list of words still to draw.
    VocabularyEditor(core::Global& g, QStringList& mainList, core::Toolkit& toolkit,
                     QWidget* parent = nullptr);
    ~VocabularyEditor() override;

    bool serves(const core::Global& g, const core::Toolkit& toolkit) const
    {
        return &g == &g_ && &toolkit == &tk_;
    }
    // The entries of the list, top to bottom.
    QStringList words() const;

    // Every show: the list anew from the file.
    void Form_Activate();
    void ListeLaden();
    void Hinzuf_Click();
    void Loesch_Click();
    // Writes the list and hands it to the game. False when the file could not be written.
    bool Speichern_Click();
    void OK_Click();
    void Abbruch_Click();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void List1_Click();
    void List1_DblClick();

    std::unique_ptr<Ui::VocabularyEditor> ui_;
    core::Global& g_;
    QStringList& mainList_;
    core::Toolkit& tk_;
    SortedWords* words_; // what List1 shows
    WordRows* rows_;     // and how wide its rows are, following it
    bool quiet_ = false; // the list changes by code: no click handlers
};

// Shows the editor modally over `parent` (the options window) and returns once it has gone.
// After OK the window stays loaded, hidden, as a child of `parent`: its caption and word box
// are there again at the next show, while the list is read anew.
void showEditor(core::Game& game, core::Toolkit& toolkit, QWidget* parent);

} // namespace editor
