// The one way in which a window stores something: an action that writes, as one transaction, and the box that
// tells the operator how it went wrong.
#pragma once

#include "store/transaccion.h"

#include <QString>

#include <functional>

namespace tarvo {

class Preguntas;

// Runs `escribir`, which writes through the cursors, as one transaction. True when it is stored: the window
// then goes on as after success. False when nothing was written; the operator has been told, and the entry
// can be stored again as it stands.
//
// A write that the disk refuses is tried once more before anything is told, so `escribir` may run twice: it
// begins its new rows itself. `siFalla` is added to the message of a refusal. `operacion` names the action
// and what it stores ("Venta", lines, customer): when an earlier try with the same texts had an unknown
// outcome and turns out to be stored, the operator is told, nothing is written and the result is true. With
// other texts he is told too, by the first text of the stored one, and the result is false.
bool Almacenar(FrmBases &frmBases, Preguntas &preguntas, const Operacion &operacion,
               const std::function<void()> &escribir, const QString &siFalla = {});

} // namespace tarvo
