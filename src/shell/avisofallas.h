// What happens to an exception that no handler caught: the operator is told, and the program goes on.
#pragma once

#include "desktop/preguntas.h"

#include <exception>

namespace tarvo {

class AvisoFallas {
  public:
    explicit AvisoFallas(Preguntas &preguntas) : preguntas_(preguntas) {}

    // Runs the action and returns its result; true when it ended in an exception.
    template <typename Accion> bool Proteger(Accion accion) {
        try {
            return accion();
        } catch (const std::exception &error) {
            Avisar(QString::fromUtf8(error.what()));
        } catch (...) {
            Avisar(QStringLiteral("causa desconocida"));
        }
        return true;
    }

  private:
    // One box at a time: what fails again while it is shown, as painting may, adds none.
    void Avisar(const QString &motivo) {
        if (avisando_)
            return;
        avisando_ = true;
        preguntas_.Mostrar(QStringLiteral("No se pudo completar la operación: %1").arg(motivo),
                           Icono::Critico);
        avisando_ = false;
    }

    Preguntas &preguntas_;
    bool avisando_ = false;
};

} // namespace tarvo
