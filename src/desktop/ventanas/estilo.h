// The look: colours, style sheet, palette. One place, on the Fusion style, light whatever the desktop's
// theme.
#pragma once

#include "desktop/tono.h"

#include <QColor>

class QApplication;

namespace tarvo {

namespace colores {
inline const QColor kTitulo(10, 36, 106);       // title bar, header text, main button, big total, frames
inline const QColor kPresionado(181, 190, 214); // pressed button, selected row, payment mark
inline const QColor kFoco(195, 237, 255);       // field with the focus
inline const QColor kSinDatos(192, 192, 192);   // field disabled for lack of data
inline const QColor kFondo(238, 241, 247);
inline const QColor kLineas(201, 209, 227);
inline const QColor kEncabezado(227, 232, 243);
inline const QColor kSegundaFila(247, 249, 252);
inline const QColor kTexto(27, 35, 56);
inline const QColor kTextoTenue(92, 103, 132);
} // namespace colores

// Style, palette, style sheet and font of the whole program. Widgets get their part by these dynamic
// properties: QFrame "tarjeta" = true (white card, radius 4), QLabel "titulo" = true (title bar of a module
// window), QLabel "tenue" = true (dim caption), QPushButton
// "principal" = true (the main button; with "enFila" = true as small as its
// neighbours), QLineEdit "sinDatos" = true (grey, disabled for lack of data).
void AplicarEstilo(QApplication &aplicacion);

} // namespace tarvo
