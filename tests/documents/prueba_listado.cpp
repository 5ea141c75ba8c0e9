// The page machine of the listings.
#include "documents/listado.h"

#include "testkit/impresorasprueba.h"
#include "testkit/preguntasguion.h"

namespace tarvo {
namespace {

Listado ListadoNumerado(int &contadas) {
    Listado listado;
    listado.titulo = u"NUMEROS"_qs;
    listado.subrayado = u"-------"_qs;
    listado.encabezado = u"Número"_qs;
    listado.imprimirFila = [](Superficie &papel, int fila) { papel.Texto(u"fila %1"_qs.arg(fila)); };
    listado.pie = [&contadas](int n) {
        contadas = n;
        return u"Cantidad %1"_qs.arg(n);
    };
    return listado;
}

// The numbers of the rows on each page.
std::vector<QStringList> FilasPorPagina(const PapelPrueba &papel) {
    std::vector<QStringList> paginas(static_cast<std::size_t>(papel.Paginas()));
    for (const auto &trozo : papel.Trozos())
        if (trozo.texto.startsWith(u"fila "_qs))
            paginas[static_cast<std::size_t>(trozo.pagina)] << trozo.texto.mid(5);
    return paginas;
}

// The count is one less than the rows when the last row fills its page.
TEST(Listado, PagesHoldFiftyOneCountedRows) {
    const std::tuple<int, std::vector<int>, int> casos[] = {{0, {0}, 0},
                                                            {1, {1}, 1},
                                                            {49, {49}, 49},
                                                            {50, {50}, 49},
                                                            {51, {50, 1}, 51},
                                                            {100, {50, 50}, 100},
                                                            {101, {50, 51}, 100},
                                                            {102, {50, 51, 1}, 102},
                                                            {152, {50, 51, 51}, 151}};
    for (const auto &[cuantas, repartidas, dichas] : casos) {
        SCOPED_TRACE(cuantas);
        PapelPrueba papel;
        int contadas = -1;
        ImprimirListado(papel, ListadoNumerado(contadas), cuantas);
        EXPECT_TRUE(papel.Terminado());
        EXPECT_EQ(contadas, dichas);
        std::vector<int> porPagina;
        QStringList todas;
        for (const QStringList &filas : FilasPorPagina(papel)) {
            porPagina.push_back(static_cast<int>(filas.size()));
            todas << filas;
        }
        EXPECT_EQ(porPagina, repartidas);
        for (int fila = 0; fila < cuantas; ++fila)
            ASSERT_EQ(todas.value(fila), QString::number(fila));
    }
}

TEST(Listado, EachPageHasItsHeadAndOnlyTheLastItsFoot) {
    PapelPrueba papel;
    int contadas = 0;
    Listado listado = ListadoNumerado(contadas);
    listado.columnaTitulo = 30;
    listado.trasTitulo = [](Superficie &hoja) { hoja.Linea(u"Cliente: Ana"_qs); };
    listado.columnaPie = 74;
    ImprimirListado(papel, listado, 51);
    const QString raya(95, u'-');
    const QString cabeza = u"\n%2NUMEROS\n%2-------\n\nCliente: Ana\nHoja     %1 de 2 \n\n%3\n"
                           "Número\n\n"_qs.arg(u"%1"_qs, QString(29, u' '), raya);
    const QString texto = papel.Lineas().join(u'\n');
    EXPECT_TRUE(texto.startsWith(cabeza.arg(1) + u"fila 0\n"_qs)) << texto.toStdString();
    EXPECT_TRUE(texto.endsWith(u"fila 49\n\f\n"_qs + cabeza.arg(2) + u"fila 50\n\n\n"_qs +
                               QString(73 - 11, u' ') + u"Cantidad 51"_qs))
        << texto.toStdString();
}

TEST(Listado, AReportIsAskedForAndTellsWhatFails) {
    int contadas = 0;
    ReporteCatalogo reporte{
        .pregunta = u"Imprimir?"_qs, .mensajeError = u"No salió"_qs, .listado = ListadoNumerado(contadas)};
    ImpresorasPrueba impresoras;
    PreguntasGuion preguntas;
    const auto imprimir = [&](Respuesta respuesta, const QString &mensaje = {}) {
        preguntas.Espera(reporte.pregunta, Si, respuesta);
        if (!mensaje.isEmpty())
            preguntas.EsperaMensaje(mensaje);
        return ImprimirReporte(impresoras, preguntas, reporte, 1);
    };
    EXPECT_FALSE(imprimir(No));
    EXPECT_TRUE(impresoras.documentos.empty());
    EXPECT_TRUE(imprimir(Si));
    EXPECT_EQ(impresoras.documentos.size(), 1U);
    impresoras.fallar = true;
    EXPECT_FALSE(imprimir(Si, u"No se han encontrado impresoras instaladas."_qs));
    impresoras.fallar = false;
    reporte.listado.imprimirFila = [](Superficie &, int) {
        throw ErrorDatos(errores::kEscritura, u"Disco lleno."_qs);
    };
    EXPECT_FALSE(imprimir(Si, reporte.mensajeError));
}

} // namespace
} // namespace tarvo
