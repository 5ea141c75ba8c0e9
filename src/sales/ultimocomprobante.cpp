#include "sales/ultimocomprobante.h"

#include "desktop/preguntas.h"
#include "documents/factura.h"
#include "documents/impresoras.h"
#include "documents/superficie.h"
#include "documents/ticket.h"
#include "store/errordatos.h"
#include "store/store.h"

#include <exception>
#include <functional>

namespace tarvo {

namespace {

// What the one row of table Factura holds; nothing when it can't be read.
struct AjustesFactura {
    QString ruta;
    int lineas = 0;
};

AjustesFactura LeerAjustes(FrmBases &bases) {
    try {
        bases.datFactura.MoveFirst();
        return {bases.camFacRutaFactura.Texto(), bases.camFacCantLineas.Texto().toInt()};
    } catch (const ErrorDatos &) {
        return {};
    }
}

void AvisarImpresion(Preguntas &preguntas, const std::exception &error) {
    preguntas.Mostrar(QStringLiteral("No se pudo imprimir. %1").arg(QString::fromUtf8(error.what())),
                      Icono::Critico);
}

void Imprimir(const Servicios &servicios, Preguntas &preguntas, ClasePapel clase, const QString &titulo,
              const std::function<void(Superficie &)> &imprimir) {
    try {
        ElegirImpresora(servicios.impresoras, servicios.ajustes, Proposito::Ticket);
        const auto papel = servicios.impresoras.NuevoDocumento(clase, titulo);
        imprimir(*papel);
    } catch (const std::exception &error) {
        AvisarImpresion(preguntas, error);
    }
}

} // namespace

void UltimoComprobante::Poner(const Comprobante &comprobante) {
    documento_ = comprobante;
    emit Cambiado();
}

bool UltimoComprobante::HayDiseno() const {
    return !LeerAjustes(servicios_.frmBases).ruta.isEmpty();
}

void UltimoComprobante::ReimprimirTicket(Preguntas &preguntas) {
    if (!documento_)
        return;
    Cabecera cabecera;
    try {
        cabecera = LeerCabecera(servicios_.frmBases);
    } catch (const ErrorDatos &error) {
        AvisarImpresion(preguntas, error);
        return;
    }
    Imprimir(servicios_, preguntas, ClasePapel::Rollo, documento_->tipo,
             [&](Superficie &papel) { ImprimirTicket(papel, cabecera, *documento_); });
}

void UltimoComprobante::ImprimirFactura(Preguntas &preguntas) {
    const AjustesFactura ajustes = LeerAjustes(servicios_.frmBases);
    if (!documento_ || ajustes.ruta.isEmpty())
        return;
    FormularioFactura formulario;
    try {
        CargarFormulario(ajustes.ruta, formulario);
    } catch (const ErrorDatos &error) {
        AvisarLectura(preguntas, error);
        return;
    }
    Imprimir(
        servicios_, preguntas, ClasePapel::Formulario, QStringLiteral("Factura"),
        [&](Superficie &papel) { tarvo::ImprimirFactura(papel, formulario, *documento_, ajustes.lineas); });
}

} // namespace tarvo
