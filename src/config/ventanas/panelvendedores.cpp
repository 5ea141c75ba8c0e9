#include "config/ventanas/panelvendedores.h"

#include "config/ventanas/panellista.h"
#include "ui_panelvendedores.h"

namespace tarvo {

PanelVendedores::PanelVendedores(const Servicios &servicios, QWidget *padre)
    : QWidget(padre), ui_(std::make_unique<Ui::PanelVendedores>()) {
    ui_->setupUi(this);
    lista_ = std::make_unique<PanelLista>(this, ui_->LVVendedores, QStringLiteral("Ven"), servicios,
                                          ReglasVendedores(servicios.frmBases), kAnchoVendedores);
}

PanelVendedores::~PanelVendedores() = default;

void PanelVendedores::ConectarTeclas(FiltroCampos &filtro) {
    lista_->Controles().ConectarTeclas(filtro);
}

} // namespace tarvo
