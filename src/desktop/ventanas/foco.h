// Where the focus goes when what had it goes away.
#pragma once

#include <initializer_list>

class QWidget;

namespace tarvo {

// Gives the focus to the first of `controles` that can take it: visible and enabled, with all that it lies
// in. Whoever closes a panel calls it, so that no key ever reaches what is hidden.
void EnfocarPrimero(std::initializer_list<QWidget *> controles);

} // namespace tarvo
