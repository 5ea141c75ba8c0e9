// Three years of the sample shop's documents: cash and credit sales, receipts, returns and credit notes, in
// the order of time, each with its mark on the sale that it takes back. The first few customers are regulars,
// with a long history of every kind.
#pragma once

#include "store/moneda.h"
#include "tienda/sorteo.h"

#include <QDate>

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace tarvo {

// What the documents need to know of an article; its amounts before IVA.
struct PrecioMuestra {
    std::int64_t centimos = 0;
    int iva = 0; // percent
};

// One row of Ventas, as text.
struct Movimiento {
    std::string fecha, hora, idCliente, idOperador, numComp, tipo, descripcion, subtotal, iva, total;
};

class Movimientos {
  public:
    // `total` documents that end on the evening of `hasta`.
    Movimientos(const std::vector<PrecioMuestra> &precios, int clientes, int vendedores, int total,
                QDate hasta, const Moneda &moneda);

    // Document number `indice`; they must be asked for in turn, from 0.
    const Movimiento &Hacer(int indice);

  private:
    struct Devolucion {
        bool contado;
        std::string momento; // date, " - ", time of the sale
        std::string idCliente;
        std::string total;
    };
    struct Importes {
        std::int64_t subtotal = 0;
        std::int64_t iva = 0;
    };
    void PonerMomento(int indice);
    void HacerVenta(bool seDevuelve);
    void HacerRecibo();
    void HacerDevolucion();
    std::string Cliente();
    Importes SumarLineas();
    std::string Dinero(std::int64_t centimos) const;

    const std::vector<PrecioMuestra> &precios_;
    const Moneda &moneda_;
    Sorteo sorteo_{777};
    int clientes_;
    int vendedores_;
    int total_;
    int dia_ = -1;
    int comprobante_ = 0;
    QDate hasta_;
    Movimiento actual_;
    std::deque<Devolucion> pendientes_;
};

} // namespace tarvo
