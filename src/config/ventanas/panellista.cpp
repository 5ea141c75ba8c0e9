#include "config/ventanas/panellista.h"

#include "desktop/ventanas/listavista.h"

namespace tarvo {

PanelLista::PanelLista(QWidget *panel, ListaVista *lista, const QString &prefijo, const Servicios &servicios,
                       ReglasDetalle reglas, ReglaAncho ancho)
    : QObject(panel),
      controles_(panel, lista, prefijo),
      logica_(servicios.frmBases, servicios.preguntas, controles_, std::move(reglas)) {
    controles_.Montar(logica_);
    connect(&controles_, &ControlesDetalle::FilasCambiadas, this,
            [this, lista, ancho] { lista->PonerAncho(1, ancho.Para(logica_.Lista().Filas())); });
}

} // namespace tarvo
