#include "store/conexion.h"

#include "store/cursor.h"

#include <QFileInfo>
#include <QUrl>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <sqlite3.h>

namespace tarvo {

std::string Uri(const QString &archivo, const char *opciones) {
    const QByteArray ruta = QUrl::toPercentEncoding(QFileInfo(archivo).absoluteFilePath(), "/");
    return "file:" + ruta.toStdString() + "?" + opciones;
}

namespace {

constexpr const char *kEnUso = "mode=rw";

// What the engine would create, or read as an empty database, is refused before it sees it.
const QString &Existente(const QString &archivo) {
    const QFileInfo info(archivo);
    if (!info.exists())
        throw ErrorDatos(errores::kBaseNoEncontrada, QStringLiteral("El archivo no existe."));
    if (!info.isFile())
        throw ErrorDatos(errores::kBaseIlegible, QStringLiteral("No es un archivo."));
    if (info.size() == 0)
        throw ErrorDatos(errores::kBaseIlegible, QStringLiteral("El archivo está vacío."));
    return archivo;
}

ErrorDatos ErrorLectura(const SQLite::Exception &error) {
    return tarvo::ErrorLectura(error.getExtendedErrorCode(), error.what());
}

SQLite::Database AbrirBase(const QString &archivo) {
    try {
        constexpr int kModo = SQLITE_OPEN_READWRITE | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX;
        return SQLite::Database(Uri(Existente(archivo), kEnUso), kModo);
    } catch (const SQLite::Exception &error) {
        throw ErrorLectura(error);
    }
}

} // namespace

Conexion::Conexion(const QString &archivo) : base_(AbrirBase(archivo)) {
    sqlite3_extended_result_codes(base_.getHandle(), 1);
    // A quoted name that is no column must fail; the engine would read it as a text else.
    sqlite3_db_config(base_.getHandle(), SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    Asegurar(archivo, "main");
}

void Conexion::Adjuntar(const QString &archivo, const char *esquema) {
    Existente(archivo);
    try {
        SQLite::Statement sentencia(base_, std::string("ATTACH ? AS ") + esquema);
        sentencia.bind(1, Uri(archivo, kEnUso));
        sentencia.exec();
    } catch (const SQLite::Exception &error) {
        if (std::strstr(error.what(), "encoding") != nullptr) // has no error code of its own
            throw OtraCodificacion();
        throw ErrorLectura(error);
    }
    try {
        Asegurar(archivo, esquema);
    } catch (const ErrorDatos &) {
        Separar(esquema);
        throw;
    }
}

void Conexion::Separar(const char *esquema) {
    try {
        base_.exec(std::string("DETACH ") + esquema);
    } catch (const SQLite::Exception &error) {
        throw ErrorLectura(error);
    }
}

std::string Conexion::Pragma(const char *esquema, const char *texto) {
    std::string valor;
    Recorrer(std::string("PRAGMA ") + esquema + "." + texto, [&](sqlite3_stmt *sentencia) {
        const auto *celda = reinterpret_cast<const char *>(sqlite3_column_text(sentencia, 0));
        valor = celda == nullptr ? "" : celda;
    });
    return valor;
}

// Sets and reads back how the file is held; the first reading of it shows whether it is a database at all.
void Conexion::Asegurar(const QString &archivo, const char *esquema) {
    Pragma(esquema, "locking_mode=EXCLUSIVE");
    const std::int64_t paginas = std::atoll(Pragma(esquema, "page_count").c_str());
    const std::int64_t tamano = std::atoll(Pragma(esquema, "page_size").c_str());
    if (QFileInfo(archivo).size() < paginas * tamano)
        throw ErrorDatos(errores::kBaseIlegible, QStringLiteral("El archivo está cortado."));
    if (Pragma(esquema, "encoding") != "UTF-8") // of "main"; the others can't be attached then
        throw OtraCodificacion();
    if (sqlite3_db_readonly(base_.getHandle(), esquema) != 0)
        throw ErrorDatos(errores::kEscritura, QStringLiteral("El archivo es de solo lectura."));
    Pragma(esquema, "journal_mode=TRUNCATE");
    Pragma(esquema, "synchronous=FULL");
    if (Pragma(esquema, "locking_mode") != "exclusive" || Pragma(esquema, "journal_mode") != "truncate" ||
        Pragma(esquema, "synchronous") != "2")
        throw ErrorDatos(errores::kBaseIlegible,
                         QStringLiteral("El archivo no se puede abrir de forma segura."));
}

void Conexion::Bloquear() {
    try {
        base_.exec("BEGIN EXCLUSIVE");
        base_.exec("ROLLBACK"); // not COMMIT, which would make a journal for the five files
    } catch (const SQLite::Exception &error) {
        throw ErrorLectura(error);
    }
}

void ComprobarTabla(sqlite3 *base, const char *esquema, const char *tabla,
                    const std::vector<const char *> &columnas) {
    const auto nombre = QString::fromUtf8(tabla);
    int clave = 0;
    const char *tipo = nullptr;
    const auto hay = [&](const char *columna) {
        return sqlite3_table_column_metadata(base, esquema, tabla, columna, &tipo, nullptr, nullptr, &clave,
                                             nullptr) == SQLITE_OK;
    };
    if (!hay(nullptr))
        throw ErrorDatos(errores::kBaseIlegible, QStringLiteral("Falta la tabla %1.").arg(nombre));
    for (const char *columna : columnas)
        if (!hay(columna))
            throw ErrorDatos(
                errores::kBaseIlegible,
                QStringLiteral("Falta la columna %1 de %2.").arg(QString::fromUtf8(columna), nombre));
    if (!hay("rowid") || !hay("id") || clave == 0 || sqlite3_stricmp(tipo, "INTEGER") != 0)
        throw ErrorDatos(errores::kBaseIlegible,
                         QStringLiteral("La tabla %1 no tiene el contador id.").arg(nombre));
}

Conexion::Sentencia Conexion::Preparar(const std::string &sql) {
    sqlite3_stmt *sentencia = nullptr;
    const int codigo =
        sqlite3_prepare_v2(base_.getHandle(), sql.c_str(), static_cast<int>(sql.size()), &sentencia, nullptr);
    if (codigo != SQLITE_OK)
        throw tarvo::ErrorLectura(codigo, base_.getErrorMsg());
    return Sentencia(sentencia);
}

QString Conexion::Archivo(const char *esquema) const {
    return QFileInfo(QString::fromUtf8(sqlite3_db_filename(base_.getHandle(), esquema))).fileName();
}

void Conexion::Danar(const char *esquema, const QString &motivo) {
    const bool nuevo = danos_.try_emplace(esquema, motivo).second;
    if (nuevo && alDanarse_)
        alDanarse_(Archivo(esquema), motivo);
}

void Conexion::ExigirSano(const char *esquema) const {
    const auto dano = danos_.find(esquema);
    if (dano != danos_.end())
        throw ErrorDatos(errores::kBaseDanada,
                         QStringLiteral("No se pudo escribir en %1: %2").arg(Archivo(esquema), dano->second));
}

void Conexion::Baja(Cursor &cursor) {
    cursores_.erase(std::remove(cursores_.begin(), cursores_.end(), &cursor), cursores_.end());
}

} // namespace tarvo
