#include "shell/apertura.h"

#include <QDir>
#include <QFileInfo>

namespace tarvo {

namespace {

QString AyudaInstalada(const QString &carpetaPrograma) {
    return QDir::cleanPath(carpetaPrograma + QStringLiteral("/../share/tarvo/tarvo27me.pdf"));
}

} // namespace

QString MensajeBloqueada() {
    return QStringLiteral(
        "La Base de datos se encuentra abierta en modo exclusivo por otro usuario, debe cerrarla "
        "antes de iniciar la aplicación.");
}

QString AvisoApertura(const ResultadoApertura &resultado) {
    if (resultado.estado != EstadoApertura::Parcial)
        return {};
    if (resultado.archivo.isEmpty())
        return QStringLiteral("No se pudieron abrir los datos: %1").arg(resultado.motivo);
    return QStringLiteral("No se pudo abrir %1: %2").arg(resultado.archivo, resultado.motivo);
}

QString AvisoLugar(const QString &datos, const QString &carpetaPrograma) {
    const QString lugar = QFileInfo(datos).canonicalFilePath();
    if (lugar == QFileInfo(carpetaPrograma).canonicalFilePath() + QStringLiteral("/Datos"))
        return {};
    return QStringLiteral("Datos en %1").arg(QDir::toNativeSeparators(lugar));
}

QString AvisoDano(const QString &archivo, const QString &motivo) {
    return QStringLiteral("No se pudo leer %1: %2").arg(archivo, motivo);
}

QString UnirAvisos(QStringList avisos) {
    avisos.removeAll(QString());
    return avisos.join(QStringLiteral("   "));
}

bool EstaInstalado(const QString &carpetaPrograma) {
    return QFileInfo::exists(AyudaInstalada(carpetaPrograma));
}

QString RutaAyuda(const QString &carpetaPrograma) {
    const QString propia = carpetaPrograma + QStringLiteral("/tarvo27me.pdf");
    return EstaInstalado(carpetaPrograma) && !QFileInfo::exists(propia) ? AyudaInstalada(carpetaPrograma)
                                                                        : propia;
}

} // namespace tarvo
