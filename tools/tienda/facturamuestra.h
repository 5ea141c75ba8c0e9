// The invoice form of the sample shop: a finished layout with headings and the shop's logo.
#pragma once

#include <QString>

namespace tarvo {

// Makes `carpeta` with the layout and the picture of its logo; returns the layout's full path. Throws
// ErrorDatos when it can't be written.
QString HacerFacturaMuestra(const QString &carpeta);

} // namespace tarvo
