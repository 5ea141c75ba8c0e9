// A clock that tests set.
#pragma once

#include "desktop/reloj.h"

namespace tarvo {

class RelojFijo final : public Reloj {
  public:
    explicit RelojFijo(QDateTime momento = QDateTime({2026, 11, 22}, {10, 42}))
        : momento_(std::move(momento)) {}
    void Poner(const QDateTime &momento) { momento_ = momento; }
    QDateTime Ahora() const override { return momento_; }

  private:
    QDateTime momento_;
};

} // namespace tarvo
