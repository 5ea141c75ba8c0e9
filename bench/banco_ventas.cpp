// The sale on a shop of 100,000 articles: the list of the window against the bare reading of the same
// columns, the issue of ten lines against the same SQL in C and against a shop of 1,000, the scanner against
// one frame of the screen. The program fails when a ratio is over its limit.
#include "aplicacion.h"
#include "comparacion.h"
#include "servicios.h"
#include "ventacruda.h"

#include "desktop/ventanas/listavista.h"
#include "sales/ultimocomprobante.h"
#include "sales/ventanas/frmventas.h"
#include "store/transaccion.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

#include <memory>

using namespace tarvo;
using namespace comparacion;

namespace {

constexpr int kMuchos = 100'000;
constexpr int kPocos = 1'000;
constexpr int kPaso = 97;      // from one article of a sale to the next
constexpr double kCuadro = 16; // milliseconds of one frame

// --- the list

void BancoLista(Tabla &tabla, const QString &carpeta) {
    std::vector<double> nuestros;
    std::vector<double> crudos;
    for (int vuelta = 0; vuelta < 9; ++vuelta) {
        {
            BasesAbiertas bases(carpeta);
            Venta venta(bases);
            nuestros.push_back(Milisegundos([&] { venta.CargarArticulos(); }));
            if (venta.Articulos().Filas() != kMuchos)
                std::exit(2);
        }
        Cruda cruda(carpeta);
        crudos.push_back(Milisegundos([&] {
            cruda.Recorrer(
                "SELECT id,codigo,codbarras1,nombre,idtipoiva,subtotal,stock FROM articulos.Articulos",
                Lectura::TextosYLongitudes);
        }));
    }
    tabla.Linea("list of 100,000 articles, by reading its columns", Percentil(nuestros, 50),
                Percentil(crudos, 50), "ms", 2.0);
}

// --- the issue

class NuestraEmision {
  public:
    explicit NuestraEmision(const QString &carpeta) : bases_(carpeta), venta_(bases_) {
        venta_.CargarArticulos();
        venta_.PonerVendedor(CargarVendedores(bases_).value(1));
        venta_.PonerMomento({{2026, 11, 22}, {10, 42}});
        Agregar();
    }
    // Other quantities for every issue, so that each one writes.
    void Agregar() {
        for (int linea = 0; linea < kLineas; ++linea)
            venta_.Agregar(linea * kPaso, 1);
    }
    void Emitir(int numero) {
        venta_.PonerNumComp(QString::number(numero));
        Transaccion transaccion(bases_);
        EscribirVenta(bases_, venta_, HacerComprobante(venta_));
        transaccion.Confirmar();
    }

  private:
    BasesAbiertas bases_;
    Venta venta_;
};

QString Copia(const QString &carpeta, const QTemporaryDir &destino) {
    for (const QString &archivo : QDir(carpeta).entryList({QStringLiteral("*.mdb")}, QDir::Files))
        QFile::copy(carpeta + QLatin1Char('/') + archivo, destino.filePath(archivo));
    return destino.path();
}

// Median of an issue, and of the same SQL on equal files; the two take turns.
std::pair<double, double> MedirEmision(const QString &carpeta) {
    const QTemporaryDir una;
    const QTemporaryDir otra;
    VentaCruda cruda(Copia(carpeta, una));
    const CuentaCommits cuenta;
    NuestraEmision nuestra(Copia(carpeta, otra));
    std::vector<double> nuestros;
    std::vector<double> crudos;
    for (int vuelta = 0; vuelta < 300; ++vuelta) {
        nuestra.Agregar();
        const int commits =
            cuenta.De([&] { nuestros.push_back(Milisegundos([&] { nuestra.Emitir(vuelta); })); });
        if (commits != 1) {
            std::fprintf(stderr, "an issue made %d commits\n", commits);
            std::exit(2);
        }
        crudos.push_back(Milisegundos([&] { cruda.Vender(vuelta, kPaso); }));
    }
    return {Percentil(nuestros, 50), Percentil(crudos, 50)};
}

void BancoEmision(Tabla &tabla, const QString &muchos, const QString &pocos) {
    const auto [chica, chicaCruda] = MedirEmision(pocos);
    const auto [grande, grandeCruda] = MedirEmision(muchos);
    tabla.Linea("issue of 10 lines, 1 commit, 1,000 articles, by C", chica, chicaCruda, "ms", 1.3);
    tabla.Linea("issue of 10 lines, 1 commit, 100,000 articles, by C", grande, grandeCruda, "ms", 1.3);
    tabla.Linea("issue at 100,000 articles, by 1,000", grande, chica, "ms", 1.5);
}

// --- the window

class Pintado final : public QObject {
  public:
    bool visto = false;

  protected:
    bool eventFilter(QObject *, QEvent *evento) override {
        visto = visto || evento->type() == QEvent::Paint;
        return false;
    }
};

void Tecla(int tecla, const QString &texto) {
    for (const QEvent::Type tipo : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent evento(tipo, tecla, Qt::NoModifier, texto);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &evento);
    }
}

void Teclas(const QString &texto) {
    for (const QChar letra : texto)
        Tecla(letra.unicode(), letra);
}

// The scanner's Enter finds the article, its next Enter adds it.
void DosEntrar() {
    for (int i = 0; i < 2; ++i)
        Tecla(Qt::Key_Return, QStringLiteral("\r"));
}

class Caja {
  public:
    explicit Caja(const QString &carpeta) : puesto_(carpeta) {
        ventana_ = std::make_unique<FrmVentas>(puesto_.servicios(), puesto_.anfitrion, ultimo_, nullptr);
        ventana_->resize(800, 455);
        ventana_->show();
        ventana_->activateWindow();
        while (QApplication::focusWidget() == nullptr)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        detalle_ = ventana_->findChild<ListaVista *>(QStringLiteral("LVDetalle"));
        articulos_ = ventana_->findChild<ListaVista *>(QStringLiteral("LVArticulos"));
        detalle_->viewport()->installEventFilter(&pintado_);
    }
    QString CodigoBarras(int fila) const { return articulos_->Lista()->Celda(fila, articulo::CodBarras); }

    // Milliseconds from the scanner's first Enter to the painted line.
    double Escanear(int fila) {
        ventana_->findChild<QLineEdit *>(QStringLiteral("txtBuscar"))->setFocus();
        Teclas(CodigoBarras(fila));
        QCoreApplication::processEvents();
        pintado_.visto = false;
        return Milisegundos([this] {
            DosEntrar();
            while (!pintado_.visto)
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        });
    }
    int Unidades() const {
        int suma = 0;
        for (int fila = 0; fila < detalle_->Lista()->Filas(); ++fila)
            suma += detalle_->Lista()->Celda(fila, linea::Cantidad).toInt();
        return suma;
    }
    // `veces` scans at 20 a second, without waiting for the window; whatever has the focus gets the keys.
    int Rafaga(int veces) {
        const int antes = Unidades();
        QTimer pistola;
        int hechas = 0;
        QObject::connect(&pistola, &QTimer::timeout, &pistola, [&] {
            Teclas(CodigoBarras(kMuchos - 1 - hechas));
            DosEntrar();
            ++hechas;
        });
        pistola.start(50);
        QElapsedTimer reloj;
        reloj.start();
        while (hechas < veces && reloj.elapsed() < 20'000)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        pistola.stop();
        QCoreApplication::processEvents();
        return Unidades() - antes;
    }

  private:
    Puesto puesto_;
    Pintado pintado_;
    UltimoComprobante ultimo_{puesto_.servicios()};
    std::unique_ptr<FrmVentas> ventana_;
    ListaVista *detalle_ = nullptr;
    ListaVista *articulos_ = nullptr;
};

void BancoPistola(Tabla &tabla, const QString &carpeta) {
    Caja caja(carpeta);
    std::vector<double> tiempos;
    tiempos.reserve(200);
    for (int vuelta = 0; vuelta < 200; ++vuelta)
        tiempos.push_back(caja.Escanear(kMuchos - 1));
    tabla.Linea("scan of the last article to painted line, p50", Percentil(tiempos, 50), kCuadro, "ms", 1.0);
    tabla.Linea("scan of the last article to painted line, p99", Percentil(tiempos, 99), kCuadro, "ms", 1.0);
    constexpr int kEscaneos = 100;
    const int anotadas = caja.Rafaga(kEscaneos);
    tabla.Linea("scans made at 20 a second, by scans entered", kEscaneos, std::max(anotadas, 1), "", 1.0);
}

} // namespace

int main(int argc, char **argv) {
    return MedirVentanas(argc, argv, [](Tabla &tabla) {
        const Tienda pocos({kPocos, 60, 200});
        const Tienda muchos({kMuchos, 60, 200});
        BancoLista(tabla, muchos.carpeta);
        BancoEmision(tabla, muchos.carpeta, pocos.carpeta);
        BancoPistola(tabla, muchos.carpeta);
    });
}
