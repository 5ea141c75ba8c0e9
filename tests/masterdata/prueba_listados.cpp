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

TEST(ListadosCatalogo, Customers) {
    QObject padre;
    const ListaTexto *lista = Lista(
        padre, {{QStringLiteral("1"), QStringLiteral("Panadería La Espiga"), QStringLiteral("Espiga S.A."),
                 QStringLiteral("211234560018"), QStringLiteral("24001234"), QStringLiteral("7")},
                {QStringLiteral("00000002"), QString(30, u'n'), QString(30, u'f'), QString(20, u'i'),
                 QStringLiteral("12345678901234567890"), QStringLiteral("8")}});
    PapelPrueba hoja;
    PapelPrueba *papel = &hoja;
    ImprimirListado(hoja, ReporteClientes(*lista).listado, lista->Filas());
    EXPECT_EQ(papel->Volcado().toStdString(), R"(
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
        Lista(padre, {{QStringLiteral("A1"), QStringLiteral("Yerba 1 kg"), QStringLiteral("12,5"),
                       QStringLiteral("$ 80,00"), QStringLiteral("$ 99,00"), QStringLiteral("7")},
                      {QStringLiteral("A2"), QString(53, u'n'), QStringLiteral("1"), QStringLiteral("$ 1,00"),
                       QStringLiteral("$ 2,00"), QStringLiteral("8")}});
    PapelPrueba hoja;
    PapelPrueba *papel = &hoja;
    ImprimirListado(hoja, ReporteArticulos(*lista).listado, lista->Filas());
    EXPECT_EQ(papel->Volcado().toStdString(), R"(
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
    const auto palabras = [](const ReporteCatalogo &reporte) {
        return QStringList{reporte.pregunta, reporte.mensajeError, reporte.listado.titulo,
                           reporte.listado.pie(0)};
    };
    const QString error = u"Ha ocurrido un error en la impresión"_qs;
    EXPECT_EQ(palabras(ReporteClientes(lista)),
              QStringList({u"Desea imprimir el listado de clientes?"_qs, error, u"LISTADO DE CLIENTES"_qs,
                           u"Cantidad de clientes: 0"_qs}));
    EXPECT_EQ(palabras(ReporteArticulos(lista)),
              QStringList({u"Desea imprimir el listado de artículos?"_qs, error + u'.',
                           u"LISTADO DE ARTICULOS"_qs, u"Cantidad de artículos: 0"_qs}));
    EXPECT_EQ(palabras(ReporteProveedores(lista)),
              QStringList({u"Desea imprimir el listado de proveedores?"_qs, error,
                           u"LISTADO DE PROVEEDORES"_qs, u"Cantidad de proveedores: 0"_qs}));
    PapelPrueba hoja;
    ImprimirListado(hoja, ReporteProveedores(lista).listado, 0);
    EXPECT_TRUE(
        hoja.Lineas().join(u'\n').startsWith(u'\n' + QString(26, u' ') + u"LISTADO DE PROVEEDORES"_qs));
}

} // namespace
} // namespace tarvo
