#include "masterdata/ventanas/frmproveedores.h"

#include "masterdata/reglascatalogos.h"
#include "masterdata/ventanas/columnaspersonas.h"
#include "ui_fichaproveedores.h"

namespace tarvo {

FrmProveedores::FrmProveedores(const Servicios &servicios, Anfitrion &anfitrion, QWidget *padre)
    : VentanaCatalogo(
          servicios,
          {QStringLiteral("frmProveedores"),
           QStringLiteral("Proveedores"),
           QStringLiteral("LVProveedores"),
           {QStringLiteral("&Código"), QStringLiteral("&Nombre"), QStringLiteral("Nombre &Fiscal"),
            QStringLiteral("&Id. Fiscal"), QStringLiteral("&Teléfono")},
           ReporteProveedores},
          padre) {
    Ui::FichaProveedores ficha;
    ficha.setupUi(Ficha());
    Montar(ReglasProveedores(servicios.frmBases), anfitrion);
    TrasCampo(ficha.txtEmail);
}

void FrmProveedores::AjustarColumnas() {
    AjustarColumnasPersonas(LV(), AnchoListaTwips());
}

} // namespace tarvo
