// The one focus mark: a ring around whatever has the focus, the same for fields, buttons, lists and links of
// all windows. The marks that the toolkit draws inside of buttons and rows are left out, the
// pale picture of a chosen row too.
#pragma once

#include <QPointer>
#include <QProxyStyle>

class QApplication;
class QFocusFrame;

namespace tarvo {

class EstiloConMarco final : public QProxyStyle {
    Q_OBJECT
  public:
    using QProxyStyle::QProxyStyle;
    void drawPrimitive(PrimitiveElement elemento, const QStyleOption *opcion, QPainter *pintor,
                       const QWidget *control) const override;
    void drawControl(ControlElement elemento, const QStyleOption *opcion, QPainter *pintor,
                     const QWidget *control) const override;
    int pixelMetric(PixelMetric medida, const QStyleOption *opcion, const QWidget *control) const override;
    int styleHint(StyleHint cual, const QStyleOption *opcion, const QWidget *control,
                  QStyleHintReturn *respuesta) const override;
    QPixmap generatedIconPixmap(QIcon::Mode modo, const QPixmap &imagen,
                                const QStyleOption *opcion) const override;
};

// Moves the ring along with the focus.
class MarcoFoco final : public QObject {
    Q_OBJECT
  public:
    explicit MarcoFoco(QApplication &aplicacion);
    // Draws the ring anew around what has the focus: a change of the whole style loses it.
    void Retomar();

  private:
    void Seguir(QWidget *control);
    QPointer<QFocusFrame> marco_; // goes with the window that it stands in
};

} // namespace tarvo
