// The total of a window, to be read from two metres: its figures fill the width that the label is given, up
// to a capital height that grows with the window (34 pixels at 800 x 600, 60 at 1280 x 900, 80 at 1920 x
// 1080). The label is as high for a short amount as for a long one, so that nothing below it moves.
#pragma once

#include "desktop/ventanas/etiquetaimporte.h"

#include <QPointer>

namespace tarvo {

class EtiquetaTotal final : public EtiquetaImporte {
    Q_OBJECT
  public:
    using EtiquetaImporte::EtiquetaImporte;

  protected:
    double TamanoMayor() const override;
    double Aire() const override { return 0.3; }
    bool eventFilter(QObject *objeto, QEvent *evento) override;
    void showEvent(QShowEvent *evento) override;

  private:
    QPointer<QWidget> ventana_; // whose size is followed
};

} // namespace tarvo
