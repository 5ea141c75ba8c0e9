// The table cursor and its column fields: the only way to the rows of a table.
//
// A cursor has one current row, or none (on an empty table, behind the last row). It is the first row when
// the cursor has been opened, and again when a transaction that it wrote in was taken back. Columns are
// loaded into memory when they are first touched; own writes are applied to that copy, so that `Refresh` with
// nothing changed reloads nothing. A write of a field is a pending edit of the current row: it reaches the
// file with the next move or `Refresh`, in the transaction that is open or in one of its own.
//
// Whatever first reads a column or the rows throws ErrorDatos when the file can't be read: kBaseIlegible, or
// kBaseDanada when it turns out damaged; from then on it takes no more writes.
#pragma once

#include "store/columna.h"

#include <QString>

#include <memory>
#include <string>
#include <vector>

namespace tarvo {

class Conexion;
class Cursor;

// One column of the current row. All values are text.
class Campo {
  public:
    Campo(Cursor &cursor, const char *columna);
    Campo(const Campo &) = delete;
    Campo &operator=(const Campo &) = delete;

    // Text of the current row's cell; empty when no row is current. A pending value is seen at once.
    QString Texto() const;
    // The same as UTF-8 bytes, without a copy; valid until the cursor next moves or writes.
    std::string_view Utf8() const;
    bool Es(std::string_view utf8) const { return Utf8() == utf8; }
    bool Es(const char *utf8) const { return Es(std::string_view(utf8)); }
    bool Es(const QString &texto) const;

    // Writes the cell of the current row. Throws ErrorDatos(kSinRegistro) when no row is current.
    void Poner(const QString &texto);
    Campo &operator=(const QString &texto) {
        Poner(texto);
        return *this;
    }

    // The whole column in table order, loaded if need be; no pending value in it.
    const ColumnaTexto &Columna() const;
    const char *Nombre() const { return nombre_; }

  private:
    friend class Cursor;
    std::string_view TextoId() const;

    Cursor *cursor_;
    const char *nombre_;
    int posicion_; // position in the cursor's columns; -1 is `id`
};

class Cursor {
  public:
    // `esquema` is the attached name of the file ("main" for config), `tabla` its table, `indice` the name
    // that Index accepts (empty: the table has none).
    Cursor(const char *esquema, const char *tabla, const char *indice = "");
    ~Cursor();
    Cursor(const Cursor &) = delete;
    Cursor &operator=(const Cursor &) = delete;

    // --- the operations of a table cursor. On a closed cursor RecordCount is 0 and the moves do nothing;
    // AddNew, Delete and a commit throw ErrorDatos.
    int RecordCount();
    // Drops a pending new row, commits a pending edit; then the first row is current.
    void MoveFirst();
    // Commits a pending new row or edit; then the next row is current, or none behind the last.
    void MoveNext();
    // Starts an empty row; it exists only when committed (Refresh, MoveNext).
    void AddNew();
    // Commits a pending new row or edit; then the first row is current.
    void Refresh();
    // Removes the current row at once; then the row behind it is current, or none.
    void Delete();
    void Index(const QString &nombre);
    // With "=" and a value: the row with that id becomes current; false, and no row is current, when there is
    // none. Costs the same on a table of any size. Needs Index before it, and "=": throws ErrorDatos(kIndice)
    // else.
    bool Seek(const QString &comparacion, const QString &valor);
    // What a walk to the row with that `id` leads to, on any table and at the cost of Seek.
    bool IrAId(const QString &id);

    // The `id` of row number `fila`, from 0 in table order; once a column or RecordCount was read.
    std::int64_t IdDeFila(std::int64_t fila) const;

    bool Abierto() const { return conexion_ != nullptr; }
    bool HayFila() const;
    // The `id` that the engine gave to the row that this cursor committed last; empty before the first.
    QString UltimoId() const;
    // Loads these columns in one pass over the table, as far as they aren't in memory yet.
    void Cargar(const std::vector<const Campo *> &campos);
    const char *Tabla() const { return tabla_; }

    // --- for the data layer
    // Checks that the table and all columns are there; throws ErrorDatos(kBaseIlegible) else.
    void Abrir(Conexion &conexion);
    void Cerrar();
    // What UltimoId tells from now on.
    void RecordarId(std::int64_t id);
    // Forgets the copy in memory and the pending edit: what is read next comes from the file.
    void Invalidar();
    // Commits a pending edit of an existing row; a pending new row is dropped.
    void CerrarEdicion();
    // Commits a pending edit of an existing row; a pending new row stays pending.
    void ConfirmarEdicion();
    // Drops a pending edit or new row.
    void DescartarEdicion();
    // "ventas"."Ventas", for the engine.
    std::string NombreCompleto() const;

  private:
    friend class Campo;
    struct Datos;
    std::int64_t Filas();
    void CargarPosiciones(const std::vector<int> &posiciones);
    void Guardar();
    void GuardarNueva();
    void GuardarEdicion();
    void ExigirFila() const;

    Conexion *conexion_ = nullptr;
    const char *esquema_;
    const char *tabla_;
    const char *nombreIndice_;
    bool nueva_ = false;
    std::unique_ptr<Datos> d_;
};

// Makes the row of a one-row table current. False when the table is closed or has lost its row.
bool FilaUnica(Cursor &cursor);

// The walk: from the first row until `cumple` is true, which leaves that row current. False when no row
// matches.
template <typename Condicion> bool Recorrer(Cursor &cursor, Condicion cumple) {
    const int filas = cursor.RecordCount();
    if (filas == 0)
        return false;
    cursor.MoveFirst();
    for (int i = 0; i < filas; ++i) {
        if (cumple())
            return true;
        cursor.MoveNext();
    }
    return false;
}

} // namespace tarvo
