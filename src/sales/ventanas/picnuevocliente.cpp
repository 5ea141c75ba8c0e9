#include "sales/ventanas/picnuevocliente.h"

#include "desktop/preguntas.h"
#include "store/errordatos.h"
#include "ui_picnuevocliente.h"

#include <algorithm>

namespace tarvo {

PicNuevoCliente::PicNuevoCliente(const Servicios &servicios, QWidget *padre)
    : QFrame(padre),
      ui_(std::make_unique<Ui::PicNuevoCliente>()),
      servicios_(servicios),
      alta_(servicios.frmBases) {
    ui_->setupUi(this);
    hide();
    connect(ui_->cmdGuardarCliente, &QPushButton::clicked, this, &PicNuevoCliente::Guardar);
    connect(ui_->cmdCancelarCliente, &QPushButton::clicked, this, &PicNuevoCliente::Cerrar);
}

PicNuevoCliente::~PicNuevoCliente() = default;

QLineEdit *PicNuevoCliente::Campo(const char *control) const {
    return findChild<QLineEdit *>(QLatin1String(control));
}

void PicNuevoCliente::Abrir() {
    try {
        alta_.Comenzar();
    } catch (const ErrorDatos &error) {
        servicios_.preguntas.Mostrar(
            QStringLiteral("No se puede ingresar un cliente. %1").arg(error.Descripcion()), Icono::Critico);
        return;
    }
    for (const AltaCliente::CampoAlta &campo : AltaCliente::Campos())
        Campo(campo.control)->clear();
    show();
    raise();
    emit Abierto();
    ui_->txtCodigo->setFocus();
}

void PicNuevoCliente::Cerrar() {
    alta_.Cancelar();
    hide();
    emit Cerrado();
}

bool PicNuevoCliente::FaltaRequerido() {
    const std::pair<QLineEdit *, QString> requeridos[] = {{ui_->txtCodigo, QStringLiteral("Código")},
                                                          {ui_->txtNombre, QStringLiteral("Nombre")}};
    const auto *const falta = std::find_if(std::begin(requeridos), std::end(requeridos),
                                           [](const auto &campo) { return campo.first->text().isEmpty(); });
    if (falta == std::end(requeridos))
        return false;
    servicios_.preguntas.InformarRequerido(falta->second);
    falta->first->setFocus();
    return true;
}

void PicNuevoCliente::Guardar() {
    if (FaltaRequerido())
        return;
    QStringList valores;
    for (const AltaCliente::CampoAlta &campo : AltaCliente::Campos())
        valores += Campo(campo.control)->text();
    try {
        alta_.Guardar(valores);
    } catch (const ErrorDatos &error) {
        servicios_.preguntas.Mostrar(error.Descripcion() +
                                         QStringLiteral("\n\nLos datos del cliente siguen en pantalla."),
                                     Icono::Critico);
        return;
    }
    emit Guardado();
    Cerrar();
}

} // namespace tarvo
