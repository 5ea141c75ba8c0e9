// The keys of the main window's entries: read from their file at start, put on the actions, changed in their
// dialog and kept.
#pragma once

#include "shell/atajos.h"

#include <QString>

class QWidget;

namespace tarvo {

class Acciones;
class Preguntas;

class AtajosPrincipal {
  public:
    // `ruta` is the file of the keys. What it says is on the actions from here on; a file that can't be read
    // leaves the keys that the entries start with.
    AtajosPrincipal(Acciones &acciones, Preguntas &preguntas, QString ruta);

    // The dialog, to its end. Each change counts at once and is kept; a file that can't be written is told.
    void Mostrar(QWidget *padre);

  private:
    void Aplicar();
    void Guardar();

    Acciones &acciones_;
    Preguntas &preguntas_;
    QString ruta_;
    Atajos atajos_;
};

} // namespace tarvo
