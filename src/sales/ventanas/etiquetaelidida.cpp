#include "sales/ventanas/etiquetaelidida.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace tarvo {

QSize EtiquetaElidida::sizeHint() const {
    constexpr int kSuficiente = 160;
    const QSize medida = QLabel::sizeHint();
    return {std::min(medida.width(), kSuficiente), medida.height()};
}

void EtiquetaElidida::paintEvent(QPaintEvent *) {
    const QRect sitio = contentsRect();
    // Only the beginning can be seen, so no more of it is measured.
    constexpr int kMasQueLaVentana = 1000;
    const QString texto = text().left(kMasQueLaVentana).replace(QLatin1Char('\n'), QLatin1Char(' '));
    const QString cabe = fontMetrics().elidedText(texto, Qt::ElideRight, sitio.width());
    setToolTip(cabe == texto ? QString() : texto.toHtmlEscaped());
    QPainter pintor(this);
    if (texto.isEmpty()) {
        QPalette tenue = palette();
        tenue.setCurrentColorGroup(QPalette::Disabled);
        style()->drawItemText(&pintor, sitio, int(alignment()), tenue, false, sugerencia_, foregroundRole());
        return;
    }
    style()->drawItemText(&pintor, sitio, int(alignment()), palette(), isEnabled(), cabe, foregroundRole());
}

} // namespace tarvo
