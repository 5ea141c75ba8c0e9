// The keys of the entries: those they start with and those that the operator gave them instead, which are
// kept in the file `atajos.dat` of the data folder (docs/datos.md tells its format).
//
// A key belongs to one entry. One that writes or edits text, moves about in a window or opens a menu belongs
// to none.
#pragma once

#include "shell/entradas.h"

#include <QByteArray>
#include <QKeySequence>
#include <QString>

#include <map>
#include <vector>

class QIODevice;

namespace tarvo {

class Atajos {
  public:
    Atajos();

    // The entries that can have a key, in the order of the menus.
    static const std::vector<Entrada> &Asignables();

    QKeySequence De(Entrada entrada) const;
    // Why `tecla` can't become the key of `entrada`, in Spanish; empty when it can. The operator can take
    // no key from an entry: an empty one is refused.
    QString MotivoRechazo(Entrada entrada, const QKeySequence &tecla) const;
    // The key that the entry starts with, or none; false when another entry has it.
    bool Restablecer(Entrada entrada);
    // The key must not be one that is refused; an empty one leaves the entry without.
    void Poner(Entrada entrada, const QKeySequence &tecla);
    // The keys that the entries start with.
    static QKeySequence Inicial(Entrada entrada);
    void RestablecerTodos() { *this = Atajos(); }
    // "Devoluciones, Contado": with the submenu that it stands in.
    static QString NombreDe(Entrada entrada);

    // Takes the keys of a file. A file with another head changes nothing; a file that turns wrong further on
    // counts up to there. An entry whose key would then be refused gets back the one that it started with,
    // and all of them do when two would share one.
    void Leer(QIODevice &origen);
    // The whole file, to be written at once.
    QByteArray Archivo() const;

    bool operator==(const Atajos &) const = default;

  private:
    const Entrada *Duena(const QKeySequence &tecla, Entrada salvo) const;
    bool HayRepetidas() const;
    std::map<Entrada, QKeySequence> teclas_; // of the entries that have one
};

} // namespace tarvo
