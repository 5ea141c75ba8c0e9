#include "desktop/ventanas/kitmenu.h"

#include "desktop/ventanas/iconos.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QToolBar>

namespace tarvo {

namespace {

void Vestir(QAction *accion, const EntradaMenu &entrada) {
    accion->setObjectName(entrada.clave);
    accion->setText(entrada.texto);
    accion->setIcon(IconoDe(entrada.imagen));
    accion->setStatusTip(entrada.ayuda);
    accion->setCheckable(entrada.marcable);
    accion->setShortcut(QKeySequence(entrada.atajo, QKeySequence::PortableText));
}

} // namespace

void LlenarMenu(QMenu *menu, const QList<EntradaMenu> &entradas) {
    for (const EntradaMenu &entrada : entradas) {
        if (entrada.EsSeparador()) {
            menu->addSeparator();
            continue;
        }
        if (entrada.submenu.isEmpty()) {
            Vestir(menu->addAction(entrada.texto), entrada);
            continue;
        }
        QMenu *submenu = menu->addMenu(entrada.texto);
        Vestir(submenu->menuAction(), entrada);
        LlenarMenu(submenu, entrada.submenu);
    }
}

QWidget *HacerAlcanzable(const QToolBar &barra, QWidget *anterior) {
    for (QAction *accion : barra.actions()) {
        QWidget *boton = barra.widgetForAction(accion);
        if (accion->isSeparator() || boton == nullptr)
            continue;
        boton->setFocusPolicy(Qt::TabFocus);
        if (anterior != nullptr)
            QWidget::setTabOrder(anterior, boton);
        anterior = boton;
    }
    return anterior;
}

QAction *AccionDe(const QWidget *raiz, const QString &clave) {
    return raiz->findChild<QAction *>(clave);
}

} // namespace tarvo
