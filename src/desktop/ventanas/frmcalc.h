// The pocket calculator: a small window on top of the main one, beside any module.
//
// All keys are handled by the window, whatever button has the focus. The display takes no typing of its own;
// a text can be pasted into it, and is no number for the arithmetic when it isn't one.
#pragma once

#include "desktop/calculadora.h"

#include <QWidget>

class QAction;
class QGridLayout;
class QKeyEvent;
class QLineEdit;
class QPushButton;

namespace tarvo {

class FrmCalc : public QWidget {
    Q_OBJECT
  public:
    // `principal` is the main window, whose right edge it takes; `sDecimal` the separator in force.
    FrmCalc(const QString &sDecimal, QWidget *principal);

  protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;
    void resizeEvent(QResizeEvent *evento) override;

  private:
    struct Boton;
    void CrearDisplay(QGridLayout &rejilla);
    void CrearBotones(QGridLayout &rejilla);
    void Alinear(const QWidget &principal);

    bool Tecla(const QObject *recibe, const QKeyEvent &tecla);
    bool Caracter(QChar caracter);
    bool TeclaSoltada(const QKeyEvent &tecla);
    void Digito(int digito);
    void Decimal();
    QAction *EntradaDe(const QKeyEvent &tecla) const;
    void AjustarLetra();
    void Copiar();
    void Pegado(const QString &texto);
    void Mostrar();

    Calculadora calculadora_;
    QLineEdit *txtDisplay;
    bool conSeleccion_ = false; // of the display, before the change that is being told
    QPushButton *cmdEquals = nullptr;
};

} // namespace tarvo
