// What each export writes, as data: title, head, columns and foot of every list that can be exported.
#pragma once

#include <QString>

#include <vector>

namespace tarvo {

struct ColumnaHoja {
    int numero; // from 1
    QString cabecera;
};

struct TablaExportacion {
    QString lista; // name of the list control
    QString titulo;
    int filaCabecera;
    // The first columns of the list, in plain sequence, in these columns of the sheet. The lists of the
    // accounts have columns ("Hora", "Num. Comp.") that the heads don't tell, so their cells stand under
    // heads that are not theirs: that is how these files are.
    std::vector<ColumnaHoja> columnas;
    QString pie{}; // caption beside the amount below the last two columns; empty: no foot
    int columnaPie = 0;
    bool cliente = false; // whose statement it is stands above the head
    int filasFijas = 0;   // walks so many rows, whatever the list has; 0: those of the list

    // Row of the sheet of data row `i`, counted from 1.
    int FilaDato(int i) const { return filaCabecera + 1 + i; }
    int FilaPie(int filas) const { return filaCabecera + 3 + filas; }
};

// The table of the list control of that name; null when it is none that can be exported.
const TablaExportacion *TablaDe(const QString &lista);

} // namespace tarvo
