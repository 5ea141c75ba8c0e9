// The printers of the machine, by device name, and the one that is current in the program.
//
// Besides the installed ones there is always the built-in printer "PDF", which needs no system printer and
// writes its documents into the folder `Impresos`.
#pragma once

#include "documents/superficie.h"

#include <QStringList>

#include <memory>

class QSettings;

namespace tarvo {

// What a printer is chosen for.
enum class Proposito { Ticket, Listado };
// What a document is printed on: paper of a roll, sheets, or the shop's own form, on which every place is
// counted from the corner of the sheet and nothing is scaled.
enum class ClasePapel { Rollo, Hoja, Formulario };

inline constexpr const char *kImpresoraPdf = "PDF";

class Impresoras {
  public:
    virtual ~Impresoras() = default;
    // Device names in the system's order, the built-in one last.
    virtual QStringList Nombres() const = 0;
    virtual QString Actual() const = 0;
    // The current printer becomes the one of that name; another name changes nothing.
    virtual void HacerActual(const QString &nombre) = 0;
    // A new document on the current printer; `titulo` names it in the printer's queue and, for the PDF
    // printer, its file. Throws ErrorDatos: kImpresora when the printer is gone or refuses, kEscritura when
    // the folder of the PDF printer can't be written.
    virtual std::unique_ptr<Superficie> NuevoDocumento(ClasePapel clase, const QString &titulo) = 0;
};

// Makes the printer whose name is stored under "ImpTick" or "ImpList" the current one. Without a stored name,
// or when no printer has it, the current printer stays. Returns the name of the current printer. Never fails.
QString ElegirImpresora(Impresoras &impresoras, const QSettings &ajustes, Proposito proposito);

} // namespace tarvo
