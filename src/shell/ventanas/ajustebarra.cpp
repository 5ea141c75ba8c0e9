#include "shell/ventanas/ajustebarra.h"

#include "desktop/ventanas/estilo.h"

#include <QToolBar>

namespace tarvo {

namespace {

void PonerForma(QToolBar &barra, Qt::ToolButtonStyle estilo, bool estrecha) {
    barra.setToolButtonStyle(estilo);
    for (QAction *accion : barra.actions())
        Marcar(barra.widgetForAction(accion), "estrecho", estrecha);
}

} // namespace

void AjustarBarra(QToolBar &barra, int ancho) {
    const auto cabe = [&barra, ancho] { return barra.sizeHint().width() <= ancho; };
    for (const bool estrecha : {false, true}) {
        PonerForma(barra, Qt::ToolButtonTextUnderIcon, estrecha);
        if (cabe())
            return;
    }
    PonerForma(barra, Qt::ToolButtonIconOnly, true);
}

} // namespace tarvo
