// Search for a part of a text, case ignored, in UTF-8 without making a QString for each cell.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace tarvo {

class BusquedaParte {
  public:
    explicit BusquedaParte(const QString &texto);
    // True when some run of characters of `celda`, as long as the text and in lower case, is the text in
    // lower case.
    bool Esta(std::string_view celda) const;

  private:
    bool EstaEnBytes(std::string_view celda) const;
    bool EmpiezaEn(std::string_view celda, std::size_t inicio) const;
    QString minusculas_;
    std::string bytes_;
    bool latina_; // ASCII and the accented letters of Latin-1 only: bytes can be compared
};

} // namespace tarvo
