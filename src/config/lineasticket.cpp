#include "config/lineasticket.h"

#include "config/escritura.h"
#include "desktop/preguntas.h"
#include "documents/impresoras.h"
#include "store/store.h"

namespace tarvo {

Cabecera LineasTicket::Cargar() {
    return LeerCallando([&bases = servicios_.frmBases] {
        return FilaUnica(bases.datTicket) ? LeerCabecera(bases) : Cabecera{};
    });
}

bool LineasTicket::Guardar(const Cabecera &lineas) {
    FrmBases &bases = servicios_.frmBases;
    const std::array<Campo *, 5> textos{&bases.camTicLinea1, &bases.camTicLinea2, &bases.camTicLinea3,
                                        &bases.camTicLinea4, &bases.camTicLinea5};
    const std::array<Campo *, 5> negritas{&bases.camTicN1, &bases.camTicN2, &bases.camTicN3, &bases.camTicN4,
                                          &bases.camTicN5};
    QStringList valores;
    for (const auto &linea : lineas)
        valores << linea.texto << (linea.negrita ? QStringLiteral("S") : QStringLiteral("N"));
    return EscribirFilaUnica(servicios_, bases.datTicket, valores, [&] {
        for (std::size_t i = 0; i < lineas.size(); ++i)
            textos[i]->Poner(lineas[i].texto);
        for (std::size_t i = 0; i < lineas.size(); ++i)
            negritas[i]->Poner(lineas[i].negrita ? QStringLiteral("S") : QStringLiteral("N"));
    });
}

void LineasTicket::ImprimirPrueba(const Cabecera &lineas, const QString &impresora) {
    if (!servicios_.preguntas.Confirma(QStringLiteral("Desea imprimir un ticket de prueba?"), Respuesta::Si))
        return;
    try {
        if (!impresora.isEmpty())
            servicios_.impresoras.HacerActual(impresora);
        const auto papel =
            servicios_.impresoras.NuevoDocumento(ClasePapel::Rollo, QStringLiteral("Ticket de prueba"));
        ImprimirTicketPrueba(*papel, lineas);
    } catch (const ErrorDatos &error) {
        servicios_.preguntas.Mostrar(
            QStringLiteral("No se pudo imprimir el ticket de prueba.\n%1").arg(error.Descripcion()),
            Icono::Critico);
    }
}

} // namespace tarvo
