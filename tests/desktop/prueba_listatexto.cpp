#include "desktop/listatexto.h"

#include "desktop/ordentexto.h"
#include "testkit/listas.h"

#include <QAbstractItemModelTester>
#include <QIcon>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace tarvo {
namespace {

ContenidoLista Celdas(const QList<QStringList> &columnas) {
    std::vector<ColumnaTexto> celdas(static_cast<std::size_t>(columnas.size()));
    for (qsizetype i = 0; i < columnas.size(); ++i)
        for (const QString &texto : columnas[i])
            celdas[static_cast<std::size_t>(i)].Agregar(texto.toStdString());
    return {std::move(celdas)};
}

// A list of texts and the number of each row as it came.
struct ListaDePrueba : ListaTexto {
    explicit ListaDePrueba(const QStringList &textos = {})
        : ListaTexto({{u"Texto"_qs, 1500}, {u"n"_qs, 700, true, true}}) {
        QStringList numeros;
        for (qsizetype i = 0; i < textos.size(); ++i)
            numeros.append(QString::number(i));
        Asignar(Celdas({textos, numeros}));
    }
    QString Numeros() const { return ColumnaDe(*this, 1); }
    QAbstractItemModelTester prueba{this, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST(ListaTexto, SortsInSpanishAndKeepsTheOrderOfEqualsInBothDirections) {
    const std::array<const char16_t *, 3> casos[] = {
        {u"ñandú|oso|Nube|árbol|azul|nz", u"3|4|2|5|0|1", u"1|0|5|2|4|3"},
        {u"b|A|B|a|b", u"1|3|0|2|4", u"0|2|4|1|3"},
        {u"2|10|1|-3|100", u"3|2|1|4|0", u"0|4|1|2|3"}, // numbers are texts
        {u"$ 9,00|$ 10,00|$ 100,00", u"1|2|0", u"0|2|1"},
        {u"a|| |", u"1|3|2|0", u"0|2|1|3"}};
    for (const auto &[palabras, ascendente, descendente] : casos) {
        const QString textos = QString::fromUtf16(palabras);
        ListaDePrueba lista(textos.split(u'|'));
        lista.Ordenar(0, Qt::AscendingOrder);
        EXPECT_EQ(lista.Numeros(), ascendente);
        lista.Ordenar(0, Qt::DescendingOrder);
        EXPECT_EQ(lista.Numeros(), descendente);
        lista.Ordenar(-1, Qt::AscendingOrder);
        EXPECT_EQ(ColumnaDe(lista, 0), textos);
    }
}

// As the accounts have it: the first header sorts by a hidden column, the list begins sorted by another one.
TEST(ListaTexto, TheArrowStandsApartFromTheSortColumn) {
    ListaTexto lista({{.titulo = u"Fecha"_qs, .claveOrden = 2},
                      {.titulo = u"Detalle"_qs},
                      {.titulo = u"id"_qs, .oculta = true},
                      {.titulo = u"ordFecha"_qs, .oculta = true, .flecha = 0}});
    const auto estado = [&] {
        QString flechas;
        for (int i = 0; i < lista.columnCount(); ++i)
            if (lista.headerData(i, Qt::Horizontal, Qt::DecorationRole).isValid())
                flechas += QString::number(i);
        const QChar sentido(lista.Orden() == Qt::AscendingOrder ? u'+' : u'-');
        return u"%1%2 at %3"_qs.arg(lista.ColumnaOrden()).arg(sentido).arg(flechas);
    };
    const auto llenar = [&] {
        lista.Asignar(
            Celdas({{u"02/01"_qs, u"01/02"_qs}, {u"b"_qs, u"a"_qs}, {u"7"_qs, u"8"_qs}, {u"y"_qs, u"x"_qs}}));
    };
    EXPECT_EQ(estado(), u"-1+ at ");
    lista.Ordenar(3, Qt::AscendingOrder);
    EXPECT_EQ(estado(), u"3+ at 0");
    llenar();
    EXPECT_EQ(lista.Celda(0, 0), u"01/02");
    lista.ClicEncabezado(0);
    EXPECT_EQ(estado(), u"2+ at 0");
    EXPECT_EQ(lista.Celda(0, 0), u"02/01");
    lista.ClicEncabezado(0);
    EXPECT_EQ(estado(), u"2- at 0");
    lista.Limpiar();
    lista.DejarVaciaSinOrdenar();
    lista.ClicEncabezado(1);
    EXPECT_EQ(estado(), u"2- at 0");
    llenar();
    EXPECT_EQ(estado(), u"2- at 2") << "a hidden header";
    EXPECT_EQ(lista.Celda(0, 0), u"01/02");
    lista.ClicEncabezado(1);
    EXPECT_EQ(estado(), u"1+ at 1");
}

TEST(ListaTexto, RowsGoByAPredicateAndTheRestStaysAsItWas) {
    ListaDePrueba lista({u"d"_qs, u"a"_qs, u"c"_qs, u"b"_qs, u"e"_qs});
    lista.PonerMarcable(true);
    lista.PonerTono(2, 0, Tono::Azul);
    lista.Marcar(2, true);
    lista.Ordenar(0, Qt::DescendingOrder);
    QString pedidas;
    lista.QuitarFilas([&](int fila) {
        pedidas += lista.Celda(fila, 0);
        return lista.Celda(fila, 0) == u"a" || lista.Celda(fila, 0) == u"d";
    });
    EXPECT_EQ(pedidas, u"abcde") << "from the last row to the first, all of them still there";
    EXPECT_EQ(lista.Numeros(), u"4|2|3");
    EXPECT_EQ(lista.TonoDe(1, 0), Tono::Azul);
    EXPECT_TRUE(lista.Marcada(1) && !lista.Marcada(0) && !lista.Marcada(2));
    lista.AgregarFila({u"c"_qs, u"5"_qs});
    EXPECT_EQ(lista.Numeros(), u"4|2|5|3");

    lista.PonerMarcable(false);
    EXPECT_FALSE(lista.flags(lista.index(0, 0)).testFlag(Qt::ItemIsUserCheckable));
    lista.PonerMarcable(true);
    EXPECT_FALSE(lista.Marcada(1)) << "all unchecked when switched on again";
    lista.QuitarFilas([](int) { return true; });
    EXPECT_EQ(lista.Filas(), 0);
}

TEST(ListaTexto, NewRowsGoBehindTheirEquals) {
    ListaDePrueba lista({u"b"_qs, u"d"_qs, u"B"_qs});
    EXPECT_EQ(lista.AgregarFila({u"a"_qs, u"3"_qs}), 3) << "unsorted: at the end";
    lista.Ordenar(0, Qt::AscendingOrder);
    EXPECT_EQ(lista.AgregarFila({u"b"_qs, u"4"_qs}), 3);
    lista.Ordenar(0, Qt::DescendingOrder);
    EXPECT_EQ(lista.AgregarFila({u"B"_qs, u"5"_qs}), 4);
    EXPECT_EQ(lista.Numeros(), u"1|0|2|4|5|3");
    lista.Ordenar(0, Qt::AscendingOrder);
    EXPECT_EQ(lista.Numeros(), u"3|0|2|4|5|1");
}

TEST(ListaTexto, RowsKeepTonesMarksAndPlaceThroughChanges) {
    ListaDePrueba lista({u"c"_qs, u"a"_qs, u"b"_qs, u"d"_qs});
    lista.PonerMarcable(true);
    lista.PonerTono(0, 0, Tono::Rojo);
    lista.Marcar(3, true);
    lista.Ordenar(0, Qt::AscendingOrder);
    lista.QuitarFila(0);
    lista.PonerCelda(1, 0, u"zz"_qs);
    ASSERT_EQ(lista.Numeros(), u"2|0|3") << "a changed cell doesn't move its row";
    EXPECT_EQ(lista.TonoDe(1, 0), Tono::Rojo);
    EXPECT_EQ(lista.index(1, 0).data(Qt::ForegroundRole).value<QColor>(), QColor(255, 0, 0));
    EXPECT_FALSE(lista.index(0, 0).data(Qt::ForegroundRole).isValid());
    EXPECT_TRUE(lista.Marcada(2));

    QSignalSpy pulsada(&lista, &ListaTexto::MarcaPulsada);
    EXPECT_TRUE(lista.setData(lista.index(0, 0), Qt::Checked, Qt::CheckStateRole));
    EXPECT_EQ(pulsada.size(), 1);
    EXPECT_FALSE(lista.setData(lista.index(0, 1), Qt::Checked, Qt::CheckStateRole))
        << "marks lie in the first column";
    lista.Ordenar(0, Qt::AscendingOrder);
    EXPECT_EQ(lista.Numeros(), u"2|3|0") << "sorted anew, with the changed text";
    EXPECT_EQ(lista.TonoDe(2, 0), Tono::Rojo);
    EXPECT_TRUE(lista.Marcada(0) && lista.Marcada(1) && !lista.Marcada(2));

    ContenidoLista contenido = Celdas({{u"y"_qs, u"x"_qs}, {u"0"_qs, u"1"_qs}});
    contenido.tonos = {{1, {Tono::Azul, Tono::Verde}}, {0, {Tono::Normal, Tono::Marron}}};
    lista.Asignar(contenido);
    EXPECT_EQ(lista.Numeros(), u"1|0") << "the sort stays for new rows";
    EXPECT_EQ(lista.TonoDe(0, 1), Tono::Verde);
    EXPECT_EQ(lista.TonoDe(1, 0), Tono::Normal);
    EXPECT_EQ(lista.TonoDe(0, 0), Tono::Marron);
    EXPECT_FALSE(lista.Marcada(0));
}

// The order of the last fill is remembered; it must not outlive the texts.
TEST(ListaTexto, EveryFillIsSortedByItsOwnTexts) {
    ListaDePrueba lista({u"b"_qs, u"c"_qs, u"a"_qs});
    lista.Ordenar(0, Qt::AscendingOrder);
    for (const QStringList &textos : {QStringList{u"b"_qs, u"c"_qs, u"a"_qs},
                                      {u"b"_qs, u"a"_qs, u"c"_qs},
                                      {u"z"_qs, u"y"_qs},
                                      {},
                                      {u"e"_qs, u"é"_qs, u"D"_qs}}) {
        QStringList ordenados = textos;
        std::sort(ordenados.begin(), ordenados.end(),
                  [](const QString &a, const QString &b) { return OrdenTexto().Comparar(a, b) < 0; });
        lista.Asignar(Celdas({textos, textos}));
        EXPECT_EQ(ColumnaDe(lista, 0), ordenados.join(u'|'));
    }
}

TEST(ListaTexto, TellsAlignmentCaptionAndCheckState) {
    ListaDePrueba lista({u"x"_qs});
    const auto alineada = [&](int columna) {
        return lista.index(0, columna).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
    };
    EXPECT_TRUE(alineada(0).testFlag(Qt::AlignLeft));
    EXPECT_TRUE(alineada(1).testFlag(Qt::AlignRight));
    QSignalSpy espia(&lista, &ListaTexto::headerDataChanged);
    lista.PonerTitulo(0, u"Cant."_qs);
    EXPECT_EQ(espia.size(), 1);
    EXPECT_EQ(lista.headerData(0, Qt::Horizontal).toString(), u"Cant.");
    EXPECT_FALSE(lista.index(0, 0).data(Qt::CheckStateRole).isValid()) << "not checkable unless asked for";
    EXPECT_EQ(lista.index(0, 1).data().toString(), u"0") << "hidden columns give their text";
    EXPECT_EQ(lista.Buscar(1, "0"), 0);
    EXPECT_EQ(lista.Buscar(1, "0", 1), -1);
    EXPECT_EQ(lista.Buscar(0, "X"), -1);
}

// The ranks come by short cuts; the collator itself is the judge.
TEST(OrdenTexto, RanksAgreeWithTheCollatorOnCodesAndOnMixedTexts) {
    const QString mezcla =
        QString::fromUtf8("aAbBzZ019ñÑnáÁeéçÇ -_.,;:$%&/()'\"\\<>{}[]@#*+=?!~^`|ßœ€\t\n😀¿");
    std::mt19937 azar(5);
    for (const qsizetype letras : {qsizetype{9}, qsizetype{12}, mezcla.size()}) {
        ColumnaTexto columna;
        for (int i = 0; i < 300; ++i) {
            QString texto;
            for (auto largo = azar() % 5; largo > 0; --largo)
                texto += mezcla[static_cast<qsizetype>(azar()) % letras];
            columna.Agregar(texto.toStdString());
        }
        const OrdenTexto orden;
        const std::vector<std::uint32_t> rangos = orden.Rangos(columna);
        for (int a = 0; a < 300; ++a)
            for (int b = 0; b < 300; ++b) {
                const int esperado = orden.Comparar(columna.Texto(a), columna.Texto(b));
                const auto ra = rangos[static_cast<std::size_t>(a)];
                const auto rb = rangos[static_cast<std::size_t>(b)];
                ASSERT_EQ((ra > rb) - (ra < rb), (esperado > 0) - (esperado < 0))
                    << columna.Celda(a) << " " << columna.Celda(b);
            }
    }
}

} // namespace
} // namespace tarvo
