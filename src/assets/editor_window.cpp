#include "assets/editor_window.h"

#include "ui_wedit.h"

namespace assets {

EditorWindow::EditorWindow(const QString& wortDatei, QWidget* parent)
    : DesignDialog(parent), ui_(std::make_unique<Ui::WEdit>())
{
    ui_->setupUi(this);
    applyDesign();
    Form_Load(wortDatei);
}

EditorWindow::~EditorWindow() = default;

void EditorWindow::Form_Load(const QString& wortDatei)
{
    setWindowTitle(wortDatei.isEmpty() ? QStringLiteral("Edit vocabulary...") : wortDatei);
    ui_->Hinzuf->setText(QStringLiteral("&Add"));
    ui_->Loesch->setText(QStringLiteral("&Delete"));
    ui_->Speichern->setText(QStringLiteral("&Save"));
    ui_->Abbruch->setText(QStringLiteral("&Cancel"));
}

QLineEdit* EditorWindow::Text1() const { return ui_->Text1; }
QListView* EditorWindow::List1() const { return ui_->List1; }
QPushButton* EditorWindow::Hinzuf() const { return ui_->Hinzuf; }
QPushButton* EditorWindow::Loesch() const { return ui_->Loesch; }
QPushButton* EditorWindow::Speichern() const { return ui_->Speichern; }
QPushButton* EditorWindow::OK() const { return ui_->OK; }
QPushButton* EditorWindow::Abbruch() const { return ui_->Abbruch; }

} // namespace assets
