// The characters that came in one after the other into one control, as a barcode scanner sends them: it tells
// a code from what is typed by hand. Any other key, another control or a pause begins a new run.
#pragma once

#include <QString>

namespace tarvo {

class RachaTeclas {
  public:
    // More characters than these are a code: no quantity, no discount.
    static constexpr qsizetype kCortoMayor = 6;

    // A character typed into `control` at `ms`. Strokes with equal times are strokes of their own; a clock
    // that stands still makes no pause. True when it is the first of its run.
    bool Agregar(const void *control, const QString &caracter, quint64 ms);
    void Cortar() { texto_.clear(); }
    // What came into `control`; empty for another one.
    QString En(const void *control) const { return control == control_ ? texto_ : QString(); }

    static bool EsCodigo(const QString &texto) { return texto.size() > kCortoMayor; }

  private:
    const void *control_ = nullptr;
    quint64 ultima_ = 0;
    QString texto_;
};

} // namespace tarvo
