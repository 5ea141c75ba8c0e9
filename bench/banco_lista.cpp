// The list against its limits: a sort of the same texts by the collator alone, a bare tree view on a model
// without texts, and one pass over the bytes of a search. The program fails when a ratio is over its limit.
#include "aplicacion.h"
#include "arbolvacio.h"
#include "comparacion.h"

#include "desktop/ventanas/listavista.h"

#include <QCollator>
#include <QRandomGenerator>

#include <benchmark/benchmark.h>

#include <numeric>

using namespace tarvo;
using namespace comparacion;

namespace {

constexpr int kFilasOrden = 100'000;
constexpr int kFilasVista = 1'000'000;
constexpr int kColumnas = 8;
constexpr int kSelecciones = 100;

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

QCollator Comparador() {
    QCollator comparador{QLocale(QLocale::Spanish)};
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

void BancoOrdenar(Tabla &tabla) {
    const QStringList nombres = Nombres(kFilasOrden);
    const double limite = std::min(MejorTiempo(5, [&] { PorComparacion(nombres); }),
                                   MejorTiempo(5, [&] { PorClaves(nombres); }));
    const std::vector<ColumnaTexto> columnas = Columnas(nombres, 1);
    const double primera = Mejor(5, [&] {
        ListaTexto nueva(Especificacion(1)); // a list remembers the order of its texts
        nueva.Asignar({columnas});
        return Milisegundos([&] { nueva.ClicEncabezado(0); });
    });
    ListaTexto lista(Especificacion(1));
    lista.Asignar({columnas});
    lista.ClicEncabezado(0);
    const double repetida = MejorTiempo(5, [&] { lista.ClicEncabezado(0); });
    const double rellenada = MejorTiempo(5, [&] { lista.Asignar({columnas}); });
    tabla.Linea("first sort, 100,000 names / collator alone", primera, limite, "ms", 1.2);
    tabla.Linea("sort again / collator alone", repetida, limite, "ms", 0.5);
    tabla.Linea("fill the sorted list again / collator alone", rellenada, limite, "ms", 0.1);
}

void BancoMostrar(Tabla &tabla) {
    const double limite = MostrarArbolVacio(kFilasVista, kColumnas);
    const std::vector<ColumnaTexto> columnas = Columnas(Nombres(kFilasVista), kColumnas);
    double memoria = 0;
    double seleccion = 0;
    const double propia = Mejor(5, [&] {
        const double antes = Memoria();
        ListaTexto lista(Especificacion(kColumnas));
        ListaVista vista;
        const double tiempo = Milisegundos([&] {
            lista.Asignar({columnas});
            vista.Mostrar(&lista);
            Exponer(vista);
        });
        memoria = Memoria() - antes;
        seleccion = Milisegundos([&] {
            for (int i = 0; i < kSelecciones; ++i)
                vista.SeleccionarFila(static_cast<int>(i * 7919LL * 131 % kFilasVista));
        });
        return tiempo;
    });
    tabla.Linea("fill and show 1,000,000 rows / empty tree", propia, limite, "ms", 2);
    tabla.Linea("select one of them / one frame", seleccion / kSelecciones, 16, "ms", 1);
    tabla.Dato("memory of the list and the view", memoria, "MB");
    tabla.Dato("the texts of a column that they share", static_cast<double>(columnas.front().Bytes()) / 1e6,
               "MB");
}

// What the columns need, measured anew, and the widths from it.
void BancoAnchos(Tabla &tabla) {
    ListaTexto lista(Especificacion(kColumnas));
    lista.Asignar({Columnas(Nombres(kFilasOrden), kColumnas)});
    ListaVista vista;
    vista.Mostrar(&lista);
    Exponer(vista);
    const double anchos = MejorTiempo(5, [&] {
        QEvent cambio(QEvent::FontChange);
        QApplication::sendEvent(&vista, &cambio);
        vista.PonerAncho(0, 1000);
    });
    tabla.Linea("column widths by content, 100,000 rows / 5 ms", anchos, 5, "ms", 1);
}

// A search that hits nothing, in two columns, against one pass over the same bytes.
void BancoBuscar(Tabla &tabla, const char *nombre, const QString &texto) {
    ListaTexto lista(Especificacion(2));
    lista.Asignar({Columnas(Nombres(kFilasOrden), 2)});
    const double pasada = MejorTiempo(5, [&] {
        for (int columna = 0; columna < 2; ++columna)
            for (int fila = 0; fila < lista.Filas(); ++fila) {
                const std::string_view celda = lista.CeldaUtf8(fila, columna);
                benchmark::DoNotOptimize(std::accumulate(celda.begin(), celda.end(), 0));
            }
    });
    const double busqueda = MejorTiempo(5, [&] {
        benchmark::DoNotOptimize(lista.BuscarParte({0, 1}, texto));
    });
    tabla.Linea(nombre, busqueda, pasada, "ms", 1.5);
}

} // namespace

int main(int argc, char **argv) {
    return MedirVentanas(argc, argv, [](Tabla &tabla) {
        BancoOrdenar(tabla);
        BancoMostrar(tabla);
        BancoAnchos(tabla);
        BancoBuscar(tabla, "search 200,000 texts in vain, ASCII / one pass", u"manzana"_qs);
        BancoBuscar(tabla, "search 200,000 texts in vain, accents / one pass", u"ñandú"_qs);
    });
}
