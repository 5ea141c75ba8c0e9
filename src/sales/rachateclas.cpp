#include "sales/rachateclas.h"

namespace tarvo {

namespace {

constexpr quint64 kPausa = 500;    // ms; the slowest scanners send a key each 50 ms
constexpr quint64 kManoMenor = 30; // ms; no hand strikes several keys in a row as quickly
constexpr qsizetype kRapidaMenor = 3;

// `ms` so soon behind `ultima` that no hand has struck both.
bool EsDeMaquina(quint64 ultima, quint64 ms) {
    return ms != 0 && ms >= ultima && ms - ultima <= kManoMenor;
}

} // namespace

bool RachaTeclas::Agregar(const void *control, const QString &caracter, quint64 ms, bool sostenida) {
    if (control != control_ || ms > ultima_ + kPausa)
        texto_.clear();
    rapida_ = texto_.isEmpty() ? !sostenida : rapida_ && EsDeMaquina(ultima_, ms);
    control_ = control;
    ultima_ = ms;
    texto_ += caracter;
    return texto_.size() == caracter.size();
}

QString RachaTeclas::Lectura(const void *control, quint64 ms) const {
    const QString texto = En(control);
    const bool deMaquina = rapida_ && texto.size() >= kRapidaMenor && EsDeMaquina(ultima_, ms);
    return deMaquina || EsCodigo(texto) ? texto : QString();
}

} // namespace tarvo
