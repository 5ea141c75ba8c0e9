// Panels that open above a window (searches, pickers, quick entries): how they go.
#pragma once

#include <initializer_list>

class QWidget;

namespace tarvo {

// Gives the focus to the first of `destinos` that is visible and enabled and takes a focus; when none does,
// to the next control in tab order that does. What lies in `panel` gets none.
void EnfocarFuera(const QWidget &panel, std::initializer_list<QWidget *> destinos);

// Hides the panel. The focus has left it before, as EnfocarFuera says, so that no key can reach it any more;
// the window below must be enabled by then.
void CerrarPanel(QWidget &panel, std::initializer_list<QWidget *> destinos);

} // namespace tarvo
