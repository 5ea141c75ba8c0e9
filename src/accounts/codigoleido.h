// What a scanner typed where an amount is meant.
#pragma once

#include <QString>

namespace tarvo {

// The characters that an amount is typed with.
inline constexpr auto kSignosImporte = "0123456789.,";

// Of what came at the pace of a scanner: it has something that no amount has, or is as many figures as only a
// barcode has: amounts of so many have a separator.
bool EsCodigoLeido(const QString &leido);

} // namespace tarvo
