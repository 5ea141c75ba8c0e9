// The writing half of the connection: transactions, and what becomes of them when the disk fails.
#include "store/conexion.h"
#include "store/cursor.h"

#include <algorithm>
#include <sqlite3.h>
#include <utility>

namespace tarvo {

namespace {

ErrorDatos ErrorEscritura(const SQLite::Exception &error) {
    return tarvo::ErrorEscritura(error.getExtendedErrorCode(), error.what());
}

ErrorDatos Perdida() {
    return {errores::kEscritura,
            QStringLiteral(
                "No se pudo escribir en la base de datos: un cambio anterior de la misma operación falló.")};
}

} // namespace

void Conexion::Empezar(const Operacion &operacion) {
    if (abierta_)
        throw ErrorDatos(errores::kEscritura, QStringLiteral("Ya hay una transacción abierta."));
    Resolver(operacion);
    ReabrirDiarios();
    try {
        // Deferred: the locks are held anyway, and only files that are written then take part in the commit.
        Ejecutar("BEGIN", {}, 0);
    } catch (const SQLite::Exception &error) {
        throw ErrorEscritura(error);
    }
    operacion_ = operacion;
    abierta_ = true;
    rota_ = false;
}

// A journal that could not be opened for writing once stays so in the engine's hands; leaving the journal's
// mode and coming back makes it let go of the file. The read plays back what a transaction may have left in
// it.
void Conexion::ReabrirDiarios() {
    if (!diariosDudosos_)
        return;
    std::vector<std::string> esquemas;
    Recorrer("PRAGMA database_list", [&esquemas](sqlite3_stmt *fila) {
        esquemas.emplace_back(reinterpret_cast<const char *>(sqlite3_column_text(fila, 1)));
    });
    for (const std::string &esquema : esquemas) {
        Recorrer("SELECT count(*) FROM " + esquema + ".sqlite_schema", [](sqlite3_stmt *) {});
        Pragma(esquema.c_str(), "journal_mode=OFF");
        if (Pragma(esquema.c_str(), "journal_mode=TRUNCATE") != "truncate")
            throw tarvo::ErrorEscritura(SQLITE_CANTOPEN, "");
    }
    diariosDudosos_ = false;
}

// Asks again what became of a transaction in doubt. When it stands, its new rows are the last ones of their
// cursors, so that its window can go on as after success.
void Conexion::Resolver(const Operacion &operacion) {
    if (!duda_)
        return;
    const bool consta = Constan(duda_->filas);
    const Duda duda = *std::exchange(duda_, std::nullopt);
    if (!consta)
        return;
    for (const Escritura &fila : duda.filas)
        if (fila.nueva && !fila.borrada)
            fila.cursor->RecordarId(fila.id);
    throw OperacionAnterior(duda.operacion, operacion);
}

void Conexion::Confirmar() {
    if (rota_) {
        Deshacer();
        throw Perdida();
    }
    try {
        Ejecutar("COMMIT", {}, 0);
    } catch (const SQLite::Exception &error) {
        const ErrorDatos fallo = ErrorEscritura(error);
        diariosDudosos_ = true;
        if (sqlite3_get_autocommit(base_.getHandle()) == 0)
            base_.tryExec("ROLLBACK");
        Juzgar(fallo);
    }
    escrituras_.clear();
    abierta_ = false;
}

// After a COMMIT that failed: returns when it has happened all the same.
void Conexion::Juzgar(const ErrorDatos &fallo) {
    std::vector<Escritura> filas = EstadoFinal();
    try {
        if (Constan(filas))
            return;
    } catch (const ErrorDatos &) {
        duda_ = {operacion_, std::move(filas)};
        Deshacer();
        throw;
    }
    Deshacer();
    throw fallo;
}

void Conexion::Deshacer() noexcept {
    if (sqlite3_get_autocommit(base_.getHandle()) == 0)
        base_.tryExec("ROLLBACK");
    for (Cursor *cursor : cursores_) {
        const auto suya = [cursor](const Escritura &e) { return e.cursor == cursor; };
        if (std::any_of(escrituras_.begin(), escrituras_.end(), suya))
            cursor->Invalidar();
        else
            cursor->DescartarEdicion();
    }
    escrituras_.clear();
    abierta_ = false;
    rota_ = false;
}

void Conexion::Ejecutar(const std::string &sql,
                        const std::vector<std::pair<std::string, std::string>> &valores, std::int64_t id) {
    std::unique_ptr<SQLite::Statement> &sentencia = preparadas_[sql];
    if (!sentencia)
        sentencia = std::make_unique<SQLite::Statement>(base_, sql);
    struct Soltar {
        SQLite::Statement &s;
        ~Soltar() { s.tryReset(); }
    } const soltar{*sentencia};
    int lugar = 0;
    for (const auto &[columna, texto] : valores)
        sentencia->bindNoCopy(++lugar, texto);
    if (id != 0)
        sentencia->bind(++lugar, id);
    sentencia->exec();
}

void Conexion::Crear(const char *sql) {
    Empezar({});
    try {
        Ejecutar(sql, {}, 0);
    } catch (const SQLite::Exception &error) {
        const ErrorDatos fallo = ErrorEscritura(error);
        diariosDudosos_ = true;
        Deshacer();
        throw fallo;
    }
    Confirmar();
}

void Conexion::Escribir(const char *esquema, const std::function<Escritura()> &accion) {
    if (rota_)
        throw Perdida();
    const bool propia = !abierta_;
    if (propia)
        Empezar({});
    try {
        ExigirSano(esquema);
        escrituras_.push_back(accion());
    } catch (const SQLite::Exception &error) {
        const ErrorDatos fallo = ErrorEscritura(error);
        diariosDudosos_ = true;
        Romper(propia);
        throw fallo;
    } catch (...) {
        Romper(propia);
        throw;
    }
    if (propia)
        Confirmar();
}

// A transaction of more than this write stays closed for writes until its owner ends it.
void Conexion::Romper(bool propia) noexcept {
    Deshacer();
    abierta_ = rota_ = !propia;
}

// What the rows written in the transaction look like when it has happened: the last value of each column.
std::vector<Escritura> Conexion::EstadoFinal() const {
    std::vector<Escritura> filas;
    for (const Escritura &e : escrituras_) {
        const auto misma = [&e](const Escritura &f) { return f.cursor == e.cursor && f.id == e.id; };
        auto fila = std::find_if(filas.begin(), filas.end(), misma);
        if (fila == filas.end())
            fila = filas.insert(filas.end(), Escritura{.cursor = e.cursor, .id = e.id, .nueva = e.nueva});
        fila->borrada = fila->borrada || e.borrada;
        for (const auto &[columna, texto] : e.valores) {
            std::erase_if(fila->valores, [&c = columna](const auto &v) { return v.first == c; });
            fila->valores.emplace_back(columna, texto);
        }
    }
    return filas;
}

bool Conexion::ConstaFila(const Escritura &fila) {
    std::string columnas = "id";
    for (const auto &[columna, texto] : fila.valores)
        columnas += ",\"" + columna + "\"";
    bool existe = false;
    bool igual = true;
    const std::string sql = "SELECT " + columnas + " FROM " + fila.cursor->NombreCompleto() +
                            " WHERE id=" + std::to_string(fila.id);
    Recorrer(sql, [&](sqlite3_stmt *sentencia) {
        existe = true;
        for (int i = 0; i < static_cast<int>(fila.valores.size()); ++i) {
            const auto *celda = reinterpret_cast<const char *>(sqlite3_column_text(sentencia, i + 1));
            const auto bytes = static_cast<std::size_t>(sqlite3_column_bytes(sentencia, i + 1));
            const std::string_view texto =
                celda == nullptr ? std::string_view() : std::string_view(celda, bytes);
            igual = igual && texto == fila.valores[static_cast<std::size_t>(i)].second;
        }
    });
    return fila.borrada ? !existe : existe && igual;
}

bool Conexion::Constan(const std::vector<Escritura> &filas) {
    try {
        return std::all_of(filas.begin(), filas.end(), [this](const Escritura &f) { return ConstaFila(f); });
    } catch (const ErrorDatos &) {
        throw ErrorDatos(
            errores::kSinComprobar,
            QStringLiteral("No se pudo escribir en la base de datos ni comprobar si los cambios quedaron "
                           "guardados. Se comprobará antes de escribir otra vez."));
    }
}

} // namespace tarvo
