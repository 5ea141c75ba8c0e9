// An hour that is typed as it is written, with or without the colon.
//
// Qt's own field takes of a number that is too large what fits and types the rest into the minutes: 24:00
// would become 02:00. This one refuses the figure that makes it too large, and says so.
#pragma once

#include <QTimeEdit>

namespace tarvo {

class CampoHora : public QTimeEdit {
    Q_OBJECT
  public:
    explicit CampoHora(QWidget *padre = nullptr);

  protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;
    bool focusNextPrevChild(bool siguiente) override;
    void keyPressEvent(QKeyEvent *evento) override;
    void focusOutEvent(QFocusEvent *evento) override;

  private:
    void Cifra(int cifra);
    void PasarAMinutos();
    void DejarParte();

    int valor_ = 0;        // of the first figure typed in the current part
    bool segunda_ = false; // the next figure stands behind it
    bool pasada_ = false;  // the hours were full and have passed on by themselves
};

} // namespace tarvo
