// A desktop that opens nothing and remembers what it was asked for.
#pragma once

#include "desktop/escritorio.h"

#include <QStringList>

namespace tarvo {

class EscritorioPrueba final : public Escritorio {
  public:
    QStringList archivos;
    QList<QUrl> direcciones;
    int ajustesImpresoras = 0;
    bool responde = true; // false: the desktop knows no program

    bool AbrirArchivo(const QString &ruta) override {
        archivos.append(ruta);
        return responde;
    }
    bool AbrirDireccion(const QUrl &direccion) override {
        direcciones.append(direccion);
        return responde;
    }
    bool AbrirAjustesImpresoras() override {
        ++ajustesImpresoras;
        return responde;
    }
};

} // namespace tarvo
