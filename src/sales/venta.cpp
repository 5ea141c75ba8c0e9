#include "sales/venta.h"

#include "desktop/unalinea.h"
#include "masterdata/selectorclientes.h"
#include "sales/existencias.h"
#include "store/store.h"

#include <algorithm>
#include <cmath>

namespace tarvo {

namespace {

constexpr qsizetype kNombreMayor = 80; // of an article, in a message

QString NombreCorto(const QString &nombre) {
    const QString linea = EnUnaLinea(nombre.left(kNombreMayor));
    return nombre.size() > kNombreMayor ? linea + QStringLiteral("…") : linea;
}

// The list shows an amount only for a price that is one; any other text stands there as it is.
bool EsImporte(const QString &celda, const Moneda &moneda) {
    return celda == moneda.FormatoMoneda(moneda.SinSimbolo(celda), true);
}

} // namespace

Venta::Venta(FrmBases &frmBases)
    : frmBases_(frmBases), articulos_(ColumnasArticulos()), detalle_(ColumnasDetalle()) {}

void Venta::CargarArticulos() {
    filasConocidas_.clear();
    tarvo::CargarArticulos(frmBases_, articulos_);
}

EstadoVenta Venta::Estado() const {
    if (eligiendo_)
        return EstadoVenta::EligiendoCliente;
    return EnCurso() ? EstadoVenta::EnCurso : EstadoVenta::Vacia;
}

ResumenArticulo Venta::Resumen(int fila) const {
    if (fila < 0 || fila >= articulos_.Filas())
        return {};
    const Moneda &moneda = frmBases_.moneda();
    const QString precio = articulos_.Celda(fila, articulo::Precio);
    ResumenArticulo resumen{
        articulos_.Celda(fila, articulo::Nombre), {}, articulos_.Celda(fila, articulo::Stock)};
    if (EsImporte(precio, moneda))
        resumen.conIva = moneda.FormatoMoneda(moneda.Importe(precio) + moneda.Importe(IvaDe(fila, 1)), true);
    return resumen;
}

QString Venta::Impedimento(int fila) const {
    const QString nombre = NombreCorto(articulos_.Celda(fila, articulo::Nombre));
    const QString precio = articulos_.Celda(fila, articulo::Precio);
    if (!EsImporte(precio, frmBases_.moneda()))
        return QStringLiteral("El precio del artículo \"%1\" no es un número: \"%2\".\n\n"
                              "Corríjalo en Artículos para poder venderlo.")
            .arg(nombre, NombreCorto(precio));
    const QString stock = articulos_.Celda(fila, articulo::Stock);
    if (StockMenos(fila, 1))
        return {};
    const QString motivo = Moneda::EsNumero(stock) ? QStringLiteral("tiene demasiadas cifras")
                                                   : QStringLiteral("no es un número");
    return QStringLiteral("El stock del artículo \"%1\" %2: \"%3\".\n\n"
                          "Corríjalo en Artículos para poder venderlo.")
        .arg(nombre, motivo, NombreCorto(stock));
}

int Venta::Agregar(int fila, qint64 cantidad) {
    if (fila < 0 || fila >= articulos_.Filas() || !Impedimento(fila).isEmpty())
        return -1;
    const QString id = articulos_.Celda(fila, articulo::Id);
    filasConocidas_.insert(id, fila);
    int renglon = detalle_.Buscar(linea::IdArticulo, articulos_.CeldaUtf8(fila, articulo::Id));
    qint64 total = cantidad;
    if (renglon >= 0)
        total += detalle_.Celda(renglon, linea::Cantidad).toLongLong();
    else
        renglon = detalle_.AgregarFila({articulos_.Celda(fila, articulo::Codigo),
                                        articulos_.Celda(fila, articulo::Nombre),
                                        articulos_.Celda(fila, articulo::Precio),
                                        {},
                                        {},
                                        id,
                                        {}});
    DescontarStock(fila, cantidad);
    CompletarLinea(renglon, total, fila);
    return renglon;
}

QString Venta::IvaDe(int filaArticulo, qint64 cantidad) const {
    const Moneda &moneda = frmBases_.moneda();
    const double precio = moneda.Importe(articulos_.Celda(filaArticulo, articulo::Precio));
    // The neutral reading stops at a comma: 10,5% is charged as 10.
    const double porcentaje = Moneda::NumeroNeutro(articulos_.CeldaUtf8(filaArticulo, articulo::Iva));
    return moneda.FormatoMoneda(precio * (porcentaje / 100) * static_cast<double>(cantidad), true);
}

void Venta::CompletarLinea(int fila, qint64 cantidad, int filaArticulo) {
    const Moneda &moneda = frmBases_.moneda();
    const double precio = moneda.Importe(detalle_.Celda(fila, linea::Precio));
    detalle_.PonerCelda(fila, linea::Cantidad, QString::number(cantidad));
    detalle_.PonerCelda(fila, linea::Subtotal,
                        moneda.FormatoMoneda(static_cast<double>(cantidad) * precio, true));
    detalle_.PonerCelda(fila, linea::Iva, IvaDe(filaArticulo, cantidad));
}

QString Venta::TextoLinea(int fila) const {
    return QStringLiteral("%1: %2 x %3 = %4")
        .arg(detalle_.Celda(fila, linea::Nombre), detalle_.Celda(fila, linea::Cantidad),
             detalle_.Celda(fila, linea::Precio), detalle_.Celda(fila, linea::Subtotal));
}

std::optional<QString> Venta::StockMenos(int fila, qint64 cantidad) const {
    return RestarExistencias(articulos_.Celda(fila, articulo::Stock), cantidad, frmBases_.moneda());
}

void Venta::DescontarStock(int fila, qint64 cantidad) {
    const std::optional<QString> stock = StockMenos(fila, cantidad);
    if (!stock)
        return;
    articulos_.PonerCelda(fila, articulo::Stock, *stock);
    articulos_.PonerTono(fila, articulo::Stock, TonoStock(frmBases_.moneda().Numero(*stock)));
}

void Venta::Quitar(int fila) {
    if (fila < 0 || fila >= detalle_.Filas())
        return;
    const int filaArticulo = FilaArticulo(detalle_.Celda(fila, linea::IdArticulo));
    if (filaArticulo >= 0)
        DescontarStock(filaArticulo, -detalle_.Celda(fila, linea::Cantidad).toLongLong());
    detalle_.QuitarFila(fila);
}

void Venta::Reiniciar() {
    CargarArticulos();
    detalle_.Limpiar();
    QuitarCliente();
    consumidorFinal_ = true;
}

bool Venta::PonerPago(Pago pago) {
    if (pago == Pago::Credito && cliente_.nombre.isEmpty())
        return false;
    pago_ = pago;
    return true;
}

void Venta::QuitarCliente() {
    cliente_ = {};
    pago_ = Pago::Contado;
}

void Venta::ElegirCliente(const ListaTexto &clientes, int fila) {
    cliente_ = {clientes.Celda(fila, cliente::Nombre), clientes.Celda(fila, cliente::IFiscal),
                clientes.Celda(fila, cliente::Id), clientes.Celda(fila, cliente::Codigo)};
    consumidorFinal_ = cliente_.ruc.isEmpty();
}

void Venta::PonerConsumidorFinal(bool si) {
    if (si && !cliente_.ruc.isEmpty())
        QuitarCliente();
    consumidorFinal_ = si || cliente_.ruc.isEmpty();
}

QString Venta::TextoDescuento() const {
    return QStringLiteral("%1 %").arg(descuento_);
}

void Venta::PonerDescuento(const QString &tecleado) {
    // Read as a double, so that any number of digits is just a big number.
    descuento_ = static_cast<int>(std::clamp(tecleado.toDouble(), 0.0, 100.0));
}

Totales Venta::CalcularTotales() const {
    return tarvo::CalcularTotales(detalle_, Impuesto(), !cliente_.ruc.isEmpty(), descuento_,
                                  frmBases_.moneda());
}

VueltoVenta Venta::Vuelto(const QString &entregado) const {
    VueltoVenta vuelto{QStringLiteral("Vuelto"), {}};
    if (entregado.trimmed().isEmpty() || !Moneda::EsNumero(entregado))
        return vuelto;
    const Moneda &moneda = frmBases_.moneda();
    const double resto = moneda.Importe(moneda.FormatoMoneda(entregado, true)) -
                         moneda.Importe(CalcularTotales().conDescuento);
    if (resto < 0)
        vuelto.rotulo = QStringLiteral("Falta");
    vuelto.importe = moneda.FormatoMoneda(std::abs(resto), true);
    return vuelto;
}

bool Venta::ConBarras(const QString &codigo) const {
    return articulos_.Buscar(articulo::CodBarras, codigo.toStdString()) >= 0;
}

int Venta::FilaArticulo(const QString &id) const {
    const std::string buscado = id.toStdString();
    const int conocida = filasConocidas_.value(id, -1);
    if (conocida >= 0 && conocida < articulos_.Filas() &&
        articulos_.CeldaUtf8(conocida, articulo::Id) == buscado)
        return conocida;
    return articulos_.Buscar(articulo::Id, buscado);
}

} // namespace tarvo
