// The one connection to the five files, and the transaction that may be open on it.
//
// The first file is opened as the schema "main", the others are attached to it, each exclusively, with a
// rollback journal and full synchronisation: only so is a transaction over several files all or nothing. No
// file is ever created or written by opening it. Every error of the engine leaves here as an ErrorDatos.
#pragma once

#include "store/errordatos.h"
#include "store/transaccion.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarvo {

class Cursor;

// The engine's result code (extended or not) as the error that the operator is shown: `ErrorLectura` for
// statements that read or open, `ErrorEscritura` for those that write. A busy file is kBaseBloqueada in both.
ErrorDatos ErrorLectura(int codigo, const char *mensaje);
ErrorDatos ErrorEscritura(int codigo, const char *mensaje);

// Files that are open together must have their text in one encoding, and this is not the one.
ErrorDatos OtraCodificacion();

// The name under which the engine opens a file, with options such as "mode=rw".
std::string Uri(const QString &archivo, const char *opciones);

// Throws ErrorDatos(kBaseIlegible) when the table, its row id `id` or one of the columns isn't there.
void ComprobarTabla(sqlite3 *base, const char *esquema, const char *tabla,
                    const std::vector<const char *> &columnas);

// One write of the open transaction, kept until its end to judge a COMMIT that reports an error.
struct Escritura {
    Cursor *cursor = nullptr;
    std::int64_t id = 0;
    bool nueva = false;
    bool borrada = false;
    std::vector<std::pair<std::string, std::string>> valores{}; // column name, text
};

class Conexion {
  public:
    // Opens `archivo` as "main". Throws ErrorDatos: kBaseNoEncontrada, kBaseIlegible, kBaseBloqueada.
    explicit Conexion(const QString &archivo);
    // Opens `archivo` as `esquema`; throws as the constructor, and then the file is not attached.
    void Adjuntar(const QString &archivo, const char *esquema);
    void Separar(const char *esquema);
    // Takes the exclusive locks of all attached files, which are held until the end of the connection.
    void Bloquear();

    // Runs a reading statement and hands each row to `fila`.
    template <typename Fila> void Recorrer(const std::string &sql, Fila fila) {
        const Sentencia sentencia = Preparar(sql);
        int codigo = SQLITE_ROW;
        while ((codigo = sqlite3_step(sentencia.get())) == SQLITE_ROW)
            fila(sentencia.get());
        if (codigo != SQLITE_DONE)
            throw ErrorLectura(sqlite3_extended_errcode(base_.getHandle()), base_.getErrorMsg());
    }

    // --- transactions
    // Asks first what became of a transaction that is in doubt: throws OperacionAnterior, kSinComprobar.
    void Empezar(const Operacion &operacion);
    // A COMMIT that reports an error counts as done when the files hold all of the transaction's writes; when
    // they can't be read, it is in doubt (kSinComprobar).
    void Confirmar();
    // Takes everything back. Cursors that wrote forget their copy, all cursors lose pending edits.
    void Deshacer() noexcept;
    // Runs `sql` with its texts bound in order, and the id last, when it isn't 0. Throws SQLite::Exception.
    void Ejecutar(const std::string &sql, const std::vector<std::pair<std::string, std::string>> &valores,
                  std::int64_t id);
    // Runs `accion`, which writes, in the open transaction or in one of its own. When it fails, the whole
    // transaction is taken back, nothing more is written in it, and an ErrorDatos is thrown.
    // A file that a read has found damaged takes no more writes: kBaseDanada.
    void Escribir(const char *esquema, const std::function<Escritura()> &accion);
    // Runs a statement that makes a table, in a transaction of its own.
    void Crear(const char *sql);
    std::int64_t UltimoId() const { return base_.getLastInsertRowid(); }

    // --- damage: a read of `esquema` failed for `motivo`; told once for each file
    void AlDanarse(std::function<void(const QString &archivo, const QString &motivo)> avisar) {
        alDanarse_ = std::move(avisar);
    }
    void Danar(const char *esquema, const QString &motivo);

    void Alta(Cursor &cursor) { cursores_.push_back(&cursor); }
    void Baja(Cursor &cursor);
    const std::vector<Cursor *> &Cursores() const { return cursores_; }
    SQLite::Database &Base() { return base_; }

  private:
    struct Finalizar {
        void operator()(sqlite3_stmt *sentencia) const { sqlite3_finalize(sentencia); }
    };
    // A transaction whose COMMIT failed and whose rows could not be read since: what they hold if it stands.
    struct Duda {
        Operacion operacion;
        std::vector<Escritura> filas;
    };
    using Sentencia = std::unique_ptr<sqlite3_stmt, Finalizar>;

    Sentencia Preparar(const std::string &sql);
    void Asegurar(const QString &archivo, const char *esquema);
    std::string Pragma(const char *esquema, const char *texto);
    void Romper(bool propia) noexcept;
    void Juzgar(const ErrorDatos &fallo);
    void Resolver(const Operacion &operacion);
    bool Constan(const std::vector<Escritura> &filas);
    bool ConstaFila(const Escritura &fila);
    std::vector<Escritura> EstadoFinal() const;
    void ReabrirDiarios();
    void ExigirSano(const char *esquema) const;
    QString Archivo(const char *esquema) const;

    SQLite::Database base_;
    std::map<std::string, std::unique_ptr<SQLite::Statement>> preparadas_;
    std::vector<Cursor *> cursores_;
    std::vector<Escritura> escrituras_;
    Operacion operacion_; // of the open transaction
    std::optional<Duda> duda_;
    bool abierta_ = false;
    bool diariosDudosos_ = false; // a write failed: the engine may hold a journal that it can't write
    std::map<std::string, QString> danos_; // schema, reason
    std::function<void(const QString &, const QString &)> alDanarse_;
    bool rota_ = false; // a write failed: what was written is gone, and nothing may follow it
};

} // namespace tarvo
