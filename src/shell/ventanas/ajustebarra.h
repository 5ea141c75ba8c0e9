// The toolbar in one row on a window of any width, its captions whole or not there.
#pragma once

class QToolBar;

namespace tarvo {

// Buttons with room around their captions; where they need more than `ancho` pixels closer together, and
// where that is still too much pictures alone.
void AjustarBarra(QToolBar &barra, int ancho);

} // namespace tarvo
