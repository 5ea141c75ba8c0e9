#include "config/ventanas/panelcategorias.h"

#include "config/ventanas/panellista.h"
#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/solocaracteres.h"
#include "ui_panelcategorias.h"

namespace tarvo {

PanelCategorias::PanelCategorias(const Servicios &servicios, QWidget *padre)
    : QWidget(padre), ui_(std::make_unique<Ui::PanelCategorias>()) {
    ui_->setupUi(this);
    SoloCaracteres(ui_->txtCatCodigo, QStringLiteral("0123456789"));
    lista_ = std::make_unique<PanelLista>(this, ui_->LVCategorias, QStringLiteral("Cat"), servicios,
                                          ReglasCategorias(servicios.frmBases), kAnchoCategorias);
}

PanelCategorias::~PanelCategorias() = default;

void PanelCategorias::ConectarTeclas(FiltroCampos &filtro) {
    lista_->Controles().ConectarTeclas(filtro);
    filtro.AlEntrar(ui_->txtCatCategoria, [this] { lista_->Logica().Guardar(); });
}

} // namespace tarvo
