// The status bar `SB1` with its five panels: maker, hints, caps lock, num lock, date.
#pragma once

#include "desktop/ventanas/estadoteclado.h"

#include <QStatusBar>

class QDate;
class QLabel;

namespace tarvo {

class EtiquetaElidida;
class EtiquetaEnlace;

class BarraEstado : public QStatusBar {
    Q_OBJECT
  public:
    explicit BarraEstado(QWidget *padre = nullptr);

    // Text of the panel `separador`, cut with an ellipsis when it is too long; its tooltip tells the whole.
    void PonerTexto(const QString &texto);
    // Width of `separador`; less when the other panels need the room.
    void PonerAncho(int pixeles);
    // A lock that is off looks dim.
    void PonerTeclado(const EstadoTeclado &estado);
    void PonerFecha(const QString &fecha);

    // The Tab key reaches the maker's name.
    void PermitirFoco(bool posible);

  signals:
    void FabricantePulsado();

  private:
    QLabel *Panel(const char *nombre, const QString &texto, const QString &ayuda);
    EtiquetaEnlace *fabricante;
    EtiquetaElidida *separador;
    QLabel *mayusculas;
    QLabel *numerico;
    QLabel *fecha;
};

} // namespace tarvo
