#include "accounts/codigoleido.h"

#include "desktop/escaner.h"

#include <algorithm>

namespace tarvo {

bool EsCodigoLeido(const QString &leido) {
    constexpr int kCifrasCodigo = 8;
    const QString deImporte = QLatin1String(kSignosImporte);
    if (!std::ranges::all_of(leido, [&](QChar c) { return deImporte.contains(c); }))
        return leido.size() >= kCodigoMenor;
    return leido.size() >= kCifrasCodigo && std::ranges::all_of(leido, [](QChar c) { return c.isDigit(); });
}

} // namespace tarvo
