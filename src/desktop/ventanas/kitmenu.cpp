#include "desktop/ventanas/kitmenu.h"

#include "desktop/ventanas/iconos.h"
#include "desktop/ventanas/ritmoteclas.h"

#include <QAction>
#include <QKeyEvent>
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

// The Enter of a scan chooses no entry.
class SinLectura final : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject *menu, QEvent *evento) override {
        if (evento->type() != QEvent::KeyPress)
            return false;
        const auto &tecla = *static_cast<QKeyEvent *>(evento);
        ritmo_.Apuntar(static_cast<QWidget *>(menu), tecla);
        return EsEntrar(tecla.key()) && !ritmo_.Leido().isEmpty();
    }

  private:
    RitmoTeclas ritmo_;
};

} // namespace

void LlenarMenu(QMenu *menu, const QList<EntradaMenu> &entradas) {
    menu->installEventFilter(new SinLectura(menu));
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
