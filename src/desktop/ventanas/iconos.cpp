#include "desktop/ventanas/iconos.h"

#include <QFile>

// Outside of the namespace, as the macro asks: the pictures lie in a static library.
static void RegistrarRecursos() {
    Q_INIT_RESOURCE(recursos);
}

namespace tarvo {

QIcon IconoDe(const QString &clave) {
    RegistrarRecursos();
    const QString ruta = QStringLiteral(":/iconos/%1.svg").arg(clave);
    return QFile::exists(ruta) ? QIcon(ruta) : QIcon();
}

} // namespace tarvo
