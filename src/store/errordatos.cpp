// The engine's result codes in words for the operator.
#include "store/errordatos.h"

#include "store/conexion.h"

#include <sqlite3.h>

namespace tarvo {

namespace {

QString Motivo(int codigo, const char *mensaje) {
    switch (codigo & 0xff) {
    case SQLITE_FULL:
        return QStringLiteral("el disco está lleno");
    case SQLITE_READONLY:
        return QStringLiteral("el archivo es de solo lectura");
    case SQLITE_IOERR:
        return QStringLiteral("error de entrada o salida");
    case SQLITE_CANTOPEN:
        return QStringLiteral("no se puede abrir un archivo");
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return QStringLiteral("acceso denegado");
    case SQLITE_NOTADB:
        return QStringLiteral("el archivo no es una base de datos");
    case SQLITE_CORRUPT:
        return QStringLiteral("el archivo está dañado");
    case SQLITE_NOMEM:
        return QStringLiteral("no hay memoria suficiente");
    case SQLITE_TOOBIG:
        return QStringLiteral("el texto es demasiado largo");
    default:
        return QString::fromUtf8(mensaje);
    }
}

bool Iguales(const QStringList &guardada, const QStringList &ahora) {
    return !ahora.isEmpty() && ahora == guardada;
}

// Another one of the same kind may well be the stored one with a change: who repeats it stores it twice.
QString TextoAnterior(const QStringList &guardada, const QStringList &ahora) {
    const QString nombre = guardada.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(guardada.first());
    const QString anterior =
        QStringLiteral("La operación anterior%1, que no se había podido comprobar, quedó guardada. ")
            .arg(nombre);
    if (Iguales(guardada, ahora))
        return anterior + QStringLiteral("No se escribió nada más.");
    if (!ahora.isEmpty() && !guardada.isEmpty() && ahora.first() == guardada.first())
        return anterior + QStringLiteral("Consta como estaba entonces, sin los cambios hechos después.\n\n"
                                         "Lo que hay ahora en pantalla no se escribió. Si lo guarda otra "
                                         "vez, se guardará además de lo anterior.");
    return anterior + QStringLiteral("La de ahora no se escribió: repítala si hace falta.");
}

bool Ocupada(int codigo) {
    return (codigo & 0xff) == SQLITE_BUSY || (codigo & 0xff) == SQLITE_LOCKED;
}

ErrorDatos Error(int numero, const QString &que, const QString &motivo) {
    return {numero, QStringLiteral("%1: %2.").arg(que, motivo), motivo + QLatin1Char('.')};
}

ErrorDatos Bloqueada() {
    return {errores::kBaseBloqueada, QStringLiteral("La base de datos está abierta en modo exclusivo.")};
}

} // namespace

QString ErrorDatos::Motivo() const {
    const QString texto = motivo_.left(1).toLower() + motivo_.mid(1);
    const QString sujeto = QStringLiteral("el archivo "); // its name stands before
    return texto.startsWith(sujeto) ? texto.mid(sujeto.size()) : texto;
}

OperacionAnterior::OperacionAnterior(const QStringList &guardada, const QStringList &ahora)
    : ErrorDatos(errores::kEscritura, TextoAnterior(guardada, ahora)), misma_(Iguales(guardada, ahora)) {}

ErrorDatos ErrorLectura(int codigo, const char *mensaje) {
    if (Ocupada(codigo))
        return Bloqueada();
    const int clase = codigo & 0xff;
    const bool danada = clase == SQLITE_CORRUPT || clase == SQLITE_NOTADB;
    return Error(danada ? errores::kBaseDanada : errores::kBaseIlegible,
                 QStringLiteral("No se pudo leer la base de datos"), Motivo(codigo, mensaje));
}

ErrorDatos OtraCodificacion() {
    return {errores::kBaseIlegible, QStringLiteral("El texto del archivo no está en UTF-8.")};
}

ErrorDatos ErrorEscritura(int codigo, const char *mensaje) {
    if (Ocupada(codigo))
        return Bloqueada();
    return Error(errores::kEscritura, QStringLiteral("No se pudo escribir en la base de datos"),
                 Motivo(codigo, mensaje));
}

} // namespace tarvo
