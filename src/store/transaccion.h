// One action of the operator that writes: everything of it is in all files, or nothing is.
//
// Open it before the first write and call Confirmar when the action is whole; without that, or after an
// error, its end takes everything back and the cursors forget what they had in memory. Nothing interactive
// belongs between the two. Transactions don't nest. Windows use `Almacenar` (desktop/almacenar.h), which runs
// an action in one and tells the operator how it went.
#pragma once

#include <QStringList>

namespace tarvo {

class FrmBases;

// What makes two actions of the operator the same one tried again: the kind of action and what it stores, as
// far as that doesn't change by itself, as a clock does. The operator reads the first text.
using Operacion = QStringList;

class Transaccion {
  public:
    // Throws ErrorDatos when the engine refuses to begin. When the outcome of an earlier transaction is still
    // unknown, it is asked for first: OperacionAnterior when that one stands, kSinComprobar when it can't be
    // told yet. An empty `operacion` is never the same as another.
    explicit Transaccion(FrmBases &bases, const Operacion &operacion = {});
    ~Transaccion();
    Transaccion(const Transaccion &) = delete;
    Transaccion &operator=(const Transaccion &) = delete;

    // Makes the writes durable. A COMMIT that reports an error is judged by what the files then hold: if the
    // writes are there it counts as done, else ErrorDatos(kEscritura) is thrown and nothing has happened.
    // When not even that can be read, ErrorDatos(kSinComprobar) is thrown; the next transaction asks again.
    void Confirmar();

  private:
    FrmBases &bases_;
    bool abierta_ = true;
};

} // namespace tarvo
