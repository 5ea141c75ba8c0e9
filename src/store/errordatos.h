// The one error that the data layer throws: a number that handlers test and a text in Spanish for the
// operator.
#pragma once

#include <QString>
#include <QStringList>

#include <stdexcept>

namespace tarvo {

namespace errores {
constexpr int kFormato = 13; // a token that is missing or no number
constexpr int kArchivoNoEncontrado = 53;
constexpr int kAccesoRuta = 75;
constexpr int kRutaNoEncontrada = 76;
constexpr int kImagenInvalida = 481;
constexpr int kImpresora = 482;
constexpr int kBaseBloqueada = 3008;
constexpr int kBaseNoEncontrada = 3024;
constexpr int kBaseIlegible = 3049; // can't be opened or read, a table or column is missing
constexpr int kBaseDanada = 3343;   // a read found the file damaged
constexpr int kEscritura = 3027;    // the disk refused a write: full, read-only, input/output error
constexpr int kSinComprobar = 3146; // a COMMIT failed, and whether it happened can't be read yet
constexpr int kIndice = 3015;       // Index with a name that the table doesn't have, or Seek without Index
constexpr int kSinRegistro = 3021;  // a field was written while no row is current
} // namespace errores

class ErrorDatos : public std::runtime_error {
  public:
    // `motivo` is the part of `descripcion` that tells why; without it all of it does.
    ErrorDatos(int numero, const QString &descripcion, const QString &motivo = {})
        : std::runtime_error(descripcion.toStdString()),
          numero_(numero),
          descripcion_(descripcion),
          motivo_(motivo.isEmpty() ? descripcion : motivo) {}
    int Numero() const { return numero_; }
    const QString &Descripcion() const { return descripcion_; }
    // Why, to stand behind the name of the file and a colon: "no es una base de datos."
    QString Motivo() const;

  private:
    int numero_;
    QString descripcion_;
    QString motivo_;
};

// An earlier transaction whose COMMIT could not be judged turns out to be in the files; the one that was to
// begin has written nothing.
class OperacionAnterior : public ErrorDatos {
  public:
    // Both as their transactions were named (see Operacion): what stands and what was to begin.
    OperacionAnterior(const QStringList &guardada, const QStringList &ahora);
    // The operation that was to begin is that earlier one, tried again as it was.
    bool EsLaMisma() const { return misma_; }

  private:
    bool misma_;
};

} // namespace tarvo
