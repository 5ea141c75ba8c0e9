// The invoice: its layout file against a split of the same line, an invoice of 500 lines as a PDF against a
// bare painter of the same texts, and the drag of a piece on the designer's canvas. The program fails when a
// figure is over its limit.
#include "aplicacion.h"
#include "comparacion.h"
#include "servicios.h"

#include "documents/archivofactura.h"
#include "documents/archivos.h"
#include "documents/factura.h"
#include "documents/impresorapdf.h"
#include "documents/ventanas/frmfactura.h"
#include "testkit/papelprueba.h"

#include <QApplication>
#include <QBuffer>
#include <QFontMetricsF>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPdfWriter>

using namespace tarvo;
using namespace comparacion;

namespace {

constexpr int kVueltas = 200;
constexpr int kLineas = 500;
constexpr double kCuadro = 16; // milliseconds

DisenoFactura Diseno() {
    DisenoFactura diseno;
    for (EtiquetaLibre &etiqueta : diseno.etiquetas) {
        etiqueta.visible = true;
        etiqueta.texto = QStringLiteral("Gracias por su compra señor");
    }
    return diseno;
}

QByteArray Linea(const DisenoFactura &diseno) {
    QBuffer salida;
    salida.open(QIODevice::WriteOnly);
    EscribirDiseno(salida, diseno, QStringLiteral("/facturas/logo.bmp"), QDateTime::currentDateTime());
    return salida.data();
}

// Milliseconds of one call, from the best of some rounds of many.
double PorVez(const std::function<void()> &accion) {
    return MejorTiempo(9,
                       [&] {
                           for (int i = 0; i < kVueltas; ++i)
                               accion();
                       }) /
           kVueltas;
}

void BancoArchivo(Tabla &tabla) {
    DisenoFactura diseno = Diseno();
    QByteArray bytes = Linea(diseno);
    const QString linea = QString::fromLatin1(bytes);
    qsizetype fichas = 0;
    const double leer = PorVez([&] {
        QBuffer entrada(&bytes);
        entrada.open(QIODevice::ReadOnly);
        LeerDiseno(entrada, diseno);
    });
    const double partir = PorVez([&] { fichas += linea.split(QLatin1Char(',')).size(); });
    const double escribir = PorVez([&] { fichas += Linea(diseno).size(); });
    tabla.Linea("read a layout / QString::split of its line", leer * 1000, partir * 1000, "us", 3.0);
    tabla.Linea("read a layout", leer, 1, "ms", 1.0);
    tabla.Linea("write a layout", escribir, 1, "ms", 1.0);
    if (fichas == 0)
        std::exit(2);
}

Comprobante Venta() {
    Comprobante venta;
    venta.tipo = QStringLiteral("Factura contado");
    venta.fecha = QStringLiteral("22/11/2026");
    venta.hora = QStringLiteral("10:42");
    venta.total = venta.totalConDescuento = QStringLiteral("$ 12500,00");
    for (int i = 0; i < kLineas; ++i)
        venta.lineas.push_back({QStringLiteral("A%1").arg(i), QStringLiteral("Artículo número %1").arg(i),
                                QStringLiteral("2"), QStringLiteral("$ 12,50"), QStringLiteral("$ 25,00")});
    return venta;
}

// The same texts at the same places, worked out beforehand.
class Pintor {
  public:
    Pintor(const FormularioFactura &formulario, const Comprobante &venta) {
        ImprimirFactura(papel_, formulario, venta, 15);
    }
    void Pintar(const QString &ruta, const QImage &logo) const {
        QBuffer salida;
        salida.open(QIODevice::WriteOnly);
        QPdfWriter hoja(&salida);
        hoja.setPageMargins({});
        QPainter pintor(&hoja);
        const double escala = hoja.logicalDpiX() / 1440.0;
        int pagina = 0;
        Letra letra;
        QFont fuente = Fuente(letra);
        double ascenso = QFontMetricsF(fuente, &hoja).ascent();
        for (const auto &trozo : papel_.Trozos()) {
            for (; pagina < trozo.pagina; ++pagina)
                hoja.newPage();
            if (letra != trozo.letra) {
                fuente = Fuente(letra = trozo.letra);
                ascenso = QFontMetricsF(fuente, &hoja).ascent();
                pintor.setFont(fuente);
            }
            const QPointF lugar = QPointF(trozo.punto) * escala;
            if (trozo.texto.startsWith(QLatin1Char('[')))
                pintor.drawImage(QRectF(lugar, QSizeF(2400, 1350) * escala), logo);
            else
                pintor.drawText(lugar + QPointF(0, ascenso), trozo.texto);
        }
        pintor.end();
        QFile archivo(ruta);
        archivo.open(QIODevice::WriteOnly);
        archivo.write(salida.data());
    }

  private:
    static QFont Fuente(const Letra &letra) {
        QFont fuente(QStringLiteral("Liberation Mono"));
        fuente.setPointSizeF(letra.puntos);
        fuente.setBold(letra.negrita);
        return fuente;
    }
    PapelPrueba papel_;
};

void BancoPdf(Tabla &tabla) {
    const QTemporaryDir carpeta;
    const FormularioFactura formulario{Diseno(), LogoIncorporado()};
    const Comprobante venta = Venta();
    const Pintor pintor(formulario, venta);
    std::vector<double> facturas;
    std::vector<double> pintadas;
    for (int vuelta = 0; vuelta < 15; ++vuelta) {
        facturas.push_back(Milisegundos([&] {
            ImprimirFactura(*NuevoDocumentoPdf(carpeta.path(), ClasePapel::Formulario, venta.tipo,
                                               QDateTime::currentDateTime()),
                            formulario, venta, 15);
        }));
        pintadas.push_back(Milisegundos(
            [&] { pintor.Pintar(carpeta.filePath(QStringLiteral("pintor.pdf")), formulario.logo); }));
    }
    tabla.Linea("invoice of 500 lines / painter alone", Percentil(facturas, 50), Percentil(pintadas, 50),
                "ms", 1.3);
}

// Tells when the watched widget has been painted.
class Pintado final : public QObject {
  public:
    bool visto = false;

  protected:
    bool eventFilter(QObject *, QEvent *evento) override {
        visto = visto || evento->type() == QEvent::Paint;
        return false;
    }
};

void BancoArrastre(Tabla &tabla) {
    const Tienda tienda({100, 10, 10});
    Puesto puesto(tienda.carpeta);
    FrmFactura ventana(puesto.servicios());
    ventana.show();
    auto *pieza = ventana.findChild<QLabel *>(QStringLiteral("lblCliNombre"));
    QWidget *const lienzo = pieza->parentWidget();
    Pintado pintado;
    pieza->installEventFilter(&pintado);
    while (!pintado.visto)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const auto raton = [&](QEvent::Type tipo, const QPoint &lugar) {
        QMouseEvent evento(tipo, pieza->mapFrom(lienzo, lugar), lienzo->mapToGlobal(lugar),
                           tipo == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(pieza, &evento);
    };
    raton(QEvent::MouseButtonPress, pieza->geometry().center());
    std::vector<double> tiempos;
    for (int i = 0; i < 500; ++i) {
        pintado.visto = false;
        tiempos.push_back(Milisegundos([&] {
            raton(QEvent::MouseMove, {20 + i, 20 + i % 300});
            while (!pintado.visto)
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }));
    }
    raton(QEvent::MouseButtonRelease, {100, 100});
    tabla.Linea("drag: cursor move to painted piece, p99", Percentil(tiempos, 99), kCuadro, "ms", 1.0);
}

} // namespace

int main(int argc, char **argv) {
    return MedirVentanas(argc, argv, [](Tabla &tabla) {
        BancoArchivo(tabla);
        BancoPdf(tabla);
        BancoArrastre(tabla);
    });
}
