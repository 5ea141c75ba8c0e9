// What the listings of the master data say, and where their cells stand.
#include "masterdata/listadoscatalogo.h"

#include "testkit/impresorasprueba.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

ListaTexto *Lista(QObject &padre, const std::vector<QStringList> &filas) {
    auto *lista = new ListaTexto(std::vector<ColumnaLista>(6), &padre);
    for (const QStringList &fila : filas)
        lista->AgregarFila(fila);
    return lista;
}

QString Hoja(const ReporteCatalogo &reporte, const ListaTexto &lista) {
    PapelPrueba papel;
    ImprimirListado(papel, reporte.listado, lista.Filas());
    return papel.Volcado();
}

TEST(ListadosCatalogo, Customers) {
    QObject padre;
    const ListaTexto *lista = Lista(padre, {{u"1"_qs, u"Panadería La Espiga"_qs, u"Espiga S.A."_qs,
                                             u"211234560018"_qs, u"24001234"_qs, u"7"_qs},
                                            {u"00000002"_qs, QString(30, u'n'), QString(30, u'f'),
                                             QString(20, u'i'), u"12345678901234567890"_qs, u"8"_qs}});
    EXPECT_EQ(Hoja(ReporteClientes(*lista), *lista).toStdString(), R"(
                           [13][n]LISTADO DE CLIENTES
                           -------------------

[/n]Hoja    [n] 1 de 1 

[10][/n]-----------------------------------------------------------------------------------------------
  Código   Nombre                    Nombre Fiscal             Id. Fiscal            Teléfono

  1        Panadería La Espiga       Espiga S.A.               211234560018         24001234
  00000002 nnnnnnnnnnnnnnnnnnnnnnnnn fffffffffffffffffffffffff iiiiiiiiiiiiii
                                                                        123456789012345


                                               [13][n]Cantidad de clientes: 2
)");
}

// The price is the purchase price, and a long name pushes the stock to the next line.
TEST(ListadosCatalogo, Articles) {
    QObject padre;
    const ListaTexto *lista =
        Lista(padre, {{u"A1"_qs, u"Yerba 1 kg"_qs, u"12,5"_qs, u"$ 80,00"_qs, u"$ 99,00"_qs, u"7"_qs},
                      {u"A2"_qs, QString(53, u'n'), u"1"_qs, u"$ 1,00"_qs, u"$ 2,00"_qs, u"8"_qs}});
    EXPECT_EQ(Hoja(ReporteArticulos(*lista), *lista).toStdString(), R"(
                           [13][n]LISTADO DE ARTICULOS
                           --------------------

[/n]Hoja    [n] 1 de 1 

[10][/n]-----------------------------------------------------------------------------------------------
  Código       Artículo                                        Stock                   Precio

  A1           Yerba 1 kg                                       12,5                  $ 80,00
  A2           nnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnn
                                                                   1                   $ 1,00


                                              [13][n]Cantidad de artículos: 2
)");
}

// Suppliers print as customers do, under their own title. Only the articles' message has a full stop.
TEST(ListadosCatalogo, TheirWords) {
    QObject padre;
    const ListaTexto &lista = *Lista(padre, {});
    EXPECT_EQ(ReporteClientes(lista).mensajeError, u"Ha ocurrido un error en la impresión");
    EXPECT_EQ(ReporteArticulos(lista).mensajeError, u"Ha ocurrido un error en la impresión.");
    const ReporteCatalogo proveedores = ReporteProveedores(lista);
    EXPECT_EQ(proveedores.mensajeError, u"Ha ocurrido un error en la impresión");
    EXPECT_EQ(proveedores.listado.pie(0), u"Cantidad de proveedores: 0");
    EXPECT_TRUE(
        Hoja(proveedores, lista).contains(u'\n' + QString(26, u' ') + u"[13][n]LISTADO DE PROVEEDORES"_qs));
}

} // namespace
} // namespace tarvo
