// Menus from a table: each entry's key, caption, shortcut, picture and help text are data.
#pragma once

#include <QList>
#include <QString>

class QAction;
class QMenu;
class QToolBar;
class QMenuBar;
class QWidget;

namespace tarvo {

struct EntradaMenu {
    QString clave; // objectName of the action; empty with an empty caption: a separator
    QString texto;
    QString atajo{};
    QString imagen{};
    QString ayuda{}; // shown in the status bar
    bool marcable = false;
    QList<EntradaMenu> submenu{};

    bool EsSeparador() const { return clave.isEmpty() && texto.isEmpty(); }
};

// Adds the entries to `menu`, of which the Enter of a scan chooses none. The actions belong to it and carry
// their key as objectName; a submenu's action too.
void LlenarMenu(QMenu *menu, const QList<EntradaMenu> &entradas);
// Lets the Tab key reach the buttons of `barra`, which come right after `anterior` (null: where they stand).
// Returns the last one.
QWidget *HacerAlcanzable(const QToolBar &barra, QWidget *anterior);
// Action of that key below `raiz`, null when there is none.
QAction *AccionDe(const QWidget *raiz, const QString &clave);

} // namespace tarvo
