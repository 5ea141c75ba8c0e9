#include "desktop/ventanas/accesolista.h"

#include "desktop/ventanas/accesocelda.h"
#include "desktop/ventanas/listavista.h"

#include <algorithm>

namespace tarvo {

AccesoLista::AccesoLista(ListaVista *vista) : QAccessibleWidget(vista, QAccessible::Table) {}

AccesoLista::~AccesoLista() {
    OlvidarCeldas();
}

void *AccesoLista::interface_cast(QAccessible::InterfaceType tipo) {
    return tipo == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface *>(this)
                                               : QAccessibleWidget::interface_cast(tipo);
}

ListaVista &AccesoLista::Vista() const {
    return *static_cast<ListaVista *>(widget());
}

void AccesoLista::OlvidarCeldas() {
    for (const QAccessible::Id celda : std::as_const(celdas_))
        QAccessible::deleteAccessibleInterface(celda);
    celdas_.clear();
}

int AccesoLista::rowCount() const {
    return Vista().Lista() == nullptr ? 0 : Vista().Lista()->Filas();
}

int AccesoLista::columnCount() const {
    return Vista().Lista() == nullptr ? 0 : Vista().Lista()->columnCount();
}

int AccesoLista::childCount() const {
    return (rowCount() + 1) * columnCount();
}

QAccessibleInterface *AccesoLista::child(int indice) const {
    if (indice < 0 || indice >= childCount())
        return nullptr;
    const auto hecha = celdas_.constFind(indice);
    if (hecha != celdas_.constEnd())
        return QAccessible::accessibleInterface(*hecha);
    const int columnas = std::max(1, columnCount());
    auto *celda = new AccesoCelda(&Vista(), indice / columnas - 1, indice % columnas);
    celdas_.insert(indice, QAccessible::registerAccessibleInterface(celda));
    return celda;
}

QAccessibleInterface *AccesoLista::cellAt(int fila, int columna) const {
    return child((fila + 1) * columnCount() + columna);
}

QAccessibleInterface *AccesoLista::childAt(int x, int y) const {
    const QModelIndex indice = Vista().indexAt(Vista().viewport()->mapFromGlobal(QPoint(x, y)));
    return indice.isValid() ? cellAt(indice.row(), indice.column()) : nullptr;
}

QAccessibleInterface *AccesoLista::focusChild() const {
    const QModelIndex actual = Vista().currentIndex();
    return actual.isValid() ? cellAt(actual.row(), actual.column()) : nullptr;
}

int AccesoLista::indexOfChild(const QAccessibleInterface *hijo) const {
    auto *celda = const_cast<QAccessibleInterface *>(hijo)->tableCellInterface();
    return celda == nullptr ? -1 : (celda->rowIndex() + 1) * columnCount() + celda->columnIndex();
}

int AccesoLista::selectedRowCount() const {
    return Vista().FilaActual() < 0 ? 0 : 1;
}

QList<int> AccesoLista::selectedRows() const {
    return selectedRowCount() == 0 ? QList<int>{} : QList{Vista().FilaActual()};
}

bool AccesoLista::isRowSelected(int fila) const {
    return fila >= 0 && Vista().FilaActual() == fila;
}

int AccesoLista::selectedCellCount() const {
    return selectedRowCount() * columnCount();
}

QList<QAccessibleInterface *> AccesoLista::selectedCells() const {
    QList<QAccessibleInterface *> celdas;
    for (const int fila : selectedRows())
        for (int columna = 0; columna < columnCount(); ++columna)
            celdas.append(cellAt(fila, columna));
    return celdas;
}

QString AccesoLista::columnDescription(int columna) const {
    return columna < 0 || columna >= columnCount()
               ? QString()
               : Vista().Lista()->Columnas()[static_cast<std::size_t>(columna)].titulo;
}

bool AccesoLista::selectRow(int fila) {
    if (fila < 0 || fila >= rowCount())
        return false;
    Vista().SeleccionarFila(fila);
    return true;
}

void AccesoLista::modelChange(QAccessibleTableModelChangeEvent *evento) {
    if (evento->modelChangeType() == QAccessibleTableModelChangeEvent::ModelReset)
        OlvidarCeldas();
}

} // namespace tarvo
