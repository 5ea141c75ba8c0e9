#include "shell/ventanas/acciones.h"

#include "desktop/ventanas/iconos.h"
#include "desktop/ventanas/kitmenu.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace tarvo {

namespace {

QList<EntradaMenu> LineasDe(Menu menu) {
    QList<EntradaMenu> lineas;
    for (const DatosEntrada &datos : Entradas()) {
        if (datos.menu != menu)
            continue;
        if (datos.trasSeparador)
            lineas += EntradaMenu{};
        lineas += {datos.clave.toString(),
                   datos.texto.toString(),
                   datos.atajo.toString(),
                   datos.imagen.toString(),
                   datos.ayuda.toString(),
                   datos.marcable,
                   datos.submenu ? LineasDe(*datos.submenu) : QList<EntradaMenu>()};
    }
    return lineas;
}

// "Ventas (F8)".
QString AyudaBoton(const QString &texto, const QKeySequence &atajo) {
    return atajo.isEmpty() ? texto
                           : QStringLiteral("%1 (%2)").arg(texto, atajo.toString(QKeySequence::NativeText));
}

} // namespace

Acciones::Acciones(QMenuBar &menu, QToolBar &barra) : emergente_(new QMenu(menu.window())) {
    for (const MenuSuperior &superior : kMenuPrincipal)
        LlenarMenu(menu.addMenu(superior.titulo.toString()), LineasDe(superior.menu));
    LlenarMenu(emergente_, LineasDe(Menu::Emergente));
    LlenarBarra(barra);
    for (const DatosEntrada &datos : Entradas()) {
        const QWidget *const raiz =
            datos.menu == Menu::Emergente ? static_cast<QWidget *>(emergente_) : &menu;
        menu_[datos.entrada] = AccionDe(raiz, datos.clave.toString());
        PonerAtajo(datos.entrada, DeMenu(datos.entrada)->shortcut());
        Conectar(datos.entrada);
    }
}

void Acciones::LlenarBarra(QToolBar &barra) {
    for (const std::optional<Entrada> &entrada : OrdenBarra()) {
        if (!entrada) {
            barra.addSeparator();
            continue;
        }
        const BotonBarra &boton = *DatosDe(*entrada).boton;
        QAction *const accion = barra.addAction(IconoDe(boton.imagen.toString()), boton.texto.toString());
        accion->setObjectName(boton.clave.toString());
        accion->setCheckable(boton.marcable);
        botones_[*entrada] = accion;
    }
}

void Acciones::Conectar(Entrada entrada) {
    if (!DatosDe(entrada).submenu)
        connect(DeMenu(entrada), &QAction::triggered, this, [this, entrada] { emit MenuElegido(entrada); });
    if (QAction *const boton = DeBarra(entrada))
        connect(boton, &QAction::triggered, this, [this, entrada] { emit BotonPulsado(entrada); });
}

QAction *Acciones::DeBarra(Entrada entrada) const {
    const auto boton = botones_.find(entrada);
    return boton == botones_.end() ? nullptr : boton->second;
}

void Acciones::Habilitar(Entrada entrada, bool valor) {
    DeMenu(entrada)->setEnabled(valor);
    if (QAction *const boton = DeBarra(entrada))
        boton->setEnabled(valor);
}

// The caption of "salir" tells its shortcut itself.
void Acciones::PonerAtajo(Entrada entrada, const QKeySequence &atajo) {
    DeMenu(entrada)->setShortcut(atajo);
    if (entrada == Entrada::Salir)
        DeMenu(entrada)->setText(DatosDe(entrada).texto.toString() + QLatin1Char('\t') +
                                 atajo.toString(QKeySequence::NativeText));
    if (QAction *const boton = DeBarra(entrada))
        boton->setToolTip(AyudaBoton(boton->text(), atajo));
}

} // namespace tarvo
