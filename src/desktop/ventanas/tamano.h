// The size of type, spacing and pictures of the whole program: one step larger while the main window is 1600
// pixels wide or wider. Follows the main window by itself, and brings along each window that is opened
// meanwhile.
#pragma once

#include <QMargins>
#include <QObject>
#include <QSize>

#include <initializer_list>

class QApplication;
class QLayout;
class QWidget;

namespace tarvo {

// As much of `medida` as the screen of `ventana` has room for, beside what the desktop puts around a window.
QSize LoQueCabe(const QWidget &ventana, const QSize &medida);

// What type, spacing and pictures have grown by.
double Crecido();

// Makes the vertical room in and between what these layouts hold `aire` times that of the form; no gap that
// the form has goes away.
void PonerAire(std::initializer_list<QLayout *> disposiciones, double aire);

// Gives a layout margins and gaps in the place of those of its form; they grow as those do.
void PonerMedidas(QLayout *disposicion, const QMargins &margenes, int separacion);

class Tamano final : public QObject {
    Q_OBJECT
  public:
    static constexpr int kAnchoGrande = 1600;
    static constexpr double kLetra = 9;       // points
    static constexpr double kPaso = 11.0 / 9; // what all of them grow by

    // `hoja` is the style sheet at the small size.
    Tamano(QApplication &aplicacion, QString hoja);

  signals:
    void Cambiado();

  protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

  private:
    void Poner(bool grande);
    QString Hoja() const;

    QApplication &aplicacion_;
    QString hoja_;
    bool grande_ = false;
};

} // namespace tarvo
