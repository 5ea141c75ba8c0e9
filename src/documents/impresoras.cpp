#include "documents/impresoras.h"

#include <QSettings>

#include <exception>

namespace tarvo {

QString ElegirImpresora(Impresoras &impresoras, const QSettings &ajustes, Proposito proposito) {
    try {
        const QString clave =
            proposito == Proposito::Ticket ? QStringLiteral("ImpTick") : QStringLiteral("ImpList");
        const QString nombre = ajustes.value(clave).toString();
        if (impresoras.Nombres().contains(nombre))
            impresoras.HacerActual(nombre);
        return impresoras.Actual();
    } catch (const std::exception &) {
        // A window opens on a machine without printers too: what is wrong shows when something is printed.
        return {};
    }
}

} // namespace tarvo
