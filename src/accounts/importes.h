// The amounts of the account lists, on UTF-8 bytes: how a stored total is shown, the signed text of a row,
// and a cell read back as a number.
//
// The cuts count characters and don't look at what they cut: two for the signed text whatever the symbol,
// Len(sCurrency) + 1 for everything else. With a symbol of two characters the blank behind it is lost and the
// sums read amounts without their first digit or sign. Operators know these figures, they stay.
#pragma once

#include "store/moneda.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarvo {

class Importes {
  public:
    explicit Importes(const Moneda &moneda);

    // A stored total as money text. The current symbol before it is read over; a text that is no number all
    // the same stays as it stands, behind a symbol: "Bs 12,50" becomes "$ Bs 12,50". Empty text is zero.
    void Agregar(std::string &salida, std::string_view total) const;
    // A stored total as a number, whether or not the current symbol stands before it; nothing when it is
    // none.
    std::optional<double> LeerTotal(std::string_view total) const;
    std::string_view SinSimbolo(std::string_view monto) const { return moneda_->SinSimbolo(monto); }
    const std::string &Cero() const { return cero_; }

    // The first two characters of a money text, `signo`, and what stands behind its symbol.
    void AgregarConSigno(std::string &salida, std::string_view monto, std::string_view signo) const;

    // A cell less its symbol as a number; empty text counts as 0. Nothing when it is no number, as
    // one too long to be added up.
    std::optional<double> Leer(std::string_view celda) const;

  private:
    std::string_view Numero(std::string_view total) const;

    const Moneda *moneda_;
    std::string simbolo_;
    std::string cero_;
};

} // namespace tarvo
