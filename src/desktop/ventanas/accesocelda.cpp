#include "desktop/ventanas/accesocelda.h"

#include "desktop/ventanas/listavista.h"

#include <QHeaderView>

namespace tarvo {

void *AccesoCelda::interface_cast(QAccessible::InterfaceType tipo) {
    return tipo == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface *>(this)
                                                   : nullptr;
}

bool AccesoCelda::isValid() const {
    return vista_ != nullptr && vista_->Lista() != nullptr && fila_ < vista_->Lista()->Filas();
}

QWindow *AccesoCelda::window() const {
    return vista_ == nullptr ? nullptr : vista_->window()->windowHandle();
}

QAccessibleInterface *AccesoCelda::table() const {
    return QAccessible::queryAccessibleInterface(vista_);
}

// The cell that the focus is on, and the first one for those who read row by row.
bool AccesoCelda::Habla() const {
    const QModelIndex actual = vista_->currentIndex();
    return (fila_ == actual.row() && columna_ == actual.column()) ||
           columna_ == vista_->header()->logicalIndexAt(0);
}

QString AccesoCelda::text(QAccessible::Text parte) const {
    if (!isValid())
        return {};
    const ListaTexto &lista = *vista_->Lista();
    if (parte == QAccessible::Description && !EsEncabezado())
        return lista.data(lista.index(fila_, columna_), Qt::AccessibleDescriptionRole).toString();
    if (parte != QAccessible::Name)
        return {};
    if (EsEncabezado())
        return lista.Columnas()[static_cast<std::size_t>(columna_)].titulo;
    return Habla() ? lista.FilaHablada(fila_) : lista.CeldaHablada(fila_, columna_);
}

QRect AccesoCelda::rect() const {
    if (!isValid() || vista_->isColumnHidden(columna_))
        return {};
    const QHeaderView &encabezado = *vista_->header();
    if (EsEncabezado())
        return {encabezado.mapToGlobal(QPoint(encabezado.sectionViewportPosition(columna_), 0)),
                QSize(encabezado.sectionSize(columna_), encabezado.height())};
    const QRect sitio = vista_->visualRect(vista_->Lista()->index(fila_, columna_));
    return {vista_->viewport()->mapToGlobal(sitio.topLeft()), sitio.size()};
}

QAccessible::Role AccesoCelda::role() const {
    return EsEncabezado() ? QAccessible::ColumnHeader : QAccessible::Cell;
}

QAccessible::State AccesoCelda::state() const {
    QAccessible::State estado;
    if (!isValid()) {
        estado.invalid = true;
        return estado;
    }
    const QRect ventana(vista_->mapToGlobal(QPoint(0, 0)), vista_->size());
    estado.invisible = vista_->isColumnHidden(columna_) || !vista_->isVisible();
    estado.offscreen = !ventana.intersects(rect());
    estado.disabled = !vista_->isEnabled();
    if (EsEncabezado())
        return estado;
    const QModelIndex actual = vista_->currentIndex();
    estado.readOnly = true;
    estado.focusable = true;
    estado.selectable = true;
    estado.selected = isSelected();
    estado.focused = vista_->hasFocus() && actual.row() == fila_ && actual.column() == columna_;
    Marcar(estado);
    return estado;
}

void AccesoCelda::Marcar(QAccessible::State &estado) const {
    const QVariant marca = vista_->Lista()->index(fila_, columna_).data(Qt::CheckStateRole);
    estado.checkable = marca.isValid();
    estado.checked = marca.isValid() && marca.toInt() == Qt::Checked;
}

bool AccesoCelda::isSelected() const {
    return isValid() && !EsEncabezado() && vista_->FilaActual() == fila_;
}

QList<QAccessibleInterface *> AccesoCelda::columnHeaderCells() const {
    QAccessibleInterface *tabla = table();
    return tabla == nullptr ? QList<QAccessibleInterface *>{} : QList{tabla->child(columna_)};
}

} // namespace tarvo
