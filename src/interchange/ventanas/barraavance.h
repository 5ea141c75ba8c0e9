// A progress bar of a few steps that moves between them too: its value stays a whole step.
#pragma once

#include <QProgressBar>

namespace tarvo {

class BarraAvance : public QProgressBar {
    Q_OBJECT
  public:
    using QProgressBar::QProgressBar;
    // How much of the next step is done, 0 to 1.
    void PonerParte(double parte);

  protected:
    void initStyleOption(QStyleOptionProgressBar *opcion) const override;

  private:
    double parte_ = 0;
};

} // namespace tarvo
