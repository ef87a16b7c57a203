#include "editor/vocabulary_editor.h"

#include "editor/editor_rules.h"
#include "ui_vocabulary_editor.h"
#include "vocabulary/word_file.h"
#include "widgets/panel.h"
#include "widgets/twips.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QPushButton>
#include <QScopedValueRollback>
#include <algorithm>
#include <utility>
#include <vector>

namespace editor {

namespace {

// The selected rows as blocks that neither touch nor overlap, top to bottom: a whole block
// leaves the list in one step, not row by row.
std::vector<std::pair<int, int>> blocksOf(const QItemSelection& selection)
{
    std::vector<std::pair<int, int>> ranges, blocks;
    for (const QItemSelectionRange& range : selection)
        ranges.emplace_back(range.top(), range.bottom());
    std::sort(ranges.begin(), ranges.end());
    for (const auto& [top, bottom] : ranges) {
        if (!blocks.empty() && top <= blocks.back().second + 1)
            blocks.back().second = std::max(blocks.back().second, bottom);
        else blocks.emplace_back(top, bottom);
    }
    return blocks;
}

} // namespace

VocabularyEditor::VocabularyEditor(core::Global& g, QStringList& mainList, core::Toolkit& toolkit,
                                   QWidget* parent)
    : DesignDialog(parent), ui_(std::make_unique<Ui::VocabularyEditor>()), g_(g),
      mainList_(mainList), tk_(toolkit), words_(new SortedWords(this))
{
    ui_->setupUi(this);
    applyDesign();
    rows_ = new WordRows(words_, ui_->List1);
    setWindowTitle(g.WortDatei.isEmpty() ? tr("Edit vocabulary...") : g.WortDatei);
    ui_->Hinzuf->setText(tr("&Add"));
    ui_->Loesch->setText(tr("&Delete"));
    ui_->Speichern->setText(tr("&Save"));
    ui_->Abbruch->setText(tr("&Cancel"));
    ui_->Text1->installEventFilter(this);
    ui_->Text1->setAccessibleName(tr("Word"));
    ui_->List1->setAccessibleName(tr("Words"));
    ui_->List1->setModel(words_);
    ui_->List1->setItemDelegate(rows_);
    connect(ui_->List1->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &VocabularyEditor::List1_Click);
    connect(ui_->List1, &QListView::clicked, this, &VocabularyEditor::List1_Click);
    connect(ui_->List1, &QListView::doubleClicked, this, &VocabularyEditor::List1_DblClick);
    connect(ui_->Hinzuf, &QPushButton::clicked, this, &VocabularyEditor::Hinzuf_Click);
    connect(ui_->Loesch, &QPushButton::clicked, this, &VocabularyEditor::Loesch_Click);
    connect(ui_->Speichern, &QPushButton::clicked, this, &VocabularyEditor::Speichern_Click);
    connect(ui_->OK, &QPushButton::clicked, this, &VocabularyEditor::OK_Click);
    connect(ui_->Abbruch, &QPushButton::clicked, this, &VocabularyEditor::Abbruch_Click);
}

VocabularyEditor::~VocabularyEditor() = default;

QStringList VocabularyEditor::words() const { return words_->words(); }

void VocabularyEditor::Form_Activate() { ListeLaden(); }

void VocabularyEditor::ListeLaden()
{
    const QScopedValueRollback quiet(quiet_, true);
    if (g_.WortDatei.isEmpty()) g_.WortDatei = QStringLiteral("eisfig.dat");
    vocabulary::ReadResult r = vocabulary::readWordFile(g_.WortDatei);
    words_->setWords(std::move(r.words));
    if (r.failure)
        tk_.msgBox(loadFailureText(g_.WortDatei, *r.failure), core::kOkExclamation, errorTitle());
    // Typing goes to the word box, also once a box has told of a failure.
    ui_->Text1->setFocus();
}

void VocabularyEditor::List1_Click()
{
    if (quiet_) return;
    const QModelIndex current = ui_->List1->currentIndex();
    if (!current.isValid()) return;
    ui_->Text1->setText(current.data().toString());
    ui_->Loesch->setEnabled(true);
}

void VocabularyEditor::List1_DblClick()
{
    const QModelIndex current = ui_->List1->currentIndex();
    if (current.isValid()) ui_->Text1->setText(current.data().toString());
}

void VocabularyEditor::Hinzuf_Click()
{
    if (!ui_->Text1->text().isEmpty()) {
        const QScopedValueRollback quiet(quiet_, true);
        words_->add(ui_->Text1->text());
        ui_->Text1->clear();
    }
    // Also for an empty box: the flag only has to be up whenever the list may differ.
    g_.Geaendert = true;
}

void VocabularyEditor::Loesch_Click()
{
    {
        const QScopedValueRollback quiet(quiet_, true);
        // From the last block up, so the rows above keep their numbers.
        const auto blocks = blocksOf(ui_->List1->selectionModel()->selection());
        for (auto block = blocks.rbegin(); block != blocks.rend(); ++block)
            words_->removeRows(block->first, block->second - block->first + 1);
    }
    ui_->Loesch->setEnabled(false);
    g_.Geaendert = true;
    ui_->List1->setFocus();
}

bool VocabularyEditor::Speichern_Click()
{
    const QStringList list = words();
    // The game plays the edited list whether or not the disk takes it.
    mainList_ = list;
    if (const auto failure = vocabulary::writeWordFile(g_.WortDatei, list)) {
        g_.Geaendert = true;
        tk_.msgBox(saveFailureText(g_.WortDatei, *failure), core::kOkExclamation, errorTitle());
        return false;
    }
    g_.Geaendert = false;
    return true;
}

void VocabularyEditor::OK_Click()
{
    mainList_ = words();
    if (g_.Geaendert &&
        tk_.msgBox(tr("Save changes?"), core::kYesNoQuestion, g_.WortDatei) == core::kAnswerYes &&
        !Speichern_Click())
        return; // stays open: the changes are still here to save elsewhere or drop
    accept();   // hidden, still loaded
}

void VocabularyEditor::Abbruch_Click()
{
    g_.Geaendert = false;
    reject();
}

bool VocabularyEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != ui_->Text1) return DesignDialog::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::KeyPress: {
        const auto* key = static_cast<QKeyEvent*>(event);
        // With Ctrl the key is a command (cut, paste, select all), as its control code was.
        if (key->modifiers() & (Qt::ControlModifier | Qt::MetaModifier)) break;
        const QString text = key->text();
        return !text.isEmpty() && passingKeys(text) != text;
    }
    case QEvent::InputMethod: {
        // Composed characters (dead keys, input methods) take the same filter.
        auto* im = static_cast<QInputMethodEvent*>(event);
        im->setCommitString(passingKeys(im->commitString()), im->replacementStart(),
                            im->replacementLength());
        break;
    }
    case QEvent::FocusIn: {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) break;
        QLineEdit* box = ui_->Text1;
        const int start = box->hasSelectedText() ? box->selectionStart() : box->cursorPosition();
        // Let the box take the focus first, then replace the selection it makes its own.
        static_cast<QObject*>(box)->event(event);
        box->setSelection(start, selectionOnFocus(start, int(box->text().size())));
        return true;
    }
    default: break;
    }
    return DesignDialog::eventFilter(watched, event);
}

void VocabularyEditor::paintEvent(QPaintEvent* event)
{
    DesignDialog::paintEvent(event);
    // Sunken panels hugging the word box and the list, read from the controls each time.
    QPainter painter(this);
    for (const QWidget* control : std::initializer_list<QWidget*>{ui_->Text1, ui_->List1})
        widgets::drawFrame(painter, widgets::twipsOf(control), false);
}

void showEditor(core::Game& game, core::Toolkit& toolkit, QWidget* parent)
{
    VocabularyEditor* editor = nullptr;
    if (parent) {
        for (VocabularyEditor* e :
             parent->findChildren<VocabularyEditor*>(Qt::FindDirectChildrenOnly))
            if (e->serves(game.g, toolkit)) editor = e;
    }
    if (!editor) editor = new VocabularyEditor(game.g, game.List1, toolkit, parent);
    if (parent) widgets::centreOnOwner(editor, parent);
    // The editor stands before its list is read, so a failure to read is told over it.
    editor->setWindowModality(Qt::ApplicationModal);
    editor->show();
    editor->Form_Activate();
    // Cancel and the close box unload the window; OK only hides it.
    if (editor->exec() != QDialog::Accepted || !parent) delete editor;
}

} // namespace editor
