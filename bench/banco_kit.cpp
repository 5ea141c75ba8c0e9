// The kit of the desktop: a press of the drawn button with its sounds, a key of the calculator, and the
// statistics of a month in 1,000,000 movements. The program fails when a figure is over its limit.
#include "aplicacion.h"
#include "muestra.h"

#include "accounts/ventasdelmes.h"
#include "desktop/ventanas/botonzel.h"
#include "desktop/ventanas/frmcalc.h"
#include "servicios.h"
#include "shell/ventanas/pedidosbotones.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

using namespace tarvo;
using namespace comparacion;

namespace {

constexpr int kPulsaciones = 500;

void Raton(QWidget &control, QEvent::Type tipo) {
    const QPointF lugar = control.rect().center();
    QMouseEvent evento(tipo, lugar, control.mapToGlobal(lugar), Qt::LeftButton,
                       tipo == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&control, &evento);
}

void Teclear(QWidget &control, QChar letra) {
    for (const QEvent::Type tipo : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent evento(tipo, letra.unicode(), Qt::NoModifier, QString(letra));
        QCoreApplication::sendEvent(&control, &evento);
    }
}

// From the release of the mouse button to the handler, in milliseconds: the 99th of a hundred.
double HastaElManejador(QPushButton &boton) {
    boton.resize(120, 30);
    boton.show();
    std::vector<double> tiempos;
    std::chrono::steady_clock::time_point inicio;
    QObject::connect(&boton, &QPushButton::clicked, &boton, [&] {
        tiempos.push_back(
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - inicio).count());
    });
    for (int vez = 0; vez < kPulsaciones; ++vez) {
        Raton(boton, QEvent::MouseButtonPress);
        inicio = std::chrono::steady_clock::now();
        Raton(boton, QEvent::MouseButtonRelease);
        QCoreApplication::processEvents(); // the sound is asked for behind the handler
    }
    return Percentil(tiempos, 99);
}

void BancoBoton(Tabla &tabla) {
    SinEscritorio escritorio;
    const PedidosBotones pedidos(escritorio, QCoreApplication::applicationDirPath());
    QPushButton llano(QStringLiteral("Aceptar"));
    BotonZel boton(QStringLiteral("Aceptar"));
    const double par = HastaElManejador(llano);
    tabla.Linea("press to handler over a plain button / limit", HastaElManejador(boton) - par, 1, "ms", 1);
}

void BancoCalculadora(Tabla &tabla) {
    QWidget principal;
    FrmCalc calculadora(QStringLiteral(","), &principal);
    calculadora.show();
    auto *const display = calculadora.findChild<QLineEdit *>(QStringLiteral("txtDisplay"));
    std::vector<double> tiempos;
    for (int vez = 0; vez < kPulsaciones; ++vez)
        tiempos.push_back(Milisegundos([&] {
            Teclear(*display, QLatin1Char("1234567+"[vez % 8]));
            calculadora.grab();
        }));
    tabla.Linea("key to painted display, 99 of 100 / one frame", Percentil(tiempos, 99), 16, "ms", 1);
}

void BancoEstadisticas(Tabla &tabla) {
    const Tienda tienda({1000, 60, 1'000'000}, CarpetaEnMemoria());
    double crudo = 0;
    {
        Cruda cruda(tienda.carpeta);
        crudo = MejorTiempo(3, [&] {
            cruda.Recorrer("SELECT fecha, tipo, total FROM ventas.Ventas ORDER BY id",
                           Lectura::TextosYLongitudes);
        });
    }
    const double primera = Mejor(3, [&] {
        BasesAbiertas bases(tienda.carpeta);
        return Milisegundos([&] { SumarVentasDelMes(bases, 11, 2026); });
    });
    BasesAbiertas bases(tienda.carpeta);
    SumarVentasDelMes(bases, 11, 2026);
    const double otra = MejorTiempo(5, [&] { SumarVentasDelMes(bases, 10, 2026); });
    tabla.Linea("sales of a month / raw step over its columns", otra, crudo, "ms", 1);
    tabla.Dato("the same for the first time, columns not yet read", primera, "ms");
}

} // namespace

int main(int argc, char **argv) {
    return MedirVentanas(argc, argv, [](Tabla &tabla) {
        BancoBoton(tabla);
        BancoCalculadora(tabla);
        BancoEstadisticas(tabla);
    });
}
