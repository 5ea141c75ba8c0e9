// The desktop outside the program: opening files and addresses, the system's printer settings.
#pragma once

#include <QString>
#include <QUrl>

namespace tarvo {

class Escritorio {
  public:
    virtual ~Escritorio() = default;
    // False when the desktop knows no program for it.
    virtual bool AbrirArchivo(const QString &ruta) = 0;
    virtual bool AbrirDireccion(const QUrl &direccion) = 0;
    virtual bool AbrirAjustesImpresoras() = 0;
};

} // namespace tarvo
