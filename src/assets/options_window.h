#pragma once
// The options window: the window definition, its control arrays and its load-time captions.
#include "assets/window_design.h"

#include <array>
#include <memory>

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;
class QTimer;
namespace Ui {
class Einst;
}

namespace assets {

class OptionsWindow : public DesignDialog {
    Q_OBJECT
public:
    explicit OptionsWindow(QWidget* parent = nullptr);
    ~OptionsWindow() override;

    const std::array<QLineEdit*, 4>& Spieler_Name() const { return spielerName_; }
    const std::array<QRadioButton*, 2>& wiederh() const { return wiederh_; }
    const std::array<QLabel*, 4>& Label() const { return label_; }
    const std::array<QLabel*, 2>& Zahl() const { return zahl_; }
    const std::array<QLabel*, 2>& plumin() const { return plumin_; }
    const std::array<QLabel*, 3>& s() const { return s_; }
    QCheckBox* Anzeige() const;
    QCheckBox* Sound() const;
    QPushButton* OK() const;
    QPushButton* EditButt() const;
    QLabel* Label1() const;
    QLabel* Label2() const;
    QLabel* Label3() const;
    QListWidget* wortsch() const;
    QListWidget* Motiv() const;
    // Repeats a held spin button: 200 ms, off until a press.
    QTimer* Timer1() const { return timer1_; }

protected:
    void Form_Load();

private:
    std::unique_ptr<Ui::Einst> ui_;
    std::array<QLineEdit*, 4> spielerName_{};
    std::array<QRadioButton*, 2> wiederh_{};
    std::array<QLabel*, 4> label_{};
    std::array<QLabel*, 2> zahl_{};
    std::array<QLabel*, 2> plumin_{};
    std::array<QLabel*, 3> s_{};
    QTimer* timer1_ = nullptr;
};

} // namespace assets
