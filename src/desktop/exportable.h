// A list on screen as the export takes it.
#pragma once

#include <QString>

namespace tarvo {

class ListaTexto;

struct Exportable {
    const ListaTexto *lista;
    QString nombre;    // of the list control ("LVClientes"): tells which export it is
    QString saldo{};   // foot of the lists of the accounts, as on screen
    QString cliente{}; // whose statement it is
};

} // namespace tarvo
