// The calls to the system that copies stand on. What fails is thrown as an ErrorDatos: its number is that of
// the kind of failure (53 file not found, 75 access, 76 path not found), its text tells the operator what and
// why, in Spanish whatever the language of the system.
#pragma once

#include <QString>

namespace tarvo {

// Why a call failed with this errno, to stand behind what was tried and a colon: "el disco está lleno".
QString MotivoSistema(int error);

// Another process has locked the file, or the part of it that the engine locks.
bool EnUso(const QString &ruta);

// One file, open from beginning to end of an object.
class Archivo {
  public:
    enum class Modo { Leer, Crear };
    // Crear empties a file that is there.
    Archivo(const QString &ruta, Modo modo);
    ~Archivo();
    Archivo(const Archivo &) = delete;
    Archivo &operator=(const Archivo &) = delete;

    qint64 Tamano() const;
    // The next bytes, as many as there are up to `bytes`; 0 at the end.
    qint64 Leer(char *datos, qint64 bytes);
    void Rebobinar();
    // Has the disk set aside the room for so many bytes at once, which makes writing them faster.
    void Reservar(qint64 bytes) const;
    void Escribir(const char *datos, qint64 bytes);
    // Lets the disk begin to write what it has not yet; waits until it has taken these bytes. Neither is a
    // promise.
    void AnunciarEscritura() const;
    void EsperarEscritura(qint64 desde, qint64 bytes) const;
    // Brings the file to the disk, and has it read from there, not from memory, the next time.
    void Sincronizar() const;

  private:
    QString ruta_;
    int fd_;
};

// Lets the disk begin to write what that open file has and it has not yet. No promise.
void AnunciarEscritura(int fd);

// While it lives no other process gets the lock of that folder. Throws ErrorDatos(kBaseBloqueada) when
// another has it.
class Cerrojo {
  public:
    explicit Cerrojo(const QString &carpeta);
    ~Cerrojo();
    Cerrojo(const Cerrojo &) = delete;
    Cerrojo &operator=(const Cerrojo &) = delete;

  private:
    int fd_;
};

// Makes one folder in a folder that exists, and brings its name to the disk.
void CrearCarpeta(const QString &ruta);
// Brings the names in a folder to the disk.
void SincronizarCarpeta(const QString &carpeta);
// Gives the file or folder `de` the name `a`, in place of the file that has it.
void Renombrar(const QString &de, const QString &a);
// Removes a file that may be there.
void Quitar(const QString &ruta);

} // namespace tarvo
