// What the operator is told about the opening of the data at start, and where the help lies.
#pragma once

#include "store/store.h"

namespace tarvo {

// Another process holds a file: the program ends with this message.
QString MensajeBloqueada();
// Hint of the status bar when some tables could not be opened; empty when all could.
QString AvisoApertura(const ResultadoApertura &resultado);
// Hint of the status bar when the folder `datos` is not the one in the program's folder itself; empty else.
QString AvisoLugar(const QString &datos, const QString &carpetaPrograma);
// Hint of the status bar for a file that a read found damaged.
QString AvisoDano(const QString &archivo, const QString &motivo);
// The hints that are not empty, one behind the other.
QString UnirAvisos(QStringList avisos);

// The program lies in a system folder, with what belongs to it in share: its data are the user's.
bool EstaInstalado(const QString &carpetaPrograma);
// The help file: beside the program, or where an installation puts it.
QString RutaAyuda(const QString &carpetaPrograma);

} // namespace tarvo
