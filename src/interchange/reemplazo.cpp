#include "interchange/reemplazo.h"

#include "interchange/archivos.h"
#include "interchange/basesrespaldo.h"
#include "store/errordatos.h"
#include "store/store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace tarvo {

namespace {

QString EnPreparacion(const QString &datos) {
    return QDir(datos).filePath(QStringLiteral("nuevos.tmp"));
}

QString Decididos(const QString &datos) {
    return QDir(datos).filePath(QStringLiteral("nuevos"));
}

// What can't be taken away now does no harm: nothing reads it, and the next preparation tells.
void QuitarPreparacion(const QString &datos) {
    const QDir carpeta(EnPreparacion(datos));
    for (const BaseRespaldo &base : BasesRespaldo())
        QFile::remove(carpeta.filePath(base.archivo));
    QDir(datos).rmdir(carpeta.dirName());
}

QStringList Pendientes(const QDir &decididos) {
    QStringList pendientes;
    for (const BaseRespaldo &base : BasesRespaldo())
        if (QFileInfo::exists(decididos.filePath(base.archivo)))
            pendientes << base.archivo;
    return pendientes;
}

} // namespace

// A journal that a power cut left beside a live file must never be played back into the one that follows it:
// it is gone from the disk before that one comes.
void TerminarReemplazo(const QString &datos) {
    const QDir decididos(Decididos(datos));
    if (!decididos.exists())
        return;
    const QDir vivos(datos);
    const QStringList pendientes = Pendientes(decididos);
    for (const QString &archivo : pendientes)
        Quitar(vivos.filePath(archivo + QStringLiteral("-journal")));
    SincronizarCarpeta(datos);
    for (const QString &archivo : pendientes)
        Renombrar(decididos.filePath(archivo), vivos.filePath(archivo));
    SincronizarCarpeta(datos);
    QDir(datos).rmdir(decididos.dirName()); // nothing is left in it to do
}

Reemplazo::Reemplazo(const QString &carpetaDatos) : datos_(carpetaDatos) {
    TerminarReemplazo(datos_);
    QuitarPreparacion(datos_);
    CrearCarpeta(EnPreparacion(datos_));
}

Reemplazo::~Reemplazo() {
    QuitarPreparacion(datos_);
}

QString Reemplazo::Ruta(const QString &archivo) const {
    return QDir(EnPreparacion(datos_)).filePath(archivo);
}

void Reemplazo::Confirmar() {
    SincronizarCarpeta(EnPreparacion(datos_));
    Renombrar(EnPreparacion(datos_), Decididos(datos_));
    try {
        SincronizarCarpeta(datos_);
        TerminarReemplazo(datos_);
    } catch (const ErrorDatos &error) {
        throw ErrorDatos(error.Numero(),
                         error.Descripcion() +
                             QStringLiteral("\nSe terminará cuando se vuelvan a abrir los datos."));
    }
}

ResultadoApertura AbrirBases(FrmBases &bases) {
    try {
        const Cerrojo cerrojo(bases.CarpetaDatos());
        TerminarReemplazo(bases.CarpetaDatos());
        QuitarPreparacion(bases.CarpetaDatos());
        return bases.AbrirInsistiendo();
    } catch (const ErrorDatos &error) {
        bases.NoAbrir(error.Descripcion());
        if (error.Numero() != errores::kBaseBloqueada)
            throw;
        return {EstadoApertura::Bloqueada, QString(), error.Motivo()};
    }
}

} // namespace tarvo
