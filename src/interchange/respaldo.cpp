#include "interchange/respaldo.h"

#include "interchange/archivos.h"
#include "interchange/avance.h"
#include "interchange/copiasegura.h"
#include "interchange/reemplazo.h"
#include "store/comprobacion.h"
#include "store/errordatos.h"
#include "store/store.h"

#include <QDir>

#include <optional>
#include <vector>

namespace tarvo {

namespace {

void Vaciar(const QDir &datos, const QString &archivo, Avance &avance) {
    Reemplazo reemplazo(datos.path());
    Archivo plantilla(datos.filePath(QStringLiteral("vacio/") + archivo), Archivo::Modo::Leer);
    CopiarSeguro(plantilla, reemplazo.Ruta(archivo), avance).Exigir(avance);
    reemplazo.Confirmar();
}

// Before a database is emptied its copy has passed, and all those before it.
void RespaldarBase(const QDir &datos, const QString &archivo, const PedidoRespaldo &pedido, bool vaciar,
                   std::vector<Examen> &examenes, Avance &avance) {
    const BaseRetenida retenida(datos.filePath(archivo));
    Archivo viva(datos.filePath(archivo), Archivo::Modo::Leer); // closed last: that lets go of the lock
    examenes.push_back(CopiarSeguro(viva, QDir(pedido.destino).filePath(archivo), avance));
    SincronizarCarpeta(pedido.destino);
    if (!vaciar)
        return;
    Exigir(examenes, avance);
    Vaciar(datos, archivo, avance);
}

// Nothing when there is no such file in the backup.
std::optional<Examen> Preparar(const QDir &datos, const QString &origen, const QString &destino,
                               const QString &archivo, Avance &avance) {
    if (EnUso(datos.filePath(archivo)))
        throw ErrorDatos(errores::kBaseBloqueada,
                         QStringLiteral("Otro programa está usando \"%1\".").arg(archivo));
    try {
        Archivo respaldo(origen, Archivo::Modo::Leer);
        return CopiarSeguro(respaldo, destino, avance);
    } catch (const ErrorDatos &error) {
        if (error.Numero() != errores::kArchivoNoEncontrado)
            throw;
        return std::nullopt;
    }
}

} // namespace

QString NombreRespaldo(const QDateTime &momento) {
    return momento.toString(QStringLiteral("yyyy MM dd-HH mm ss"));
}

Resultado Respaldar(FrmBases &bases, const PedidoRespaldo &pedido, Avance &avance, Elegidas &vaciadas) {
    CrearCarpeta(pedido.destino);
    bases.Cerrar();
    const Cerrojo cerrojo(bases.CarpetaDatos());
    const QDir datos(bases.CarpetaDatos());
    TerminarReemplazo(datos.path()); // no copy of old and new files mixed
    std::vector<Examen> examenes;
    for (std::size_t i = 0; i < kBases; ++i) {
        if (pedido.respaldar[i]) {
            if (!avance.Sigue()) {
                Exigir(examenes, avance); // what is told as copied has passed
                return Resultado::Interrumpido;
            }
            RespaldarBase(datos, BasesRespaldo()[i].archivo, pedido, pedido.vaciar[i], examenes, avance);
            vaciadas[i] = pedido.vaciar[i];
        }
        avance.Avanza();
    }
    Exigir(examenes, avance);
    return Resultado::Completo;
}

Resultado Recuperar(FrmBases &bases, const PedidoRecuperacion &pedido, Avance &avance) {
    bases.Cerrar();
    const Cerrojo cerrojo(bases.CarpetaDatos());
    const QDir datos(bases.CarpetaDatos());
    const QDir origen(pedido.origen);
    Reemplazo reemplazo(datos.path());
    std::vector<Examen> examenes;
    for (const std::size_t i : kOrdenRecuperar) {
        const QString &archivo = BasesRespaldo()[i].archivo;
        if (pedido.recuperar[i]) {
            if (!avance.Sigue())
                return Resultado::Interrumpido;
            if (auto examen =
                    Preparar(datos, origen.filePath(archivo), reemplazo.Ruta(archivo), archivo, avance))
                examenes.push_back(std::move(*examen));
        }
        avance.Avanza();
    }
    if (!examenes.empty()) {
        Exigir(examenes, avance);
        reemplazo.Confirmar();
    }
    return Resultado::Completo;
}

} // namespace tarvo
