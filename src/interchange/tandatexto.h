// Text for a file in Windows-1252, gathered in memory and handed to the device in large pieces.
//
// Cells come as UTF-8, hundreds of thousands of them: letters are looked at and copied eight at a time,
// accents are computed, and only a cell with anything else is converted. A failing device is not told here.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

class QIODevice;

namespace tarvo {

class TandaTexto {
  public:
    explicit TandaTexto(QIODevice &salida);

    // One cell, as it is shown: line ends and control characters become blanks, a character that the code
    // page lacks becomes "?".
    void Celda(std::string_view utf8);
    // A character of the file's own form, in ASCII.
    void Marca(char ascii) {
        Caber(1);
        *fin_++ = ascii;
    }
    // Hands over what is left.
    void Terminar();

  private:
    void Caber(std::size_t bytes) {
        if (bytes > static_cast<std::size_t>(tope_ - fin_))
            HacerLugar(bytes);
    }
    void HacerLugar(std::size_t bytes);

    QIODevice &salida_;
    std::vector<char> tanda_;
    char *fin_;  // behind the last character
    char *tope_; // so far it may go
};

} // namespace tarvo
