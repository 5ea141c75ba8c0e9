// A print server of its own: the system's CUPS, started on a socket of the test, with one printer "Mostrador"
// whose driver is that of the CUPS PDF printer and whose paper is a file.
#pragma once

#include <QProcess>
#include <QTemporaryDir>

namespace tarvo {

class ServidorImpresion {
  public:
    // The server becomes the one of this process and of those that it starts.
    ServidorImpresion();
    ~ServidorImpresion();
    ServidorImpresion(const ServidorImpresion &) = delete;
    ServidorImpresion &operator=(const ServidorImpresion &) = delete;

    // False where CUPS is not installed or can't be started.
    bool Anda() const { return anda_; }
    // Waits for the next document and returns its text, laid out as on paper.
    QString Texto() const;

  private:
    QString Ruta(const char *nombre) const { return raiz_.filePath(QLatin1String(nombre)); }
    void Configurar() const;
    bool Instalar() const;

    QTemporaryDir raiz_;
    QProcess cupsd_;
    bool anda_ = false;
};

} // namespace tarvo
