#include "store/tablamemoria.h"

#include "store/conexion.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <sqlite3.h>

namespace tarvo {

namespace {

std::string TextoDe(std::int64_t id) {
    return std::to_string(id);
}

std::string_view CeldaDe(sqlite3_stmt *sentencia, int columna) {
    const auto *texto = reinterpret_cast<const char *>(sqlite3_column_text(sentencia, columna));
    if (texto == nullptr)
        return {};
    return {texto, static_cast<std::size_t>(sqlite3_column_bytes(sentencia, columna))};
}

} // namespace

// What one pass over the table brings in; it is taken over when the pass has come to its end.
struct TablaMemoria::Carga {
    bool conIds = false;
    std::vector<int> posiciones;
    std::vector<std::int64_t> ids;
    std::vector<ColumnaTexto> celdas;
};

int TablaMemoria::Posicion(const char *columna) {
    if (std::strcmp(columna, "id") == 0)
        return -1;
    const auto igual = [columna](const char *nombre) { return std::strcmp(nombre, columna) == 0; };
    const auto it = std::find_if(nombres_.begin(), nombres_.end(), igual);
    const auto posicion = static_cast<int>(it - nombres_.begin());
    if (it == nombres_.end()) {
        nombres_.push_back(columna);
        columnas_.emplace_back();
    }
    return posicion;
}

void TablaMemoria::Cargar(Conexion &conexion, const std::vector<int> &posiciones) {
    Carga carga;
    carga.conIds = !conIds_;
    for (const int p : posiciones) {
        const bool repetida = std::count(carga.posiciones.begin(), carga.posiciones.end(), p) > 0;
        if (p >= 0 && !ConColumna(p) && !repetida)
            carga.posiciones.push_back(p);
    }
    if (!carga.conIds && carga.posiciones.empty())
        return;
    Leer(conexion, carga);
    if (carga.conIds)
        ids_ = std::move(carga.ids);
    conIds_ = true;
    for (std::size_t i = 0; i < carga.posiciones.size(); ++i)
        columnas_[static_cast<std::size_t>(carga.posiciones[i])] = {true, std::move(carga.celdas[i])};
}

std::string TablaMemoria::Consulta(const Carga &carga) const {
    std::string sql = "SELECT ";
    const char *coma = "";
    if (carga.conIds) {
        sql += "id";
        coma = ",";
    }
    for (const int p : carga.posiciones) {
        sql += coma;
        sql += std::string("\"") + nombres_[static_cast<std::size_t>(p)] + "\"";
        coma = ",";
    }
    return sql + " FROM " + esquema_ + ".\"" + tabla_ + "\" ORDER BY id";
}

void TablaMemoria::Leer(Conexion &conexion, Carga &carga) const {
    carga.celdas.resize(carga.posiciones.size());
    const int primera = carga.conIds ? 1 : 0;
    std::int64_t filas = 0;
    conexion.Recorrer(Consulta(carga), [&](sqlite3_stmt *sentencia) {
        if (carga.conIds)
            carga.ids.push_back(sqlite3_column_int64(sentencia, 0));
        int columna = primera;
        for (ColumnaTexto &celdas : carga.celdas)
            celdas.Agregar(CeldaDe(sentencia, columna++));
        ++filas;
    });
    if (!carga.conIds && filas != Filas())
        throw ErrorLectura(SQLITE_CORRUPT, "");
    carga.ids.shrink_to_fit();
    for (ColumnaTexto &celdas : carga.celdas)
        celdas.Ajustar();
}

// Ids rise from row to row, so a row lies at most as far behind the first one as its id is above the first
// id: the guess is exact in a table without gaps, and the search goes back from it else.
std::int64_t TablaMemoria::Buscar(std::int64_t id) const {
    if (ids_.empty() || id < ids_.front() || id > ids_.back())
        return -1;
    const auto distancia = static_cast<std::uint64_t>(id) - static_cast<std::uint64_t>(ids_.front());
    const auto tope = std::min<std::uint64_t>(distancia, ids_.size() - 1);
    const auto ultimo = ids_.begin() + static_cast<std::ptrdiff_t>(tope);
    const auto it = *ultimo == id ? ultimo : std::lower_bound(ids_.begin(), ultimo + 1, id);
    return it <= ultimo && *it == id ? it - ids_.begin() : -1;
}

const ColumnaTexto &TablaMemoria::Columna(int posicion) {
    if (posicion >= 0)
        return columnas_[static_cast<std::size_t>(posicion)].celdas;
    if (!conTextoIds_ && conIds_) {
        textoIds_.Reservar(Filas());
        for (const std::int64_t id : ids_)
            textoIds_.Agregar(TextoDe(id));
        textoIds_.Ajustar();
        conTextoIds_ = true;
    }
    return textoIds_;
}

void TablaMemoria::Insertar(std::int64_t id, const Valores &valores) {
    if (!conIds_)
        return;
    ids_.push_back(id);
    if (conTextoIds_)
        textoIds_.Agregar(TextoDe(id));
    for (std::size_t i = 0; i < columnas_.size(); ++i) {
        if (!columnas_[i].cargada)
            continue;
        const auto escrita = [i](const auto &v) { return v.first == static_cast<int>(i); };
        const auto it = std::find_if(valores.begin(), valores.end(), escrita);
        columnas_[i].celdas.Agregar(it == valores.end() ? std::string_view() : std::string_view(it->second));
    }
}

void TablaMemoria::Cambiar(std::int64_t fila, const Valores &valores) {
    for (const auto &[posicion, texto] : valores)
        if (ConColumna(posicion))
            columnas_[static_cast<std::size_t>(posicion)].celdas.Poner(fila, texto);
}

void TablaMemoria::Quitar(std::int64_t fila) {
    ids_.erase(ids_.begin() + static_cast<std::ptrdiff_t>(fila));
    if (conTextoIds_)
        textoIds_.Quitar(fila);
    for (Columnas &columna : columnas_)
        if (columna.cargada)
            columna.celdas.Quitar(fila);
}

void TablaMemoria::Olvidar() {
    ids_ = {};
    conIds_ = false;
    textoIds_.Limpiar();
    conTextoIds_ = false;
    for (Columnas &columna : columnas_)
        columna = {};
}

} // namespace tarvo
