#include "desktop/ventanas/etiquetaelidida.h"

#include "desktop/unalinea.h"

#include <QPainter>
#include <QStyle>
#include <QTextDocument>

#include <algorithm>

namespace tarvo {

// A tool tip breaks no line by itself and is as wide as it must be.
QString AyudaLlana(const QString &texto) {
    constexpr qsizetype kLinea = 100;
    constexpr qsizetype kBastante = 15 * kLinea;
    QString resto = EnUnaLinea(texto.left(kBastante));
    if (texto.size() > kBastante)
        resto += QChar(0x2026);
    QStringList lineas;
    while (resto.size() > kLinea) {
        const qsizetype blanco = resto.lastIndexOf(QLatin1Char(' '), kLinea);
        const qsizetype corte = blanco > kLinea / 2 ? blanco + 1 : kLinea;
        lineas.append(resto.left(corte));
        resto.remove(0, corte);
    }
    lineas.append(resto);
    const QString ayuda = lineas.join(QLatin1Char('\n'));
    return Qt::mightBeRichText(texto)
               ? ayuda.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br>"))
               : ayuda;
}

void EtiquetaElidida::PonerAncho(int pixeles) {
    ancho_ = pixeles;
    updateGeometry();
}

QSize EtiquetaElidida::sizeHint() const {
    return {ancho_ >= 0 ? ancho_ : AnchoPedido(), AltoDeUnaLinea()};
}

int EtiquetaElidida::AnchoPedido() const {
    constexpr int kSuficiente = 160;
    constexpr int kHolgura = 6; // for what the measure of a text leaves out
    if (letras_ == 0)
        return std::min(QLabel::sizeHint().width(), kSuficiente);
    return fontMetrics().horizontalAdvance(EnUnaLinea(text().left(letras_))) + kHolgura;
}

// Whatever the text holds, it is one line: the label never grows with it.
int EtiquetaElidida::AltoDeUnaLinea() const {
    const QMargins bordes = contentsMargins();
    return fontMetrics().height() + bordes.top() + bordes.bottom();
}

void EtiquetaElidida::paintEvent(QPaintEvent *) {
    const QRect sitio = contentsRect();
    // Only the beginning can be seen, so no more of it is measured.
    constexpr int kMasQueLaVentana = 1000;
    const QString texto = EnUnaLinea(text().left(kMasQueLaVentana));
    const QString cabe = fontMetrics().elidedText(texto, Qt::ElideRight, sitio.width());
    setToolTip(cabe == texto ? QString() : AyudaLlana(texto));
    QPainter pintor(this);
    drawFrame(&pintor);
    if (texto.isEmpty()) {
        QPalette tenue = palette();
        tenue.setCurrentColorGroup(QPalette::Disabled);
        style()->drawItemText(&pintor, sitio, int(alignment()), tenue, false, sugerencia_, foregroundRole());
        return;
    }
    style()->drawItemText(&pintor, sitio, int(alignment()), palette(), isEnabled(), cabe, foregroundRole());
}

} // namespace tarvo
