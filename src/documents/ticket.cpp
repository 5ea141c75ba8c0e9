#include "documents/ticket.h"

#include "desktop/reloj.h"
#include "store/store.h"

#include <algorithm>
#include <cmath>

namespace tarvo {

namespace {

constexpr int kColumnaCentro = 14;
constexpr double kPuntosCabecera = 11;
constexpr double kPuntosCuerpo = 8;

LineaCabecera Leer(const Campo &linea, const Campo &negrita) {
    return {linea.Texto(), negrita.Es(std::string_view("S"))};
}

// Slips round the half of an odd length to the even column; the test ticket, below, truncates it.
int ColumnaCentrada(const QString &texto) {
    return static_cast<int>(std::nearbyint(kColumnaCentro - static_cast<double>(texto.size()) / 2));
}

int ColumnaCentradaPrueba(const QString &texto) {
    return kColumnaCentro - static_cast<int>(texto.size() / 2);
}

template <typename Columna>
void LineasCabecera(Superficie &papel, const Cabecera &cabecera, const Columna &columna) {
    for (const LineaCabecera &linea : cabecera) {
        papel.Negrita(linea.negrita);
        papel.Columna(columna(linea.texto));
        papel.Linea(linea.texto);
    }
}

void LineaCuerpo(Superficie &papel, const QString &texto) {
    papel.Linea(Cortar(texto, kColumnasTicket));
}

// A label and its amount on one line: a label too long for it is cut and keeps a blank before the amount.
void Renglon(Superficie &papel, const QString &rotulo, const QString &importe) {
    papel.Texto(Cortar(rotulo, kColumnasTicket - importe.size() - 1));
    AlFinal(papel, importe);
}

void Encabezado(Superficie &papel, const Cabecera &cabecera, const Comprobante &venta) {
    ImprimirCabecera(papel, cabecera, venta.fecha, venta.hora);
    if (!venta.cliente.isEmpty()) {
        LineaCuerpo(papel, QStringLiteral("Cliente    ") + venta.cliente);
        papel.Negrita(false);
        if (!venta.idFiscal.isEmpty())
            LineaCuerpo(papel, QStringLiteral("Id. Fiscal ") + venta.idFiscal);
    }
    papel.Negrita(false);
    LineaCuerpo(papel, venta.tipo);
    if (!venta.numero.isEmpty())
        LineaCuerpo(papel, QStringLiteral("Nº Comprobante ") + venta.numero);
    Raya(papel);
}

void Detalle(Superficie &papel, const std::vector<LineaComprobante> &lineas) {
    papel.Negrita(true);
    Renglon(papel, QStringLiteral("Detalle"), QStringLiteral("Total"));
    papel.Negrita(false);
    for (const LineaComprobante &linea : lineas) {
        papel.Texto(Cortar(linea.nombre, kLargoDetalle));
        AlFinal(papel, linea.subtotal);
        LineaCuerpo(papel, QStringLiteral("  %1 x %2").arg(linea.cantidad, linea.precioUnitario));
    }
    Raya(papel);
}

void Totales(Superficie &papel, const Comprobante &venta) {
    Renglon(papel, QStringLiteral("Subtotal"), venta.subtotal);
    Renglon(papel, QStringLiteral("IVA"), venta.iva);
    if (!venta.nombreImpuesto.isEmpty())
        Renglon(papel, venta.nombreImpuesto, venta.impuesto);
    Renglon(papel, QStringLiteral("Total"), venta.total);
    Renglon(papel, QStringLiteral("Descuento"), venta.descuento);
    papel.Negrita(true);
    Renglon(papel, QStringLiteral("Total c/Descuento"), venta.totalConDescuento);
    papel.Negrita(false);
}

} // namespace

Cabecera LeerCabecera(FrmBases &frmBases) {
    frmBases.datTicket.MoveFirst();
    return {Leer(frmBases.camTicLinea1, frmBases.camTicN1), Leer(frmBases.camTicLinea2, frmBases.camTicN2),
            Leer(frmBases.camTicLinea3, frmBases.camTicN3), Leer(frmBases.camTicLinea4, frmBases.camTicN4),
            Leer(frmBases.camTicLinea5, frmBases.camTicN5)};
}

void ImprimirCabecera(Superficie &papel, const Cabecera &cabecera, const QString &fecha,
                      const QString &hora) {
    papel.FinLinea();
    papel.FinLinea();
    papel.Familia(QStringLiteral("Courier New"));
    papel.Tamano(kPuntosCabecera);
    LineasCabecera(papel, cabecera, ColumnaCentrada);
    papel.FinLinea();
    papel.Tamano(kPuntosCuerpo);
    papel.Texto(fecha);
    papel.Columna(static_cast<int>(fecha.size()) + 4);
    papel.Linea(hora);
    papel.FinLinea();
}

void ImprimirCabecera(Superficie &papel, const Cabecera &cabecera, const QDateTime &momento) {
    ImprimirCabecera(papel, cabecera, TextoFecha(momento), TextoHora(momento));
}

void Raya(Superficie &papel) {
    papel.Linea(QString(kColumnasTicket, QLatin1Char('-')));
}

void AlFinal(Superficie &papel, const QString &importe) {
    papel.Columna(kColumnasTicket - static_cast<int>(importe.size()));
    papel.Linea(importe);
}

void ImprimirTicket(Superficie &papel, const Cabecera &cabecera, const Comprobante &venta) {
    Encabezado(papel, cabecera, venta);
    Detalle(papel, venta.lineas);
    Totales(papel, venta);
    LineaCuerpo(papel, QStringLiteral("Vendedor ") + venta.vendedor);
    papel.FinLinea();
    papel.FinLinea();
    papel.Terminar();
}

void ImprimirTicketPrueba(Superficie &papel, const Cabecera &lineas) {
    papel.Familia(QStringLiteral("Courier New"));
    papel.Tamano(kPuntosCabecera);
    papel.FinLinea();
    LineasCabecera(papel, lineas, ColumnaCentradaPrueba);
    papel.Terminar();
}

} // namespace tarvo
