// The request of the system to end the program (SIGTERM, SIGINT, SIGHUP), as a Qt signal.
#pragma once

#include <QObject>

namespace tarvo {

class SenalFin : public QObject {
    Q_OBJECT
  public:
    // One object at a time: it takes the handling of these signals until its end.
    explicit SenalFin(QObject *padre = nullptr);
    ~SenalFin() override;

  signals:
    void Pedida();

  private:
    int lectura_ = -1;
};

} // namespace tarvo
