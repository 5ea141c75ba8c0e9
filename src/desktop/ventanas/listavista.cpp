#include "desktop/ventanas/listavista.h"

#include "desktop/anchos.h"
#include "desktop/ventanas/delegadolista.h"
#include "desktop/ventanas/encabezadolista.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace tarvo {

namespace {

constexpr int kTwipsPorPunto = 15;
constexpr int kBordesCelda = 18; // pixels, beside the text of a cell, and a letter's excess over a digit

// Brings the chosen row back into view also when it is the last one already.
bool EsDeMovimiento(const QKeyEvent &evento) {
    switch (evento.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        return true;
    default:
        return false;
    }
}

} // namespace

ListaVista::ListaVista(QWidget *padre) : QTreeView(padre) {
    setItemDelegate(new DelegadoLista(this));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideRight);
    setTabKeyNavigation(false);
    setAutoScroll(false);
    Encabezar();
    connect(this, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex &indice) { emit FilaDobleClic(indice.row()); });
}

void ListaVista::Encabezar() {
    setHeader(new EncabezadoLista(this));
    header()->setSectionsClickable(true); // a new header of a tree isn't
    connect(header(), &QHeaderView::sectionClicked, this, [this](int columna) {
        lista_->ClicEncabezado(columna);
        scrollTo(currentIndex());
        emit Ordenada();
    });
    connect(header(), &QHeaderView::sectionResized, this, &ListaVista::Arrastrado);
}

void ListaVista::Mostrar(ListaTexto *lista) {
    disconnect(seguimiento_);
    lista_ = lista;
    setModel(lista);
    anchos_.clear();
    for (const ColumnaLista &columna : lista->Columnas()) {
        const QScopedValueRollback repartiendo(repartiendo_, true);
        setColumnHidden(static_cast<int>(anchos_.size()), columna.oculta);
        anchos_.push_back(columna.ancho);
    }
    // A caption changes.
    seguimiento_ = connect(lista, &QAbstractItemModel::headerDataChanged, this, &ListaVista::RepartirAnchos);
    RepartirAnchos();
}

int ListaVista::FilaActual() const {
    if (selectionModel() == nullptr)
        return -1;
    const QItemSelection seleccion = selectionModel()->selection();
    return seleccion.isEmpty() ? -1 : seleccion.first().top();
}

void ListaVista::SeleccionarFila(int fila) {
    if (fila < 0) {
        selectionModel()->clear();
        return;
    }
    const QModelIndex indice = lista_->index(fila, 0);
    selectionModel()->setCurrentIndex(indice,
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(indice);
}

void ListaVista::PonerAncho(int columna, int twips) {
    anchos_[static_cast<std::size_t>(columna)] = twips;
    RepartirAnchos();
}

bool ListaVista::DesbordaFilas() const {
    if (lista_->Filas() == 0)
        return false;
    return lista_->Filas() > viewport()->height() / indexRowSizeHint(lista_->index(0, 0));
}

QRect ListaVista::visualRect(const QModelIndex &indice) const {
    if (!indice.isValid() || isIndexHidden(indice))
        return {};
    const int alto = indexRowSizeHint(indice);
    return {columnViewportPosition(indice.column()), indice.row() * alto - verticalOffset(),
            columnWidth(indice.column()), alto};
}

void ListaVista::scrollTo(const QModelIndex &indice, ScrollHint donde) {
    if (!indice.isValid())
        return;
    executeDelayedItemsLayout();
    const int fila = indice.row();
    const int caben = std::max(1, viewport()->height() / std::max(1, indexRowSizeHint(indice)));
    const int primera = verticalScrollBar()->value();
    if (donde == PositionAtTop || fila < primera)
        verticalScrollBar()->setValue(fila);
    else if (donde == PositionAtBottom || fila >= primera + caben)
        verticalScrollBar()->setValue(fila - caben + 1);
}

void ListaVista::resizeEvent(QResizeEvent *evento) {
    QTreeView::resizeEvent(evento);
    RepartirAnchos();
}

void ListaVista::keyPressEvent(QKeyEvent *evento) {
    const int antes = FilaActual();
    QTreeView::keyPressEvent(evento);
    if (EsDeMovimiento(*evento) || FilaActual() != antes)
        scrollTo(currentIndex());
    if (FilaActual() >= 0 && FilaActual() != antes)
        emit FilaPulsada(FilaActual());
}

void ListaVista::mousePressEvent(QMouseEvent *evento) {
    QTreeView::mousePressEvent(evento);
    if (evento->button() == Qt::LeftButton && indexAt(evento->position().toPoint()).isValid() &&
        FilaActual() >= 0)
        emit FilaPulsada(FilaActual());
}

// The row that was pressed stays the chosen one while the mouse moves over others.
void ListaVista::mouseMoveEvent(QMouseEvent *evento) {
    if (evento->buttons() == Qt::NoButton)
        QTreeView::mouseMoveEvent(evento);
}

// A row once chosen stays chosen until another is: no key and no click beside the rows takes the choice back.
QItemSelectionModel::SelectionFlags ListaVista::selectionCommand(const QModelIndex &indice,
                                                                 const QEvent *) const {
    return indice.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                            : QItemSelectionModel::SelectionFlags(QItemSelectionModel::NoUpdate);
}

// The caption with its sort icon, and the characters that the column promises.
int ListaVista::AnchoMinimo(int columna) const {
    const int rotulo = header()->sectionSizeHint(columna);
    const int legibles = lista_->Columnas()[static_cast<std::size_t>(columna)].legibles;
    if (legibles == 0)
        return rotulo;
    return qMax(rotulo, fontMetrics().horizontalAdvance(QString(legibles, u'0')) + kBordesCelda);
}

void ListaVista::RepartirAnchos() {
    if (lista_.isNull())
        return;
    std::vector<int> columnas;
    std::vector<int> pesos;
    std::vector<int> minimos;
    for (int i = 0; i < static_cast<int>(anchos_.size()); ++i) {
        if (isColumnHidden(i))
            continue;
        columnas.push_back(i);
        pesos.push_back(anchos_[static_cast<std::size_t>(i)]);
        minimos.push_back(AnchoMinimo(i));
    }
    const std::vector<int> anchos = RepartirAncho(viewport()->width(), pesos, minimos);
    const QScopedValueRollback repartiendo(repartiendo_, true);
    for (std::size_t i = 0; i < columnas.size(); ++i)
        setColumnWidth(columnas[i], anchos[i]);
}

// The operator has dragged a border: what is seen now is the proportion from here on.
void ListaVista::Arrastrado() {
    if (repartiendo_ || lista_.isNull())
        return;
    for (int i = 0; i < static_cast<int>(anchos_.size()); ++i)
        if (!isColumnHidden(i))
            anchos_[static_cast<std::size_t>(i)] = columnWidth(i) * kTwipsPorPunto;
}

} // namespace tarvo
