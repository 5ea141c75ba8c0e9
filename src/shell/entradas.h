// The registry of entries: everything that menu and toolbar of the main window offer, one row each, with its
// keys, captions, shortcut, pictures, help text and place. What else needs an entry names it by the enum.
#pragma once

#include <QStringView>

#include <array>
#include <optional>
#include <span>

namespace tarvo {

enum class Entrada {
    Exportar,
    Salir,
    BarHer,
    BarEst,
    Ventas,
    Devoluciones,
    DevContado,
    DevCliente,
    Stats,
    Clientes,
    Estado,
    Articulos,
    Proveedores,
    Opciones,
    Factura,
    PantComp,
    Respaldar,
    Calculadora,
    AyudaPdf,
    AcercaDe,
    PopAyuda,
    PopAyudaWeb,
};

// Where an entry hangs: a menu of the menu bar, the submenu of another entry, or the popup of the toolbar
// button "ayuda".
enum class Menu { Archivo, Ver, Ventas, Clientes, Articulos, Herramientas, Ayuda, Devoluciones, Emergente };

struct MenuSuperior {
    Menu menu;
    QStringView titulo;
};
// The menu bar, from left to right.
inline constexpr std::array kMenuPrincipal{
    MenuSuperior{Menu::Archivo, u"&Archivo"},     MenuSuperior{Menu::Ver, u"&Ver"},
    MenuSuperior{Menu::Ventas, u"&Ventas"},       MenuSuperior{Menu::Clientes, u"&Clientes"},
    MenuSuperior{Menu::Articulos, u"A&rtículos"}, MenuSuperior{Menu::Herramientas, u"&Herramientas"},
    MenuSuperior{Menu::Ayuda, u"A&yuda"},
};

// The toolbar button of an entry. Its key and picture are its own, not always those of the menu.
struct BotonBarra {
    QStringView clave; // objectName of the action
    QStringView texto;
    QStringView imagen;
    bool marcable = true;
};

struct DatosEntrada {
    Entrada entrada;
    Menu menu;
    QStringView clave; // objectName of the action
    QStringView texto;
    QStringView atajo{}; // the one it starts with, as portable text of a key sequence
    QStringView imagen{};
    QStringView ayuda{}; // shown in the status bar
    bool marcable = false;
    bool trasSeparador = false;
    std::optional<Menu> submenu{};
    std::optional<BotonBarra> boton{};
};

// All entries in the order of the menus.
std::span<const DatosEntrada> Entradas();
const DatosEntrada &DatosDe(Entrada entrada);

// The buttons of the toolbar in their order; nothing stands for a separator.
std::span<const std::optional<Entrada>> OrdenBarra();

} // namespace tarvo
