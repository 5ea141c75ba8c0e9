// The page machine of all listings.
//
// A page holds 51 counted rows, the first one 50: the counter starts at 1 and grows before each row. Columns
// are counted from 1 here, as on a typewriter's tabulator. docs/papel.md shows each listing.
#pragma once

#include "desktop/listatexto.h"
#include "documents/superficie.h"

#include <functional>

namespace tarvo {

class Impresoras;
class Preguntas;

// The rule above the column captions, and the width that a sheet must take at size 10.
inline constexpr int kColumnasListado = 95;

// What differs between listings. Columns from 1.
struct Listado {
    QString titulo;
    int columnaTitulo = 1;
    QString subrayado;
    QString encabezado; // line of column captions
    // Lines between title and page number, at the title's size; may be empty.
    std::function<void(Superficie &)> trasTitulo = {};
    // A row, numbered from 0; without the line end.
    std::function<void(Superficie &, int fila)> imprimirFila = {};
    // The text at the end. `contadas` is the counter's count of rows: one less than there are when the last
    // row fills its page.
    std::function<QString(int contadas)> pie = {};
    int columnaPie = 71; // the text at the end ends before this column
};

// Writes `texto` at a column counted from 1.
void TextoEn(Superficie &papel, int columna, const QString &texto);
// Writes `texto` so that it ends before `columna`.
void TextoHasta(Superficie &papel, int columna, const QString &texto);

// Prints `filas` rows; the printer may fail with ErrorDatos.
void ImprimirListado(Superficie &papel, const Listado &listado, int filas);

// A listing with what is asked before and said when it fails.
struct ReporteCatalogo {
    QString pregunta;
    QString mensajeError; // when it isn't the printer that fails
    Listado listado;
};

// Asks, prints `filas` rows on the current printer and tells a failure. True when the listing was printed.
bool ImprimirReporte(Impresoras &impresoras, Preguntas &preguntas, const ReporteCatalogo &reporte, int filas);

} // namespace tarvo
