// The characters that came in one after the other into one control, as a barcode scanner sends them: it tells
// a code from what is typed by hand. Any other key, another control or a pause begins a new run.
//
// A run is a code when it is long, or when no hand is as quick: three characters at least, each at most 30 ms
// behind the one before, and so the Enter. Strokes without a time (0) have no speed.
#pragma once

#include <QString>

namespace tarvo {

class RachaTeclas {
  public:
    // More characters than these are a code: no quantity, no discount.
    static constexpr qsizetype kCortoMayor = 6;

    // A character typed into `control` at `ms`. Strokes with equal times are strokes of their own; a clock
    // that stands still makes no pause. A run that a key held down begins is no scan. True when it is the
    // first of its run.
    bool Agregar(const void *control, const QString &caracter, quint64 ms, bool sostenida = false);
    void Cortar() { texto_.clear(); }
    // What came into `control`; empty for another one.
    QString En(const void *control) const { return control == control_ ? texto_ : QString(); }
    // The same when it is a code that an Enter at `ms` ends; else empty.
    QString Lectura(const void *control, quint64 ms) const;

    static bool EsCodigo(const QString &texto) { return texto.size() > kCortoMayor; }

  private:
    const void *control_ = nullptr;
    quint64 ultima_ = 0;
    QString texto_;
    bool rapida_ = false; // so far
};

} // namespace tarvo
