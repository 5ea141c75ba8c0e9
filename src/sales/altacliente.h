// The quick entry of a customer from inside a sale: fourteen fields, a row that is pending until it is saved.
//
// Unlike the customers window there is no check for a repeated code.
#pragma once

#include "store/store.h"

#include <QStringList>

#include <array>

namespace tarvo {

class AltaCliente {
  public:
    struct CampoAlta {
        const char *control; // objectName of the field
        Campo FrmBases::*campo;
    };
    // In the order in which they are shown and written; the first two are required.
    static const std::array<CampoAlta, 14> &Campos();

    explicit AltaCliente(FrmBases &frmBases) : frmBases_(frmBases) {}
    // An entry that is still open is dropped.
    ~AltaCliente() { Cancelar(); }
    AltaCliente(const AltaCliente &) = delete;
    AltaCliente &operator=(const AltaCliente &) = delete;

    bool Abierta() const { return abierta_; }
    // Starts the pending row. Throws ErrorDatos when the table is not open.
    void Comenzar();
    // Writes the row with these values, one per field. Throws ErrorDatos; then no row is written, the entry
    // stays open and can be saved again.
    void Guardar(const QStringList &valores);
    // Drops the pending row.
    void Cancelar();

  private:
    FrmBases &frmBases_;
    bool abierta_ = false;
};

} // namespace tarvo
