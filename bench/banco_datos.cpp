// The lists of the master data: the articles list with its prices against the bare reading of the same
// columns, its filter against the unfiltered fill, a million customers against an empty tree of as many rows,
// and the save of one article in a shop of 100,000 against one of 1,000. The program fails when a ratio is
// over its limit.
#include "comparacion.h"

#include "desktop/anfitrion.h"
#include "desktop/escritorio.h"
#include "desktop/preguntas.h"
#include "desktop/reloj.h"
#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/listavista.h"
#include "documents/impresoras.h"
#include "masterdata/ventanas/frmarticulos.h"
#include "masterdata/ventanas/frmclientes.h"
#include "store/errordatos.h"
#include "store/store.h"
#include "tienda/tienda.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>

using namespace tarvo;
using namespace comparacion;

namespace {

constexpr int kMuchos = 100'000;
constexpr int kPocos = 1'000;
constexpr int kClientes = 1'000'000;

// In memory where the system has a place for it: the disk's mood would be most of a save.
QString Plantilla() {
    const QString memoria = QStringLiteral("/dev/shm");
    const bool vale = QFileInfo(memoria).isWritable();
    return (vale ? memoria : QDir::tempPath()) + QStringLiteral("/tarvo-XXXXXX");
}

struct Tienda {
    QTemporaryDir base{Plantilla()};
    QString carpeta;
    Tienda(int articulos, int clientes)
        : carpeta(HacerTienda(base.path(), {articulos, clientes, 0}, QDate(2026, 11, 22))) {}
};

// 20 IVA types and 200 categories; every other article belongs to none of them.
void Repartir(const QString &carpeta) {
    Cruda cruda(carpeta);
    cruda.Sql("DELETE FROM main.Iva; DELETE FROM main.Categorias;"
              "WITH n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<20)"
              " INSERT INTO main.Iva(id, codigo, tipo, porcentaje) SELECT i, i, 'Tipo '||i, i FROM n;"
              "WITH n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<200)"
              " INSERT INTO main.Categorias(id, codigo, categoria) SELECT i, i, 'Categoria '||i FROM n;"
              "UPDATE articulos.Articulos SET idtipoiva=1+id%20, idcategoria1=1+id%400");
}

// --- what the windows are given

class PreguntasSi final : public Preguntas {
  public:
    Respuesta Preguntar(const QString &, Respuesta) override { return Respuesta::Si; }
    void Mostrar(const QString &texto, Icono) override {
        std::fprintf(stderr, "%s\n", qPrintable(texto));
        std::exit(2);
    }
};

class SinImpresoras final : public Impresoras {
  public:
    QStringList Nombres() const override { return {}; }
    QString Actual() const override { return {}; }
    void HacerActual(const QString &) override {}
    std::unique_ptr<Superficie> NuevoDocumento(Proposito, const QString &) override {
        throw ErrorDatos(errores::kImpresora, {});
    }
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

// The data of one shop, opened, and what a window needs beside them.
struct Puesto {
    explicit Puesto(const QString &carpeta) : bases(carpeta, Moneda()) {
        if (bases.Abrir().estado != EstadoApertura::Completa) {
            std::fprintf(stderr, "the sample shop does not open\n");
            std::exit(2);
        }
    }
    Servicios servicios() { return {bases, preguntas, reloj, impresoras, ajustes, escritorio}; }

    FrmBases bases;
    PreguntasSi preguntas;
    RelojSistema reloj;
    SinImpresoras impresoras;
    QTemporaryDir carpetaAjustes;
    QSettings ajustes{carpetaAjustes.filePath(QStringLiteral("ajustes.ini")), QSettings::IniFormat};
    SinEscritorio escritorio;
    SinAnfitrion anfitrion;
};

// A window that shows nothing: the list alone is measured.
class VistaMuda final : public VistaDetalle, public VistaFiltro {
  public:
    QString Texto(int) const override { return {}; }
    void Poner(int, const QString &) override {}
    void PonerEntradas(int, const QStringList &) override {}
    void HabilitarCampos(bool) override {}
    void EnfocarCampo(int) override {}
    int FilaActual() const override { return -1; }
    void SeleccionarFila(int) override {}
    void HabilitarLista(bool) override {}
    void EnfocarLista() override {}
    void MostrarBotones(const Botones &) override {}
    void PonerFiltros(const QStringList &) override {}
    void ElegirFiltro(int) override {}
    void HabilitarFiltro(bool) override {}
    void MostrarPanelCategoria(bool) override {}
    void EnfocarCatCodigo() override {}
    void EnfocarCatCategoria() override {}
};

// The best of several runs: what other programs of the machine take away is no part of the comparison.
double Mejor(const std::vector<double> &valores) {
    return *std::min_element(valores.begin(), valores.end());
}

// --- articles

void BancoLista(Tabla &tabla, const QString &carpeta) {
    std::vector<double> primeros;
    std::vector<double> repetidos;
    std::vector<double> filtrados;
    std::vector<double> crudos;
    for (int vuelta = 0; vuelta < 7; ++vuelta) {
        {
            Puesto puesto(carpeta);
            VistaMuda vista;
            ArticulosLogica logica(puesto.bases, puesto.preguntas, vista, vista, nullptr);
            logica.Lista().Ordenar(0, Qt::AscendingOrder);
            primeros.push_back(Milisegundos([&] { logica.LlenarListaArticulos(kTodas); }));
            repetidos.push_back(Milisegundos([&] { logica.LlenarListaArticulos(kTodas); }));
            filtrados.push_back(Milisegundos([&] { logica.LlenarListaArticulos(kSinCategoria); }));
            if (logica.Lista().Filas() != kMuchos / 2)
                std::exit(2);
        }
        Cruda cruda(carpeta);
        crudos.push_back(Milisegundos([&] {
            cruda.Recorrer("SELECT codigo, nombre, stock, pcompra, subtotal, idtipoiva, id, idcategoria1"
                           " FROM articulos.Articulos ORDER BY id");
        }));
    }
    tabla.Linea("first fill, 100,000 articles / raw reading", Mejor(primeros), Mejor(crudos), "ms", 2);
    tabla.Linea("fill again / raw reading", Mejor(repetidos), Mejor(crudos), "ms", 2);
    tabla.Linea("fill of 'Sin categoría' / fill of all", Mejor(filtrados), Mejor(repetidos), "ms", 1.5);
}

// An open window in which the name of the selected article is changed by the window's own button.
class Cambiador {
  public:
    explicit Cambiador(const QString &carpeta)
        : puesto_(carpeta), ventana_(puesto_.servicios(), puesto_.anfitrion) {
        ventana_.resize(1000, 700);
        ventana_.show();
        ventana_.grab();
    }
    double Cambiar(int vez) {
        auto *nombre = ventana_.findChild<QLineEdit *>(QStringLiteral("txtNombre"));
        auto *guardar = ventana_.findChild<QPushButton *>(QStringLiteral("cmdGuardar"));
        nombre->setText(QStringLiteral("Nombre nuevo %1").arg(vez));
        return Milisegundos([&] { guardar->click(); });
    }

  private:
    Puesto puesto_;
    FrmArticulos ventana_;
};

// Turn by turn, so that both have the same share of the machine.
void BancoGuardar(Tabla &tabla, const QString &grande, const QString &chica) {
    Cambiador muchos(grande);
    Cambiador pocos(chica);
    std::vector<double> conMuchos;
    std::vector<double> conPocos;
    for (int vez = 0; vez < 100; ++vez) {
        conMuchos.push_back(muchos.Cambiar(vez));
        conPocos.push_back(pocos.Cambiar(vez));
    }
    tabla.Linea("save a change, 100,000 articles / 1,000", Mejor(conMuchos), Mejor(conPocos), "ms", 1.5);
}

// --- customers

class ModeloVacio final : public QAbstractTableModel {
  public:
    int rowCount(const QModelIndex &padre) const override { return padre.isValid() ? 0 : kClientes; }
    int columnCount(const QModelIndex &padre) const override { return padre.isValid() ? 0 : 6; }
    QVariant data(const QModelIndex &, int) const override { return {}; }
};

double Memoria() {
    QFile archivo(QStringLiteral("/proc/self/statm"));
    if (!archivo.open(QIODevice::ReadOnly))
        return 0;
    return archivo.readAll().split(' ').value(1).toDouble() * 4096 / 1e6;
}

template <typename Vista, typename Modelo>
double MedirVista(Modelo &modelo, void (*poner)(Vista &, Modelo &)) {
    std::vector<double> tiempos;
    for (int vuelta = 0; vuelta < 5; ++vuelta) {
        Vista vista;
        vista.setUniformRowHeights(true);
        vista.setRootIsDecorated(false);
        vista.resize(1000, 400);
        tiempos.push_back(Milisegundos([&] {
            poner(vista, modelo);
            vista.show();
            vista.grab();
        }));
    }
    return Mejor(tiempos);
}

void BancoClientes(Tabla &tabla, const QString &carpeta) {
    ModeloVacio vacio;
    const double arbol = MedirVista<QTreeView, ModeloVacio>(
        vacio, [](QTreeView &vista, ModeloVacio &modelo) { vista.setModel(&modelo); });
    Puesto puesto(carpeta);
    const double antes = Memoria();
    std::unique_ptr<FrmClientes> ventana;
    const double abrir = Milisegundos([&] {
        ventana = std::make_unique<FrmClientes>(puesto.servicios(), puesto.anfitrion);
        ventana->resize(1000, 700);
        ventana->show();
        ventana->grab();
    });
    const double memoria = Memoria() - antes;
    auto &lista = const_cast<ListaTexto &>(ventana->Lista());
    const double propia = MedirVista<ListaVista, ListaTexto>(
        lista, [](ListaVista &vista, ListaTexto &modelo) { vista.Mostrar(&modelo); });
    tabla.Linea("show 1,000,000 customers / empty tree", propia, arbol, "ms", 2);
    auto *vista = ventana->findChild<ListaVista *>(QStringLiteral("LVClientes"));
    std::vector<double> filas;
    for (int i = 0; i < 200; ++i)
        filas.push_back(Milisegundos([&] {
            vista->SeleccionarFila(static_cast<int>(i * 7919LL * 131 % kClientes));
            emit vista->FilaPulsada(vista->FilaActual());
            vista->grab();
        }));
    tabla.Linea("show one of them in the fields / one frame", Percentil(filas, 50), 16, "ms", 1);
    std::printf("opening the window, reading and sorting: %.0f ms; memory of rows, list and view: %.0f MB\n",
                abrir, memoria);
}

} // namespace

int main(int argc, char **argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication aplicacion(argc, argv);
    AplicarEstilo(aplicacion);
    Tabla tabla;
    const Tienda grande(kMuchos, 60);
    const Tienda chica(kPocos, 60);
    Repartir(grande.carpeta);
    Repartir(chica.carpeta);
    BancoLista(tabla, grande.carpeta);
    BancoGuardar(tabla, grande.carpeta, chica.carpeta);
    const Tienda gente(kPocos, kClientes);
    BancoClientes(tabla, gente.carpeta);
    return tabla.Resultado();
}
