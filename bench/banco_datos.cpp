// The lists of the master data: the articles list with its prices against the bare reading of the same
// columns, its filter against the unfiltered fill, a million customers against an empty tree of as many rows,
// the save of one article in a shop of 100,000 against one of 1,000, and a row among 10,000 suppliers. The
// program fails when a ratio is over its limit.
#include "aplicacion.h"
#include "arbolvacio.h"
#include "comparacion.h"
#include "servicios.h"

#include "desktop/ventanas/listavista.h"
#include "masterdata/ventanas/frmarticulos.h"
#include "masterdata/ventanas/frmclientes.h"

#include <QLineEdit>
#include <QPushButton>

#include <memory>

using namespace tarvo;
using namespace comparacion;

namespace {

constexpr int kMuchos = 100'000;
constexpr int kPocos = 1'000;
constexpr int kClientes = 1'000'000;

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

// A window that shows nothing: the list alone is measured.
class VistaMuda final : public VistaDetalle, public VistaFiltro {
  public:
    QString Texto(int) const override { return {}; }
    void Poner(int, const QString &) override {}
    void PonerEntradas(int, const QStringList &) override {}
    void EnfocarCampo(int) override {}
    int FilaActual() const override { return -1; }
    void SeleccionarFila(int) override {}
    void EnfocarLista() override {}
    void TitularFicha(const QString &) override {}
    void Habilitar(const Habilitados &) override {}
    void AbrirPanel(PanelDetalle) override {}
    void CerrarPanel(PanelDetalle) override {}
    void PonerFiltros(const QStringList &) override {}
    void ElegirFiltro(int) override {}
    void HabilitarFiltro(bool) override {}
    void EnfocarCatCodigo() override {}
    void EnfocarCatCategoria() override {}
};

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
                           " FROM articulos.Articulos ORDER BY id",
                           Lectura::TextosYLongitudes);
        }));
    }
    tabla.Linea("first fill, 100,000 articles / raw reading", Mejor(primeros), Mejor(crudos), "ms", 2);
    tabla.Linea("fill again / raw reading", Mejor(repetidos), Mejor(crudos), "ms", 2);
    tabla.Linea("fill of one category / fill of all", Mejor(filtrados), Mejor(repetidos), "ms", 1.5);
}

// An open window in which the name of the selected article is changed by the window's own button.
class Cambiador {
  public:
    explicit Cambiador(const QString &carpeta)
        : puesto_(carpeta), ventana_(puesto_.servicios(), puesto_.anfitrion) {
        Exponer(ventana_);
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

void BancoClientes(Tabla &tabla, const QString &carpeta) {
    const double arbol = MostrarArbolVacio(kClientes, 6);
    Puesto puesto(carpeta);
    const double antes = Memoria();
    std::unique_ptr<FrmClientes> ventana;
    const double abrir = Milisegundos([&] {
        ventana = std::make_unique<FrmClientes>(puesto.servicios(), puesto.anfitrion);
        Exponer(*ventana);
    });
    const double memoria = Memoria() - antes;
    auto &lista = const_cast<ListaTexto &>(ventana->Lista());
    const double propia = Mejor(5, [&] {
        ListaVista vista;
        return Milisegundos([&] {
            vista.Mostrar(&lista);
            Exponer(vista);
        });
    });
    tabla.Linea("show 1,000,000 customers / empty tree", propia, arbol, "ms", 2);
    auto *vista = ventana->findChild<ListaVista *>(QStringLiteral("LVClientes"));
    std::vector<double> filas;
    filas.reserve(200);
    for (int i = 0; i < 200; ++i)
        filas.push_back(Milisegundos([&] {
            vista->SeleccionarFila(static_cast<int>(i * 7919LL * 131 % kClientes));
            emit vista->FilaPulsada(vista->FilaActual());
            vista->grab();
        }));
    tabla.Linea("show one of them in the fields / one frame", Percentil(filas, 50), 16, "ms", 1);
    tabla.Dato("open their window: read, sort, paint", abrir, "ms");
    tabla.Dato("memory of the rows, the list and the view", memoria, "MB");
}

// Articles whose combo offers 10,000 suppliers: their labels are read with a fill, not with each row.
void BancoProveedores(Tabla &tabla, const QString &carpeta) {
    Cruda(carpeta).Sql(
        "WITH n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<10000)"
        " INSERT INTO proveedores.Proveedores(codigo, nombre) SELECT 'P'||i, 'Proveedor '||i FROM n;"
        "UPDATE articulos.Articulos SET idproveedores=1+id%10000");
    Puesto puesto(carpeta);
    FrmArticulos ventana(puesto.servicios(), puesto.anfitrion);
    Exponer(ventana);
    auto *vista = ventana.findChild<ListaVista *>(QStringLiteral("LVArticulos"));
    std::vector<double> filas;
    for (int i = 0; i < 200; ++i)
        filas.push_back(Milisegundos([&] {
            vista->SeleccionarFila(i * 7919 % kPocos);
            emit vista->FilaPulsada(vista->FilaActual());
            vista->grab();
        }));
    tabla.Linea("show an article, 10,000 suppliers / one frame", Percentil(filas, 50), 16, "ms", 1);
}

} // namespace

int main(int argc, char **argv) {
    return MedirVentanas(argc, argv, [](Tabla &tabla) {
        const Tienda grande({kMuchos, 60, 0}, CarpetaEnMemoria());
        const Tienda chica({kPocos, 60, 0}, CarpetaEnMemoria());
        Repartir(grande.carpeta);
        Repartir(chica.carpeta);
        BancoLista(tabla, grande.carpeta);
        BancoGuardar(tabla, grande.carpeta, chica.carpeta);
        BancoProveedores(tabla, chica.carpeta);
        const Tienda gente({kPocos, kClientes, 0}, CarpetaEnMemoria());
        BancoClientes(tabla, gente.carpeta);
    });
}
