#include "desktop/ventanas/etiquetaimporte.h"

#include "desktop/unalinea.h"
#include "desktop/ventanas/etiquetaelidida.h"

#include <QFontInfo>
#include <QPainter>

#include <algorithm>

namespace tarvo {

namespace {

constexpr double kMenor = 8;         // pixels; what is still too long then is no amount
constexpr int kLetrasDeImporte = 60; // nor is this

QString SinMnemonico(QString texto) {
    return texto.remove(QLatin1Char('&'));
}

} // namespace

EtiquetaImporte::EtiquetaImporte(QWidget *padre) : QLabel(padre) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

QString EtiquetaImporte::Hablado() const {
    const QList<QLabel *> etiquetas = window()->findChildren<QLabel *>();
    const auto rotulo = std::find_if(etiquetas.begin(), etiquetas.end(),
                                     [this](const QLabel *otra) { return otra->buddy() == this; });
    if (rotulo == etiquetas.end() || (*rotulo)->text().isEmpty())
        return text();
    return SinMnemonico((*rotulo)->text()) + QStringLiteral(": ") + text();
}

double EtiquetaImporte::TamanoMayor() const {
    return QFontInfo(font()).pixelSize();
}

QFont EtiquetaImporte::LetraDe(double pixeles) const {
    QFont letra = font();
    letra.setPixelSize(std::max(1, int(pixeles)));
    return letra;
}

QFont EtiquetaImporte::LetraQueCabe(const QString &importe, int ancho) const {
    const double mayor = TamanoMayor();
    const double necesario = QFontMetricsF(LetraDe(mayor)).horizontalAdvance(importe);
    double pixeles = necesario > ancho ? mayor * ancho / necesario : mayor;
    // Letters of small sizes are wider than their share of the large ones.
    while (pixeles > kMenor && QFontMetricsF(LetraDe(pixeles)).horizontalAdvance(importe) > ancho)
        pixeles -= 1;
    return LetraDe(std::max(pixeles, kMenor));
}

int EtiquetaImporte::AltoDeUnaLinea() const {
    const QMargins bordes = contentsMargins();
    const QFontMetricsF medidas(LetraDe(TamanoMayor()));
    const double alto = Aire() > 0 ? medidas.capHeight() * (1 + Aire()) : medidas.height();
    return qRound(alto) + bordes.top() + bordes.bottom();
}

QSize EtiquetaImporte::sizeHint() const {
    const QMargins bordes = contentsMargins();
    const QString importe = text().left(kLetrasDeImporte);
    const int ancho = fontMetrics().horizontalAdvance(importe) + 1;
    const int grande = qRound(ancho * TamanoMayor() / QFontInfo(font()).pixelSize());
    return {std::min(grande, window()->width() * 2 / 5) + bordes.left() + bordes.right(), AltoDeUnaLinea()};
}

QSize EtiquetaImporte::minimumSizeHint() const {
    return {0, AltoDeUnaLinea()};
}

void EtiquetaImporte::paintEvent(QPaintEvent *) {
    QPainter pintor(this);
    drawFrame(&pintor);
    const QRect sitio = contentsRect();
    const QString importe = EnUnaLinea(text());
    pintor.setFont(LetraQueCabe(importe.left(kLetrasDeImporte), sitio.width()));
    const QFontMetricsF medidas(pintor.font());
    const QString cabe = medidas.elidedText(importe, Qt::ElideRight, sitio.width() + 0.5);
    setToolTip(cabe == importe ? QString() : AyudaLlana(importe));
    pintor.setPen(palette().color(foregroundRole()));
    const double sobra = sitio.width() - medidas.horizontalAdvance(cabe);
    const bool derecha = alignment().testFlag(Qt::AlignRight);
    // Capitals and figures stand in the middle; what a font keeps free above them would push them down.
    pintor.drawText(QPointF(sitio.left() + (derecha ? std::max(0.0, sobra) : 0),
                            sitio.top() + (sitio.height() + medidas.capHeight()) / 2),
                    cabe);
}

} // namespace tarvo
