// A main window that remembers what a module has told it.
#pragma once

#include "desktop/anfitrion.h"

#include <QList>

namespace tarvo {

class AnfitrionPrueba final : public Anfitrion {
  public:
    QList<bool> dicho; // whether a list can be exported, each time it was said
    QString sugerencia;

    bool Exportable() const { return !dicho.isEmpty() && dicho.last(); }
    void PonerExportable(bool posible) override { dicho << posible; }
    void Sugerencia(const QString &texto) override { sugerencia = texto; }
};

} // namespace tarvo
