#include "desktop/ventanas/etiquetatotal.h"

#include <QEvent>
#include <QFontMetricsF>

#include <algorithm>

namespace tarvo {

namespace {

constexpr double kAnchoPorCapital = 21.4;
constexpr double kAltoPorCapital = 13.5;
constexpr double kColumna = 0.29; // of the window, the narrowest column that a total stands in
constexpr int kReferencia = 100;  // pixels

} // namespace

// As high as the window allows, unless four figures before the decimals don't fit the column at that size.
double EtiquetaTotal::TamanoMayor() const {
    const QSize medida = window()->size();
    QFont letra = font();
    letra.setPixelSize(kReferencia);
    const QFontMetricsF medidas(letra);
    const double capital = std::min(medida.width() / kAnchoPorCapital, medida.height() / kAltoPorCapital);
    const double cuatroCifras = medidas.horizontalAdvance(QStringLiteral("$ 8888,88"));
    return std::min(capital / medidas.capHeight(), medida.width() * kColumna / cuatroCifras) * kReferencia;
}

void EtiquetaTotal::showEvent(QShowEvent *evento) {
    EtiquetaImporte::showEvent(evento);
    if (ventana_ == window())
        return;
    if (ventana_ != nullptr)
        ventana_->removeEventFilter(this);
    ventana_ = window();
    ventana_->installEventFilter(this);
    updateGeometry();
}

bool EtiquetaTotal::eventFilter(QObject *objeto, QEvent *evento) {
    if (objeto == ventana_ && evento->type() == QEvent::Resize)
        updateGeometry();
    return EtiquetaImporte::eventFilter(objeto, evento);
}

} // namespace tarvo
