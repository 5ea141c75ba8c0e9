// The real questions: message boxes with Spanish buttons ("Sí", "No", "Aceptar") whatever the system's
// language, and Qt's own file dialogs, which look and work the same on every desktop.
#pragma once

#include "desktop/preguntas.h"

class QWidget;

namespace tarvo {

// Whether this window, or none, is a box of these questions.
bool EsPregunta(const QWidget *ventana);

class PreguntasQt final : public Preguntas {
  public:
    Respuesta Preguntar(const QString &texto, Respuesta preseleccionada) override;
    void Mostrar(const QString &texto, Icono icono) override;
    // A name to save that is typed without an ending gets that of the filter.
    QString ElegirRuta(const PedidoRuta &pedido) override;
};

} // namespace tarvo
