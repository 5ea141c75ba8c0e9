// The page machine and the listings of the master data.
#include "documents/listado.h"

#include "testkit/impresorasprueba.h"
#include "testkit/preguntasguion.h"

#include <gtest/gtest.h>

using namespace tarvo;

namespace {

Listado ListadoNumerado(int &contadas) {
    Listado listado;
    listado.titulo = QStringLiteral("NUMEROS");
    listado.subrayado = QStringLiteral("-------");
    listado.encabezado = QStringLiteral("Número");
    listado.imprimirFila = [](Superficie &papel, int fila) {
        papel.Texto(QStringLiteral("fila %1").arg(fila));
    };
    listado.pie = [&contadas](int n) {
        contadas = n;
        return QStringLiteral("Cantidad %1").arg(n);
    };
    return listado;
}

// The numbers of the rows on each page.
std::vector<QStringList> FilasPorPagina(const PapelPrueba &papel) {
    std::vector<QStringList> paginas(static_cast<std::size_t>(papel.Paginas()));
    for (const auto &trozo : papel.Trozos())
        if (trozo.texto.startsWith(QStringLiteral("fila ")))
            paginas[static_cast<std::size_t>(trozo.pagina)] << trozo.texto.mid(5);
    return paginas;
}

ListaTexto *Lista(QObject &padre, const std::vector<QStringList> &filas) {
    auto *lista = new ListaTexto(std::vector<ColumnaLista>(6), &padre);
    for (const QStringList &fila : filas)
        lista->AgregarFila(fila);
    return lista;
}

PapelPrueba *Imprimir(ImpresorasPrueba &impresoras, const ReporteCatalogo &reporte, int filas) {
    PreguntasGuion preguntas;
    preguntas.Espera(reporte.pregunta, Respuesta::Si, Respuesta::Si);
    EXPECT_TRUE(ImprimirReporte(impresoras, preguntas, reporte, filas));
    return impresoras.documentos.back().get();
}

} // namespace

// The count is one less than the rows when the last row fills its page.
TEST(Listado, PagesHoldFiftyOneCountedRows) {
    const struct {
        int filas;
        std::vector<int> porPagina;
        int contadas;
    } casos[] = {
        {0, {0}, 0},
        {1, {1}, 1},
        {49, {49}, 49},
        {50, {50}, 49},
        {51, {50, 1}, 51},
        {100, {50, 50}, 100},
        {101, {50, 51}, 100},
        {102, {50, 51, 1}, 102},
        {152, {50, 51, 51}, 151},
    };
    for (const auto &caso : casos) {
        SCOPED_TRACE(caso.filas);
        PapelPrueba papel;
        int contadas = -1;
        ImprimirListado(papel, ListadoNumerado(contadas), caso.filas);
        EXPECT_TRUE(papel.Terminado());
        EXPECT_EQ(contadas, caso.contadas);
        std::vector<int> porPagina;
        QStringList todas;
        for (const QStringList &filas : FilasPorPagina(papel)) {
            porPagina.push_back(static_cast<int>(filas.size()));
            todas << filas;
        }
        EXPECT_EQ(porPagina, caso.porPagina);
        for (int fila = 0; fila < caso.filas; ++fila)
            ASSERT_EQ(todas.value(fila), QString::number(fila));
    }
}

TEST(Listado, EachPageHasItsHeadAndOnlyTheLastItsFoot) {
    PapelPrueba papel;
    int contadas = 0;
    Listado listado = ListadoNumerado(contadas);
    listado.columnaTitulo = 30;
    listado.trasTitulo = [](Superficie &hoja) { hoja.Linea(QStringLiteral("Cliente: Ana")); };
    listado.columnaPie = 74;
    ImprimirListado(papel, listado, 51);
    const QString raya(95, u'-');
    const QString cabeza = QStringLiteral("\n%2NUMEROS\n%2-------\n\nCliente: Ana\nHoja     %1 de 2 \n\n%3\n"
                                          "Número\n\n")
                               .arg(QStringLiteral("%1"), QString(29, u' '), raya);
    const QString texto = papel.Lineas().join(u'\n');
    EXPECT_TRUE(texto.startsWith(cabeza.arg(1) + QStringLiteral("fila 0\n"))) << texto.toStdString();
    EXPECT_TRUE(texto.endsWith(QStringLiteral("fila 49\n\f\n") + cabeza.arg(2) +
                               QStringLiteral("fila 50\n\n\n") + QString(73 - 11, u' ') +
                               QStringLiteral("Cantidad 51")))
        << texto.toStdString();
}

TEST(Listado, Customers) {
    QObject padre;
    const ListaTexto *lista = Lista(
        padre, {{QStringLiteral("1"), QStringLiteral("Panadería La Espiga"), QStringLiteral("Espiga S.A."),
                 QStringLiteral("211234560018"), QStringLiteral("24001234"), QStringLiteral("7")},
                {QStringLiteral("00000002"), QString(30, u'n'), QString(30, u'f'), QString(20, u'i'),
                 QStringLiteral("12345678901234567890"), QStringLiteral("8")}});
    ImpresorasPrueba impresoras;
    const PapelPrueba *papel = Imprimir(impresoras, ReporteClientes(*lista), lista->Filas());
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
TEST(Listado, Articles) {
    QObject padre;
    const ListaTexto *lista =
        Lista(padre, {{QStringLiteral("A1"), QStringLiteral("Yerba 1 kg"), QStringLiteral("12,5"),
                       QStringLiteral("$ 80,00"), QStringLiteral("$ 99,00"), QStringLiteral("7")},
                      {QStringLiteral("A2"), QString(53, u'n'), QStringLiteral("1"), QStringLiteral("$ 1,00"),
                       QStringLiteral("$ 2,00"), QStringLiteral("8")}});
    ImpresorasPrueba impresoras;
    const PapelPrueba *papel = Imprimir(impresoras, ReporteArticulos(*lista), lista->Filas());
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
TEST(Listado, EachReportAsksAndTellsItsFailures) {
    QObject padre;
    const ListaTexto &lista = *Lista(padre, {});
    const struct {
        ReporteCatalogo reporte;
        QString pregunta;
        QString mensaje;
    } casos[] = {
        {ReporteClientes(lista), QStringLiteral("Desea imprimir el listado de clientes?"),
         QStringLiteral("Ha ocurrido un error en la impresión")},
        {ReporteArticulos(lista), QStringLiteral("Desea imprimir el listado de artículos?"),
         QStringLiteral("Ha ocurrido un error en la impresión.")},
        {ReporteProveedores(lista), QStringLiteral("Desea imprimir el listado de proveedores?"),
         QStringLiteral("Ha ocurrido un error en la impresión")},
    };
    for (const auto &caso : casos) {
        ImpresorasPrueba impresoras;
        impresoras.fallar = true;
        PreguntasGuion preguntas;
        preguntas.Espera(caso.pregunta, Respuesta::Si, Respuesta::Si);
        preguntas.EsperaMensaje(QStringLiteral("No se han encontrado impresoras instaladas."),
                                Icono::Informacion);
        EXPECT_FALSE(ImprimirReporte(impresoras, preguntas, caso.reporte, 0));

        impresoras.fallar = false;
        ReporteCatalogo roto = caso.reporte;
        roto.listado.imprimirFila = [](Superficie &, int) {
            throw ErrorDatos(errores::kEscritura, QStringLiteral("Disco lleno."));
        };
        preguntas.Espera(caso.pregunta, Respuesta::Si, Respuesta::Si);
        preguntas.EsperaMensaje(caso.mensaje, Icono::Informacion);
        EXPECT_FALSE(ImprimirReporte(impresoras, preguntas, roto, 1));
        const std::size_t antes = impresoras.documentos.size();
        preguntas.Espera(caso.pregunta, Respuesta::Si, Respuesta::No);
        EXPECT_FALSE(ImprimirReporte(impresoras, preguntas, caso.reporte, 0));
        EXPECT_EQ(impresoras.documentos.size(), antes);
    }
    ImpresorasPrueba impresoras;
    const QString papel = Imprimir(impresoras, ReporteProveedores(lista), 0)->Lineas().join(u'\n');
    EXPECT_TRUE(
        papel.startsWith(QString(26, u' ').prepend(u'\n') + QStringLiteral("LISTADO DE PROVEEDORES")));
    EXPECT_TRUE(papel.endsWith(QStringLiteral("Cantidad de proveedores: 0")));
}
