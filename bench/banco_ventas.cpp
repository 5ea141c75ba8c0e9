// The sale on a shop of 100,000 articles: the list of the window against the bare reading of the same
// columns, the issue of ten lines against the same SQL in C and against a shop of 1,000, the scanner against
// one frame of the screen. The program fails when a ratio is over its limit.
#include "comparacion.h"

#include "desktop/anfitrion.h"
#include "desktop/escritorio.h"
#include "desktop/preguntas.h"
#include "desktop/reloj.h"
#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/listavista.h"
#include "documents/impresoras.h"
#include "sales/ventanas/frmventas.h"
#include "store/store.h"
#include "tienda/tienda.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <memory>

using namespace tarvo;
using namespace comparacion;

namespace {

constexpr int kMuchos = 100'000;
constexpr int kPocos = 1'000;
constexpr int kLineas = 10;
constexpr double kCuadro = 16; // milliseconds of one frame

// --- sample shops

struct Tienda {
    QTemporaryDir base;
    QString carpeta;
    explicit Tienda(int articulos)
        : carpeta(HacerTienda(base.path(), {articulos, 60, 200}, QDate(2026, 11, 22))) {}
};

std::unique_ptr<FrmBases> AbrirBases(const QString &carpeta) {
    auto bases = std::make_unique<FrmBases>(carpeta, Moneda());
    if (bases->Abrir().estado != EstadoApertura::Completa) {
        std::fprintf(stderr, "the sample shop does not open\n");
        std::exit(2);
    }
    return bases;
}

// --- the list

void BancoLista(Tabla &tabla, const QString &carpeta) {
    std::vector<double> nuestros;
    std::vector<double> crudos;
    for (int vuelta = 0; vuelta < 9; ++vuelta) {
        {
            const auto bases = AbrirBases(carpeta);
            Venta venta(*bases);
            nuestros.push_back(Milisegundos([&] { venta.CargarArticulos(); }));
            if (venta.Articulos().Filas() != kMuchos)
                std::exit(2);
        }
        Cruda cruda(carpeta);
        crudos.push_back(Milisegundos([&] {
            cruda.Recorrer(
                "SELECT id,codigo,codbarras1,nombre,idtipoiva,subtotal,stock FROM articulos.Articulos");
        }));
    }
    tabla.Linea("list of 100,000 articles, by reading its columns", Percentil(nuestros, 50),
                Percentil(crudos, 50), "ms", 2.0);
}

// --- the issue

int commits = 0;

int ContarCommit(unsigned, void *, void *, void *texto) {
    commits += std::string_view(static_cast<const char *>(texto)) == "COMMIT" ? 1 : 0;
    return 0;
}

int Vigilar(sqlite3 *base, const char **, const void *) {
    return sqlite3_trace_v2(base, SQLITE_TRACE_STMT, ContarCommit, nullptr);
}

class SqlCrudo {
  public:
    explicit SqlCrudo(const QString &carpeta) : cruda_(carpeta) {
        documento_ =
            cruda_.Preparar("INSERT INTO ventas.Ventas(fecha,hora,idcliente,tipo,descripcion,subtotal,iva,"
                            "total,numcomp,idoperador) VALUES(?,?,?,?,?,?,?,?,?,?)");
        stock_ = cruda_.Preparar("UPDATE articulos.Articulos SET stock=? WHERE id=?");
    }
    void Emitir(int numero) {
        const std::string n = std::to_string(numero);
        cruda_.Sql("BEGIN IMMEDIATE");
        Cruda::Ejecutar(documento_, {"22/11/2026", "10:42", "0", "Contado", "Factura contado", "$ 437,50",
                                     "$ 87,75", "$ 525,25", n, "1"});
        for (int linea = 0; linea < kLineas; ++linea)
            Cruda::Ejecutar(stock_, {n, std::to_string(linea * 97 + 1)});
        cruda_.Sql("COMMIT");
    }

  private:
    Cruda cruda_;
    sqlite3_stmt *documento_;
    sqlite3_stmt *stock_;
};

class NuestraEmision {
  public:
    explicit NuestraEmision(const QString &carpeta) : bases_(AbrirBases(carpeta)), venta_(*bases_) {
        venta_.CargarArticulos();
        vendedor_ = CargarVendedores(*bases_).value(1);
        Agregar();
    }
    // Other quantities for every issue, so that each one writes.
    void Agregar() {
        for (int linea = 0; linea < kLineas; ++linea)
            venta_.Agregar(linea * 97, 1);
    }
    void Emitir(int numero) {
        GuardarVenta(*bases_, venta_,
                     {QStringLiteral("22/11/2026"), QStringLiteral("10:42"), QString::number(numero),
                      vendedor_, venta_.CalcularTotales(), QString()});
    }

  private:
    std::unique_ptr<FrmBases> bases_;
    Venta venta_;
    QString vendedor_;
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
    SqlCrudo crudo(Copia(carpeta, una));
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(Vigilar));
    NuestraEmision nuestra(Copia(carpeta, otra));
    sqlite3_reset_auto_extension();
    std::vector<double> nuestros;
    std::vector<double> crudos;
    for (int vuelta = 0; vuelta < 300; ++vuelta) {
        nuestra.Agregar();
        commits = 0;
        nuestros.push_back(Milisegundos([&] { nuestra.Emitir(vuelta); }));
        if (commits != 1) {
            std::fprintf(stderr, "an issue made %d commits\n", commits);
            std::exit(2);
        }
        crudos.push_back(Milisegundos([&] { crudo.Emitir(vuelta); }));
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

class PreguntasMudas final : public Preguntas {
  public:
    Respuesta Preguntar(const QString &, Respuesta preseleccionada) override { return preseleccionada; }
    void Mostrar(const QString &texto, Icono) override {
        std::fprintf(stderr, "told: %s\n", qPrintable(texto));
        std::exit(2);
    }
};

class SinImpresoras final : public Impresoras {
  public:
    QStringList Nombres() const override { return {}; }
    QString Actual() const override { return {}; }
    void HacerActual(const QString &) override {}
    std::unique_ptr<Superficie> NuevoDocumento(Proposito, const QString &) override { return nullptr; }
};

class SinEscritorio final : public Escritorio {
  public:
    bool AbrirArchivo(const QString &) override { return false; }
    bool AbrirDireccion(const QUrl &) override { return false; }
    bool AbrirAjustesImpresoras() override { return false; }
};

class SinAnfitrion final : public Anfitrion {
  public:
    void ActDesMenu(int, const QString &, bool) override {}
    void Sugerencia(const QString &) override {}
};

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
    explicit Caja(const QString &carpeta) : bases_(AbrirBases(carpeta)) {
        ventana_ = std::make_unique<FrmVentas>(
            Servicios{*bases_, preguntas_, reloj_, impresoras_, ajustes_, escritorio_}, anfitrion_, nullptr);
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
    std::unique_ptr<FrmBases> bases_;
    PreguntasMudas preguntas_;
    RelojSistema reloj_;
    SinImpresoras impresoras_;
    QTemporaryDir carpeta_;
    QSettings ajustes_{carpeta_.filePath(QStringLiteral("ajustes.ini")), QSettings::IniFormat};
    SinEscritorio escritorio_;
    SinAnfitrion anfitrion_;
    Pintado pintado_;
    std::unique_ptr<FrmVentas> ventana_;
    ListaVista *detalle_ = nullptr;
    ListaVista *articulos_ = nullptr;
};

void BancoPistola(Tabla &tabla, const QString &carpeta) {
    Caja caja(carpeta);
    std::vector<double> tiempos;
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
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication aplicacion(argc, argv);
    AplicarEstilo(aplicacion);
    Tabla tabla;
    const Tienda pocos(kPocos);
    const Tienda muchos(kMuchos);
    BancoLista(tabla, muchos.carpeta);
    BancoEmision(tabla, muchos.carpeta, pocos.carpeta);
    BancoPistola(tabla, muchos.carpeta);
    return tabla.Resultado();
}
