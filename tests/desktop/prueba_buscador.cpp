#include "desktop/anchos.h"
#include "desktop/buscador.h"

#include <gtest/gtest.h>

#include <numeric>
#include <tuple>

namespace tarvo {
namespace {

ListaTexto *NuevaLista(const QList<QStringList> &filas) {
    auto *lista = new ListaTexto({{u"Código"_qs, 1}, {u"Nombre"_qs, 1}});
    for (const QStringList &fila : filas)
        lista->AgregarFila(fila);
    return lista;
}

TEST(BuscarParte, IgnoresCaseAlsoOfAccentedLetters) {
    const std::tuple<QString, QString, bool> casos[] = {{u"BANANA S.A."_qs, u"ana"_qs, true},
                                                        {u"Ñandú"_qs, u"ÑANDÚ"_qs, true},
                                                        {u"CAFÉ"_qs, u"fé"_qs, true},
                                                        {u"café"_qs, u"cafe"_qs, false},
                                                        {u"×÷"_qs, u"÷"_qs, true},
                                                        {u"×"_qs, u"÷"_qs, false},
                                                        {u"aab"_qs, u"ab"_qs, true},
                                                        {u"ab"_qs, u"abc"_qs, false},
                                                        {u""_qs, u"a"_qs, false},
                                                        {u"Ελλάδα"_qs, u"ΛΛΆ"_qs, true},
                                                        {u"vino 😀 tinto"_qs, u"😀 T"_qs, true},
                                                        {u"dos\nlíneas"_qs, u"s\nL"_qs, true},
                                                        {QString(10000, u'x') + u"Fin"_qs, u"fin"_qs, true}};
    for (const auto &[celda, texto, esta] : casos) {
        const std::unique_ptr<ListaTexto> lista(NuevaLista({{celda}}));
        EXPECT_EQ(lista->BuscarParte({0}, texto) == 0, esta)
            << celda.left(20).toStdString() << " / " << texto.toStdString();
    }
}

TEST(Buscador, AdvancesByOneFromItsOwnStartNotFromTheHit) {
    const std::unique_ptr<ListaTexto> lista(
        NuevaLista({{u"a"_qs}, {u"b"_qs}, {u"x"_qs}, {u"c"_qs}, {u"X"_qs}}));
    Buscador buscador;
    QList<int> filas;
    for (int i = 0; i < 8; ++i)
        filas.append(buscador.Buscar(*lista, {0, 1}, u"x"_qs));
    EXPECT_EQ(filas, (QList<int>{2, 2, 2, 4, 4, 2, 2, 2})) << "behind the last row it starts at the top";
}

TEST(Buscador, AMissLeavesTheStartRow) {
    const std::unique_ptr<ListaTexto> lista(
        NuevaLista({{u"x"_qs, u"1"_qs}, {u"b"_qs, u"2"_qs}, {u"c"_qs, u"x"_qs}}));
    Buscador buscador;
    EXPECT_EQ(buscador.Buscar(*lista, {0}, u"x"_qs), 0);
    EXPECT_EQ(buscador.Buscar(*lista, {0}, u"x"_qs), -1);
    EXPECT_EQ(buscador.Buscar(*lista, {0, 1}, u"x"_qs), 2) << "from row 1 on, in the columns of this search";
    buscador.Reiniciar();
    EXPECT_EQ(buscador.Buscar(*lista, {0}, u"x"_qs), 0);
    lista->Limpiar();
    EXPECT_EQ(buscador.Buscar(*lista, {0}, u"x"_qs), -1);
}

TEST(RepartirAncho, FillsTheWidthInProportionButCutsNoCaption) {
    using V = std::vector<int>;
    EXPECT_EQ(RepartirAncho(300, {{1, 10, 10}, {2, 10, 10}}), (V{100, 200}));
    EXPECT_EQ(RepartirAncho(300, {{1, 10, 60}, {9, 10, 10}, {5, 10, 10}}), (V{60, 154, 86}));
    EXPECT_EQ(RepartirAncho(100, {{1, 50, 50}, {1, 60, 60}, {1, 70, 70}}), (V{50, 60, 70}))
        << "no room: the minimums";
    EXPECT_EQ(RepartirAncho(100, {{0, 30, 30}, {0, 20, 20}}), (V{30, 20}));
    EXPECT_EQ(RepartirAncho(200, {{5, 20, 30}, {4, 20, 900}, {3, 60, 60}}), (V{30, 110, 60}))
        << "the widest gives way";
    const V anchos = RepartirAncho(997, {{7, 5, 5}, {3, 5, 200}, {11, 5, 5}, {13, 5, 5}});
    EXPECT_EQ(std::accumulate(anchos.begin(), anchos.end(), 0), 997) << "no point is lost in rounding";
}

} // namespace
} // namespace tarvo
