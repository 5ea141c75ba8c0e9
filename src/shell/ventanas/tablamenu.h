// The menu and the toolbar of the main window as data: keys, captions, shortcuts, pictures, help texts.
#pragma once

#include "desktop/ventanas/kitmenu.h"

#include <vector>

class QToolBar;

namespace tarvo {

struct MenuSuperior {
    QString titulo;
    QList<EntradaMenu> entradas;
};
const std::vector<MenuSuperior> &MenuPrincipal();

// The popup of the toolbar button "ayuda".
const QList<EntradaMenu> &MenuAyuda();

struct BotonBarra {
    QString clave; // empty: a separator
    QString texto;
    QString ayuda; // tooltip
    QString imagen;
    bool marcable = true;
};
const std::vector<BotonBarra> &BotonesPrincipal();

// Adds the buttons as actions of the toolbar, each named by its key.
void LlenarBarra(QToolBar *barra, const std::vector<BotonBarra> &botones);

} // namespace tarvo
