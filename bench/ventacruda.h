// The peer of a sale: the same row and the same stocks, written by the engine's own C interface.
#pragma once

#include "comparacion.h"

namespace comparacion {

constexpr int kLineas = 10; // of every sale that is measured

class VentaCruda {
  public:
    explicit VentaCruda(const QString &carpeta) : cruda_(carpeta) {
        documento_ =
            cruda_.Preparar("INSERT INTO ventas.Ventas(fecha,hora,idcliente,tipo,descripcion,subtotal,iva,"
                            "total,numcomp,idoperador) VALUES(?,?,?,?,?,?,?,?,?,?)");
        stock_ = cruda_.Preparar("UPDATE articulos.Articulos SET stock=? WHERE id=?");
    }
    // Sells the articles 1, 1 + paso, 1 + 2 * paso...
    void Vender(int numero, int paso) {
        const std::string n = std::to_string(numero);
        cruda_.Sql("BEGIN IMMEDIATE");
        Cruda::Ejecutar(documento_, {"22/11/2026", "10:42", "0", "Contado", "Factura contado", "$ 437,50",
                                     "$ 87,75", "$ 525,25", n, "1"});
        for (int linea = 0; linea < kLineas; ++linea)
            Cruda::Ejecutar(stock_, {n, std::to_string(1 + linea * paso)});
        cruda_.Sql("COMMIT");
    }

  private:
    Cruda cruda_;
    sqlite3_stmt *documento_;
    sqlite3_stmt *stock_;
};

} // namespace comparacion
