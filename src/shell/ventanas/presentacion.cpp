#include "shell/ventanas/presentacion.h"

#include <QPainter>
#include <QSvgRenderer>

// A static library drops resources that nobody names.
static void RegistrarImagenes() {
    Q_INIT_RESOURCE(shell);
}

namespace tarvo {

QPixmap ImagenPresentacion(qreal escala) {
    RegistrarImagenes();
    QPixmap imagen((QSizeF(kAnchoPresentacion, kAltoPresentacion) * escala).toSize());
    QPainter pintor(&imagen);
    QSvgRenderer(QStringLiteral(":/shell/presentacion.svg")).render(&pintor);
    pintor.end();
    imagen.setDevicePixelRatio(escala);
    return imagen;
}

} // namespace tarvo
