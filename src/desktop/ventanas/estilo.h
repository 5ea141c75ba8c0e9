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

// Style, palette, style sheet and font of the whole program. Widgets get their part by dynamic properties
// that are true:
//   QFrame       tarjeta      white card, radius 4
//                panel        over a window, framed
//   QLabel       titulo       title bar of a module window or panel
//                tenue        dim caption
//                destacado    whom or what the window is about
//                rotuloTotal  caption of a total
//                grande       large amount
//   QPushButton  principal    the main button; with enFila as small as its neighbours
//                compacto     little room around the text
//                enMarca      see MarcoFoco
//   QToolButton  estrecho     of a toolbar that has no room to spare
//   QLineEdit    sinDatos     grey, disabled for lack of data
//                conservado   tinted: it still holds what the last document left there
void AplicarEstilo(QApplication &aplicacion);

// Sets such a property of a control that is already shown.
void Marcar(QWidget *control, const char *propiedad, bool si);

} // namespace tarvo
