// The two writers of the export: the list on screen, in its order, as a spreadsheet or as text.
//
// Cells are the texts that the operator sees, amounts with their currency symbol. A device that fails is not
// told here: whoever owns it looks at it afterwards.
#pragma once

#include "desktop/exportable.h"

class QIODevice;

namespace tarvo {

struct TablaExportacion;

// The spreadsheet. A row beyond what the format can number, a text over 247 characters and a row that the
// list does not have end it there, without its end record: for the articles, that always walk 254 rows, that
// is so with any number of rows.
void EscribirHoja(QIODevice &salida, const TablaExportacion &tabla, const Exportable &lo);

// One line for each row, its fields joined by commas, without head, foot or quoting, in Windows-1252.
void EscribirTexto(QIODevice &salida, const TablaExportacion &tabla, const ListaTexto &lista);

} // namespace tarvo
