#include "documents/listado.h"

#include "desktop/preguntas.h"
#include "documents/impresoras.h"
#include "store/errordatos.h"

namespace tarvo {

namespace {

constexpr int kFilasPorPagina = 51;
constexpr double kPuntosTitulo = 13;
constexpr double kPuntosFilas = 10;

void Titulo(Superficie &papel, const Listado &listado) {
    papel.Familia(QStringLiteral("Courier New"));
    papel.Tamano(kPuntosTitulo);
    papel.Negrita(true);
    papel.FinLinea();
    for (const QString &linea : {listado.titulo, listado.subrayado}) {
        TextoEn(papel, listado.columnaTitulo, linea);
        papel.FinLinea();
    }
    papel.Negrita(false);
    papel.FinLinea();
}

// A printed number carries a blank before it, where a minus would stand, and one behind.
QString NumeroImpreso(int numero) {
    return QStringLiteral(" %1 ").arg(numero);
}

void LineaDeHoja(Superficie &papel, int pagina, int paginas) {
    papel.Texto(QStringLiteral("Hoja    "));
    papel.Negrita(true);
    papel.Linea(NumeroImpreso(pagina) + QStringLiteral("de") + NumeroImpreso(paginas));
    papel.Negrita(false);
    papel.FinLinea();
}

void Encabezado(Superficie &papel, const Listado &listado) {
    papel.Tamano(kPuntosFilas);
    papel.Linea(QString(kColumnasListado, QLatin1Char('-')));
    papel.Linea(listado.encabezado);
    papel.FinLinea();
}

void Pie(Superficie &papel, const Listado &listado, int contadas) {
    papel.Negrita(true);
    papel.FinLinea();
    papel.Tamano(kPuntosTitulo);
    papel.FinLinea();
    TextoHasta(papel, listado.columnaPie, listado.pie(contadas));
    papel.Negrita(false);
    papel.Terminar();
}

// Prints rows until they end or the page is full. `contador` is left one behind the last row in the first
// case and on the last row in the second, so that a last row that fills its page isn't counted at the end.
// The shop knows this count, it stays.
void Filas(Superficie &papel, const Listado &listado, int &contador, int hasta) {
    for (++contador; contador <= hasta; ++contador) {
        listado.imprimirFila(papel, contador - 2);
        papel.FinLinea();
        if (contador % kFilasPorPagina == 0)
            break;
    }
}

} // namespace

void TextoEn(Superficie &papel, int columna, const QString &texto) {
    papel.Columna(columna - 1);
    papel.Texto(texto);
}

void TextoHasta(Superficie &papel, int columna, const QString &texto) {
    TextoEn(papel, columna - static_cast<int>(texto.size()), texto);
}

void ImprimirListado(Superficie &papel, const Listado &listado, int filas) {
    const int hasta = filas + 1;
    const int paginas = (hasta + kFilasPorPagina - 1) / kFilasPorPagina;
    int contador = 1;
    for (int pagina = 1; pagina <= paginas; ++pagina) {
        Titulo(papel, listado);
        if (listado.trasTitulo)
            listado.trasTitulo(papel);
        LineaDeHoja(papel, pagina, paginas);
        Encabezado(papel, listado);
        Filas(papel, listado, contador, hasta);
        if (pagina != paginas)
            papel.NuevaPagina();
    }
    Pie(papel, listado, contador - 2);
}

bool ImprimirReporte(Impresoras &impresoras, Preguntas &preguntas, const ReporteCatalogo &reporte,
                     int filas) {
    if (!preguntas.Confirma(reporte.pregunta, Respuesta::Si))
        return false;
    try {
        const auto papel = impresoras.NuevoDocumento(ClasePapel::Hoja, reporte.listado.titulo);
        ImprimirListado(*papel, reporte.listado, filas);
        return true;
    } catch (const ErrorDatos &error) {
        preguntas.Informar(error.Numero() == errores::kImpresora
                               ? QStringLiteral("No se han encontrado impresoras instaladas.")
                               : reporte.mensajeError);
        return false;
    }
}

} // namespace tarvo
