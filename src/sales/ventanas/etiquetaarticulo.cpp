#include "sales/ventanas/etiquetaarticulo.h"

#include "desktop/unalinea.h"
#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/etiquetaelidida.h"

#include <QPainter>

#include <algorithm>

namespace tarvo {

namespace {

constexpr int kHueco = 6; // pixels between the parts

// One part of the line in its own letters.
struct Parte {
    QString texto;
    QFont letra;
    QColor color;
    int Ancho() const { return QFontMetrics(letra).horizontalAdvance(texto) + kHueco; }
};

} // namespace

EtiquetaArticulo::EtiquetaArticulo(QWidget *padre) : QLabel(padre) {
    setTextFormat(Qt::PlainText);
}

void EtiquetaArticulo::Poner(const ResumenArticulo &articulo) {
    articulo_ = articulo;
    QStringList partes{EnUnaLinea(articulo.nombre)};
    if (!articulo.conIva.isEmpty())
        partes += QStringLiteral("con IVA ") + articulo.conIva;
    if (!articulo.stock.isEmpty())
        partes += QStringLiteral("quedan ") + articulo.stock;
    setText(partes.join(QStringLiteral(", ")));
}

QFont EtiquetaArticulo::Negrita() const {
    QFont letra = font();
    letra.setBold(true);
    return letra;
}

QFont EtiquetaArticulo::Grande() const {
    constexpr double kMayor = 1.25;
    QFont letra = Negrita();
    letra.setPointSizeF(letra.pointSizeF() * kMayor);
    return letra;
}

QSize EtiquetaArticulo::minimumSizeHint() const {
    return {0, QFontMetrics(Grande()).height()};
}

void EtiquetaArticulo::paintEvent(QPaintEvent *) {
    constexpr qsizetype kMasQueLaVentana = 1000; // only the beginning can be seen
    const QString nombre = EnUnaLinea(articulo_.nombre.left(kMasQueLaVentana));
    std::vector<Parte> partes;
    if (!articulo_.conIva.isEmpty()) {
        partes.push_back({QStringLiteral("con IVA"), font(), colores::kTextoTenue});
        partes.push_back({articulo_.conIva, Grande(), colores::kTitulo});
    }
    if (!articulo_.stock.isEmpty())
        partes.push_back({QStringLiteral("quedan ") + articulo_.stock, font(), colores::kTextoTenue});
    int libre = width() - kHueco;
    for (const Parte &parte : partes)
        libre -= parte.Ancho();
    const QFontMetrics negrita(Negrita());
    if (!articulo_.conIva.isEmpty() && negrita.horizontalAdvance(nombre) > libre) { // the caption gives way
        libre += partes.front().Ancho();
        partes.erase(partes.begin());
    }
    const QString cabe = negrita.elidedText(nombre, Qt::ElideRight, std::max(libre, 0));
    setToolTip(cabe == nombre ? QString() : AyudaLlana(nombre));
    partes.insert(partes.begin(), {cabe, Negrita(), palette().color(foregroundRole())});

    QPainter pintor(this);
    const int base = (height() + QFontMetrics(Grande()).capHeight()) / 2;
    int x = 0;
    for (const Parte &parte : partes) {
        pintor.setFont(parte.letra);
        pintor.setPen(isEnabled() ? parte.color : palette().color(QPalette::Disabled, QPalette::WindowText));
        pintor.drawText(x, base, parte.texto);
        x += parte.Ancho();
    }
}

} // namespace tarvo
