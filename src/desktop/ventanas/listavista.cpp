#include "desktop/ventanas/listavista.h"

#include "desktop/twips.h"
#include "desktop/ventanas/delegadolista.h"
#include "desktop/ventanas/encabezadolista.h"
#include "desktop/ventanas/estilo.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <limits>

namespace tarvo {

namespace {

constexpr int kMuestra = 8;         // so many of a column's longest texts are measured
constexpr int kLetrasMedidas = 200; // no column is given room for more
constexpr int kLetrasEnteras = 40;  // of a text for which another column is left out
constexpr int kImporteMayor = 32;   // letters; what is longer is no amount, and may be cut
constexpr int kFilasSueltas = 50;   // more new rows than this are measured as a new list

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
    });
    connect(header(), &QHeaderView::sectionResized, this, &ListaVista::Arrastrado);
}

void ListaVista::Mostrar(ListaTexto *lista) {
    for (const QMetaObject::Connection &conexion : seguimiento_)
        disconnect(conexion);
    lista_ = lista;
    setModel(lista);
    anchos_.clear();
    for (const ColumnaLista &columna : lista->Columnas()) {
        const QScopedValueRollback repartiendo(repartiendo_, true);
        setColumnHidden(static_cast<int>(anchos_.size()), columna.oculta);
        anchos_.push_back(columna.ancho);
    }
    Seguir();
    MedirColumnas();
    DecirVacia();
}

// What the columns need changes with captions and texts.
void ListaVista::Seguir() {
    const QAbstractItemModel *lista = lista_;
    const auto cambian = [this](const QModelIndex &primera, const QModelIndex &ultima,
                                const QList<int> &papeles) {
        if (papeles.isEmpty() || papeles.contains(Qt::DisplayRole))
            Ensanchar(primera.row(), ultima.row());
    };
    seguimiento_ = {
        connect(lista, &QAbstractItemModel::headerDataChanged, this, &ListaVista::RepartirAnchos),
        connect(lista, &QAbstractItemModel::modelReset, this, &ListaVista::MedirColumnas),
        connect(lista, &QAbstractItemModel::modelReset, this, &ListaVista::DecirVacia),
        connect(lista, &QAbstractItemModel::rowsInserted, this, &ListaVista::DecirVacia),
        connect(lista, &QAbstractItemModel::rowsRemoved, this, &ListaVista::DecirVacia),
        connect(lista, &QAbstractItemModel::rowsInserted, this,
                [this](const QModelIndex &, int primera, int ultima) { Ensanchar(primera, ultima); }),
        connect(lista, &QAbstractItemModel::dataChanged, this, cambian),
    };
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

void ListaVista::PonerTextoVacio(const QString &texto) {
    textoVacio_ = texto;
    DecirVacia();
    viewport()->update();
}

QString ListaVista::MotivoVacia() const {
    const bool ilegible = !lista_.isNull() && lista_->Ilegible();
    return ilegible ? QStringLiteral("No se pudieron leer los datos.") : textoVacio_;
}

void ListaVista::DecirVacia() {
    const bool vacia = lista_.isNull() || lista_->Filas() == 0;
    setAccessibleDescription(vacia ? MotivoVacia() : QString());
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

void ListaVista::changeEvent(QEvent *evento) {
    QTreeView::changeEvent(evento);
    if (evento->type() == QEvent::FontChange || evento->type() == QEvent::StyleChange)
        MedirColumnas();
}

void ListaVista::paintEvent(QPaintEvent *evento) {
    QTreeView::paintEvent(evento);
    actualVista_ = viewport()->rect().intersects(visualRect(currentIndex()));
    if (MotivoVacia().isEmpty() || lista_.isNull() || lista_->Filas() > 0)
        return;
    constexpr int kAire = 16;
    QPainter pintor(viewport());
    pintor.setPen(colores::kTextoTenue);
    pintor.drawText(viewport()->rect().adjusted(kAire, kAire, -kAire, -kAire),
                    Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, MotivoVacia());
}

// A list that is filled and shown at once is measured once.
void ListaVista::doItemsLayout() {
    if (necesarios_.empty())
        RepartirAnchos();
    QTreeView::doItemsLayout();
}

void ListaVista::resizeEvent(QResizeEvent *evento) {
    QTreeView::resizeEvent(evento);
    RepartirAnchos();
    if (actualVista_)
        scrollTo(currentIndex());
}

void ListaVista::keyPressEvent(QKeyEvent *evento) {
    if (OrdenarPorTecla(*evento) || MarcarPorTecla(*evento))
        return;
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

bool ListaVista::OrdenarPorTecla(const QKeyEvent &evento) {
    const bool cifra = evento.key() >= Qt::Key_1 && evento.key() <= Qt::Key_9;
    if (!cifra || evento.modifiers() != Qt::ControlModifier || !header()->sectionsClickable())
        return false;
    int visibles = evento.key() - Qt::Key_1;
    for (int columna = 0; columna < header()->count(); ++columna)
        if (!isColumnHidden(columna) && visibles-- == 0)
            emit header()->sectionClicked(columna);
    return true;
}

// The check mark of the row, whichever of its cells was clicked.
bool ListaVista::MarcarPorTecla(const QKeyEvent &evento) {
    const QModelIndex marca = currentIndex().siblingAtColumn(0);
    if (evento.key() != Qt::Key_Space || !marca.flags().testFlag(Qt::ItemIsUserCheckable))
        return false;
    const bool marcada = marca.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return model()->setData(marca, marcada ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

// --- widths

// What stands beside the text of a cell: margins, lines, a check mark.
int ListaVista::Bordes(int columna) const {
    QStyleOptionViewItem opcion;
    initViewItemOption(&opcion);
    opcion.font = font();
    opcion.text = QStringLiteral("0");
    opcion.features = QStyleOptionViewItem::HasDisplay;
    if (lista_->Filas() > 0 && lista_->flags(lista_->index(0, columna)).testFlag(Qt::ItemIsUserCheckable))
        opcion.features |= QStyleOptionViewItem::HasCheckIndicator;
    const int celda = style()->sizeFromContents(QStyle::CT_ItemViewItem, &opcion, {}, this).width();
    return celda - fontMetrics().horizontalAdvance(opcion.text) + 2;
}

int ListaVista::Medir(int columna, const QStringList &textos) const {
    const bool derecha = lista_->Columnas()[static_cast<std::size_t>(columna)].derecha;
    int ancho = 0;
    for (QString texto : textos) {
        if (derecha && texto.size() > kImporteMayor)
            continue;
        texto.truncate(kLetrasMedidas);
        // Of two amounts with equally many letters the one with more figures is the wider one.
        if (derecha)
            texto.replace(QLatin1Char('-'), QLatin1Char('0'));
        ancho = std::max(ancho, fontMetrics().horizontalAdvance(texto));
    }
    return ancho == 0 ? 0 : ancho + Bordes(columna);
}

void ListaVista::MedirColumnas() {
    necesarios_.clear();
    scheduleDelayedItemsLayout();
}

// New texts can only need more room: what the others need stays.
void ListaVista::Ensanchar(int desde, int hasta) {
    if (hasta - desde >= kFilasSueltas)
        MedirColumnas();
    if (necesarios_.empty())
        return;
    bool crece = false;
    for (int columna = 0; columna < lista_->columnCount(); ++columna) {
        if (lista_->Columnas()[static_cast<std::size_t>(columna)].oculta)
            continue;
        QStringList textos;
        for (int fila = desde; fila <= hasta; ++fila)
            textos.append(lista_->Celda(fila, columna));
        int &necesario = necesarios_[static_cast<std::size_t>(columna)];
        const int nuevo = Medir(columna, textos);
        crece = crece || nuevo > necesario;
        necesario = std::max(necesario, nuevo);
    }
    if (crece)
        RepartirAnchos();
}

// At least the caption with its sort icon; a number whole, a code as far as it can be read.
AnchoColumna ListaVista::AnchoDe(int columna) const {
    const auto i = static_cast<std::size_t>(columna);
    const ColumnaLista &especificacion = lista_->Columnas()[i];
    const int rotulo =
        static_cast<const EncabezadoLista *>(header())->sectionSizeFromContents(columna).width();
    const int necesario = std::max(rotulo, necesarios_[i]);
    const int legible = fontMetrics().horizontalAdvance(QString(especificacion.legibles, u'0'));
    const int leido = especificacion.legibles > 0 ? std::min(necesario, legible + Bordes(columna)) : rotulo;
    return {anchos_[i], especificacion.derecha ? necesario : std::max(rotulo, leido), necesario};
}

// A column that gives way to another one is back as soon as there is room for the texts of both.
void ListaVista::DejarFuera() {
    const std::vector<ColumnaLista> &columnas = lista_->Columnas();
    for (int i = 0; i < static_cast<int>(columnas.size()); ++i) {
        const int otra = columnas[static_cast<std::size_t>(i)].cedeA;
        if (otra < 0)
            continue;
        const int entera = fontMetrics().horizontalAdvance(QString(kLetrasEnteras, u'0'));
        int piden = std::min(AnchoDe(otra).necesario, entera);
        for (int j = 0; j < static_cast<int>(columnas.size()); ++j)
            if (j != otra && !columnas[static_cast<std::size_t>(j)].oculta)
                piden += AnchoDe(j).minimo;
        setColumnHidden(i, piden > viewport()->width());
    }
}

int ListaVista::MedirMuestra(int columna) const {
    const ColumnaLista &especificacion = lista_->Columnas()[static_cast<std::size_t>(columna)];
    if (especificacion.oculta)
        return 0;
    const std::uint32_t bytes =
        especificacion.derecha ? kImporteMayor : std::numeric_limits<std::uint32_t>::max();
    return Medir(columna, lista_->MasLargos(columna, kMuestra, bytes));
}

void ListaVista::RepartirAnchos() {
    if (lista_.isNull())
        return;
    if (necesarios_.empty())
        for (int i = 0; i < lista_->columnCount(); ++i)
            necesarios_.push_back(MedirMuestra(i));
    const QScopedValueRollback repartiendo(repartiendo_, true);
    DejarFuera();
    std::vector<int> columnas;
    std::vector<AnchoColumna> necesitan;
    for (int i = 0; i < static_cast<int>(anchos_.size()); ++i) {
        if (isColumnHidden(i))
            continue;
        columnas.push_back(i);
        necesitan.push_back(AnchoDe(i));
    }
    const std::vector<int> anchos = RepartirAncho(viewport()->width(), necesitan);
    for (std::size_t i = 0; i < columnas.size(); ++i)
        setColumnWidth(columnas[i], anchos[i]);
}

// The operator has dragged a border: what is seen now is the proportion from here on.
void ListaVista::Arrastrado() {
    if (repartiendo_ || lista_.isNull())
        return;
    for (int i = 0; i < static_cast<int>(anchos_.size()); ++i)
        if (!isColumnHidden(i))
            anchos_[static_cast<std::size_t>(i)] = columnWidth(i) * kTwipsPorPixel;
}

} // namespace tarvo
