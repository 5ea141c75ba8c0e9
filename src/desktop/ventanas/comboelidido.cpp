#include "desktop/ventanas/comboelidido.h"

#include "desktop/unalinea.h"
#include "desktop/ventanas/etiquetaelidida.h"

#include <QAbstractItemView>
#include <QScrollBar>
#include <QStylePainter>

#include <algorithm>

namespace tarvo {

void ComboElidido::showPopup() {
    const int necesario = view()->sizeHintForColumn(modelColumn()) +
                          view()->verticalScrollBar()->sizeHint().width() + 2 * view()->frameWidth();
    view()->setMinimumWidth(std::clamp(necesario, width(), std::max(width(), window()->width())));
    view()->setTextElideMode(Qt::ElideRight);
    QComboBox::showPopup();
}

void ComboElidido::paintEvent(QPaintEvent *) {
    QStylePainter pintor(this);
    QStyleOptionComboBox opcion;
    initStyleOption(&opcion);
    const int sitio =
        style()->subControlRect(QStyle::CC_ComboBox, &opcion, QStyle::SC_ComboBoxEditField, this).width();
    const bool vacio = currentIndex() < 0;
    if (vacio)
        opcion.palette.setBrush(QPalette::ButtonText, opcion.palette.placeholderText());
    const QString texto = EnUnaLinea(vacio ? placeholderText() : currentText());
    opcion.currentText = fontMetrics().elidedText(texto, conFinal_ ? Qt::ElideMiddle : Qt::ElideRight, sitio);
    setToolTip(opcion.currentText == texto ? QString() : AyudaLlana(texto));
    pintor.drawComplexControl(QStyle::CC_ComboBox, opcion);
    pintor.drawControl(QStyle::CE_ComboBoxLabel, opcion);
}

} // namespace tarvo
