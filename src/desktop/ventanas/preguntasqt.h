// The real questions: message boxes with Spanish buttons ("Sí", "No", "Aceptar") whatever the system's
// language.
#pragma once

#include "desktop/preguntas.h"

namespace tarvo {

class PreguntasQt final : public Preguntas {
  public:
    Respuesta Preguntar(const QString &texto, Respuesta preseleccionada) override;
    void Mostrar(const QString &texto, Icono icono) override;
};

} // namespace tarvo
