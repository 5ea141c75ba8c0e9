// Backup and restore of a shop of 150 MB against `cp` and `sync` of the same files, on the disk of the
// temporary folder; the export of 100,000 articles against one QFile that writes the same bytes and brings
// them to the disk; and the memory that they take.
#include "comparacion.h"
#include "muestra.h"
#include "servicios.h"

#include "desktop/listatexto.h"
#include "interchange/avance.h"
#include "interchange/exportacion.h"
#include "interchange/mnuexportar.h"
#include "interchange/reemplazo.h"
#include "interchange/respaldo.h"
#include "interchange/tablaexportacion.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>

using namespace tarvo;
using namespace comparacion;

namespace {

constexpr int kVueltas = 5;
constexpr Elegidas kTodas{true, true, true, true, true};

class SinAvance final : public Avance {
  public:
    bool Sigue() override { return true; }
    void Empieza(const QString &, qint64) override {}
    void Hecho(qint64) override {}
    void Avanza() override {}
};

class PreguntasRuta final : public PreguntasSi {
  public:
    explicit PreguntasRuta(QString ruta) : ruta_(std::move(ruta)) {}
    QString ElegirRuta(const PedidoRuta &) override { return ruta_; }

  private:
    QString ruta_;
};

void Ordenar(const std::string &orden) {
    if (std::system(orden.c_str()) == 0)
        return;
    std::fprintf(stderr, "failed: %s\n", orden.c_str());
    std::exit(2);
}

// The most memory that `accion` takes beyond what was taken before it, in MB.
double MemoriaDurante(const std::function<void()> &accion) {
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5"; // the peak starts over
    const double antes = Memoria();
    accion();
    std::ifstream estado("/proc/self/status");
    std::string linea;
    while (std::getline(estado, linea))
        if (linea.rfind("VmHWM:", 0) == 0)
            return std::atof(linea.c_str() + 6) * 1024 / 1e6 - antes;
    return 0;
}

// Each round works on folders of its own; all three take turns.
void BancoRespaldo(Tabla &tabla) {
    const Tienda tienda({100'000, 5'000, 1'100'000});
    const std::string base = tienda.base.path().toStdString();
    FrmBases bases(tienda.carpeta, Moneda());
    SinAvance avance;
    Elegidas vaciadas{};
    std::vector<double> copias;
    std::vector<double> respaldos;
    std::vector<double> recuperaciones;
    double memoria = 0;
    qint64 bytes = 0;
    for (const QFileInfo &archivo : QDir(tienda.carpeta).entryInfoList(QDir::Files))
        bytes += archivo.size();
    tabla.Dato("the five files", static_cast<double>(bytes) / 1e6, "MB");
    for (int i = 0; i < kVueltas; ++i) {
        const QString copia = tienda.base.filePath(QStringLiteral("copia"));
        Ordenar("mkdir " + base + "/cp && sync");
        copias.push_back(Milisegundos([&] {
            Ordenar("cp " + base + "/Datos/*.mdb " + base + "/cp && sync " + base + "/cp/* " + base + "/cp");
        }));
        memoria = std::max(memoria, MemoriaDurante([&] {
                               respaldos.push_back(Milisegundos([&] {
                                   Respaldar(bases, {copia, kTodas, {}}, avance, vaciadas);
                               }));
                           }));
        recuperaciones.push_back(Milisegundos([&] { Recuperar(bases, {copia, kTodas}, avance); }));
        Ordenar("rm -r " + base + "/cp " + base + "/copia");
    }
    tabla.Linea("backup, verified / cp and sync", Percentil(respaldos, 50), Percentil(copias, 50), "ms", 2.5);
    tabla.Linea("restore, verified / cp and sync", Percentil(recuperaciones, 50), Percentil(copias, 50), "ms",
                3);
    tabla.Linea("memory of a backup", memoria, 8, "MB", 1);
}

ListaTexto *Articulos(QObject &padre, int filas) {
    std::vector<ColumnaTexto> celdas(6);
    for (int i = 0; i < filas; ++i) {
        const std::string n = std::to_string(i);
        celdas[0].Agregar("A" + n);
        celdas[1].Agregar("Artículo número " + n + " de la tienda");
        celdas[2].Agregar(n);
        for (std::size_t columna : {3U, 4U, 5U})
            celdas[columna].Agregar("$ " + n + ",50");
    }
    auto *lista = new ListaTexto(std::vector<ColumnaLista>(6), &padre);
    lista->Asignar({.celdas = std::move(celdas)});
    return lista;
}

void EscribirDeUnaVez(const QString &ruta, const QByteArray &bytes) {
    QFile::remove(ruta);
    QFile archivo(ruta);
    archivo.open(QIODevice::WriteOnly);
    archivo.write(bytes);
    archivo.flush();
    fsync(archivo.handle());
}

void BancoExportacion(Tabla &tabla) {
    QObject padre;
    const QTemporaryDir carpeta;
    const FrmBases bases(carpeta.filePath(QStringLiteral("Datos")), Moneda());
    const QString nombre = QStringLiteral("LVArticulos");
    const Exportable lo{Articulos(padre, 100'000), nombre};
    QBuffer igual;
    igual.open(QIODevice::WriteOnly);
    EscribirTexto(igual, *TablaDe(nombre), *lo.lista);
    PreguntasRuta preguntas(carpeta.filePath(QStringLiteral("articulos.txt")));
    std::vector<double> exportados;
    std::vector<double> escritos;
    for (int i = 0; i < 2 * kVueltas + 1; ++i) {
        exportados.push_back(Milisegundos([&] { mnuExportar(preguntas, bases, lo); }));
        escritos.push_back(Milisegundos(
            [&] { EscribirDeUnaVez(carpeta.filePath(QStringLiteral("igual.txt")), igual.data()); }));
    }
    tabla.Linea("text of 100,000 articles / one QFile", Percentil(exportados, 50), Percentil(escritos, 50),
                "ms", 1.5);
    tabla.Linea("memory of that export", MemoriaDurante([&] { mnuExportar(preguntas, bases, lo); }), 8, "MB",
                1);
    const Exportable clientes{Articulos(padre, 249), QStringLiteral("LVClientes")};
    PreguntasRuta hoja(carpeta.filePath(QStringLiteral("clientes.xls")));
    tabla.Linea("spreadsheet of 249 rows / limit",
                MejorTiempo(9, [&] { mnuExportar(hoja, bases, clientes); }), 5, "ms", 1);
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication aplicacion(argc, argv);
    Tabla tabla;
    BancoExportacion(tabla);
    BancoRespaldo(tabla);
    return tabla.Resultado();
}
