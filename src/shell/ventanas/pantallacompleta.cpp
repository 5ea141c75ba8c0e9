#include "shell/ventanas/pantallacompleta.h"

#include "shell/medidas.h"

#include <QWidget>
#include <QWindow>

namespace tarvo {

void PantallaCompleta::OcultarBorde(QWidget &ventana) {
    ventana.setWindowState(ventana.windowState() | Qt::WindowFullScreen);
}

void PantallaCompleta::MostrarBorde(QWidget &ventana) {
    ventana.setWindowState(ventana.windowState() & ~Qt::WindowFullScreen);
}

// The place is the one of the frame, asked of the window system: the widget learns late of a frame that comes
// or goes.
Geometria PantallaCompleta::Actual() const {
    const QPoint sitio = ventana_.windowHandle()->framePosition();
    return {ventana_.isMaximized() ? kVentanaMaximizada : kVentanaNormal, ATwips(sitio.x()),
            ATwips(sitio.y()), ATwips(ventana_.width()), ATwips(ventana_.height())};
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
    ventana_.resize(APixeles(antes.ancho), APixeles(antes.alto));
    ventana_.windowHandle()->setFramePosition({APixeles(antes.x), APixeles(antes.y)});
}

} // namespace tarvo
