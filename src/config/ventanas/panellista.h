// A list panel of the options: list, text fields and five buttons, with the rules of one table.
#pragma once

#include "config/reglaslistas.h"
#include "desktop/servicios.h"
#include "masterdata/listadetalle.h"
#include "masterdata/ventanas/controlesdetalle.h"

namespace tarvo {

class PanelLista : public QObject {
    Q_OBJECT
  public:
    // The controls stand in `panel`; `prefijo` is the Xxx of the buttons cmdXxxNuevo and so on.
    PanelLista(QWidget *panel, ListaVista *lista, const QString &prefijo, const Servicios &servicios,
               ReglasDetalle reglas, ReglaAncho ancho);

    ListaDetalle &Logica() { return logica_; }
    ControlesDetalle &Controles() { return controles_; }

  private:
    ControlesDetalle controles_;
    ListaDetalle logica_;
};

} // namespace tarvo
