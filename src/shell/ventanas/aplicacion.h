// The application: an exception that no handler caught is told to the operator and never ends the program.
#pragma once

#include "shell/avisofallas.h"

#include <QApplication>

namespace tarvo {

class Aplicacion : public QApplication {
    Q_OBJECT
  public:
    // `argc` and `preguntas` must outlive it.
    Aplicacion(int &argc, char **argv, Preguntas &preguntas);

    bool notify(QObject *receptor, QEvent *evento) override;

  private:
    AvisoFallas aviso_;
};

} // namespace tarvo
