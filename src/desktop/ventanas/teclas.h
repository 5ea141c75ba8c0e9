// Keys of buttons.
#pragma once

class QAbstractButton;
class QKeySequence;

namespace tarvo {

// `tecla` presses `boton` wherever in its window the focus is, as long as the button is visible and enabled.
// The button's tooltip tells the key.
void PonerTecla(QAbstractButton *boton, const QKeySequence &tecla);

} // namespace tarvo
