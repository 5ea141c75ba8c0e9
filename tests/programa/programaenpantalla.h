// The built program as a process, in a folder of its own, driven by keys. At its end in a test that fails it
// leaves a picture of the screen, fallo-<process>.png, in the working folder.
#pragma once

#include "programa/pantalla.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvo {

// A folder with a copy of the program; settings and data of the user lie in it too.
class Carpeta {
  public:
    Carpeta();
    QString Ruta(const char *nombre) const { return raiz_.filePath(QLatin1String(nombre)); }
    QString Raiz() const { return raiz_.path(); }
    // Rows of a query on one of the five files, which the program must have closed: cells as text.
    std::vector<std::vector<std::string>> Filas(const char *archivo, const char *consulta) const;
    std::string Valor(const char *archivo, const char *consulta) const;

  private:
    QTemporaryDir raiz_;
};

// Arguments of a start without the splash.
inline const QStringList kDirecto{u"--directo"_qs};

class ProgramaEnPantalla {
  public:
    // Returns when the first window is on screen.
    explicit ProgramaEnPantalla(const Carpeta &carpeta, const QStringList &argumentos = {});
    ~ProgramaEnPantalla();
    ProgramaEnPantalla(const ProgramaEnPantalla &) = delete;
    ProgramaEnPantalla &operator=(const ProgramaEnPantalla &) = delete;

    // Until the splash is gone and the main window has the keyboard.
    void EsperarPrincipal();
    // Until a window other than the main one has the keyboard: a question, a message, a dialog. A window that
    // was there before doesn't count.
    void EsperarCuadro();
    // Until the main window has the keyboard again.
    void EsperarVuelta();
    // Keys by their X names with blanks between them, all of them that often.
    void Teclas(const char *teclas, int veces = 1);
    void Escribir(const char *texto);
    // What a barcode scanner sends, and the Enter that adds the article, all at once.
    void Escanear(const std::string &codigo);

    QStringList VentanasVisibles() const;
    bool HayVentanaPrincipal() const { return !BuscarPrincipal().isEmpty(); }
    // Waits for the end of the process by itself.
    int CodigoSalida();
    void Matar();
    // The signal with which the system ends a program.
    void PedirFin() { proceso_.terminate(); }
    // Alt+F4, until the process has ended.
    void Cerrar();

  private:
    QString BuscarPrincipal() const;
    QString Activa() const;
    void FotoDeFallo() const;
    QProcess proceso_;
    QString principal_;
    QString cuadro_;
};

// The world of a whole-program test: a screen, and a folder with the program.
class MundoPrograma : public testing::Test {
  protected:
    Pantalla pantalla_;
    Carpeta carpeta_;
};

} // namespace tarvo
