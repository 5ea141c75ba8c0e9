#include "desktop/ventanas/escritorioqt.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace tarvo {

bool EscritorioQt::AbrirArchivo(const QString &ruta) {
    return QFileInfo::exists(ruta) && QDesktopServices::openUrl(QUrl::fromLocalFile(ruta));
}

bool EscritorioQt::AbrirDireccion(const QUrl &direccion) {
    return QDesktopServices::openUrl(direccion);
}

bool EscritorioQt::AbrirAjustesImpresoras() {
    const QList<QStringList> programas{
        {QStringLiteral("system-config-printer")},
        {QStringLiteral("gnome-control-center"), QStringLiteral("printers")},
        {QStringLiteral("kcmshell5"), QStringLiteral("kcm_printer_manager")},
    };
    for (const QStringList &programa : programas)
        if (!QStandardPaths::findExecutable(programa.first()).isEmpty())
            return QProcess::startDetached(programa.first(), programa.mid(1));
    return AbrirDireccion(QUrl(QStringLiteral("http://localhost:631/printers")));
}

} // namespace tarvo
