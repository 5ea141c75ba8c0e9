// A copy of a database file that can be trusted: written, brought to the disk, read back from there and
// compared with the original, and a sound data file of that name. What fails is thrown as an ErrorDatos; the
// file that was begun is left as it is.
#pragma once

#include <QString>

namespace tarvo {

class Avance;

// Throws kArchivoNoEncontrado when there is no `origen`.
void CopiarSeguro(const QString &origen, const QString &destino, Avance &avance);

} // namespace tarvo
