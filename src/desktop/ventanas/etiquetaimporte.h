// A label for an amount. Whatever the room, the amount is never cut: a longer one is set smaller. It never
// asks for more width than there is, and is read aloud with its caption, the label whose buddy it is, each
// time that it changes.
#pragma once

#include <QLabel>

namespace tarvo {

class EtiquetaImporte : public QLabel {
    Q_OBJECT
  public:
    explicit EtiquetaImporte(QWidget *padre = nullptr);

    // "Total: $ 12,50".
    QString Hablado() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    // The largest size of its letters, in pixels; here that of the font.
    virtual double TamanoMayor() const;
    // Room above and below the capitals, as a part of their height.
    virtual double Aire() const { return 0; }
    void paintEvent(QPaintEvent *evento) override;

  private:
    QFont LetraDe(double pixeles) const;
    QFont LetraQueCabe(const QString &importe, int ancho) const;
    int AltoDeUnaLinea() const;
};

} // namespace tarvo
