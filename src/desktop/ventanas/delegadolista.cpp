#include "desktop/ventanas/delegadolista.h"

#include "desktop/unalinea.h"

namespace tarvo {

namespace {
constexpr qsizetype kLetrasALaVista = 400; // no column is wide enough for more
constexpr int kAireVertical = 5;           // pixels, above and below the text together
} // namespace

QString DelegadoLista::displayText(const QVariant &valor, const QLocale &) const {
    return EnUnaLinea(valor.toString().left(kLetrasALaVista));
}

QSize DelegadoLista::sizeHint(const QStyleOptionViewItem &opcion, const QModelIndex &) const {
    return {0, opcion.fontMetrics.height() + kAireVertical};
}

void DelegadoLista::initStyleOption(QStyleOptionViewItem *opcion, const QModelIndex &indice) const {
    QStyledItemDelegate::initStyleOption(opcion, indice);
    opcion->state &= ~QStyle::State_HasFocus;
    const QVariant color = indice.data(Qt::ForegroundRole);
    if (color.isValid())
        opcion->palette.setColor(QPalette::HighlightedText, color.value<QColor>());
}

} // namespace tarvo
