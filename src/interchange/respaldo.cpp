#include "interchange/respaldo.h"

#include "interchange/archivos.h"
#include "interchange/avance.h"
#include "interchange/copiasegura.h"
#include "interchange/reemplazo.h"
#include "store/comprobacion.h"
#include "store/errordatos.h"
#include "store/store.h"

#include <QDir>

namespace tarvo {

namespace {

void Vaciar(const QDir &datos, const QString &archivo, Avance &avance) {
    Reemplazo reemplazo(datos.path());
    Archivo plantilla(datos.filePath(QStringLiteral("vacio/") + archivo), Archivo::Modo::Leer);
    CopiarSeguro(plantilla, reemplazo.Ruta(archivo), avance);
    reemplazo.Confirmar();
}

void RespaldarBase(const QDir &datos, const QString &archivo, const PedidoRespaldo &pedido, bool vaciar,
                   Avance &avance) {
    const BaseRetenida retenida(datos.filePath(archivo));
    Archivo viva(datos.filePath(archivo), Archivo::Modo::Leer); // closed last: that lets go of the lock
    CopiarSeguro(viva, QDir(pedido.destino).filePath(archivo), avance);
    SincronizarCarpeta(pedido.destino);
    if (vaciar)
        Vaciar(datos, archivo, avance);
}

// False when there is no such file in the backup.
bool Preparar(const QDir &datos, const QString &origen, const QString &destino, const QString &archivo,
              Avance &avance) {
    if (EnUso(datos.filePath(archivo)))
        throw ErrorDatos(errores::kBaseBloqueada,
                         QStringLiteral("Otro programa está usando \"%1\".").arg(archivo));
    try {
        Archivo respaldo(origen, Archivo::Modo::Leer);
        CopiarSeguro(respaldo, destino, avance);
        return true;
    } catch (const ErrorDatos &error) {
        if (error.Numero() != errores::kArchivoNoEncontrado)
            throw;
        return false;
    }
}

} // namespace

QString NombreRespaldo(const QDateTime &momento) {
    return momento.toString(QStringLiteral("yyyy MM dd-HH mm ss"));
}

Resultado Respaldar(FrmBases &bases, const PedidoRespaldo &pedido, Avance &avance, Elegidas &vaciadas) {
    bases.Cerrar();
    const Cerrojo cerrojo(bases.CarpetaDatos());
    const QDir datos(bases.CarpetaDatos());
    TerminarReemplazo(datos.path()); // no copy of old and new files mixed
    CrearCarpeta(pedido.destino);
    for (std::size_t i = 0; i < kBases; ++i) {
        if (pedido.respaldar[i]) {
            if (!avance.Sigue())
                return Resultado::Interrumpido;
            RespaldarBase(datos, BasesRespaldo()[i].archivo, pedido, pedido.vaciar[i], avance);
            vaciadas[i] = pedido.vaciar[i];
        }
        avance.Avanza();
    }
    return Resultado::Completo;
}

Resultado Recuperar(FrmBases &bases, const PedidoRecuperacion &pedido, Avance &avance) {
    bases.Cerrar();
    const Cerrojo cerrojo(bases.CarpetaDatos());
    const QDir datos(bases.CarpetaDatos());
    const QDir origen(pedido.origen);
    Reemplazo reemplazo(datos.path());
    bool alguna = false;
    for (const std::size_t i : kOrdenRecuperar) {
        const QString &archivo = BasesRespaldo()[i].archivo;
        if (pedido.recuperar[i]) {
            if (!avance.Sigue())
                return Resultado::Interrumpido;
            if (Preparar(datos, origen.filePath(archivo), reemplazo.Ruta(archivo), archivo, avance))
                alguna = true;
        }
        avance.Avanza();
    }
    if (alguna)
        reemplazo.Confirmar();
    return Resultado::Completo;
}

} // namespace tarvo
