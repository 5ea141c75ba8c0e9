// The look: colours, style sheet, palette. One place, on the Fusion style, light whatever the desktop's
// theme.
#pragma once

#include "desktop/tono.h"

#include <QColor>

class QApplication;
class QWidget;

namespace tarvo {

namespace colores {
inline const QColor kTitulo(10, 36, 106);       // title bar, header text, main button, big total, frames
inline const QColor kPresionado(181, 190, 214); // pressed button, selected row, payment mark
inline const QColor kFoco(195, 237, 255);       // field with the focus
inline const QColor kSinDatos(192, 192, 192);   // field disabled for lack of data
inline const QColor kConservado(255, 244, 214); // field that kept its text from the last document
inline const QColor kDeshabilitado(241, 243, 248);
inline const QColor kPresionadoTenue(223, 228, 238); // selected row of a disabled list
inline const QColor kBordes(121, 134, 171);          // of fields and buttons
inline const QColor kFondo(238, 241, 247);
inline const QColor kLineas(201, 209, 227);
inline const QColor kEncabezado(227, 232, 243);
inline const QColor kSegundaFila(247, 249, 252);
inline const QColor kTexto(27, 35, 56);
inline const QColor kTextoTenue(92, 103, 132);
} // namespace colores

// Style, palette, style sheet and font of the whole program. Widgets get their part by these dynamic
// properties: QFrame "tarjeta" = true (white card, radius 4), QLabel "titulo" = true (title bar of a module
// window), QLabel "tenue" = true (dim caption), QPushButton "principal" = true (the main button; with
// "enFila" = true as small as its neighbours), "compacto" = true (little room around the text) and "enMarca"
// = true (see MarcoFoco), QLineEdit "sinDatos" = true (grey, disabled for lack of data) and "conservado" =
// true (tinted: it still holds what the last document left there).
void AplicarEstilo(QApplication &aplicacion);

// Sets such a property of a control that is already shown.
void Marcar(QWidget *control, const char *propiedad, bool si);

} // namespace tarvo
