#include "desktop/listatexto.h"

#include "desktop/busquedaparte.h"
#include "desktop/filaslista.h"

#include <QIcon>

#include <algorithm>
#include <utility>

namespace tarvo {

namespace {

constexpr int kLetrasOidas = 400; // nobody listens to more

} // namespace

ListaTexto::ListaTexto(std::vector<ColumnaLista> columnas, QObject *padre)
    : QAbstractTableModel(padre),
      especificacion_(std::move(columnas)),
      d_(std::make_unique<FilasLista>(especificacion_.size())) {}

ListaTexto::~ListaTexto() = default;

int ListaTexto::Filas() const {
    return d_->celdas.empty() ? 0 : static_cast<int>(d_->celdas.front().Filas());
}

QString ListaTexto::Celda(int fila, int columna) const {
    const std::string_view celda = CeldaUtf8(fila, columna);
    return QString::fromUtf8(celda.data(), static_cast<qsizetype>(celda.size()));
}

std::string_view ListaTexto::CeldaUtf8(int fila, int columna) const {
    return d_->Celda(fila, columna);
}

const ColumnaTexto &ListaTexto::ColumnaGuardada(int columna) const {
    return d_->Columna(columna);
}

std::int64_t ListaTexto::FilaGuardada(int fila) const {
    return d_->Guardada(fila);
}

QStringList ListaTexto::MasLargos(int columna, int cuantos, std::uint32_t bytes) const {
    const ColumnaTexto &celdas = d_->Columna(columna);
    QStringList textos;
    for (const std::int64_t fila : celdas.MasLargas(static_cast<std::size_t>(cuantos), bytes))
        textos.append(celdas.Texto(fila));
    return textos;
}

void ListaTexto::Asignar(ContenidoLista contenido) {
    Reemplazar(std::move(contenido), false);
}

void ListaTexto::Reemplazar(ContenidoLista contenido, bool ilegible) {
    Q_ASSERT(contenido.celdas.size() == especificacion_.size());
    beginResetModel();
    ilegible_ = ilegible;
    d_->Reemplazar(std::move(contenido.celdas));
    d_->tonos.assign(especificacion_.size(), {});
    for (TonosColumna &columna : contenido.tonos)
        d_->tonos[static_cast<std::size_t>(columna.columna)] = std::move(columna.tonos);
    d_->marcas.assign(static_cast<std::size_t>(Filas()), false);
    d_->senalada = -1;
    d_->Reordenar(columnaOrden_, orden_);
    columnaFlecha_ = FlechaDe(columnaOrden_);
    endResetModel();
}

void ListaTexto::Limpiar() {
    Vaciar(false);
}

void ListaTexto::QuedarIlegible() {
    Vaciar(true);
}

void ListaTexto::Vaciar(bool ilegible) {
    const int flecha = columnaFlecha_;
    Reemplazar({std::vector<ColumnaTexto>(especificacion_.size())}, ilegible);
    columnaFlecha_ = flecha;
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int ListaTexto::AgregarFila(const QStringList &celdas) {
    const int lugar =
        columnaOrden_ < 0 ? Filas() : d_->Lugar(celdas.value(columnaOrden_), columnaOrden_, orden_);
    beginInsertRows({}, lugar, lugar);
    d_->Agregar(celdas, columnaOrden_ < 0 ? -1 : lugar);
    endInsertRows();
    return lugar;
}

void ListaTexto::QuitarFila(int fila) {
    beginRemoveRows({}, fila, fila);
    d_->Quitar(fila);
    endRemoveRows();
}

void ListaTexto::QuitarFilas(const std::function<bool(int fila)> &sobra) {
    FilasLista::Numeros quedan;
    for (int fila = Filas() - 1; fila >= 0; --fila)
        if (!sobra(fila))
            quedan.push_back(d_->Guardada(fila));
    std::sort(quedan.begin(), quedan.end());
    beginResetModel();
    d_->Conservar(quedan);
    endResetModel();
}

void ListaTexto::PonerCelda(int fila, int columna, const QString &texto) {
    d_->PonerCelda(fila, columna, texto);
    emit dataChanged(index(fila, columna), index(fila, columna), {Qt::DisplayRole});
}

Tono ListaTexto::TonoDe(int fila, int columna) const {
    const std::vector<Tono> &tonos = d_->tonos[static_cast<std::size_t>(columna)];
    return tonos.empty() ? Tono::Normal : tonos[d_->Guardada(fila)];
}

void ListaTexto::PonerTono(int fila, int columna, Tono tono) {
    std::vector<Tono> &tonos = d_->tonos[static_cast<std::size_t>(columna)];
    if (tonos.empty())
        tonos.assign(static_cast<std::size_t>(Filas()), Tono::Normal);
    tonos[d_->Guardada(fila)] = tono;
    emit dataChanged(index(fila, columna), index(fila, columna), {Qt::ForegroundRole});
}

void ListaTexto::PonerMarcable(bool marcable) {
    d_->marcable = marcable;
    d_->marcas.assign(d_->marcas.size(), false);
    if (Filas() > 0)
        emit dataChanged(index(0, 0), index(Filas() - 1, 0), {Qt::CheckStateRole});
}

bool ListaTexto::Marcada(int fila) const {
    return d_->marcas[d_->Guardada(fila)];
}

void ListaTexto::Marcar(int fila, bool marcada) {
    if (Marcada(fila) == marcada)
        return;
    d_->marcas[d_->Guardada(fila)] = marcada;
    emit dataChanged(index(fila, 0), index(fila, 0), {Qt::CheckStateRole});
}

void ListaTexto::Senalar(int fila) {
    const std::int64_t nueva = fila < 0 ? -1 : static_cast<std::int64_t>(d_->Guardada(fila));
    const std::int64_t vieja = std::exchange(d_->senalada, nueva);
    if (vieja == nueva)
        return;
    for (const std::int64_t guardada : {vieja, nueva})
        if (const int lugar = d_->EnPantalla(guardada); lugar >= 0)
            emit dataChanged(index(lugar, 0), index(lugar, columnCount() - 1),
                             {kRolSenalada, Qt::AccessibleDescriptionRole});
}

int ListaTexto::Buscar(int columna, std::string_view utf8, int desde) const {
    for (int fila = desde; fila < Filas(); ++fila)
        if (d_->Celda(fila, columna) == utf8)
            return fila;
    return -1;
}

int ListaTexto::BuscarParte(const std::vector<int> &columnas, const QString &texto, int desde) const {
    const BusquedaParte parte(texto);
    for (int fila = desde; fila < Filas(); ++fila)
        for (const int columna : columnas)
            if (parte.Esta(d_->Celda(fila, columna)))
                return fila;
    return -1;
}

void ListaTexto::Ordenar(int columna, Qt::SortOrder orden) {
    Ordenar(columna, orden, FlechaDe(columna));
}

void ListaTexto::Ordenar(int columna, Qt::SortOrder orden, int flecha) {
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList antes = persistentIndexList();
    std::vector<std::uint32_t> guardadas;
    for (const QModelIndex &indice : antes)
        guardadas.push_back(d_->Guardada(indice.row()));
    columnaOrden_ = columna;
    columnaFlecha_ = flecha;
    orden_ = orden;
    d_->Reordenar(columna, orden);
    SeguirIndices(antes, guardadas);
    emit layoutChanged({}, VerticalSortHint);
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

// Persistent indexes (the selection) go where their rows went.
void ListaTexto::SeguirIndices(const QModelIndexList &antes, const std::vector<std::uint32_t> &guardadas) {
    if (antes.isEmpty())
        return;
    std::vector<int> lugar(static_cast<std::size_t>(Filas()));
    for (int fila = 0; fila < Filas(); ++fila)
        lugar[d_->Guardada(fila)] = fila;
    QModelIndexList despues;
    for (qsizetype i = 0; i < antes.size(); ++i)
        despues.append(index(lugar[guardadas[static_cast<std::size_t>(i)]], antes[i].column()));
    changePersistentIndexList(antes, despues);
}

void ListaTexto::ClicEncabezado(int columna) {
    if (Filas() == 0 && !ordenaVacia_)
        return;
    const int clave = especificacion_[static_cast<std::size_t>(columna)].claveOrden;
    const int orden = clave < 0 ? columna : clave;
    const bool misma = columnaOrden_ == orden && orden_ == Qt::AscendingOrder;
    Ordenar(orden, misma ? Qt::DescendingOrder : Qt::AscendingOrder, columna);
}

int ListaTexto::FlechaDe(int columnaOrden) const {
    if (columnaOrden < 0)
        return -1;
    const int flecha = especificacion_[static_cast<std::size_t>(columnaOrden)].flecha;
    return flecha < 0 ? columnaOrden : flecha;
}

void ListaTexto::PonerTitulo(int columna, const QString &titulo) {
    especificacion_[static_cast<std::size_t>(columna)].titulo = titulo;
    emit headerDataChanged(Qt::Horizontal, columna, columna);
}

int ListaTexto::rowCount(const QModelIndex &padre) const {
    return padre.isValid() ? 0 : Filas();
}

int ListaTexto::columnCount(const QModelIndex &padre) const {
    return padre.isValid() ? 0 : static_cast<int>(especificacion_.size());
}

QVariant ListaTexto::data(const QModelIndex &indice, int rol) const {
    if (!checkIndex(indice, CheckIndexOption::IndexIsValid))
        return {};
    switch (rol) {
    case Qt::DisplayRole:
        return Celda(indice.row(), indice.column());
    case Qt::TextAlignmentRole:
        return headerData(indice.column(), Qt::Horizontal, rol);
    case Qt::ForegroundRole: {
        const QColor color = ColorDe(TonoDe(indice.row(), indice.column()));
        return color.isValid() ? QVariant(color) : QVariant();
    }
    case Qt::CheckStateRole:
        if (d_->marcable && indice.column() == 0)
            return Marcada(indice.row()) ? Qt::Checked : Qt::Unchecked;
        return {};
    case kRolSenalada:
        return d_->Guardada(indice.row()) == d_->senalada;
    case Qt::AccessibleDescriptionRole:
        if (d_->Guardada(indice.row()) == d_->senalada)
            return QStringLiteral("Los campos muestran los datos de esta fila");
        return {};
    default:
        return {};
    }
}

QString ListaTexto::CeldaHablada(int fila, int columna) const {
    return Celda(fila, columna).left(kLetrasOidas);
}

QString ListaTexto::FilaHablada(int fila) const {
    QStringList partes;
    for (int columna = 0; columna < columnCount(); ++columna) {
        const ColumnaLista &especificacion = especificacion_[static_cast<std::size_t>(columna)];
        if (!especificacion.oculta)
            partes.append(especificacion.titulo + QLatin1Char(' ') + CeldaHablada(fila, columna));
    }
    return partes.join(QStringLiteral(", "));
}

bool ListaTexto::setData(const QModelIndex &indice, const QVariant &valor, int rol) {
    if (rol != Qt::CheckStateRole || !(flags(indice) & Qt::ItemIsUserCheckable))
        return false;
    Marcar(indice.row(), valor.toInt() == Qt::Checked);
    emit MarcaPulsada(indice.row());
    return true;
}

QVariant ListaTexto::headerData(int seccion, Qt::Orientation orientacion, int rol) const {
    if (orientacion != Qt::Horizontal || seccion < 0 || seccion >= columnCount())
        return {};
    const ColumnaLista &columna = especificacion_[static_cast<std::size_t>(seccion)];
    switch (rol) {
    case Qt::DisplayRole:
        return columna.titulo;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment(columna.derecha ? Qt::AlignRight : Qt::AlignLeft) |
                                   Qt::AlignVCenter);
    case Qt::DecorationRole:
        if (seccion != columnaFlecha_)
            return {};
        return QIcon(orden_ == Qt::AscendingOrder ? QStringLiteral(":/iconos/arriba.svg")
                                                  : QStringLiteral(":/iconos/abajo.svg"));
    default:
        return {};
    }
}

Qt::ItemFlags ListaTexto::flags(const QModelIndex &indice) const {
    if (!indice.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags comunes = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return d_->marcable && indice.column() == 0 ? comunes | Qt::ItemIsUserCheckable : comunes;
}

} // namespace tarvo
