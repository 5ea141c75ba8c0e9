#include "masterdata/ventanas/picnuevocliente.h"

#include "desktop/preguntas.h"
#include "desktop/ventanas/teclas.h"
#include "masterdata/altacliente.h"
#include "masterdata/reglascatalogos.h"
#include "ui_fichaclientes.h"
#include "ui_picnuevocliente.h"

#include <algorithm>

namespace tarvo {

PicNuevoCliente::PicNuevoCliente(const Servicios &servicios, QWidget *padre)
    : QFrame(padre), ui_(std::make_unique<Ui::PicNuevoCliente>()), servicios_(servicios) {
    ui_->setupUi(this);
    Ui::FichaClientes ficha;
    ficha.setupUi(ui_->ficha);
    for (const CampoDetalle &campo : CamposClientes(servicios.frmBases))
        campos_.push_back(ui_->ficha->findChild<QLineEdit *>(QLatin1String(campo.control)));
    setTabOrder(ficha.txtWebPage, ui_->cmdGuardarCliente);
    setTabOrder(ui_->cmdGuardarCliente, ui_->cmdCancelarCliente);
    hide();
    PonerTecla(ui_->cmdGuardarCliente, Qt::CTRL | Qt::Key_G);
    connect(ui_->cmdGuardarCliente, &QPushButton::clicked, this, &PicNuevoCliente::Guardar);
    connect(ui_->cmdCancelarCliente, &QPushButton::clicked, this, &PicNuevoCliente::Cerrar);
}

PicNuevoCliente::~PicNuevoCliente() = default;

void PicNuevoCliente::Abrir() {
    for (QLineEdit *campo : campos_)
        campo->clear();
    show();
    raise();
    emit Abierto();
    campos_.front()->setFocus();
}

void PicNuevoCliente::Cerrar() {
    hide();
    emit Cerrado();
}

bool PicNuevoCliente::EntradaEnCurso() const {
    return !isHidden() &&
           std::ranges::any_of(campos_, [](const QLineEdit *campo) { return !campo->text().isEmpty(); });
}

bool PicNuevoCliente::FaltaRequerido(const QStringList &valores) {
    const std::vector<CampoDetalle> campos = CamposClientes(servicios_.frmBases);
    const std::optional<int> vacio = RequeridoVacio(campos, valores);
    if (vacio) {
        const auto cual = static_cast<std::size_t>(*vacio);
        servicios_.preguntas.InformarRequerido(campos[cual].requerido);
        campos_[cual]->setFocus();
    }
    return vacio.has_value();
}

void PicNuevoCliente::Guardar() {
    QStringList valores;
    for (const QLineEdit *campo : campos_)
        valores += campo->text();
    if (FaltaRequerido(valores) || !GuardarClienteNuevo(servicios_, valores))
        return;
    emit Guardado();
    Cerrar();
}

} // namespace tarvo
