#pragma once
// To a screen reader the spin pictures of the options window are spin buttons: their value is
// the number beside them as it reads, and setting it steps as the Up and Down keys do.
#include "settings/options_rules.h"

class QLabel;
class QWidget;

namespace settings {

// Makes `spin` the spin button of the number label `number`.
void makeSpinButton(QWidget* spin, QLabel* number, Spin range);
// Tells a screen reader that the number now reads `value`.
void spinValueChanged(QWidget* spin, int value);

} // namespace settings
