// While it lives the operator can start nothing in the program, and its windows still paint themselves. That
// he wants to leave, by Escape or by closing a window, is remembered.
#pragma once

#include <QObject>

namespace tarvo {

class EntradaBloqueada : public QObject {
    Q_OBJECT
  public:
    EntradaBloqueada();
    ~EntradaBloqueada() override;

    bool SalidaPedida() const { return salidaPedida_; }

  protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

  private:
    bool salidaPedida_ = false;
};

} // namespace tarvo
