#include "desktop/ventanas/avisarcampo.h"

#include <QApplication>
#include <QToolTip>

namespace tarvo {

void AvisarCampo(QWidget *campo, const QString &texto) {
    QApplication::beep();
    QMetaObject::invokeMethod(
        campo,
        [campo, texto] { QToolTip::showText(campo->mapToGlobal(QPoint(0, campo->height())), texto, campo); },
        Qt::QueuedConnection);
}

} // namespace tarvo
