#include "desktop/ventanas/areajusta.h"

#include <QEvent>
#include <QScrollBar>

namespace tarvo {

AreaJusta::AreaJusta(QWidget *padre) : QScrollArea(padre) {
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
}

QSize AreaJusta::sizeHint() const {
    return widget() == nullptr ? QSize() : widget()->sizeHint();
}

// A few lines can always be seen, beside the bar that scrolls them.
QSize AreaJusta::minimumSizeHint() const {
    constexpr int kLineas = 3;
    const int contenido = widget() == nullptr ? 0 : widget()->minimumSizeHint().width();
    return {contenido + verticalScrollBar()->sizeHint().width(), kLineas * fontMetrics().lineSpacing()};
}

bool AreaJusta::viewportEvent(QEvent *evento) {
    if (evento->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::viewportEvent(evento);
}

} // namespace tarvo
