#include "desktop/listatexto.h"

#include "desktop/busquedaparte.h"
#include "desktop/ordentexto.h"

#include <QIcon>

#include <algorithm>
#include <limits>
#include <utility>

namespace tarvo {

namespace {

constexpr int kLetrasOidas = 400; // of a cell; nobody listens to more

bool MismosTextos(const ColumnaTexto &una, const ColumnaTexto &otra) {
    if (una.Filas() != otra.Filas())
        return false;
    for (std::int64_t fila = 0; fila < una.Filas(); ++fila)
        if (una.Celda(fila) != otra.Celda(fila))
            return false;
    return true;
}

constexpr std::uint32_t kSobra = std::numeric_limits<std::uint32_t>::max();

ColumnaTexto Elegidas(const ColumnaTexto &columna, const std::vector<std::uint32_t> &filas) {
    ColumnaTexto elegidas;
    elegidas.Reservar(static_cast<std::int64_t>(filas.size()));
    for (const std::uint32_t fila : filas)
        elegidas.Agregar(columna.Celda(fila));
    return elegidas;
}

template <typename Valor>
std::vector<Valor> Elegidas(const std::vector<Valor> &valores, const std::vector<std::uint32_t> &filas) {
    std::vector<Valor> elegidos;
    elegidos.reserve(filas.size());
    for (const std::uint32_t fila : filas)
        elegidos.push_back(valores[fila]);
    return elegidos;
}

} // namespace

// Cells, tones and marks lie in stored rows, in the order in which they came; `orden` tells the stored row of
// each row on screen.
struct ListaTexto::Privado {
    using Filas = std::vector<std::uint32_t>;

    std::vector<ColumnaTexto> celdas;
    Filas orden;                          // empty: the stored order itself
    std::vector<std::vector<Tono>> tonos; // by column; empty: all normal
    std::vector<bool> marcas;
    bool marcable = false;
    std::int64_t senalada = -1;
    std::vector<Filas> rangos; // by column, once it was sorted by and until its cells change
    OrdenTexto comparador;

    explicit Privado(std::size_t columnas) : celdas(columnas), tonos(columnas), rangos(columnas) {}

    std::uint32_t Guardada(int fila) const {
        return orden.empty() ? static_cast<std::uint32_t>(fila) : orden[static_cast<std::size_t>(fila)];
    }
    // -1 for a row that isn't there.
    int EnPantalla(std::int64_t guardada) const {
        if (guardada < 0 || orden.empty())
            return static_cast<int>(guardada);
        return static_cast<int>(std::ranges::find(orden, guardada) - orden.begin());
    }
    const ColumnaTexto &Columna(int columna) const { return celdas[static_cast<std::size_t>(columna)]; }
    std::string_view Celda(int fila, int columna) const { return Columna(columna).Celda(Guardada(fila)); }

    const Filas &RangosDe(int columna) {
        Filas &rango = rangos[static_cast<std::size_t>(columna)];
        if (rango.empty())
            rango = comparador.Rangos(Columna(columna));
        return rango;
    }
    // A list that is filled again with the texts that it had needs no new sort.
    void Reemplazar(std::vector<ColumnaTexto> nuevas) {
        for (std::size_t i = 0; i < celdas.size(); ++i)
            if (!rangos[i].empty() && !MismosTextos(celdas[i], nuevas[i]))
                rangos[i].clear();
        celdas = std::move(nuevas);
    }
    void OlvidarRangos() { rangos.assign(rangos.size(), {}); }
    void Reordenar(int columna, Qt::SortOrder sentido) {
        orden = columna < 0 ? Filas{} : Permutacion(RangosDe(columna), sentido);
    }

    // Only these stored rows, rising, stay; they keep their order on screen.
    void Conservar(const Filas &filas) {
        Filas nuevas(static_cast<std::size_t>(celdas.front().Filas()), kSobra);
        for (std::size_t i = 0; i < filas.size(); ++i)
            nuevas[filas[i]] = static_cast<std::uint32_t>(i);
        for (ColumnaTexto &columna : celdas)
            columna = Elegidas(columna, filas);
        for (std::vector<Tono> &tono : tonos)
            if (!tono.empty())
                tono = Elegidas(tono, filas);
        marcas = Elegidas(marcas, filas);
        senalada = -1;
        for (std::uint32_t &fila : orden)
            fila = nuevas[fila];
        std::erase(orden, kSobra);
        OlvidarRangos();
    }

    // Place on screen of a new row with `texto` in the sort column: behind its equals.
    int Lugar(const QString &texto, int columna, Qt::SortOrder sentido) const {
        const int signo = sentido == Qt::AscendingOrder ? 1 : -1;
        const auto lugar =
            std::upper_bound(orden.begin(), orden.end(), texto, [&](const QString &nuevo, auto fila) {
                return signo * comparador.Comparar(nuevo, Columna(columna).Texto(fila)) < 0;
            });
        return static_cast<int>(lugar - orden.begin());
    }
};

ListaTexto::ListaTexto(std::vector<ColumnaLista> columnas, QObject *padre)
    : QAbstractTableModel(padre),
      especificacion_(std::move(columnas)),
      d_(std::make_unique<Privado>(especificacion_.size())) {}

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

QStringList ListaTexto::MasLargos(int columna, int cuantos) const {
    const ColumnaTexto &celdas = d_->Columna(columna);
    QStringList textos;
    for (const std::int64_t fila : celdas.MasLargas(static_cast<std::size_t>(cuantos)))
        textos.append(celdas.Texto(fila));
    return textos;
}

void ListaTexto::Asignar(ContenidoLista contenido) {
    Q_ASSERT(contenido.celdas.size() == especificacion_.size());
    beginResetModel();
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
    const int flecha = columnaFlecha_;
    Asignar({std::vector<ColumnaTexto>(especificacion_.size())});
    columnaFlecha_ = flecha;
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int ListaTexto::AgregarFila(const QStringList &celdas) {
    const int guardada = Filas();
    const int lugar =
        columnaOrden_ < 0 ? guardada : d_->Lugar(celdas.value(columnaOrden_), columnaOrden_, orden_);
    beginInsertRows({}, lugar, lugar);
    for (std::size_t i = 0; i < d_->celdas.size(); ++i) {
        d_->celdas[i].Agregar(celdas.value(static_cast<qsizetype>(i)).toStdString());
        if (!d_->tonos[i].empty())
            d_->tonos[i].push_back(Tono::Normal);
    }
    d_->marcas.push_back(false);
    if (columnaOrden_ >= 0)
        d_->orden.insert(d_->orden.begin() + lugar, static_cast<std::uint32_t>(guardada));
    d_->OlvidarRangos();
    endInsertRows();
    return lugar;
}

void ListaTexto::QuitarFila(int fila) {
    const std::uint32_t guardada = d_->Guardada(fila);
    beginRemoveRows({}, fila, fila);
    for (std::size_t i = 0; i < d_->celdas.size(); ++i) {
        d_->celdas[i].Quitar(guardada);
        if (!d_->tonos[i].empty())
            d_->tonos[i].erase(d_->tonos[i].begin() + guardada);
    }
    d_->marcas.erase(d_->marcas.begin() + guardada);
    if (d_->senalada >= guardada)
        d_->senalada = d_->senalada == guardada ? -1 : d_->senalada - 1;
    if (!d_->orden.empty()) {
        d_->orden.erase(d_->orden.begin() + fila);
        for (std::uint32_t &otra : d_->orden)
            otra -= otra > guardada ? 1 : 0;
    }
    d_->OlvidarRangos();
    endRemoveRows();
}

void ListaTexto::QuitarFilas(const std::function<bool(int fila)> &sobra) {
    Privado::Filas quedan;
    for (int fila = Filas() - 1; fila >= 0; --fila)
        if (!sobra(fila))
            quedan.push_back(d_->Guardada(fila));
    std::sort(quedan.begin(), quedan.end());
    beginResetModel();
    d_->Conservar(quedan);
    endResetModel();
}

void ListaTexto::PonerCelda(int fila, int columna, const QString &texto) {
    d_->celdas[static_cast<std::size_t>(columna)].Poner(d_->Guardada(fila), texto.toStdString());
    d_->rangos[static_cast<std::size_t>(columna)].clear();
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

QString ListaTexto::FilaHablada(int fila) const {
    QStringList partes;
    for (int columna = 0; columna < columnCount(); ++columna) {
        const ColumnaLista &especificacion = especificacion_[static_cast<std::size_t>(columna)];
        if (!especificacion.oculta)
            partes.append(especificacion.titulo + QLatin1Char(' ') + Celda(fila, columna).left(kLetrasOidas));
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
