#include "sales/altacliente.h"

#include "store/errordatos.h"
#include "store/transaccion.h"

namespace tarvo {

const std::array<AltaCliente::CampoAlta, 14> &AltaCliente::Campos() {
    static const std::array<CampoAlta, 14> campos{{{"txtCodigo", &FrmBases::camCliCodigo},
                                                   {"txtNombre", &FrmBases::camCliNombre},
                                                   {"txtNFiscal", &FrmBases::camCliNFiscal},
                                                   {"txtIFiscal", &FrmBases::camCliIFiscal},
                                                   {"txtDocumento", &FrmBases::camCliDocumento},
                                                   {"txtDomicilio", &FrmBases::camCliDomicilio},
                                                   {"txtPoblacion", &FrmBases::camCliPoblacion},
                                                   {"txtCPostal", &FrmBases::camCliCPostal},
                                                   {"txtProvincia", &FrmBases::camCliProvincia},
                                                   {"txtTel1", &FrmBases::camCliTel1},
                                                   {"txtTel2", &FrmBases::camCliTel2},
                                                   {"txtFax", &FrmBases::camCliFax},
                                                   {"txtMail", &FrmBases::camCliMail},
                                                   {"txtWebPage", &FrmBases::camCliWebPage}}};
    return campos;
}

void AltaCliente::Comenzar() {
    frmBases_.datClientes.AddNew();
    abierta_ = true;
}

void AltaCliente::Guardar(const QStringList &valores) {
    Transaccion transaccion(frmBases_);
    // After a refused save the pending row is gone: it starts again.
    if (!frmBases_.datClientes.FilaNueva())
        frmBases_.datClientes.AddNew();
    for (std::size_t i = 0; i < Campos().size(); ++i)
        frmBases_.*Campos()[i].campo = valores.at(static_cast<qsizetype>(i));
    frmBases_.datClientes.Refresh();
    transaccion.Confirmar();
    abierta_ = false;
}

void AltaCliente::Cancelar() {
    if (!abierta_)
        return;
    abierta_ = false;
    try {
        if (frmBases_.datClientes.FilaNueva())
            frmBases_.datClientes.MoveFirst();
    } catch (const ErrorDatos &) {
        // The pending row is dropped before the first row is read; only the reading can fail.
    }
}

} // namespace tarvo
