#include "desktop/ventanas/iconos.h"

#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QVariant>

// Outside of the namespace, as the macro asks: the pictures lie in a static library.
static void RegistrarRecursos() {
    Q_INIT_RESOURCE(recursos);
}

namespace tarvo {

namespace {

QIcon Leer(const QString &clave) {
    RegistrarRecursos();
    const QString ruta = QStringLiteral(":/iconos/%1.svg").arg(clave);
    return QFile::exists(ruta) ? QIcon(ruta) : QIcon();
}

} // namespace

// The table lies with the application: pictures must not outlive it.
QIcon IconoDe(const QString &clave) {
    using Tabla = QHash<QString, QIcon>;
    constexpr const char *kTabla = "iconosTarvo";
    Tabla tabla = qApp->property(kTabla).value<Tabla>();
    if (const auto icono = tabla.constFind(clave); icono != tabla.constEnd())
        return *icono;
    QIcon icono = Leer(clave);
    tabla.insert(clave, icono);
    qApp->setProperty(kTabla, QVariant::fromValue(tabla));
    return icono;
}

} // namespace tarvo
