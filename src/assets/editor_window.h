#pragma once
// The vocabulary editor: the window definition and its load-time captions.
#include "assets/window_design.h"

#include <memory>

class QLineEdit;
class QListView;
namespace Ui {
class WEdit;
}

namespace assets {

class EditorWindow : public DesignDialog {
    Q_OBJECT
public:
    // `wortDatei` is the word file being edited; it names the window.
    explicit EditorWindow(const QString& wortDatei, QWidget* parent = nullptr);
    ~EditorWindow() override;

    QLineEdit* Text1() const;
    QListView* List1() const;
    QPushButton* Hinzuf() const;
    QPushButton* Loesch() const;
    QPushButton* Speichern() const;
    QPushButton* OK() const;
    QPushButton* Abbruch() const;

protected:
    void Form_Load(const QString& wortDatei);

private:
    std::unique_ptr<Ui::WEdit> ui_;
};

} // namespace assets
