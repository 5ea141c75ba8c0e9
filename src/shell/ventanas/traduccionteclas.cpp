#include "shell/ventanas/traduccionteclas.h"

#include <string_view>

namespace tarvo {

QString TraduccionTeclas::translate(const char *contexto, const char *texto, const char *, int) const {
    const bool esCtrl = std::string_view(contexto) == "QShortcut" && std::string_view(texto) == "Ctrl";
    return esCtrl ? QStringLiteral("Ctrl") : QString(); // a null text: the next translation is asked
}

} // namespace tarvo
