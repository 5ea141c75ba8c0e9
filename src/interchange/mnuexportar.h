// The menu entry "Exportar": asks for a file and writes the list on screen into it, in the format that the
// ending of its name picks.
#pragma once

#include "desktop/exportable.h"

namespace tarvo {

class FrmBases;
class Preguntas;

// "xls" and "txt" at the end of the name, exactly so, are the spreadsheet and the text; with any other ending
// nothing is written and nothing said. A file of that name is replaced only when the new one is complete: a
// disk that fails is told and loses nothing. Nothing is written among the data of the shop.
void mnuExportar(Preguntas &preguntas, const FrmBases &bases, const Exportable &lo);

} // namespace tarvo
