// The card below the buttons of the sale that tells the last issued document and prints it again. It is
// hidden until there is one, takes no focus from the scanner's field, and has one line where the window is
// low.
#pragma once

#include <QFrame>

class QKeySequence;
class QPushButton;

namespace tarvo {

class EtiquetaElidida;
class Preguntas;
class UltimoComprobante;

class TarjetaUltimo : public QFrame {
    Q_OBJECT
  public:
    // What fails is told through `preguntas`.
    TarjetaUltimo(UltimoComprobante &ultimo, Preguntas &preguntas, QWidget *padre = nullptr);
    void Plegar(bool plegada);

  protected:
    void showEvent(QShowEvent *evento) override;

  private:
    QPushButton *CrearBoton(const QString &nombre, const QString &texto, const QString &imagen,
                            const QKeySequence &tecla);
    void Mostrar();

    UltimoComprobante &ultimo_;
    EtiquetaElidida *lblUltimo;
    EtiquetaElidida *lblUltimoTotal;
    QPushButton *cmdReimprimir;
    QPushButton *cmdFactura;
    bool plegada_ = false;
};

} // namespace tarvo
