// The one focus mark: a ring around whatever has the focus, the same for fields, buttons, lists and links of
// all windows. The marks that the toolkit draws inside of buttons and rows are left out, the
// pale picture of a chosen row too.
#pragma once

#include <QList>
#include <QPointer>
#include <QProxyStyle>

class QApplication;

namespace tarvo {

class EstiloConMarco final : public QProxyStyle {
    Q_OBJECT
  public:
    using QProxyStyle::QProxyStyle;
    void drawPrimitive(PrimitiveElement elemento, const QStyleOption *opcion, QPainter *pintor,
                       const QWidget *control) const override;
    int styleHint(StyleHint cual, const QStyleOption *opcion, const QWidget *control,
                  QStyleHintReturn *respuesta) const override;
    QPixmap generatedIconPixmap(QIcon::Mode modo, const QPixmap &imagen,
                                const QStyleOption *opcion) const override;
};

class Anillo;

// Moves the ring along with the focus. It stands in the window itself, above all else and outside of its
// control, so that nothing but the edge of what scrolls cuts it. Around a button with the property "enMarca"
// it leaves a gap to the frame behind the button, which looks like it (the current kind of payment).
class MarcoFoco final : public QObject {
    Q_OBJECT
  public:
    explicit MarcoFoco(QApplication &aplicacion);
    // Draws the ring anew around what has the focus: a change of the whole style loses it.
    void Retomar();

  protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

  private:
    void Seguir(QWidget *control);
    void Colocar();
    QPointer<QWidget> control_;
    QList<QPointer<QWidget>> camino_; // the control and what it stands in, its window last
    QPointer<Anillo> anillo_;         // goes with the window that it stands in
};

} // namespace tarvo
