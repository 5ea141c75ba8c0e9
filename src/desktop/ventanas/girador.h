// The two small arrows beside a number field.
//
// The position of the control is the number negated, so that its upper arrow is the higher number: a field
// from 0 to 99 has a control from -99 to 0. Field and arrows follow each other, but a number that was typed
// beyond the limits stays in the field as it is, and the arrows count on from it: the upper one stops just at
// the greatest number and not above it.
#pragma once

#include <QAbstractSlider>

class QLineEdit;

namespace tarvo {

class Girador : public QAbstractSlider {
    Q_OBJECT
  public:
    explicit Girador(QWidget *padre = nullptr);

    // Ties the control to `campo`, for whole numbers from `minimo` to `maximo`; it is enabled while the field
    // is.
    void Acompanar(QLineEdit *campo, int minimo, int maximo);
    // What an arrow, here or on the keyboard, does in the field: one more (+1) than the number in it unless
    // that is just the greatest, one less (-1) unless it is not above the smallest.
    void Paso(int paso);

    QSize sizeHint() const override;

  protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;
    void paintEvent(QPaintEvent *evento) override;
    void mousePressEvent(QMouseEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;
    void wheelEvent(QWheelEvent *evento) override;

  private:
    void PintarFlecha(class QPainter &pintor, const QRect &zona, bool arriba);
    void Seguir();
    QLineEdit *campo_ = nullptr;
    SliderAction pulsada_ = SliderNoAction;
};

} // namespace tarvo
