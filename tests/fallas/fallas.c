/* A disk that fails on demand, for tests: preloaded into a program, it counts the calls that change something
 * below the folder FALLAS_CARPETA and makes call number FALLAS_LLAMADA go wrong.
 *
 * FALLAS_MODO   matar   the process is killed before the call
 *               cortar  a write brings half of its bytes, then the process is killed
 *               lleno, entrada, lectura   the call fails with ENOSPC, EIO, EROFS
 * FALLAS_SEGUIDAS=1     every call from that one on fails, until the program calls FallasParar
 * FALLAS_PROTEGIDO      name of a file that can only be opened for reading
 *
 * A fault that fires writes "FALLA" to the standard error output. Synchronisation is counted but left out: a
 * killed process loses nothing that the system has taken. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <signal.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

static long cuenta = 0;
static int parada = 0;

void FallasParar(void);
void FallasParar(void) {
    parada = 1;
}

#define ORIGINAL(tipo, nombre) ((tipo)dlsym(RTLD_NEXT, nombre))

static const char *Modo(void) {
    const char *modo = getenv("FALLAS_MODO");
    return modo == NULL ? "" : modo;
}

static int Vigilada(const char *ruta) {
    const char *carpeta = getenv("FALLAS_CARPETA");
    char completa[PATH_MAX];
    if (carpeta == NULL || ruta == NULL)
        return 0;
    if (ruta[0] != '/' && getcwd(completa, sizeof completa) != NULL)
        return strncmp(completa, carpeta, strlen(carpeta)) == 0;
    return strncmp(ruta, carpeta, strlen(carpeta)) == 0;
}

static int VigiladoFd(int fd) {
    char enlace[64];
    char ruta[PATH_MAX];
    snprintf(enlace, sizeof enlace, "/proc/self/fd/%d", fd);
    const ssize_t n = readlink(enlace, ruta, sizeof ruta - 1);
    if (n <= 0)
        return 0;
    ruta[n] = '\0';
    return Vigilada(ruta);
}

/* Is this the call that goes wrong? Sets errno for the modes that fail. */
static int Toca(void) {
    const char *cual = getenv("FALLAS_LLAMADA");
    const char *seguidas = getenv("FALLAS_SEGUIDAS");
    const long n = cual == NULL ? 0 : atol(cual);
    if (parada || n == 0)
        return 0;
    ++cuenta;
    if (cuenta != n && !(seguidas != NULL && seguidas[0] == '1' && cuenta > n))
        return 0;
    static const char aviso[] = "FALLA\n";
    ORIGINAL(ssize_t(*)(int, const void *, size_t), "write")(2, aviso, sizeof aviso - 1);
    if (strcmp(Modo(), "matar") == 0)
        kill(getpid(), SIGKILL);
    errno = strcmp(Modo(), "lleno") == 0 ? ENOSPC : strcmp(Modo(), "lectura") == 0 ? EROFS : EIO;
    return 1;
}

/* A call that isn't a write has no half: it is killed as a whole. */
static int TocaEntera(void) {
    const int toca = Toca();
    if (toca && strcmp(Modo(), "cortar") == 0)
        kill(getpid(), SIGKILL);
    return toca;
}

typedef ssize_t (*Pwrite)(int, const void *, size_t, off_t);

static ssize_t Escribir(const char *nombre, int fd, const void *datos, size_t bytes, off_t lugar) {
    const Pwrite original = ORIGINAL(Pwrite, nombre);
    if (VigiladoFd(fd) && Toca()) {
        if (strcmp(Modo(), "cortar") != 0)
            return -1;
        original(fd, datos, bytes / 2, lugar);
        kill(getpid(), SIGKILL);
    }
    return original(fd, datos, bytes, lugar);
}

ssize_t pwrite(int fd, const void *datos, size_t bytes, off_t lugar) {
    return Escribir("pwrite", fd, datos, bytes, lugar);
}

ssize_t pwrite64(int fd, const void *datos, size_t bytes, off64_t lugar) {
    return Escribir("pwrite64", fd, datos, bytes, lugar);
}

ssize_t write(int fd, const void *datos, size_t bytes) {
    ssize_t (*const original)(int, const void *, size_t) =
        ORIGINAL(ssize_t(*)(int, const void *, size_t), "write");
    if (fd > 2 && VigiladoFd(fd) && Toca()) {
        if (strcmp(Modo(), "cortar") != 0)
            return -1;
        if (original(fd, datos, bytes / 2) >= 0)
            kill(getpid(), SIGKILL);
    }
    return original(fd, datos, bytes);
}

ssize_t sendfile64(int salida, int entrada, off64_t *lugar, size_t bytes) {
    if (VigiladoFd(salida) && TocaEntera())
        return -1;
    return ORIGINAL(ssize_t(*)(int, int, off64_t *, size_t), "sendfile64")(salida, entrada, lugar, bytes);
}

int fsync(int fd) {
    return VigiladoFd(fd) && TocaEntera() ? -1 : 0;
}

int fdatasync(int fd) {
    return VigiladoFd(fd) && TocaEntera() ? -1 : 0;
}

int ftruncate(int fd, off_t bytes) {
    if (VigiladoFd(fd) && TocaEntera())
        return -1;
    return ORIGINAL(int (*)(int, off_t), "ftruncate")(fd, bytes);
}

int ftruncate64(int fd, off64_t bytes) {
    if (VigiladoFd(fd) && TocaEntera())
        return -1;
    return ORIGINAL(int (*)(int, off64_t), "ftruncate64")(fd, bytes);
}

int unlink(const char *ruta) {
    if (Vigilada(ruta) && TocaEntera())
        return -1;
    return ORIGINAL(int (*)(const char *), "unlink")(ruta);
}

int rmdir(const char *ruta) {
    if (Vigilada(ruta) && TocaEntera())
        return -1;
    return ORIGINAL(int (*)(const char *), "rmdir")(ruta);
}

int rename(const char *de, const char *a) {
    if (Vigilada(a) && TocaEntera())
        return -1;
    return ORIGINAL(int (*)(const char *, const char *), "rename")(de, a);
}

int mkdir(const char *ruta, mode_t permisos) {
    if (Vigilada(ruta) && TocaEntera())
        return -1;
    return ORIGINAL(int (*)(const char *, mode_t), "mkdir")(ruta, permisos);
}

static int Protegida(const char *ruta, int banderas) {
    const char *nombre = getenv("FALLAS_PROTEGIDO");
    const char *barra = ruta == NULL ? NULL : strrchr(ruta, '/');
    return nombre != NULL && barra != NULL && strcmp(barra + 1, nombre) == 0 &&
           (banderas & O_ACCMODE) != O_RDONLY;
}

typedef int (*Open)(const char *, int, ...);

static int Abrir(const char *nombre, const char *ruta, int banderas, mode_t permisos) {
    if (Protegida(ruta, banderas)) {
        errno = EROFS;
        return -1;
    }
    if ((banderas & O_CREAT) != 0 && Vigilada(ruta) && TocaEntera())
        return -1;
    return ORIGINAL(Open, nombre)(ruta, banderas, permisos);
}

static mode_t Permisos(int banderas, va_list resto) {
    return (banderas & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(resto, mode_t) : 0;
}

int open(const char *ruta, int banderas, ...) {
    va_list resto;
    va_start(resto, banderas);
    const mode_t permisos = Permisos(banderas, resto);
    va_end(resto);
    return Abrir("open", ruta, banderas, permisos);
}

int open64(const char *ruta, int banderas, ...) {
    va_list resto;
    va_start(resto, banderas);
    const mode_t permisos = Permisos(banderas, resto);
    va_end(resto);
    return Abrir("open64", ruta, banderas, permisos);
}
