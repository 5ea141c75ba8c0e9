// The custom tax as the one row of table Impuesto holds it, for the sale that charges it and the options that
// edit it.
#pragma once

#include <QString>

namespace tarvo {

class FrmBases;

struct ImpuestoPersonalizado {
    bool utilizar = false;
    QString nombre;
    QString porcentaje;        // a plain number, as it was typed
    bool sobreIva = false;     // the base is subtotal plus IVA, else the subtotal
    bool exigeIFiscal = false; // charged only on a customer with fiscal id
    bool sinCondicion = false; // charged on every sale; a table may hold neither of the two

    bool Corresponde(bool hayIFiscal) const {
        return utilizar && (sinCondicion || (exigeIFiscal && hayIFiscal));
    }
    bool operator==(const ImpuestoPersonalizado &) const = default;
};

// All off when the table can't be read or has no row.
ImpuestoPersonalizado LeerImpuesto(FrmBases &frmBases);

} // namespace tarvo
