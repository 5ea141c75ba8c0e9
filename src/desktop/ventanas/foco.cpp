#include "desktop/ventanas/foco.h"

#include <QWidget>

#include <algorithm>

namespace tarvo {

void EnfocarPrimero(std::initializer_list<QWidget *> controles) {
    const auto *const primero =
        std::ranges::find_if(controles, [](const QWidget *c) { return c->isVisible() && c->isEnabled(); });
    if (primero != controles.end())
        (*primero)->setFocus();
}

} // namespace tarvo
