// The splash: one picture for five seconds. Nothing is loaded behind it before its timer ticks.
#pragma once

#include <QWidget>

class QTimer;

namespace tarvo {

class FrmSplash : public QWidget {
    Q_OBJECT
  public:
    FrmSplash();

  signals:
    void Terminado(); // the tick; the splash closes behind it

  protected:
    void showEvent(QShowEvent *evento) override;

  private:
    QTimer *Timer1;
};

} // namespace tarvo
