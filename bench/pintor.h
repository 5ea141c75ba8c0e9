// The limit of every listing: a bare QPainter that draws the same texts at the same places into a PDF file.
#pragma once

#include "comparacion.h"

#include "documents/impresorapdf.h"
#include "documents/listado.h"
#include "testkit/papelprueba.h"

#include <QBuffer>
#include <QFile>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

namespace comparacion {

// The texts with their places, worked out beforehand.
class Pintor {
  public:
    explicit Pintor(const tarvo::PapelPrueba &papel) {
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
        tarvo::Letra letra;
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
    static QFont Fuente(const tarvo::Letra &letra) {
        QFont fuente(QStringLiteral("Liberation Mono"));
        fuente.setPointSizeF(letra.puntos);
        fuente.setBold(letra.negrita);
        return fuente;
    }
    std::vector<std::pair<tarvo::PapelPrueba::Trozo, QPointF>> textos_;
};

// The listing of `filas` rows as a PDF file against the painter; the two take turns.
inline void CompararListado(Tabla &tabla, const char *nombre, const tarvo::Listado &listado, int filas) {
    QTemporaryDir carpeta;
    tarvo::PapelPrueba grabada;
    ImprimirListado(grabada, listado, filas);
    const Pintor pintor(grabada);
    std::vector<double> listados;
    std::vector<double> pintados;
    for (int vuelta = 0; vuelta < 9; ++vuelta) {
        listados.push_back(Milisegundos([&] {
            ImprimirListado(*tarvo::NuevoDocumentoPdf(carpeta.path(), tarvo::ClasePapel::Hoja, listado.titulo,
                                                      QDateTime::currentDateTime()),
                            listado, filas);
        }));
        pintados.push_back(
            Milisegundos([&] { pintor.Pintar(carpeta.filePath(QStringLiteral("pintor.pdf"))); }));
    }
    tabla.Linea(nombre, Percentil(listados, 50), Percentil(pintados, 50), "ms", 1.3);
}

} // namespace comparacion
