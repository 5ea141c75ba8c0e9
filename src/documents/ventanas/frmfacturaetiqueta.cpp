#include "documents/ventanas/frmfacturaetiqueta.h"

#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/solocaracteres.h"
#include "ui_frmfacturaetiqueta.h"

namespace tarvo {

FrmFacturaEtiqueta::FrmFacturaEtiqueta(Disenador &disenador, QWidget *padre)
    : Dialogo(padre), disenador_(disenador), ui_(std::make_unique<Ui::FrmFacturaEtiqueta>()) {
    ui_->setupUi(this);
    auto *filtro = new FiltroCampos(this);
    filtro->AlEscapar([this] {
        reject();
        return true;
    });
    SoloCaracteres(ui_->txtSize, QStringLiteral("0123456789"));
    for (QAbstractButton *boton :
         std::initializer_list<QAbstractButton *>{ui_->optIzq, ui_->optCen, ui_->optDer, ui_->chkNegrita,
                                                  ui_->chkItalica, ui_->chkTachado, ui_->chkSubrayado})
        connect(boton, &QAbstractButton::toggled, this, &FrmFacturaEtiqueta::Vestir);
    connect(ui_->cmdAgregarEtiqueta, &QPushButton::clicked, this, &FrmFacturaEtiqueta::Agregar);
    ui_->txtTexto->setFocus();
}

FrmFacturaEtiqueta::~FrmFacturaEtiqueta() = default;

EtiquetaPedida FrmFacturaEtiqueta::Pedida() const {
    int alineacion = 0;
    if (ui_->optDer->isChecked())
        alineacion = 1;
    else if (ui_->optCen->isChecked())
        alineacion = 2;
    return {ui_->txtTexto->text(),         ui_->txtSize->text(),         alineacion,
            ui_->chkNegrita->isChecked(),  ui_->chkItalica->isChecked(), ui_->chkTachado->isChecked(),
            ui_->chkSubrayado->isChecked()};
}

void FrmFacturaEtiqueta::Vestir() {
    const EtiquetaPedida pedida = Pedida();
    constexpr Qt::AlignmentFlag kLados[]{Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
    ui_->txtTexto->setAlignment(kLados[pedida.alineacion] | Qt::AlignVCenter);
    QFont letra = ui_->txtTexto->font();
    letra.setBold(pedida.negrita);
    letra.setItalic(pedida.cursiva);
    letra.setStrikeOut(pedida.tachada);
    letra.setUnderline(pedida.subrayada);
    ui_->txtTexto->setFont(letra);
}

void FrmFacturaEtiqueta::Agregar() {
    switch (disenador_.AgregarEtiqueta(Pedida())) {
    case Disenador::Pedido::FaltaTexto:
        ui_->txtTexto->setFocus();
        break;
    case Disenador::Pedido::MalTamano:
        ui_->txtSize->setFocus();
        break;
    case Disenador::Pedido::SinLugar:
        reject();
        break;
    case Disenador::Pedido::Agregada:
        accept();
        break;
    }
}

} // namespace tarvo
