#include "masterdata/ventanas/panelcategoria.h"

#include "desktop/ventanas/solocaracteres.h"
#include "ui_panelcategoria.h"

namespace tarvo {

PanelCategoria::PanelCategoria(QWidget *padre) : QFrame(padre), ui_(std::make_unique<Ui::PanelCategoria>()) {
    ui_->setupUi(this);
    txtCatCodigo = ui_->txtCatCodigo;
    txtCatCategoria = ui_->txtCatCategoria;
    cmdCatGuardar = ui_->cmdCatGuardar;
    cmdCatCancelar = ui_->cmdCatCancelar;
    txtCatCategoria->setMinimumWidth(40 * fontMetrics().averageCharWidth());
    SoloCaracteres(txtCatCodigo, QStringLiteral("0123456789"));
    hide();
}

PanelCategoria::~PanelCategoria() = default;

void PanelCategoria::Vaciar() {
    txtCatCodigo->clear();
    txtCatCategoria->clear();
}

} // namespace tarvo
