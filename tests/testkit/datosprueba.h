// A temporary folder with the five files for a test: the one-row tables are filled, all others are empty.
#pragma once

#include "store/store.h"
#include "testkit/imprimir.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace tarvo {

class DatosPrueba {
  public:
    explicit DatosPrueba(Moneda moneda = Moneda());

    // Runs SQL on the closed files; the schemas are main, clientes, proveedores, articulos and ventas.
    void Ejecutar(const std::string &sql);
    // Rows of a query, on the closed files or, while they are open, through the connection of the data layer.
    std::vector<std::vector<QString>> Filas(const std::string &sql);
    // The same as one text: "a|b; c|d".
    QString Tabla(const std::string &sql);
    // The data layer, opened when it isn't yet; a test that needs another result of opening calls
    // Bases().Abrir().
    FrmBases &Abrir();
    FrmBases &Bases() { return *bases_; }
    void Cerrar() { bases_->Cerrar(); }

    // The folder of the five files.
    QString Carpeta() const { return carpeta_.path(); }

  private:
    QTemporaryDir carpeta_;
    std::unique_ptr<FrmBases> bases_;
};

} // namespace tarvo
