// The five header lines of every ticket: table Ticket, and the test ticket that shows how they come out.
#pragma once

#include "desktop/servicios.h"
#include "documents/ticket.h"

namespace tarvo {

class LineasTicket {
  public:
    explicit LineasTicket(Servicios servicios) : servicios_(servicios) {}

    Cabecera Cargar();
    // The five texts, then the five flags, in one write; false after telling why it failed.
    bool Guardar(const Cabecera &lineas);
    // Asks, then prints the lines as they stand in the fields, saved or not, on `impresora` (empty: the
    // current printer). A printer that fails is told.
    void ImprimirPrueba(const Cabecera &lineas, const QString &impresora);

  private:
    Servicios servicios_;
};

} // namespace tarvo
