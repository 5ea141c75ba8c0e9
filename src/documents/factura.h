// What is printed on the shop's own invoice form: a test page of a layout, and the invoice of a sale.
//
// Left and Top of the layout are the places on the sheet, unscaled. Free labels and logo print alike on both;
// width and alignment of a label take no effect on paper.
#pragma once

#include "desktop/preguntas.h"
#include "documents/comprobante.h"
#include "documents/disenofactura.h"

#include <QImage>

namespace tarvo {

class ErrorDatos;
class Superficie;

// A layout with its logo, as it is printed.
struct FormularioFactura {
    DisenoFactura diseno;
    QImage logo;
};

// Reads a layout and the picture of its logo, which is the built-in one when the layout names none. On a
// failure `formulario` holds what was read before. Throws as CargarDiseno and CargarImagen.
void CargarFormulario(const QString &ruta, FormularioFactura &formulario);
// Tells the operator why a layout that was asked for could not be read.
void AvisarLectura(Preguntas &preguntas, const ErrorDatos &error);

// The captions of the shown fields, the shown labels and the logo, to the end of the document.
void ImprimirPruebaFactura(Superficie &papel, const FormularioFactura &formulario);

// The invoice of a sale, to the end of the document. Values stand in Courier New of size 8, texts cut to the
// width of their field, amounts flush with its right edge and never cut. A sheet holds `lineasPorHoja` lines
// (at least one), a text line below the other from the Top of each detail field on; when there are more,
// "Sigue..." stands in the place of the totals and a further sheet follows with the same heading.
void ImprimirFactura(Superficie &papel, const FormularioFactura &formulario, const Comprobante &venta,
                     int lineasPorHoja);

} // namespace tarvo
