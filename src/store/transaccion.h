// One action of the operator that writes: everything of it is in all files, or nothing is.
//
// Open it before the first write and call Confirmar when the action is whole; without that, or after an
// error, its end takes everything back and the cursors forget what they had in memory. Nothing interactive
// belongs between the two. Transactions don't nest.
#pragma once

namespace tarvo {

class FrmBases;

class Transaccion {
  public:
    // Throws ErrorDatos when the engine refuses to begin.
    explicit Transaccion(FrmBases &bases);
    ~Transaccion();
    Transaccion(const Transaccion &) = delete;
    Transaccion &operator=(const Transaccion &) = delete;

    // Makes the writes durable. A COMMIT that reports an error is judged by what the files then hold: if the
    // writes are there it counts as done, else ErrorDatos(kEscritura) is thrown and nothing has happened.
    void Confirmar();

  private:
    FrmBases &bases_;
    bool abierta_ = true;
};

} // namespace tarvo
