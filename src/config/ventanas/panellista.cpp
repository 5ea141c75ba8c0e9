#include "config/ventanas/panellista.h"

#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/listavista.h"

#include <QLineEdit>
#include <QPushButton>
#include <QStyle>

namespace tarvo {

PanelLista::PanelLista(QWidget *panel, ListaVista *lista, const QString &prefijo, const Servicios &servicios,
                       ReglasDetalle reglas, ReglaAncho ancho)
    : QObject(panel),
      panel_(panel),
      vista_(lista),
      ancho_(ancho),
      logica_(servicios.frmBases, servicios.preguntas, *this, std::move(reglas)),
      cmdNuevo(Boton(prefijo, "Nuevo", &ListaDetalle::Nuevo)),
      cmdGuardar(Boton(prefijo, "Guardar", &ListaDetalle::Guardar)),
      cmdEliminar(Boton(prefijo, "Eliminar", &ListaDetalle::Eliminar)),
      cmdActualizar(Boton(prefijo, "Actualizar", &ListaDetalle::Actualizar)),
      cmdCancelar(Boton(prefijo, "Cancelar", &ListaDetalle::Cancelar)) {
    for (const CampoDetalle &campo : logica_.Reglas().campos)
        campos_.push_back(panel->findChild<QLineEdit *>(QLatin1String(campo.control)));
    vista_->Mostrar(&logica_.Lista());
    connect(vista_, &ListaVista::FilaPulsada, this, [this] { logica_.Mostrar(); });
    for (auto cambio : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&logica_.Lista(), cambio, this, &PanelLista::AjustarAncho);
    connect(&logica_.Lista(), &QAbstractItemModel::modelReset, this, &PanelLista::AjustarAncho);
}

QPushButton *PanelLista::Boton(const QString &prefijo, const char *nombre, void (ListaDetalle::*accion)()) {
    auto *boton =
        panel_->findChild<QPushButton *>(QStringLiteral("cmd%1%2").arg(prefijo, QLatin1String(nombre)));
    connect(boton, &QPushButton::clicked, this, [this, accion] { (logica_.*accion)(); });
    return boton;
}

void PanelLista::ConectarTeclas(FiltroCampos &filtro) {
    filtro.AlSuprimir(vista_, [this] { logica_.Eliminar(); });
}

void PanelLista::AjustarAncho() {
    vista_->PonerAncho(1, ancho_.Para(logica_.Lista().Filas()));
}

QString PanelLista::Texto(int campo) const {
    return campos_[std::size_t(campo)]->text();
}

void PanelLista::Poner(int campo, const QString &texto) {
    campos_[std::size_t(campo)]->setText(texto);
}

void PanelLista::HabilitarCampos(bool conDatos) {
    for (QLineEdit *campo : campos_) {
        campo->setEnabled(conDatos);
        campo->setProperty("sinDatos", !conDatos);
        campo->style()->polish(campo);
    }
}

void PanelLista::EnfocarCampo(int campo) {
    campos_[std::size_t(campo)]->setFocus();
}

int PanelLista::FilaActual() const {
    return vista_->FilaActual();
}

void PanelLista::SeleccionarFila(int fila) {
    vista_->SeleccionarFila(fila);
}

void PanelLista::HabilitarLista(bool habilitada) {
    vista_->setEnabled(habilitada);
    emit ListaHabilitada(habilitada);
}

void PanelLista::EnfocarLista() {
    // The first fill comes before the window is on screen.
    if (panel_->isVisibleTo(panel_->window()))
        vista_->setFocus();
}

void PanelLista::MostrarBotones(const Botones &botones) {
    cmdNuevo->setEnabled(botones.nuevo);
    cmdGuardar->setEnabled(botones.guardar);
    cmdEliminar->setEnabled(botones.eliminar);
    cmdActualizar->setEnabled(botones.actualizar);
    cmdCancelar->setEnabled(botones.cancelar);
}

} // namespace tarvo
