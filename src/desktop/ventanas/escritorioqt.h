// The real desktop, through the system's default programs.
#pragma once

#include "desktop/escritorio.h"

namespace tarvo {

class EscritorioQt final : public Escritorio {
  public:
    bool AbrirArchivo(const QString &ruta) override;
    bool AbrirDireccion(const QUrl &direccion) override;
    // The desktop's own printer settings; the printing system's page in a browser when it has none.
    bool AbrirAjustesImpresoras() override;
};

} // namespace tarvo
