#include "sales/rachateclas.h"

namespace tarvo {

namespace {

constexpr quint64 kPausa = 500; // ms; the slowest scanners send a key each 50 ms

}

bool RachaTeclas::Agregar(const void *control, const QString &caracter, quint64 ms) {
    if (control != control_ || ms > ultima_ + kPausa)
        texto_.clear();
    control_ = control;
    ultima_ = ms;
    texto_ += caracter;
    return texto_.size() == caracter.size();
}

} // namespace tarvo
