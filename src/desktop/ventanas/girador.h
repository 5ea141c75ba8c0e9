// The two small arrows beside a number field.
//
// The position of the control is the number negated, so that its upper arrow is the higher number: a field
// from 0 to 99 has a control from -99 to 0. Field and arrows follow each other, but a number that was typed
// beyond the limits stays in the field as it is, and the arrows count on from it.
#pragma once

#include <QAbstractSlider>

class QLineEdit;

namespace tarvo {

class Girador : public QAbstractSlider {
    Q_OBJECT
  public:
    // What the upper arrow does with a number above the greatest: nothing, or one more, because it stops
    // just at the greatest.
    enum class Tope { Todo, SoloJusto };

    explicit Girador(QWidget *padre = nullptr);

    // Ties the control to `campo`, for whole numbers from `minimo` to `maximo`.
    void Acompanar(QLineEdit *campo, int minimo, int maximo, Tope tope = Tope::Todo);
    // What an arrow, here or on the keyboard, does in the field: one more (+1) or one less (-1) than the
    // number in it, unless it is at its limit.
    void Paso(int paso);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *evento) override;
    void mousePressEvent(QMouseEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;
    void wheelEvent(QWheelEvent *evento) override;

  private:
    void PintarFlecha(class QPainter &pintor, const QRect &zona, bool arriba);
    void Seguir();
    bool Sube(qint64 numero) const;
    QLineEdit *campo_ = nullptr;
    Tope tope_ = Tope::Todo;
    SliderAction pulsada_ = SliderNoAction;
};

} // namespace tarvo
