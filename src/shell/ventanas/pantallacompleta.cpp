#include "shell/ventanas/pantallacompleta.h"

#include "shell/medidas.h"

#include <QWidget>

namespace tarvo {

void PantallaCompleta::OcultarBorde(QWidget &ventana) {
    borde_ = ventana.geometry().topLeft() - ventana.frameGeometry().topLeft();
    ventana.setWindowState(ventana.windowState() | Qt::WindowFullScreen);
}

void PantallaCompleta::MostrarBorde(QWidget &ventana) {
    ventana.setWindowState(ventana.windowState() & ~Qt::WindowFullScreen);
}

Geometria PantallaCompleta::Actual() const {
    return {ventana_.isMaximized() ? kVentanaMaximizada : kVentanaNormal, ATwips(ventana_.x()),
            ATwips(ventana_.y()), ATwips(ventana_.width()), ATwips(ventana_.height())};
}

void PantallaCompleta::Entrar() {
    ajustes_.PonerPantComp(Actual());
    OcultarBorde(ventana_);
}

void PantallaCompleta::Salir() {
    const Geometria antes = ajustes_.PantComp(Actual());
    MostrarBorde(ventana_);
    if (antes.estado != kVentanaNormal)
        return;
    ventana_.setWindowState(ventana_.windowState() & ~Qt::WindowMaximized);
    // The frame comes back later than this, so the place is told without it.
    ventana_.setGeometry(APixeles(antes.x) + borde_.x(), APixeles(antes.y) + borde_.y(),
                         APixeles(antes.ancho), APixeles(antes.alto));
}

} // namespace tarvo
