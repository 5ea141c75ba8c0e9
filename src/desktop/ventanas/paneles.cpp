#include "desktop/ventanas/paneles.h"

#include <QWidget>

namespace tarvo {

namespace {

bool Recibe(const QWidget *control, const QWidget &panel) {
    const QWidget *const final = control->focusProxy() != nullptr ? control->focusProxy() : control;
    return final->focusPolicy() != Qt::NoFocus && final->isEnabled() && final->isVisibleTo(panel.window()) &&
           final != &panel && !panel.isAncestorOf(final);
}

QWidget *SiguienteFuera(const QWidget &panel) {
    for (QWidget *control = panel.nextInFocusChain(); control != &panel;
         control = control->nextInFocusChain())
        if ((control->focusPolicy() & Qt::TabFocus) != 0 && Recibe(control, panel))
            return control;
    return nullptr;
}

} // namespace

void EnfocarFuera(const QWidget &panel, std::initializer_list<QWidget *> destinos) {
    for (QWidget *control : destinos) {
        if (!Recibe(control, panel))
            continue;
        control->setFocus();
        return;
    }
    if (QWidget *control = SiguienteFuera(panel))
        control->setFocus();
}

void CerrarPanel(QWidget &panel, std::initializer_list<QWidget *> destinos) {
    EnfocarFuera(panel, destinos);
    panel.hide();
}

} // namespace tarvo
