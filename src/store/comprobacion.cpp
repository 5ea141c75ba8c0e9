#include "store/comprobacion.h"

#include "store/conexion.h"
#include "store/plantillas.h"

#include <QFileInfo>

#include <string>
#include <vector>

namespace tarvo {

namespace {

constexpr int kPasos = 20'000; // of the engine between two pauses: some hundred a second

[[noreturn]] void NoSirve(const QString &ruta, const QString &motivo) {
    throw ErrorDatos(errores::kBaseIlegible,
                     QStringLiteral("El archivo \"%1\" no sirve: %2").arg(QFileInfo(ruta).fileName(), motivo),
                     motivo);
}

// Nobody writes to the file meanwhile, so neither locks nor journals are looked at.
SQLite::Database Abrir(const QString &ruta) {
    return SQLite::Database(Uri(ruta, "mode=ro&immutable=1"), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
}

int Pausar(void *pausa) {
    (*static_cast<const std::function<void()> *>(pausa))();
    return 0;
}

template <typename Examen> void Examinar(const QString &ruta, Examen examen) {
    try {
        SQLite::Database base = Abrir(ruta);
        examen(base);
    } catch (const SQLite::Exception &error) {
        NoSirve(ruta, ErrorLectura(error.getExtendedErrorCode(), error.what()).Motivo());
    } catch (const ErrorDatos &error) {
        NoSirve(ruta, error.Motivo());
    }
}

} // namespace

void ComprobarBase(const QString &ruta, const std::function<void()> &pausa) {
    Examinar(ruta, [&](SQLite::Database &base) {
        if (pausa)
            sqlite3_progress_handler(base.getHandle(), kPasos, Pausar,
                                     const_cast<std::function<void()> *>(&pausa));
        if (base.execAndGet("PRAGMA integrity_check(1)").getString() != "ok")
            NoSirve(ruta, QStringLiteral("está dañado."));
    });
}

void ComprobarTablas(const QString &ruta, const QString &archivo) {
    SQLite::Database modelo(":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    modelo.exec(EsquemaDe(archivo).toStdString());
    Examinar(ruta, [&](SQLite::Database &base) {
        if (base.execAndGet("PRAGMA encoding").getString() != "UTF-8")
            throw OtraCodificacion();
        SQLite::Statement consulta(modelo, "SELECT t.name, c.name FROM sqlite_master t, "
                                           "pragma_table_info(t.name) c WHERE t.type = 'table' AND t.name "
                                           "NOT LIKE 'sqlite%'");
        while (consulta.executeStep())
            ComprobarTabla(base.getHandle(), "main", consulta.getColumn(0).getText(),
                           {consulta.getColumn(1).getText()});
    });
}

BaseRetenida::BaseRetenida(const QString &ruta) {
    const QString nombre = QFileInfo(ruta).fileName();
    if (!QFileInfo::exists(ruta))
        throw ErrorDatos(errores::kArchivoNoEncontrado,
                         QStringLiteral("No se encuentra el archivo \"%1\".").arg(nombre));
    try {
        base_ =
            std::make_unique<SQLite::Database>(Uri(ruta, "mode=rw"), SQLITE_OPEN_READWRITE | SQLITE_OPEN_URI);
        base_->exec("BEGIN");
        base_->execAndGet("SELECT count(*) FROM sqlite_master"); // takes the lock
    } catch (const SQLite::Exception &error) {
        const ErrorDatos causa = ErrorLectura(error.getExtendedErrorCode(), error.what());
        if (causa.Numero() == errores::kBaseBloqueada)
            throw ErrorDatos(causa.Numero(), QStringLiteral("Otro programa está usando \"%1\".").arg(nombre));
        NoSirve(ruta, causa.Motivo());
    }
}

BaseRetenida::~BaseRetenida() = default;

} // namespace tarvo
