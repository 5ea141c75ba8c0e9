#include "desktop/ventanas/dialogo.h"

#include "desktop/ventanas/ritmoteclas.h"

#include <QKeyEvent>

namespace tarvo {

void Dialogo::keyPressEvent(QKeyEvent *evento) {
    if (!EsEntrar(evento->key()))
        QDialog::keyPressEvent(evento);
}

} // namespace tarvo
