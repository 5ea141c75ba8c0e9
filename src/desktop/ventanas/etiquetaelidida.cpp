#include "desktop/ventanas/etiquetaelidida.h"

#include "desktop/unalinea.h"

#include <QPainter>
#include <QStyle>
#include <QTextDocument>

#include <algorithm>

namespace tarvo {

QString AyudaLlana(const QString &texto) {
    return Qt::mightBeRichText(texto) ? texto.toHtmlEscaped() : texto;
}

void EtiquetaElidida::PonerAncho(int pixeles) {
    ancho_ = pixeles;
    updateGeometry();
}

QSize EtiquetaElidida::sizeHint() const {
    constexpr int kSuficiente = 160;
    const QSize medida = QLabel::sizeHint();
    return {ancho_ >= 0 ? ancho_ : std::min(medida.width(), kSuficiente), AltoDeUnaLinea()};
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
