// A listing of 10,000 articles as a PDF file, against a bare QPainter that draws the same texts at the same
// places. The two take turns. The program fails when the ratio is over its limit.
#include "comparacion.h"

#include "documents/impresorapdf.h"
#include "documents/listado.h"
#include "testkit/papelprueba.h"

#include <QBuffer>
#include <QFile>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

using namespace tarvo;
using namespace comparacion;

namespace {

constexpr int kFilas = 10'000;

ListaTexto *Articulos(QObject &padre) {
    std::vector<ColumnaTexto> celdas(6);
    for (int i = 0; i < kFilas; ++i) {
        const std::string n = std::to_string(i);
        celdas[0].Agregar("A" + n);
        celdas[1].Agregar("Artículo número " + n + " de la tienda");
        celdas[2].Agregar(n);
        celdas[3].Agregar("$ " + n + ",50");
        celdas[4].Agregar("$ " + n + ",90");
        celdas[5].Agregar(n);
    }
    auto *lista = new ListaTexto(std::vector<ColumnaLista>(6), &padre);
    lista->Asignar({std::move(celdas)});
    return lista;
}

QFont Fuente(const Letra &letra) {
    QFont fuente(QStringLiteral("Liberation Mono"));
    fuente.setPointSizeF(letra.puntos);
    fuente.setBold(letra.negrita);
    return fuente;
}

// The texts with their places, worked out beforehand.
class Pintor {
  public:
    explicit Pintor(const PapelPrueba &papel) {
        QBuffer descarte;
        QPdfWriter hoja(&descarte);
        for (const auto &trozo : papel.Trozos()) {
            const QFontMetricsF medidas(Fuente(trozo.letra), &hoja);
            const QPointF lugar(trozo.columna * medidas.horizontalAdvance(QLatin1Char('0')),
                                trozo.linea * medidas.lineSpacing() + medidas.ascent());
            textos_.push_back({trozo, lugar});
        }
    }

    void Pintar(const QString &ruta) const {
        QBuffer salida;
        salida.open(QIODevice::WriteOnly);
        QPdfWriter hoja(&salida);
        hoja.setPageMargins(QMarginsF(4, 4, 4, 4), QPageLayout::Millimeter);
        QPainter pintor(&hoja);
        Letra letra;
        pintor.setFont(Fuente(letra));
        int pagina = 0;
        for (const auto &[trozo, lugar] : textos_) {
            for (; pagina < trozo.pagina; ++pagina)
                hoja.newPage();
            if (letra != trozo.letra)
                pintor.setFont(Fuente(letra = trozo.letra));
            pintor.drawText(lugar, trozo.texto);
        }
        pintor.end();
        QFile archivo(ruta);
        archivo.open(QIODevice::WriteOnly);
        archivo.write(salida.data());
    }

  private:
    std::vector<std::pair<PapelPrueba::Trozo, QPointF>> textos_;
};

void BancoListado(Tabla &tabla) {
    QObject padre;
    QTemporaryDir carpeta;
    const Listado listado = ReporteArticulos(*Articulos(padre)).listado;
    PapelPrueba grabada;
    ImprimirListado(grabada, listado, kFilas);
    const Pintor pintor(grabada);
    std::vector<double> listados;
    std::vector<double> pintados;
    for (int vuelta = 0; vuelta < 9; ++vuelta) {
        listados.push_back(Milisegundos([&] {
            ImprimirListado(*NuevoDocumentoPdf(carpeta.path(), ClasePapel::Hoja, listado.titulo,
                                               QDateTime::currentDateTime()),
                            listado, kFilas);
        }));
        pintados.push_back(
            Milisegundos([&] { pintor.Pintar(carpeta.filePath(QStringLiteral("pintor.pdf"))); }));
    }
    tabla.Linea("listing of 10,000 articles / painter alone", Percentil(listados, 50),
                Percentil(pintados, 50), "ms", 1.3);
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication aplicacion(argc, argv);
    Tabla tabla;
    BancoListado(tabla);
    return tabla.Resultado();
}
