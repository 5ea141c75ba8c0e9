// The printed listings of the accounts: "VENTAS CONTADO", "ESTADO DE CUENTA", "PLANILLA DE CAJA".
#pragma once

#include "accounts/listascuenta.h"
#include "documents/listado.h"

namespace tarvo {

// The listing of a list as it stands on screen; the list must outlive it. `cliente` heads the statement,
// `saldo` is the sum under the list.
ReporteCatalogo ReporteCuenta(const ListaTexto &lista, ListaCuenta cual, const QString &cliente,
                              const QString &saldo);

} // namespace tarvo
