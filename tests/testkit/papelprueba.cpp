#include "testkit/papelprueba.h"

#include "desktop/unalinea.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace tarvo {

namespace {

constexpr int kTwipsPorLinea = 240;
// A monospaced character is six tenths of its size wide, and a point has 20 twips.
constexpr double kTwipsPorPunto = 12;

} // namespace

void PapelPrueba::Texto(const QString &texto) {
    if (!texto.isEmpty())
        trozos_.push_back({pagina_, cabezal_.linea, cabezal_.columna, EnUnaLinea(texto), letra_, punto_});
    cabezal_.columna += static_cast<int>(texto.size());
    int &lineas = lineasDePagina_.back();
    lineas = std::max(lineas, cabezal_.linea + 1);
}

void PapelPrueba::Columna(int caracteres) {
    const int columna = std::max(caracteres, 0);
    if (columna < cabezal_.columna)
        ++cabezal_.linea;
    cabezal_.columna = columna;
}

void PapelPrueba::FinLinea() {
    ++cabezal_.linea;
    cabezal_.columna = 0;
    int &lineas = lineasDePagina_.back();
    lineas = std::max(lineas, cabezal_.linea);
}

PapelPrueba::Lugar PapelPrueba::LugarDe(int xTwips, int yTwips) const {
    return {std::max(yTwips, 0) / kTwipsPorLinea,
            static_cast<int>(std::max(xTwips, 0) / (letra_.puntos * kTwipsPorPunto))};
}

void PapelPrueba::Posicion(int xTwips, int yTwips) {
    cabezal_ = LugarDe(xTwips, yTwips);
    punto_ = {xTwips, yTwips};
}

void PapelPrueba::Imagen(const QImage &, int xTwips, int yTwips, int anchoTwips, int altoTwips) {
    const Lugar lugar = LugarDe(xTwips, yTwips);
    const QString texto = u"[imagen %1x%2]"_qs.arg(anchoTwips).arg(altoTwips);
    trozos_.push_back({pagina_, lugar.linea, lugar.columna, texto, letra_, {xTwips, yTwips}});
    int &lineas = lineasDePagina_.back();
    lineas = std::max(lineas, lugar.linea + 1);
}

void PapelPrueba::NuevaPagina() {
    ++pagina_;
    cabezal_ = {};
    lineasDePagina_.push_back(0);
}

QStringList PapelPrueba::Componer(const Escribir &escribir) const {
    std::vector<QStringList> paginas;
    std::vector<std::vector<int>> anchos; // characters on each line, without what `escribir` adds
    for (const int lineas : lineasDePagina_) {
        paginas.emplace_back(lineas, QString());
        anchos.emplace_back(static_cast<std::size_t>(lineas), 0);
    }
    std::vector<Trozo> orden = trozos_;
    std::stable_sort(orden.begin(), orden.end(), [](const Trozo &a, const Trozo &b) {
        return std::tie(a.pagina, a.linea, a.columna) < std::tie(b.pagina, b.linea, b.columna);
    });
    for (const Trozo &trozo : orden) {
        const auto pagina = static_cast<std::size_t>(trozo.pagina);
        int &ancho = anchos[pagina][static_cast<std::size_t>(trozo.linea)];
        const QString blancos(std::max(trozo.columna - ancho, 0), u' ');
        paginas[pagina][trozo.linea] += blancos + escribir(trozo);
        ancho = std::max(ancho, trozo.columna) + static_cast<int>(trozo.texto.size());
    }
    QStringList todas = paginas.front();
    for (std::size_t pagina = 1; pagina < paginas.size(); ++pagina)
        todas << u"\f"_qs << paginas[pagina];
    return todas;
}

QStringList PapelPrueba::Lineas() const {
    return Componer([](const Trozo &trozo) { return trozo.texto; });
}

QString PapelPrueba::Volcado() const {
    double puntos = 0;
    bool negrita = false;
    const auto conMarcas = [&](const Trozo &trozo) {
        QString texto = trozo.texto;
        if (std::exchange(negrita, trozo.letra.negrita) != trozo.letra.negrita)
            texto.prepend(trozo.letra.negrita ? u"[n]"_qs : u"[/n]"_qs);
        if (std::exchange(puntos, trozo.letra.puntos) != trozo.letra.puntos)
            texto.prepend(u"[%1]"_qs.arg(trozo.letra.puntos));
        return texto;
    };
    return Componer(conMarcas).join(u'\n') + u'\n';
}

} // namespace tarvo
