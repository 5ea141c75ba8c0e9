// Full screen of the main window: the window fills the screen without caption and frame, and what it was
// before lies in the settings.
#pragma once

#include "shell/ajustesprincipal.h"

class QWidget;

namespace tarvo {

class PantallaCompleta {
  public:
    PantallaCompleta(QWidget &ventana, AjustesPrincipal ajustes) : ventana_(ventana), ajustes_(ajustes) {}

    void Entrar();
    // A window that was normal takes its stored place back, any other stays as it is, with its frame.
    void Salir();

  private:
    static void OcultarBorde(QWidget &ventana);
    static void MostrarBorde(QWidget &ventana);
    Geometria Actual() const;

    QWidget &ventana_;
    AjustesPrincipal ajustes_;
};

} // namespace tarvo
