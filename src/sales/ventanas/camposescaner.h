// The fields of the sale that a scan may land in, as the scanner's road needs them: how each is read and put
// back, and how a scan is told from what is meant for it.
#pragma once

#include "sales/ventanas/rutaescaner.h"

class QComboBox;
class QLineEdit;

namespace tarvo {

// Whether some article has this barcode.
using EsBarras = std::function<bool(const QString &)>;

// A number of few digits: more of them are a scan. `volver` puts back what the field held.
RutaEscaner::CampoVenta CampoNumerico(QLineEdit *campo, std::function<void()> volver);
// A field for any text: only a code that an article has can't be meant for it.
RutaEscaner::CampoVenta CampoLibre(QLineEdit *campo, EsBarras esBarras);
// A choice by first letters: a long text that no entry begins with is none.
RutaEscaner::CampoVenta CampoCombo(QComboBox *combo, EsBarras esBarras);

} // namespace tarvo
