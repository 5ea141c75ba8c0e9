// The settings of the main window in the user's settings store: which bars are shown, where the window was
// before full screen, and the addresses of the maker. A setting that is missing or unreadable reads as its
// default.
#pragma once

#include <QSettings>
#include <QUrl>

namespace tarvo {

// State (0 normal, 2 maximised), position and size of the window, in twips.
struct Geometria {
    int estado = 0;
    int x = 0;
    int y = 0;
    int ancho = 0;
    int alto = 0;
    bool operator==(const Geometria &) const = default;
};

constexpr int kVentanaNormal = 0;
constexpr int kVentanaMaximizada = 2;

class AjustesPrincipal {
  public:
    explicit AjustesPrincipal(QSettings &ajustes) : ajustes_(ajustes) {}

    // Kept as the texts "True" and "False".
    bool BarHer() const { return Barra("BarHer"); }
    bool BarEst() const { return Barra("BarEst"); }
    void PonerBarHer(bool visible) { PonerBarra("BarHer", visible); }
    void PonerBarEst(bool visible) { PonerBarra("BarEst", visible); }

    // The window as it was before full screen; what is not stored is that of `actual`.
    Geometria PantComp(const Geometria &actual) const;
    void PonerPantComp(const Geometria &geometria);

    // The splash is shown at start.
    bool Presentacion() const { return Entero("Presentacion", 1) != 0; }

    QUrl SitioFabricante() const;
    QUrl SitioAyuda() const;
    QUrl Correo() const; // with the scheme of mail

  private:
    bool Barra(const char *clave) const;
    void PonerBarra(const char *clave, bool visible);
    int Entero(const char *clave, int defecto) const;
    QString Texto(const char *clave, const char *defecto) const;

    QSettings &ajustes_;
};

} // namespace tarvo
