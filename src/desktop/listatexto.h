// The one list of the program: rows of text cells under columns that are told as data.
//
// Rows are numbered from 0 in the order on screen, sorted or not; printing, export, searches and duplicate
// tests read this model and see exactly what the operator sees. Cells are kept as compact UTF-8 columns
// (ColumnaTexto), so a table's columns can be shown without a copy. Hidden columns are real columns.
//
// Sorting is stable and by text, with Spanish collation and case ignored: rows with equal texts keep the
// order in which they came, in both directions. No column sorts by number: "$ 9,00" stands behind "$ 10,00".
// The column that is sorted by and the header that shows the arrow are two things: dates are compared by a
// hidden column, and their header shows it.
#pragma once

#include "desktop/contenidolista.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace tarvo {

struct FilasLista;

struct ColumnaLista {
    QString titulo;
    int ancho = 0;        // twips, 15 to the pixel; a proportion more than a size
    bool derecha = false; // numbers and amounts
    bool oculta = false;
    int claveOrden = -1; // column by whose text a click on this header sorts; -1: its own
    int legibles = 0;    // so many characters can be read, however narrow the list
    int flecha = -1;     // header with the arrow while a fill or Ordenar sorts by this column; -1: its own
    int cedeA = -1;      // left out while that column has no room for its texts; -1: always there
};

class ListaTexto : public QAbstractTableModel {
    Q_OBJECT
  public:
    explicit ListaTexto(std::vector<ColumnaLista> columnas, QObject *padre = nullptr);
    ~ListaTexto() override;

    const std::vector<ColumnaLista> &Columnas() const { return especificacion_; }
    int Filas() const;
    QString Celda(int fila, int columna) const;
    std::string_view CeldaUtf8(int fila, int columna) const; // valid until the list is next changed

    // For walks over very many cells: a whole column, and the row of it that stands in that row of the list.
    const ColumnaTexto &ColumnaGuardada(int columna) const;
    std::int64_t FilaGuardada(int fila) const;

    // The longest texts of a column, at most `cuantos` of them; those of more than `bytes` are passed over.
    QStringList MasLargos(int columna, int cuantos, std::uint32_t bytes) const;

    // A cell as it is read aloud: its beginning.
    QString CeldaHablada(int fila, int columna) const;
    // A row as it is read aloud: caption and text of each column that is not hidden.
    QString FilaHablada(int fila) const;

    // Replaces all rows, in one reset; they come sorted when the list has a sort column, and the arrow goes
    // where that column says. All check marks are off.
    void Asignar(ContenidoLista contenido);
    void Limpiar();
    // Empties the list because its rows can't be read; it says so until it is filled again.
    void QuedarIlegible();
    bool Ilegible() const { return ilegible_; }
    // Adds a row, at its sorted place when the list has a sort column, else at the end; returns its number.
    int AgregarFila(const QStringList &celdas);
    void QuitarFila(int fila);
    // Removes the rows of which `sobra` is true, in one reset: none is selected then. It is asked once for
    // each row, from the last to the first, while all of them still stand.
    void QuitarFilas(const std::function<bool(int fila)> &sobra);
    // Changes a cell; the row keeps its place and its tones.
    void PonerCelda(int fila, int columna, const QString &texto);

    Tono TonoDe(int fila, int columna) const;
    void PonerTono(int fila, int columna, Tono tono);

    // Check marks, shown in the first column while they are switched on; switching on or off unchecks all.
    void PonerMarcable(bool marcable);
    bool Marcada(int fila) const;
    void Marcar(int fila, bool marcada);

    // One row can be marked as the one whose data the fields hold, while another one is selected; -1: none.
    // It keeps its mark through sorts and changes, until the next fill.
    void Senalar(int fila);
    static constexpr int kRolSenalada = Qt::UserRole; // true for its cells

    // First row from `desde` on whose cell in `columna` is exactly `texto`; -1 when there is none.
    int Buscar(int columna, std::string_view utf8, int desde = 0) const;
    // First row from `desde` on with a cell of `columnas` that contains `texto`, case ignored; -1 when none.
    int BuscarParte(const std::vector<int> &columnas, const QString &texto, int desde = 0) const;

    // Direction, and the column whose texts are compared; -1: the rows stand in the order in which they came.
    int ColumnaOrden() const { return columnaOrden_; }
    Qt::SortOrder Orden() const { return orden_; }
    void Ordenar(int columna, Qt::SortOrder orden);
    // A click on a header: another column sorts ascending (by its key column, when it has one), the same one
    // turns round. The header that was clicked shows the arrow.
    void ClicEncabezado(int columna);
    // From now on a click on a header does nothing while the list has no row.
    void DejarVaciaSinOrdenar() { ordenaVacia_ = false; }

    // Caption of a column, when a window's resize rule changes it.
    void PonerTitulo(int columna, const QString &titulo);

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int rol = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &indice, const QVariant &valor, int rol = Qt::EditRole) override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int rol = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &indice) const override;

  signals:
    void MarcaPulsada(int fila); // the operator has switched the check mark of a row

  private:
    void Ordenar(int columna, Qt::SortOrder orden, int flecha);
    void Reemplazar(ContenidoLista contenido, bool ilegible);
    void Vaciar(bool ilegible);
    void SeguirIndices(const QModelIndexList &antes, const std::vector<std::uint32_t> &guardadas);
    int FlechaDe(int columnaOrden) const;

    std::vector<ColumnaLista> especificacion_;
    int columnaOrden_ = -1;
    int columnaFlecha_ = -1; // header that shows the icon "arriba" (ascending) or "abajo"; -1: none
    bool ordenaVacia_ = true;
    bool ilegible_ = false;
    Qt::SortOrder orden_ = Qt::AscendingOrder;
    std::unique_ptr<FilasLista> d_;
};

} // namespace tarvo
