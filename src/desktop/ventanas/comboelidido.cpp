#include "desktop/ventanas/comboelidido.h"

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
    opcion.currentText = fontMetrics().elidedText(currentText(), Qt::ElideRight, sitio);
    setToolTip(opcion.currentText == currentText() ? QString() : AyudaLlana(currentText()));
    pintor.drawComplexControl(QStyle::CC_ComboBox, opcion);
    pintor.drawControl(QStyle::CE_ComboBoxLabel, opcion);
}

} // namespace tarvo
