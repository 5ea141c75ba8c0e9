// The list against its limits: a sort of the same texts by the collator alone, and a bare tree view on a
// model without texts.
#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/listavista.h"

#include <QApplication>
#include <QCollator>
#include <QFile>
#include <QRandomGenerator>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <numeric>

namespace {

using namespace tarvo;

constexpr int kFilasOrden = 100'000;
constexpr int kFilasVista = 1'000'000;
constexpr int kColumnas = 8;

// Names as a shop has them; every fifth has letters beyond ASCII.
QString Nombre(QRandomGenerator &azar) {
    static const QStringList palabras{u"Yerba"_qs, u"mate"_qs,    u"Café"_qs,   u"torrado"_qs,  u"fideos"_qs,
                                      u"Leche"_qs, u"Manteca"_qs, u"Ñoquis"_qs, u"galletas"_qs, u"Queso"_qs};
    return QStringLiteral("%1 %2 %3 g")
        .arg(palabras[azar.bounded(10)], palabras[azar.bounded(10)])
        .arg(azar.bounded(5000));
}

QStringList Nombres(int filas) {
    QRandomGenerator azar(11);
    QStringList nombres;
    nombres.reserve(filas);
    for (int i = 0; i < filas; ++i)
        nombres.append(Nombre(azar));
    return nombres;
}

std::vector<ColumnaTexto> Columnas(const QStringList &nombres, int columnas) {
    ColumnaTexto columna;
    for (const QString &nombre : nombres)
        columna.Agregar(nombre.toStdString());
    return std::vector<ColumnaTexto>(static_cast<std::size_t>(columnas), columna);
}

double Milisegundos(const std::function<void()> &trabajo) {
    const auto inicio = std::chrono::steady_clock::now();
    trabajo();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - inicio).count();
}

double Mejor(int veces, const std::function<double()> &medida) {
    double mejor = medida();
    for (int i = 1; i < veces; ++i)
        mejor = std::min(mejor, medida());
    return mejor;
}

QCollator Comparador() {
    QCollator comparador(QLocale(QLocale::Spanish));
    comparador.setCaseSensitivity(Qt::CaseInsensitive);
    return comparador;
}

void PorComparacion(const QStringList &textos) {
    const QCollator comparador = Comparador();
    std::vector<std::uint32_t> orden(static_cast<std::size_t>(textos.size()));
    std::iota(orden.begin(), orden.end(), 0U);
    std::stable_sort(orden.begin(), orden.end(),
                     [&](auto a, auto b) { return comparador.compare(textos[a], textos[b]) < 0; });
    benchmark::DoNotOptimize(orden.data());
}

void PorClaves(const QStringList &textos) {
    const QCollator comparador = Comparador();
    std::vector<QCollatorSortKey> claves;
    claves.reserve(static_cast<std::size_t>(textos.size()));
    for (const QString &texto : textos)
        claves.push_back(comparador.sortKey(texto));
    std::vector<std::uint32_t> orden(claves.size());
    std::iota(orden.begin(), orden.end(), 0U);
    std::stable_sort(orden.begin(), orden.end(),
                     [&](auto a, auto b) { return claves[a].compare(claves[b]) < 0; });
    benchmark::DoNotOptimize(orden.data());
}

std::vector<ColumnaLista> Especificacion(int columnas) {
    return std::vector<ColumnaLista>(static_cast<std::size_t>(columnas),
                                     ColumnaLista{QStringLiteral("Columna"), 1000});
}

void BM_Ordenar(benchmark::State &estado) {
    const QStringList nombres = Nombres(kFilasOrden);
    const double limite = std::min(Mejor(3, [&] { return Milisegundos([&] { PorComparacion(nombres); }); }),
                                   Mejor(3, [&] { return Milisegundos([&] { PorClaves(nombres); }); }));
    const std::vector<ColumnaTexto> columnas = Columnas(nombres, 1);
    double primera = 0;
    double repetida = 0;
    double rellenada = 0;
    for (auto _ : estado) {
        primera = Mejor(3, [&] {
            ListaTexto nueva(Especificacion(1)); // a list remembers the order of its texts
            nueva.Asignar(columnas);
            return Milisegundos([&] { nueva.ClicEncabezado(0); });
        });
        ListaTexto lista(Especificacion(1));
        lista.Asignar(columnas);
        lista.ClicEncabezado(0);
        repetida = Mejor(5, [&] { return Milisegundos([&] { lista.ClicEncabezado(0); }); });
        rellenada = Mejor(5, [&] { return Milisegundos([&] { lista.Asignar(columnas); }); });
    }
    estado.counters["collator_ms"] = limite;
    estado.counters["first_ms"] = primera;
    estado.counters["again_ms"] = repetida;
    estado.counters["refill_ms"] = rellenada;
    estado.counters["first_ratio"] = primera / limite;
    estado.counters["again_ratio"] = repetida / limite;
}
BENCHMARK(BM_Ordenar)->Iterations(1)->Unit(benchmark::kMillisecond);

class ModeloVacio final : public QAbstractTableModel {
  public:
    int rowCount(const QModelIndex &padre) const override { return padre.isValid() ? 0 : kFilasVista; }
    int columnCount(const QModelIndex &padre) const override { return padre.isValid() ? 0 : kColumnas; }
    QVariant data(const QModelIndex &, int) const override { return {}; }
};

// Resident memory of this process, in MB.
double Memoria() {
    QFile archivo(QStringLiteral("/proc/self/statm"));
    if (!archivo.open(QIODevice::ReadOnly))
        return 0;
    return archivo.readAll().split(' ').value(1).toDouble() * 4096 / 1e6;
}

void Exponer(QWidget &vista) {
    vista.resize(1000, 700);
    vista.show();
    vista.grab();
}

void BM_Mostrar(benchmark::State &estado) {
    const double limite = Mejor(3, [] {
        ModeloVacio modelo;
        QTreeView vista;
        vista.setUniformRowHeights(true);
        vista.setRootIsDecorated(false);
        return Milisegundos([&] {
            vista.setModel(&modelo);
            Exponer(vista);
        });
    });
    const std::vector<ColumnaTexto> columnas = Columnas(Nombres(kFilasVista), kColumnas);
    double propia = 0;
    double memoria = 0;
    double seleccion = 0;
    for (auto _ : estado)
        propia = Mejor(3, [&] {
            const double antes = Memoria();
            ListaTexto lista(Especificacion(kColumnas));
            ListaVista vista;
            const double tiempo = Milisegundos([&] {
                lista.Asignar(columnas);
                vista.Mostrar(&lista);
                Exponer(vista);
            });
            memoria = Memoria() - antes;
            seleccion = Milisegundos([&] {
                for (int i = 0; i < 100; ++i)
                    vista.SeleccionarFila(static_cast<int>(i * 7919LL * 131 % kFilasVista));
            });
            return tiempo;
        });
    estado.counters["empty_tree_ms"] = limite;
    estado.counters["list_ms"] = propia;
    estado.counters["ratio"] = propia / limite;
    estado.counters["list_and_view_MB"] = memoria;
    estado.counters["texts_MB"] = static_cast<double>(columnas.front().Bytes()) / 1e6;
    estado.counters["select_us"] = seleccion * 10;
}
BENCHMARK(BM_Mostrar)->Iterations(1)->Unit(benchmark::kMillisecond);

// A search that hits nothing, in two columns, against one pass over the same bytes.
void BM_BuscarParte(benchmark::State &estado) {
    ListaTexto lista(Especificacion(2));
    lista.Asignar(Columnas(Nombres(kFilasOrden), 2));
    const QString texto = estado.range(0) == 0 ? u"manzana"_qs : u"ñandú"_qs;
    const double pasada = Mejor(5, [&] {
        return Milisegundos([&] {
            for (int columna = 0; columna < 2; ++columna)
                for (int fila = 0; fila < lista.Filas(); ++fila) {
                    const std::string_view celda = lista.CeldaUtf8(fila, columna);
                    benchmark::DoNotOptimize(std::accumulate(celda.begin(), celda.end(), 0));
                }
        });
    });
    double busqueda = 0;
    for (auto _ : estado)
        busqueda = Mejor(5, [&] {
            return Milisegundos([&] { benchmark::DoNotOptimize(lista.BuscarParte({0, 1}, texto)); });
        });
    estado.counters["search_ms"] = busqueda;
    estado.counters["bare_pass_ms"] = pasada;
    estado.counters["ratio"] = busqueda / pasada;
}
BENCHMARK(BM_BuscarParte)->Arg(0)->Arg(1)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication aplicacion(argc, argv);
    AplicarEstilo(aplicacion);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
