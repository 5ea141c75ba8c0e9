#include "desktop/ventanas/delegadolista.h"

#include <algorithm>

namespace tarvo {

namespace {
constexpr qsizetype kLetrasALaVista = 400; // no column is wide enough for more
constexpr int kAireVertical = 5;           // pixels, above and below the text together
} // namespace

QString DelegadoLista::displayText(const QVariant &valor, const QLocale &) const {
    QString texto = valor.toString().left(kLetrasALaVista);
    const auto cortaLinea = [](QChar c) {
        return c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
               c == QChar::ParagraphSeparator;
    };
    std::replace_if(texto.begin(), texto.end(), cortaLinea, QLatin1Char(' '));
    return texto;
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
