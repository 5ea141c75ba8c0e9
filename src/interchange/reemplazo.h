// New data files take the place of the live ones: all of them or none, whatever moment the power goes.
//
// They are prepared in the folder "nuevos.tmp" of the data. Renaming it to "nuevos" is the one moment that
// decides: before it the next opening takes the files away, behind it the next opening finishes the work. The
// data must be closed.
#pragma once

#include <QString>

namespace tarvo {

class FrmBases;
struct ResultadoApertura;

class Reemplazo {
  public:
    // Finishes what an earlier one left. Throws ErrorDatos, as Confirmar does.
    explicit Reemplazo(const QString &carpetaDatos);
    // Without Confirmar nothing has happened.
    ~Reemplazo();
    Reemplazo(const Reemplazo &) = delete;
    Reemplazo &operator=(const Reemplazo &) = delete;

    // Where the new file of that name is to be written.
    QString Ruta(const QString &archivo) const;
    void Confirmar();

  private:
    QString datos_;
};

// Finishes what was decided and cut short. Until it has, the live files are old and new ones mixed. Throws
// ErrorDatos.
void TerminarReemplazo(const QString &carpetaDatos);

// Opens the data, having first finished or taken back what was cut short. Throws ErrorDatos when that can't
// be done: the data stay closed then, since they may be old and new ones mixed.
ResultadoApertura AbrirBases(FrmBases &bases);

} // namespace tarvo
