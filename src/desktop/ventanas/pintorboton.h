// Draws the bevelled face of a button: a gradient of lines, a frame with its lights and shades, picture and
// caption. All sizes in pixels.
#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QRect>
#include <QString>

class QPainter;

namespace tarvo {

struct AspectoBoton {
    QRect zona; // of the whole button, from (0, 0)
    QString texto;
    QFont letra;
    QIcon imagen;
    QSize tamanoImagen{32, 32};
    int posicionImagen = 1; // 0 behind the caption, 1 left, 2 right, 3 above, 4 below it
    QColor fondo;
    QColor colorTexto;
    QColor borde;     // 3D dark
    QColor resalte;   // of an etched caption
    QColor sombra;    // likewise
    QColor enfocado;  // frame with the focus or pressed
    QColor bajoRaton; // frame under the pointer
    int bisel = 1;    // 1 from the top, 2 from the bottom, else none
    int hondura = 8;  // rows of the gradient
    bool transparente = false;
    bool sinBorde = false;
    bool bordeSiempre = false;
    bool rectanguloFoco = false;
    bool habilitado = true;
    bool presionado = false;
    bool conFoco = false;
    bool conRaton = false;
};

void PintarBoton(QPainter &pintor, const AspectoBoton &boton);

// Each channel of `color` moved by `cambio`, within 0 and 255.
QColor Desplazado(const QColor &color, int cambio);

} // namespace tarvo
