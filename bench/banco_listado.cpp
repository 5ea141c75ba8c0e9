// A listing of 10,000 articles as a PDF file, against a bare QPainter that draws the same texts at the same
// places. The two take turns; `razon` is the listing's time by the painter's, and stays below 1.3.
#include "documents/impresorapdf.h"
#include "documents/listado.h"
#include "documents/superficiegrabada.h"

#include <QBuffer>
#include <QFile>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>
#include <functional>

using namespace tarvo;

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
    lista->Asignar(std::move(celdas));
    return lista;
}

double Segundos(const std::function<void()> &accion) {
    const auto antes = std::chrono::steady_clock::now();
    accion();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - antes).count();
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
    explicit Pintor(const SuperficieGrabada &papel) {
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
    std::vector<std::pair<SuperficieGrabada::Trozo, QPointF>> textos_;
};

void ListadoFrenteAPintor(benchmark::State &estado) {
    QObject padre;
    QTemporaryDir carpeta;
    const Listado listado = ReporteArticulos(*Articulos(padre)).listado;
    SuperficieGrabada grabada;
    ImprimirListado(grabada, listado, kFilas);
    const Pintor pintor(grabada);
    double deListado = 0;
    double dePintor = 0;
    for (auto _ : estado) {
        const double uno = Segundos([&] {
            ImprimirListado(*NuevoDocumentoPdf(carpeta.path(), Proposito::Listado, listado.titulo,
                                               QDateTime::currentDateTime()),
                            listado, kFilas);
        });
        deListado += uno;
        dePintor += Segundos([&] { pintor.Pintar(carpeta.filePath(QStringLiteral("pintor.pdf"))); });
        estado.SetIterationTime(uno);
    }
    const auto vueltas = static_cast<double>(estado.iterations());
    estado.counters["pintor_ms"] = 1000 * dePintor / vueltas;
    estado.counters["razon"] = deListado / dePintor;
}
BENCHMARK(ListadoFrenteAPintor)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(3);

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
