// The file of an invoice layout: one line of 368 tokens, each followed by a comma, in windows-1252, ended by
// CR LF.
//
// Nothing protects a comma inside a caption or a path: it moves every token behind it. That is the file's
// form, known to the shops' files, and stays. docs/papel.md tells each token.
#pragma once

#include "documents/disenofactura.h"

#include <QDateTime>

class QIODevice;

namespace tarvo {

// Writes to an open device. Throws ErrorDatos(kEscritura) when it takes less than all of it.
void EscribirDiseno(QIODevice &salida, const DisenoFactura &diseno, const QString &rutaLogo,
                    const QDateTime &momento);
// Reads from an open device and gives the path of the logo's picture, which may be empty. Throws
// ErrorDatos(kFormato) for a token that is missing or no number; what was read before has its new values
// then.
QString LeerDiseno(QIODevice &entrada, DisenoFactura &diseno);

// The same on a file. A file that was there stays whole when the new one can't be written. Throws ErrorDatos
// with kRutaNoEncontrada for a folder that isn't there, kAccesoRuta for a place that can't be written,
// kEscritura when the writing fails.
void GuardarDiseno(const QString &ruta, const DisenoFactura &diseno, const QString &rutaLogo,
                   const QDateTime &momento);
// As LeerDiseno, and kRutaNoEncontrada, kArchivoNoEncontrado, kAccesoRuta.
QString CargarDiseno(const QString &ruta, DisenoFactura &diseno);

} // namespace tarvo
