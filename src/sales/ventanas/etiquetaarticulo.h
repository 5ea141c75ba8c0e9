// The article that the next "Agregar" will add, on one line: its whole name, its price with IVA and what is
// left of it. A name that is too long is cut, never the price; the tool tip shows it whole.
#pragma once

#include "sales/venta.h"

#include <QLabel>

namespace tarvo {

class EtiquetaArticulo : public QLabel {
    Q_OBJECT
  public:
    explicit EtiquetaArticulo(QWidget *padre = nullptr);
    // text() is then the line as it is read.
    void Poner(const ResumenArticulo &articulo);

    QSize sizeHint() const override { return {0, minimumSizeHint().height()}; }
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *evento) override;

  private:
    QFont Negrita() const;
    QFont Grande() const;
    ResumenArticulo articulo_;
};

} // namespace tarvo
