#include "shell/ajustesprincipal.h"

namespace tarvo {

bool AjustesPrincipal::Barra(const char *clave) const {
    return Texto(clave, "True").trimmed().compare(QLatin1String("False"), Qt::CaseInsensitive) != 0;
}

void AjustesPrincipal::PonerBarra(const char *clave, bool visible) {
    ajustes_.setValue(QLatin1String(clave), visible ? QStringLiteral("True") : QStringLiteral("False"));
}

int AjustesPrincipal::Entero(const char *clave, int defecto) const {
    bool legible = false;
    const int valor = ajustes_.value(QLatin1String(clave)).toInt(&legible);
    return legible ? valor : defecto;
}

QString AjustesPrincipal::Texto(const char *clave, const char *defecto) const {
    return ajustes_.value(QLatin1String(clave), QString::fromUtf8(defecto)).toString();
}

Geometria AjustesPrincipal::PantComp(const Geometria &actual) const {
    return {Entero("PantCompWS", actual.estado), Entero("PantCompX", actual.x), Entero("PantCompY", actual.y),
            Entero("PantCompW", actual.ancho), Entero("PantCompH", actual.alto)};
}

void AjustesPrincipal::PonerPantComp(const Geometria &geometria) {
    ajustes_.setValue(QStringLiteral("PantCompWS"), geometria.estado);
    ajustes_.setValue(QStringLiteral("PantCompX"), geometria.x);
    ajustes_.setValue(QStringLiteral("PantCompY"), geometria.y);
    ajustes_.setValue(QStringLiteral("PantCompW"), geometria.ancho);
    ajustes_.setValue(QStringLiteral("PantCompH"), geometria.alto);
}

QUrl AjustesPrincipal::SitioFabricante() const {
    return QUrl(Texto("SitioFabricante", "https://www.velbrina.example/"));
}

QUrl AjustesPrincipal::SitioAyuda() const {
    return QUrl(Texto("SitioAyuda", "https://www.velbrina.example/tarvo/ayuda"));
}

QUrl AjustesPrincipal::Correo() const {
    return QUrl(QStringLiteral("mailto:") + Texto("Correo", "contacto@velbrina.example"));
}

} // namespace tarvo
