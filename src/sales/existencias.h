// What is left of an article when some units of it are sold, computed on the text of its stock.
#pragma once

#include <QString>

#include <optional>

namespace tarvo {

class Moneda;

// `stock` less `cantidad` units, exactly, as a plain number in the machine's locale ("10,5", "-2"). The stock
// may have decimals behind either separator; empty counts as 0. Nothing for a text that is no number, or one
// of more than twelve digits and five decimals: such a stock can't be rewritten.
std::optional<QString> RestarExistencias(const QString &stock, qint64 cantidad, const Moneda &moneda);

} // namespace tarvo
