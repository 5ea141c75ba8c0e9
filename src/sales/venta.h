// The sale in progress: its article list with the working stock, its lines, customer, payment kind, discount,
// document number, seller and moment.
//
// It lives in memory alone. Nothing reaches the store before the issue (emision.h), and a fresh article list
// drops the working stock. Rows are those of the lists, in the order on screen.
#pragma once

#include "desktop/reloj.h"
#include "sales/listasventa.h"
#include "sales/totales.h"

#include <QHash>

#include <optional>

namespace tarvo {

class FrmBases;

enum class Pago { Contado, Credito };

// While a customer is being picked nothing else of the sale changes.
enum class EstadoVenta { Vacia, EnCurso, EligiendoCliente };

// What is said of an article before it is added.
struct ResumenArticulo {
    QString nombre;
    QString conIva; // price of a unit, as a line of one would be charged; empty when the price is no amount
    QString stock;  // what is left
};

// What the customer gets back of what he hands over.
struct VueltoVenta {
    QString rotulo;  // "Vuelto", or "Falta" while it is too little
    QString importe; // money text, never negative; empty when what he hands over is no number
};

struct ClienteVenta {
    QString nombre;
    QString ruc; // fiscal id
    QString id;
    QString codigo;
};

class Venta {
  public:
    explicit Venta(FrmBases &frmBases);

    ListaTexto &Articulos() { return articulos_; }
    const ListaTexto &Articulos() const { return articulos_; }
    ListaTexto &Detalle() { return detalle_; }
    const ListaTexto &Detalle() const { return detalle_; }
    bool EnCurso() const { return detalle_.Filas() > 0; }

    EstadoVenta Estado() const;
    // Begins or ends the picking of a customer.
    void PonerEligiendo(bool si) { eligiendo_ = si; }

    // Fills the article list anew from the store.
    void CargarArticulos();

    // Empty without such a row.
    ResumenArticulo Resumen(int fila) const;
    // Why the article in row `fila` can't be sold, for the operator: a price that is no amount, a stock that
    // can't be computed. Empty when it can.
    QString Impedimento(int fila) const;
    // Adds `cantidad` units of the article in row `fila`: to its line, or as a new line at the end. There is
    // no check against the stock, which may fall below zero. Returns the line; -1, and nothing changes,
    // without such a row or with an impediment.
    int Agregar(int fila, qint64 cantidad);
    // "Yerba mate: 2 x $ 100,00 = $ 200,00".
    QString TextoLinea(int fila) const;
    // Removes the whole line and gives its quantity back to the working stock.
    void Quitar(int fila);

    // Starts over: no lines, no customer, cash, consumer final, fresh stock. Discount, number and seller
    // stay.
    void Reiniciar();

    Pago pago() const { return pago_; }
    // False, and nothing changes, for credit without a customer.
    bool PonerPago(Pago pago);

    const ClienteVenta &Cliente() const { return cliente_; }
    // The customer in row `fila` of a list with the columns of LVClientes. A fiscal id switches "consumer
    // final" off, its absence on; the payment kind stays.
    void ElegirCliente(const ListaTexto &clientes, int fila);

    bool ConsumidorFinal() const { return consumidorFinal_; }
    // The operator's switch. On, with a fiscal customer: the customer is dropped and the sale is cash again.
    // Off, without one: it stays on.
    void PonerConsumidorFinal(bool si);

    int Descuento() const { return descuento_; }
    QString TextoDescuento() const; // "10 %"
    // The field as the operator left it: digits; empty is 0, above 100 is 100.
    void PonerDescuento(const QString &tecleado);

    // Whatever the operator has typed; may be empty.
    const QString &NumComp() const { return numComp_; }
    void PonerNumComp(const QString &numero) { numComp_ = numero; }
    // The seller as the combo shows him.
    const QString &Vendedor() const { return vendedor_; }
    void PonerVendedor(const QString &vendedor) { vendedor_ = vendedor; }
    // Moment of the document, as text: that of the last tick of the window's clock.
    QString Fecha() const { return TextoFecha(momento_); }
    QString Hora() const { return TextoHora(momento_); }
    void PonerMomento(const QDateTime &momento) { momento_ = momento; }

    ImpuestoPersonalizado Impuesto() const { return LeerImpuesto(frmBases_); }
    Totales CalcularTotales() const;
    // On the amount of the document; `entregado` may have either separator.
    VueltoVenta Vuelto(const QString &entregado) const;

    // Whether some article has this barcode.
    bool ConBarras(const QString &codigo) const;
    // Row of LVArticulos of that article, -1 when the list does not have it.
    int FilaArticulo(const QString &id) const;

  private:
    void QuitarCliente();
    std::optional<QString> StockMenos(int fila, qint64 cantidad) const;
    void DescontarStock(int fila, qint64 cantidad);
    QString IvaDe(int filaArticulo, qint64 cantidad) const;
    void CompletarLinea(int fila, qint64 cantidad, int filaArticulo);

    FrmBases &frmBases_;
    ListaTexto articulos_;
    ListaTexto detalle_;
    // Where the articles of the lines were when they were added: the first place to look, since the list may
    // hold many thousands and seldom changes its order.
    QHash<QString, int> filasConocidas_;
    ClienteVenta cliente_;
    Pago pago_ = Pago::Contado;
    bool consumidorFinal_ = true;
    bool eligiendo_ = false;
    int descuento_ = 0;
    QString numComp_;
    QString vendedor_ = SinVendedor();
    QDateTime momento_;
};

} // namespace tarvo
