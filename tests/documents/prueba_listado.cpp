// The page machine of the listings.
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

TEST(Listado, AReportIsAskedForAndTellsWhatFails) {
    int contadas = 0;
    ReporteCatalogo reporte{.pregunta = QStringLiteral("Imprimir?"),
                            .mensajeError = QStringLiteral("No salió"),
                            .listado = ListadoNumerado(contadas)};
    ImpresorasPrueba impresoras;
    PreguntasGuion preguntas;
    const auto imprimir = [&](Respuesta respuesta, const QString &mensaje = {}) {
        preguntas.Espera(reporte.pregunta, Respuesta::Si, respuesta);
        if (!mensaje.isEmpty())
            preguntas.EsperaMensaje(mensaje, Icono::Informacion);
        return ImprimirReporte(impresoras, preguntas, reporte, 1);
    };
    EXPECT_FALSE(imprimir(Respuesta::No));
    EXPECT_TRUE(impresoras.documentos.empty());
    EXPECT_TRUE(imprimir(Respuesta::Si));
    EXPECT_EQ(impresoras.documentos.size(), 1U);
    impresoras.fallar = true;
    EXPECT_FALSE(imprimir(Respuesta::Si, QStringLiteral("No se han encontrado impresoras instaladas.")));
    impresoras.fallar = false;
    reporte.listado.imprimirFila = [](Superficie &, int) {
        throw ErrorDatos(errores::kEscritura, QStringLiteral("Disco lleno."));
    };
    EXPECT_FALSE(imprimir(Respuesta::Si, reporte.mensajeError));
}
