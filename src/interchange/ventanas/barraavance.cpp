#include "interchange/ventanas/barraavance.h"

#include <QStyleOptionProgressBar>

#include <algorithm>

namespace tarvo {

namespace {
constexpr int kPartes = 1000; // of one step
}

void BarraAvance::PonerParte(double parte) {
    parte_ = parte;
    update();
}

void BarraAvance::initStyleOption(QStyleOptionProgressBar *opcion) const {
    QProgressBar::initStyleOption(opcion);
    const int hechas = opcion->progress * kPartes + static_cast<int>(parte_ * kPartes);
    opcion->minimum *= kPartes;
    opcion->maximum *= kPartes;
    opcion->progress = std::min(hechas, opcion->maximum);
}

} // namespace tarvo
