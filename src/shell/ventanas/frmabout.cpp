#include "shell/ventanas/frmabout.h"

#include "desktop/escritorio.h"
#include "shell/ajustesprincipal.h"
#include "shell/ventanas/presentacion.h"
#include "ui_frmabout.h"

namespace tarvo {

FrmAbout::FrmAbout(const Servicios &servicios, QWidget *padre) : QDialog(padre) {
    Ui::FrmAbout ui;
    ui.setupUi(this);
    const AjustesPrincipal ajustes(servicios.ajustes);
    ui.imgAbout->setPixmap(ImagenPresentacion(devicePixelRatioF()));
    ui.lblMail->setText(ajustes.Correo().path());
    ui.lblWeb->setText(ajustes.SitioFabricante().host());
    Escritorio &escritorio = servicios.escritorio;
    connect(ui.lblMail, &EtiquetaEnlace::Activada, this,
            [&escritorio, correo = ajustes.Correo()] { escritorio.AbrirDireccion(correo); });
    connect(ui.lblWeb, &EtiquetaEnlace::Activada, this,
            [&escritorio, sitio = ajustes.SitioFabricante()] { escritorio.AbrirDireccion(sitio); });
}

} // namespace tarvo
