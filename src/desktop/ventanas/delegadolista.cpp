#include "desktop/ventanas/delegadolista.h"

#include "desktop/contraste.h"
#include "desktop/listatexto.h"
#include "desktop/unalinea.h"
#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/etiquetaelidida.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace tarvo {

namespace {

constexpr qsizetype kLetrasALaVista = 400; // no column is wide enough for more
constexpr int kAnchoBarra = 4;             // pixels

QColor FondoDe(const QStyleOptionViewItem &celda) {
    const bool elegida = celda.state.testFlag(QStyle::State_Selected);
    if (!celda.state.testFlag(QStyle::State_Enabled))
        return elegida ? colores::kPresionadoTenue : colores::kDeshabilitado;
    return elegida ? colores::kPresionado : colores::kSegundaFila;
}

QColor Palido(const QColor &color) {
    const QColor gris = colores::kTextoTenue;
    return {(color.red() + 2 * gris.red()) / 3, (color.green() + 2 * gris.green()) / 3,
            (color.blue() + 2 * gris.blue()) / 3};
}

} // namespace

QString DelegadoLista::displayText(const QVariant &valor, const QLocale &) const {
    return EnUnaLinea(valor.toString().left(kLetrasALaVista));
}

void DelegadoLista::paint(QPainter *pintor, const QStyleOptionViewItem &opcion,
                          const QModelIndex &indice) const {
    QStyledItemDelegate::paint(pintor, opcion, indice);
    if (indice.column() == 0 && indice.data(ListaTexto::kRolSenalada).toBool())
        pintor->fillRect(QRect(opcion.rect.topLeft(), QSize(kAnchoBarra, opcion.rect.height())),
                         colores::kTitulo);
}

QSize DelegadoLista::sizeHint(const QStyleOptionViewItem &opcion, const QModelIndex &) const {
    const int letra = opcion.fontMetrics.height();
    return {0, letra + letra * 3 / 10};
}

void DelegadoLista::initStyleOption(QStyleOptionViewItem *opcion, const QModelIndex &indice) const {
    QStyledItemDelegate::initStyleOption(opcion, indice);
    opcion->state &= ~QStyle::State_HasFocus;
    const bool habilitada = opcion->state.testFlag(QStyle::State_Enabled);
    const QVariant tono = indice.data(Qt::ForegroundRole);
    const QColor color = tono.isValid() ? tono.value<QColor>() : colores::kTexto;
    const QColor legible = Legible(habilitada ? color : Palido(color), FondoDe(*opcion));
    for (const QPalette::ColorRole papel : {QPalette::Text, QPalette::HighlightedText})
        opcion->palette.setColor(papel, legible);
}

bool DelegadoLista::Cortada(const QStyleOptionViewItem &celda) const {
    const QStyle *estilo = celda.widget->style();
    const QRect sitio = estilo->subElementRect(QStyle::SE_ItemViewItemText, &celda, celda.widget);
    const int margen = estilo->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, celda.widget) + 1;
    return celda.fontMetrics.horizontalAdvance(celda.text) > sitio.width() - 2 * margen;
}

bool DelegadoLista::helpEvent(QHelpEvent *evento, QAbstractItemView *vista,
                              const QStyleOptionViewItem &opcion, const QModelIndex &indice) {
    if (evento->type() != QEvent::ToolTip || !indice.isValid())
        return QStyledItemDelegate::helpEvent(evento, vista, opcion, indice);
    QStyleOptionViewItem celda = opcion;
    initStyleOption(&celda, indice);
    const QString texto = indice.data().toString();
    QToolTip::showText(evento->globalPos(), Cortada(celda) ? AyudaLlana(texto) : QString(), vista);
    return true;
}

} // namespace tarvo
