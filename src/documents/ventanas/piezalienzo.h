// A field, the logo or a label on the canvas of the designer.
//
// It tells what the mouse and the keys do to it and changes nothing by itself. It has the focus while it is
// the one under work.
#pragma once

#include <QLabel>

namespace tarvo {

class PiezaLienzo : public QLabel {
    Q_OBJECT
  public:
    PiezaLienzo(int numero, QWidget *lienzo);
    int Numero() const { return numero_; }

  signals:
    void Arrastrada(const QPointF &cursor); // on the screen
    void Soltada();
    void DobleClic();
    void Empujada(const QPoint &pixeles);
    void Suprimida();
    void Enfocada(bool si);

  protected:
    void mousePressEvent(QMouseEvent *evento) override;
    void mouseMoveEvent(QMouseEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;
    void mouseDoubleClickEvent(QMouseEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;
    void focusInEvent(QFocusEvent *evento) override;
    void focusOutEvent(QFocusEvent *evento) override;

  private:
    int numero_;
    bool tomada_ = false; // the left button went down on it and has not come up
};

} // namespace tarvo
