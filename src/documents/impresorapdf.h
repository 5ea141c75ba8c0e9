// The built-in printer "PDF": each document becomes a file of its own in a folder.
//
// Sheets are A4, those of a form without margins. A roll is one page, 80 mm wide and as long as what is on
// it. The file is written when the document ends, whole or not at all; a document that is given up leaves
// none.
#pragma once

#include "documents/impresoras.h"

#include <QDateTime>

namespace tarvo {

// `titulo` and `momento` give the name of the file, ticket-20261122-104233-001.pdf; a file that exists is
// left alone and the last number grows. Throws ErrorDatos(kEscritura) when the folder can't be made; the end
// of the document throws the same when the file can't be written.
std::unique_ptr<Superficie> NuevoDocumentoPdf(const QString &carpeta, ClasePapel clase, const QString &titulo,
                                              const QDateTime &momento);

// What must fit across a kind of paper.
struct Rejilla;
Rejilla RejillaDe(ClasePapel clase);

} // namespace tarvo
