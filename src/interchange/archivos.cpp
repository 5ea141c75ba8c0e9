#include "interchange/archivos.h"

#include "store/errordatos.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvo {

namespace {

int NumeroDe(int error) {
    switch (error) {
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
        return errores::kRutaNoEncontrada;
    case ENOSPC:
    case EDQUOT:
    case EIO:
        return errores::kEscritura;
    default:
        return errores::kAccesoRuta;
    }
}

// Only the last part of a path: whole ones can be longer than a message.
[[noreturn]] void Fallar(int numero, int error, const char *que, const QString &ruta) {
    const QString motivo = MotivoSistema(error);
    throw ErrorDatos(
        numero,
        QStringLiteral("No se pudo %1 \"%2\": %3.")
            .arg(QString::fromUtf8(que), ruta.mid(ruta.lastIndexOf(QLatin1Char('/')) + 1), motivo),
        motivo);
}

[[noreturn]] void Fallar(const char *que, const QString &ruta) {
    const int error = errno;
    Fallar(NumeroDe(error), error, que, ruta);
}

int Abrir(const QString &ruta, Archivo::Modo modo) {
    const int banderas = modo == Archivo::Modo::Leer ? O_RDONLY : O_WRONLY | O_CREAT | O_TRUNC;
    return ::open(QFile::encodeName(ruta).constData(), banderas | O_CLOEXEC, 0666);
}

QString CarpetaDe(const QString &ruta) {
    return QFileInfo(ruta).path();
}

} // namespace

QString MotivoSistema(int error) {
    switch (error) {
    case ENOENT:
        return QStringLiteral("no se encuentra la ruta o el archivo");
    case ENOTDIR:
        return QStringLiteral("la ruta no es una carpeta");
    case EACCES:
    case EPERM:
        return QStringLiteral("acceso denegado");
    case EROFS:
        return QStringLiteral("el disco es de solo lectura");
    case ENOSPC:
    case EDQUOT:
        return QStringLiteral("el disco está lleno");
    case EFBIG:
        return QStringLiteral("es demasiado grande para ese disco");
    case EEXIST:
        return QStringLiteral("ya existe");
    case EISDIR:
        return QStringLiteral("es una carpeta");
    case ENAMETOOLONG:
        return QStringLiteral("el nombre es demasiado largo");
    case EIO:
        return QStringLiteral("error de entrada o salida");
    case EBUSY:
    case ETXTBSY:
        return QStringLiteral("está en uso");
    case ENODEV:
    case ENXIO:
        return QStringLiteral("el disco no está");
    default:
        return qt_error_string(error);
    }
}

bool EnUso(const QString &ruta) {
    const int fd = ::open(QFile::encodeName(ruta).constData(), O_RDWR | O_CLOEXEC);
    if (fd < 0)
        return false;
    struct flock todo = {};
    todo.l_type = F_WRLCK;
    todo.l_whence = SEEK_SET;
    const bool libre = ::fcntl(fd, F_GETLK, &todo) == 0 && todo.l_type == F_UNLCK;
    const bool cerrado = ::flock(fd, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    ::close(fd);
    return !libre || cerrado;
}

Cerrojo::Cerrojo(const QString &carpeta)
    : fd_(::open(QFile::encodeName(carpeta).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (fd_ < 0)
        Fallar("leer la carpeta", carpeta);
    if (::flock(fd_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK)
        return;
    ::close(fd_);
    throw ErrorDatos(errores::kBaseBloqueada, QStringLiteral("Otro programa está trabajando con los datos."));
}

Cerrojo::~Cerrojo() {
    ::close(fd_);
}

void AnunciarEscritura(int fd) {
    ::sync_file_range(fd, 0, 0, SYNC_FILE_RANGE_WRITE);
}

Archivo::Archivo(const QString &ruta, Modo modo) : ruta_(ruta), fd_(Abrir(ruta, modo)) {
    if (fd_ >= 0) {
        ::posix_fadvise(fd_, 0, 0, POSIX_FADV_SEQUENTIAL);
        return;
    }
    const int error = errno;
    if (modo == Modo::Leer && error == ENOENT && QFileInfo(CarpetaDe(ruta)).isDir())
        Fallar(errores::kArchivoNoEncontrado, error, "leer", ruta);
    Fallar(NumeroDe(error), error, modo == Modo::Leer ? "leer" : "escribir", ruta);
}

Archivo::~Archivo() {
    ::close(fd_);
}

qint64 Archivo::Tamano() const {
    struct stat datos = {};
    if (::fstat(fd_, &datos) != 0)
        Fallar("leer", ruta_);
    return datos.st_size;
}

qint64 Archivo::Leer(char *datos, qint64 bytes) {
    qint64 leidos = 0;
    while (leidos < bytes) {
        const ssize_t n = ::read(fd_, datos + leidos, static_cast<std::size_t>(bytes - leidos));
        if (n == 0)
            break;
        if (n > 0)
            leidos += n;
        else if (errno != EINTR)
            Fallar("leer", ruta_);
    }
    return leidos;
}

void Archivo::Rebobinar() {
    if (::lseek(fd_, 0, SEEK_SET) != 0)
        Fallar("leer", ruta_);
}

// A file system that can't do it does as well without.
void Archivo::Reservar(qint64 bytes) const {
    ::fallocate(fd_, FALLOC_FL_KEEP_SIZE, 0, bytes);
}

void Archivo::Escribir(const char *datos, qint64 bytes) {
    for (qint64 escritos = 0; escritos < bytes;) {
        const ssize_t n = ::write(fd_, datos + escritos, static_cast<std::size_t>(bytes - escritos));
        if (n >= 0)
            escritos += n;
        else if (errno != EINTR)
            Fallar("escribir", ruta_);
    }
}

void Archivo::AnunciarEscritura() const {
    tarvo::AnunciarEscritura(fd_);
}

void Archivo::EsperarEscritura(qint64 desde, qint64 bytes) const {
    ::sync_file_range(fd_, desde, bytes,
                      SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER);
}

void Archivo::Sincronizar() const {
    if (::fsync(fd_) != 0)
        Fallar("escribir", ruta_);
    ::posix_fadvise(fd_, 0, 0, POSIX_FADV_DONTNEED);
}

void CrearCarpeta(const QString &ruta) {
    if (::mkdir(QFile::encodeName(ruta).constData(), 0777) != 0)
        Fallar("crear la carpeta", ruta);
    SincronizarCarpeta(CarpetaDe(ruta));
}

void SincronizarCarpeta(const QString &carpeta) {
    const int fd = ::open(QFile::encodeName(carpeta).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        Fallar("escribir en la carpeta", carpeta);
    const int resultado = ::fsync(fd);
    const int error = errno;
    ::close(fd);
    if (resultado != 0 && error != EINVAL) // a file system that doesn't synchronise folders
        Fallar(NumeroDe(error), error, "escribir en la carpeta", carpeta);
}

void Renombrar(const QString &de, const QString &a) {
    if (std::rename(QFile::encodeName(de).constData(), QFile::encodeName(a).constData()) != 0)
        Fallar("reemplazar", a);
}

void Quitar(const QString &ruta) {
    if (::unlink(QFile::encodeName(ruta).constData()) != 0 && errno != ENOENT)
        Fallar("quitar", ruta);
}

} // namespace tarvo
