// The copy of one table in memory: its ids as numbers, and the text columns that have been touched.
//
// Rows are numbered from 0 in the order of their ids, which is the table's natural order. No column is in
// memory without the ids; the ids as text are made on demand.
#pragma once

#include "store/columna.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tarvo {

class Conexion;

// Positions of columns in their table with the text that was written to them.
using Valores = std::vector<std::pair<int, std::string>>;

class TablaMemoria {
  public:
    TablaMemoria(const char *esquema, const char *tabla) : esquema_(esquema), tabla_(tabla) {}

    // The position of a column, made known when it is not yet; "id" is -1.
    int Posicion(const char *columna);
    const std::vector<const char *> &Nombres() const { return nombres_; }

    bool ConIds() const { return conIds_; }
    bool ConColumna(int posicion) const { return columnas_[static_cast<std::size_t>(posicion)].cargada; }
    // Loads the ids and these columns in one pass, as far as they aren't there. Throws ErrorDatos:
    // kBaseIlegible, and kBaseDanada when the file turns out damaged.
    void Cargar(Conexion &conexion, const std::vector<int> &posiciones);

    // --- with ids loaded
    std::int64_t Filas() const { return static_cast<std::int64_t>(ids_.size()); }
    std::int64_t Id(std::int64_t fila) const { return ids_[static_cast<std::size_t>(fila)]; }
    // The row with that id, -1 when there is none.
    std::int64_t Buscar(std::int64_t id) const;
    // A loaded column; -1 is the ids as text.
    const ColumnaTexto &Columna(int posicion);
    std::string_view Celda(int posicion, std::int64_t fila) const {
        return columnas_[static_cast<std::size_t>(posicion)].celdas.Celda(fila);
    }

    // --- writes that the file has taken, applied to whatever is in memory
    void Insertar(std::int64_t id, const Valores &valores);
    void Cambiar(std::int64_t fila, const Valores &valores);
    void Quitar(std::int64_t fila);
    void Olvidar();

  private:
    struct Columnas {
        bool cargada = false;
        ColumnaTexto celdas;
    };
    struct Carga;
    std::string Consulta(const Carga &carga) const;
    void Leer(Conexion &conexion, Carga &carga) const;

    const char *esquema_;
    const char *tabla_;
    std::vector<const char *> nombres_;
    std::vector<Columnas> columnas_;
    std::vector<std::int64_t> ids_;
    bool conIds_ = false;
    ColumnaTexto textoIds_;
    bool conTextoIds_ = false;
};

} // namespace tarvo
