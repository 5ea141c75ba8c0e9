// A text as it is shown on one line: line ends and control characters become blanks.
#pragma once

#include <QString>

#include <algorithm>

namespace tarvo {

inline QString EnUnaLinea(QString texto) {
    const auto cortaLinea = [](QChar c) {
        return c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
               c == QChar::ParagraphSeparator;
    };
    std::replace_if(texto.begin(), texto.end(), cortaLinea, QLatin1Char(' '));
    return texto;
}

} // namespace tarvo
