#include "desktop/ventanas/encabezadolista.h"

#include <QHelpEvent>
#include <QIcon>
#include <QPainter>
#include <QStyleOptionHeader>
#include <QToolTip>

namespace tarvo {

EncabezadoLista::EncabezadoLista(QWidget *padre) : QHeaderView(Qt::Horizontal, padre) {
    setSectionsMovable(false);
    setHighlightSections(false);
    setStretchLastSection(false);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

// The style knows one place for an icon, before the text and aligned apart from it.
void EncabezadoLista::initStyleOptionForIndex(QStyleOptionHeader *opcion, int seccion) const {
    QHeaderView::initStyleOptionForIndex(opcion, seccion);
    opcion->icon = QIcon();
}

void EncabezadoLista::paintSection(QPainter *pintor, const QRect &zona, int seccion) const {
    pintor->save();
    pintor->setFont(font());
    QHeaderView::paintSection(pintor, zona, seccion); // leaves a clip behind that nothing passes
    pintor->restore();
    const QVariant icono = model()->headerData(seccion, Qt::Horizontal, Qt::DecorationRole);
    icono.value<QIcon>().paint(pintor, LugarIcono(zona, seccion));
}

QSize EncabezadoLista::sectionSizeFromContents(int seccion) const {
    QStyleOptionHeader opcion;
    initStyleOption(&opcion);
    initStyleOptionForIndex(&opcion, seccion);
    const QSize texto = style()->sizeFromContents(QStyle::CT_HeaderSection, &opcion, QSize(), this);
    return {texto.width() + (sectionsClickable() ? LadoIcono() : 0), texto.height()};
}

// Tells the key that does what a click does.
bool EncabezadoLista::viewportEvent(QEvent *evento) {
    constexpr int kTeclas = 9;
    if (evento->type() != QEvent::ToolTip || !sectionsClickable())
        return QHeaderView::viewportEvent(evento);
    const auto *ayuda = static_cast<QHelpEvent *>(evento);
    const int seccion = logicalIndexAt(ayuda->pos());
    int tecla = 0;
    for (int i = 0; i <= seccion; ++i)
        tecla += isSectionHidden(i) ? 0 : 1;
    if (tecla > 0 && tecla <= kTeclas)
        QToolTip::showText(ayuda->globalPos(), QStringLiteral("Ordenar (Ctrl+%1 en la lista)").arg(tecla),
                           this);
    return true;
}

// Two quick clicks are two clicks.
void EncabezadoLista::mouseDoubleClickEvent(QMouseEvent *evento) {
    QHeaderView::mouseDoubleClickEvent(evento);
    mousePressEvent(evento);
}

// The picture brings its own margins along.
int EncabezadoLista::LadoIcono() const {
    return fontMetrics().ascent() * 3 / 4;
}

QRect EncabezadoLista::LugarIcono(const QRect &zona, int seccion) const {
    QStyleOptionHeader opcion;
    initStyleOption(&opcion);
    initStyleOptionForIndex(&opcion, seccion);
    opcion.rect = zona;
    const QRect rotulo = style()->subElementRect(QStyle::SE_HeaderLabel, &opcion, this);
    const int ancho = fontMetrics().horizontalAdvance(opcion.text);
    const int lado = LadoIcono();
    const bool derecha = opcion.textAlignment.testFlag(Qt::AlignRight);
    const int x = derecha ? rotulo.right() + 1 - ancho - lado : rotulo.left() + ancho;
    return {x, rotulo.center().y() - lado / 2, lado, lado};
}

} // namespace tarvo
