#include "tienda/movimientos.h"

#include <algorithm>
#include <cstdio>

using namespace std::string_literals;

namespace tarvo {

namespace {
constexpr int kDias = 3 * 365;
constexpr int kHabituales = 6;
constexpr int kMinutosApertura = 9 * 60;
constexpr int kMinutosAbierto = 11 * 60;
} // namespace

Movimientos::Movimientos(const std::vector<PrecioMuestra> &precios, int clientes, int vendedores, int total,
                         QDate hasta, const Moneda &moneda)
    : precios_(precios),
      moneda_(moneda),
      clientes_(clientes),
      vendedores_(vendedores),
      total_(total),
      hasta_(hasta) {}

const Movimiento &Movimientos::Hacer(int indice) {
    PonerMomento(indice);
    const int quedan = total_ - indice;
    const auto pendientes = static_cast<int>(pendientes_.size());
    if (pendientes > 0 && (pendientes >= quedan || sorteo_.Cae(10)))
        HacerDevolucion();
    else if (clientes_ > 0 && sorteo_.Cae(8))
        HacerRecibo();
    else
        HacerVenta(quedan > pendientes + 1 && sorteo_.Cae(4));
    return actual_;
}

// The documents spread evenly over the years, and over the opening hours of each day.
void Movimientos::PonerMomento(int indice) {
    const std::int64_t instante = std::int64_t{indice} * kDias * kMinutosAbierto / total_;
    const int dia = static_cast<int>(instante / kMinutosAbierto);
    if (dia != dia_) {
        dia_ = dia;
        actual_.fecha = hasta_.addDays(dia - kDias + 1).toString(QStringLiteral("dd/MM/yyyy")).toStdString();
    }
    const int minuto = kMinutosApertura + static_cast<int>(instante % kMinutosAbierto);
    char hora[16];
    std::snprintf(hora, sizeof hora, "%02d:%02d", minuto / 60, minuto % 60);
    actual_.hora = hora;
}

// One to five lines; each line's IVA is rounded by itself.
Movimientos::Importes Movimientos::SumarLineas() {
    Importes suma;
    for (int lineas = sorteo_.Entre(1, 5); lineas > 0 && !precios_.empty(); --lineas) {
        const PrecioMuestra &precio = sorteo_.Uno(precios_);
        const std::int64_t linea = precio.centimos * sorteo_.Entre(1, 4);
        suma.subtotal += linea;
        suma.iva += (linea * precio.iva + 50) / 100;
    }
    return suma;
}

std::string Movimientos::Cliente() {
    const bool habitual = sorteo_.Cae(50);
    return std::to_string(sorteo_.Entre(1, habitual ? std::min(kHabituales, clientes_) : clientes_));
}

void Movimientos::HacerVenta(bool seDevuelve) {
    const bool conCliente = clientes_ > 0 && sorteo_.Cae(35);
    const bool contado = !conCliente || sorteo_.Cae(40);
    const Importes importes = SumarLineas();
    const int descuento = sorteo_.Cae(10) ? 5 * sorteo_.Entre(1, 4) : 0;
    char numero[24];
    std::snprintf(numero, sizeof numero, "0001-%08d", ++comprobante_);
    actual_.idCliente = conCliente ? Cliente() : "0"s;
    actual_.idOperador = std::to_string(sorteo_.Entre(1, vendedores_));
    actual_.numComp = numero;
    actual_.tipo = contado ? "Contado"s : "Credito"s;
    actual_.descripcion = contado ? "Factura contado"s : "Factura crédito"s;
    actual_.subtotal = Dinero(importes.subtotal);
    actual_.iva = Dinero(importes.iva);
    actual_.total = Dinero(((importes.subtotal + importes.iva) * (100 - descuento) + 50) / 100);
    if (seDevuelve) {
        actual_.descripcion += " (D)"s;
        pendientes_.push_back(
            {contado, actual_.fecha + " - " + actual_.hora, actual_.idCliente, actual_.total});
    }
}

void Movimientos::HacerRecibo() {
    actual_.idCliente = Cliente();
    actual_.idOperador.clear();
    actual_.numComp.clear();
    actual_.tipo = "Recibo"s;
    actual_.descripcion = "Recibo"s;
    actual_.subtotal.clear();
    actual_.iva = "0"s;
    actual_.total = Dinero(std::int64_t{500} * sorteo_.Entre(1, 12));
}

void Movimientos::HacerDevolucion() {
    const Devolucion devolucion = pendientes_.front();
    pendientes_.pop_front();
    actual_.idCliente = devolucion.idCliente;
    actual_.idOperador.clear();
    actual_.numComp.clear();
    actual_.tipo = devolucion.contado ? "DevContado"s : "NotaCredito"s;
    actual_.descripcion = devolucion.contado ? "Devolución contado ("s : "Nota de crédito ("s;
    actual_.descripcion += devolucion.momento + ")";
    actual_.subtotal.clear();
    actual_.iva = "0"s;
    actual_.total = devolucion.total;
}

std::string Movimientos::Dinero(std::int64_t centimos) const {
    std::string texto;
    moneda_.AgregarFormato(texto, static_cast<double>(centimos) / 100.0, true);
    return texto;
}

} // namespace tarvo
