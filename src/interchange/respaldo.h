// Backup and restore of the data files, as operations without a window.
//
// Both close the data and leave them closed: whoever runs them opens them again with AbrirBases. What fails
// is thrown as an ErrorDatos whose text is for the operator. A copy counts as made when CopiarSeguro says so.
#pragma once

#include "interchange/basesrespaldo.h"

#include <QDateTime>
#include <QString>

namespace tarvo {

class Avance;
class FrmBases;

enum class Resultado { Completo, Interrumpido }; // the second: the Avance ended it before some file

// Name of the folder of a backup that starts at that moment: "2006 05 03-14 07 09".
QString NombreRespaldo(const QDateTime &momento);

struct PedidoRespaldo {
    QString destino; // folder that does not exist yet, in one that does
    Elegidas respaldar{};
    Elegidas vaciar{}; // of those that are copied: the empty template takes their place
};
// A database is emptied once its copy has passed, at once: before or behind that nothing of it is lost. What
// was copied before a failure stays; `vaciadas` tells which ones were emptied until then.
Resultado Respaldar(FrmBases &bases, const PedidoRespaldo &pedido, Avance &avance, Elegidas &vaciadas);

struct PedidoRecuperacion {
    QString origen; // folder of the backup
    Elegidas recuperar{};
};
// All of the chosen files take the place of the live ones, or none. A chosen file that is not there is passed
// over; one that is no sound data file of that name is told by its name, and nothing is changed.
Resultado Recuperar(FrmBases &bases, const PedidoRecuperacion &pedido, Avance &avance);

} // namespace tarvo
