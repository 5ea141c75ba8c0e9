#include "desktop/ventanas/dialogo.h"

#include <QKeyEvent>

namespace tarvo {

void Dialogo::keyPressEvent(QKeyEvent *evento) {
    if (evento->key() != Qt::Key_Return && evento->key() != Qt::Key_Enter)
        QDialog::keyPressEvent(evento);
}

} // namespace tarvo
