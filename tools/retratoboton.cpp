// Draws the bevelled button in each of its states: retratoboton <target.png>
#include "desktop/ventanas/pintorboton.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

using namespace tarvo;

namespace {

constexpr QSize kBoton(150, 34);
constexpr int kSeparacion = 16;
constexpr int kColumnas = 4;
constexpr int kAumento = 2; // so that single rows of the frame can be seen

struct Estado {
    const char *nombre;
    void (*poner)(AspectoBoton &);
};
constexpr Estado kEstados[] = {
    {"Sin uso", [](AspectoBoton &) {}},
    {"Con foco", [](AspectoBoton &b) { b.conFoco = true; }},
    {"Bajo el ratón", [](AspectoBoton &b) { b.conRaton = true; }},
    {"Presionado", [](AspectoBoton &b) { b.presionado = true; }},
    {"Deshabilitado", [](AspectoBoton &b) { b.habilitado = false; }},
    {"Raised", [](AspectoBoton &b) { b.bordeSiempre = true; }},
    {"BEVEL 2", [](AspectoBoton &b) { b.bisel = 2; }},
    {"Sin borde", [](AspectoBoton &b) { b.sinBorde = true; }},
};

// The colours of a plain desktop.
AspectoBoton Basico() {
    AspectoBoton boton;
    boton.zona = QRect({0, 0}, kBoton);
    boton.fondo = QColor(212, 208, 200);
    boton.colorTexto = Qt::black;
    boton.borde = QColor(64, 64, 64);
    boton.resalte = Qt::white;
    boton.sombra = QColor(128, 128, 128);
    boton.enfocado = QColor(10, 36, 106);
    boton.bajoRaton = QColor(181, 190, 214);
    return boton;
}

} // namespace

int main(int argc, char **argv) {
    const QGuiApplication aplicacion(argc, argv);
    if (argc != 2)
        return 2;
    const int filas = (int(std::size(kEstados)) + kColumnas - 1) / kColumnas;
    const QSize celda = kBoton + QSize(kSeparacion, kSeparacion);
    QImage imagen(QSize(celda.width() * kColumnas, celda.height() * filas) + QSize(kSeparacion, kSeparacion),
                  QImage::Format_RGB32);
    imagen.fill(QColor(236, 233, 224));
    QPainter pintor(&imagen);
    for (int i = 0; const Estado &estado : kEstados) {
        AspectoBoton boton = Basico();
        boton.texto = QString::fromUtf8(estado.nombre);
        estado.poner(boton);
        pintor.resetTransform();
        pintor.translate(kSeparacion + celda.width() * (i % kColumnas),
                         kSeparacion + celda.height() * (i / kColumnas));
        PintarBoton(pintor, boton);
        ++i;
    }
    pintor.end();
    return imagen.scaled(imagen.size() * kAumento).save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
