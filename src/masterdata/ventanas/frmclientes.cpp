#include "masterdata/ventanas/frmclientes.h"

#include "masterdata/reglascatalogos.h"
#include "masterdata/ventanas/columnaspersonas.h"
#include "ui_fichaclientes.h"

namespace tarvo {

FrmClientes::FrmClientes(const Servicios &servicios, Anfitrion &anfitrion, QWidget *padre)
    : VentanaCatalogo(
          servicios,
          {QStringLiteral("frmClientes"),
           QStringLiteral("Clientes"),
           QStringLiteral("LVClientes"),
           {QStringLiteral("&Código"), QStringLiteral("&Nombre"), QStringLiteral("Nombre &Fiscal"),
            QStringLiteral("&Id. Fiscal"), QStringLiteral("&Teléfono 1")},
           ReporteClientes},
          padre) {
    Ui::FichaClientes ficha;
    ficha.setupUi(Ficha());
    Montar(ReglasClientes(servicios.frmBases), anfitrion);
    TrasCampo(ficha.txtWebPage);
}

void FrmClientes::AjustarColumnas() {
    AjustarColumnasPersonas(LV(), AnchoListaTwips());
}

} // namespace tarvo
