// A copy of a database file that can be trusted: written, brought to the disk, read back from there and
// compared with the original, and a sound data file of that name. What fails is thrown as an ErrorDatos; the
// file that was begun is left as it is.
#pragma once

#include <QString>

namespace tarvo {

class Archivo;
class Avance;

// `origen` is open for reading, at its beginning.
void CopiarSeguro(Archivo &origen, const QString &destino, Avance &avance);

} // namespace tarvo
