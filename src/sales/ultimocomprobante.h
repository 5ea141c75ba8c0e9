// The document that was issued last, until the program ends: to print its ticket again, or its invoice on the
// shop's form.
//
// It is kept in memory alone. Nothing of it is written to the store, and printing asks nothing.
#pragma once

#include "desktop/servicios.h"
#include "documents/comprobante.h"

#include <QObject>

#include <optional>

namespace tarvo {

class UltimoComprobante : public QObject {
    Q_OBJECT
  public:
    explicit UltimoComprobante(const Servicios &servicios) : servicios_(servicios) {}

    void Poner(const Comprobante &comprobante);
    // Empty until the first issue.
    const std::optional<Comprobante> &Documento() const { return documento_; }
    // An invoice layout is stored.
    bool HayDiseno() const;

    // Both print on the ticket printer; what fails is told through `preguntas`. The layout is read at this
    // moment.
    void ReimprimirTicket(Preguntas &preguntas);
    void ImprimirFactura(Preguntas &preguntas);

  signals:
    void Cambiado();

  private:
    Servicios servicios_;
    std::optional<Comprobante> documento_;
};

} // namespace tarvo
