// A label that acts like a link: it changes colour under the mouse, and a left button pressed and released on
// it, or Enter or Space while it has the focus, activates it.
#pragma once

#include <QColor>
#include <QLabel>

namespace tarvo {

class EtiquetaEnlace : public QLabel {
    Q_OBJECT
  public:
    explicit EtiquetaEnlace(QWidget *padre = nullptr);
    // Blue that turns red, unless told otherwise.
    void PonerColores(const QColor &normal, const QColor &encima);

  signals:
    void Activada();

  protected:
    void enterEvent(QEnterEvent *evento) override;
    void leaveEvent(QEvent *evento) override;
    void mousePressEvent(QMouseEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;

  private:
    void Pintar(const QColor &color);
    QColor normal_{0, 0, 255};
    QColor encima_{255, 0, 0};
    bool presionada_ = false;
};

} // namespace tarvo
