#include "desktop/ventanas/barrabusqueda.h"

#include "desktop/preguntas.h"
#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/iconos.h"
#include "desktop/ventanas/kitmenu.h"
#include "desktop/ventanas/listavista.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace tarvo {

BarraBusqueda::BarraBusqueda(const ControlesBusqueda &controles, std::vector<ModoBusqueda> modos,
                             const QString &inicial, Buscador &buscador, Preguntas &preguntas,
                             FiltroCampos &filtro)
    : QObject(controles.barra),
      c_(controles),
      modos_(std::move(modos)),
      buscador_(buscador),
      preguntas_(preguntas),
      buscar_(new QAction(IconoDe(QStringLiteral("buscar")), QStringLiteral("Buscar"), controles.barra)) {
    buscar_->setObjectName(QStringLiteral("buscar"));
    buscar_->setCheckable(true);
    buscar_->setChecked(true);
    c_.barra->addAction(buscar_);
    c_.barra->setAccessibleName(QStringLiteral("Búsqueda"));
    PonerMenu();
    c_.boton->setText(std::ranges::find(modos_, inicial, &ModoBusqueda::clave)->titulo);
    connect(buscar_, &QAction::toggled, this, &BarraBusqueda::Usar);
    connect(c_.boton, &QPushButton::clicked, this, &BarraBusqueda::Buscar);
    connect(c_.campo, &QLineEdit::textChanged, this, [this] { buscador_.Reiniciar(); });
    filtro.AlEntrar(c_.campo, [this] { Buscar(); });
    PonerTeclas(filtro);
}

void BarraBusqueda::PonerTeclas(FiltroCampos &filtro) {
    QWidget *anterior = HacerAlcanzable(*c_.barra, nullptr);
    auto *conMenu = static_cast<QToolButton *>(c_.barra->widgetForAction(buscar_));
    filtro.AlFlecha(conMenu, [conMenu](int) { conMenu->showMenu(); });
    for (QWidget *control : std::initializer_list<QWidget *>{c_.campo, c_.boton, c_.lista}) {
        QWidget::setTabOrder(anterior, control);
        anterior = control;
    }
}

// The caption is all that says which mode is in use.
const ModoBusqueda &BarraBusqueda::Modo() const {
    return *std::ranges::find(modos_, c_.boton->text(), &ModoBusqueda::titulo);
}

void BarraBusqueda::PonerMenu() {
    auto *menu = new QMenu(c_.barra);
    QList<EntradaMenu> entradas;
    for (const ModoBusqueda &modo : modos_)
        if (!modo.menu.isEmpty())
            entradas.append({modo.clave, modo.menu, QString(), modo.clave, QString(), false, {}});
    LlenarMenu(menu, entradas);
    for (const ModoBusqueda &modo : modos_)
        if (QAction *entrada = AccionDe(menu, modo.clave))
            connect(entrada, &QAction::triggered, this, [this, &modo] { ElegirModo(modo); });
    buscar_->setMenu(menu);
    static_cast<QToolButton *>(c_.barra->widgetForAction(buscar_))
        ->setPopupMode(QToolButton::MenuButtonPopup);
}

void BarraBusqueda::ElegirModo(const ModoBusqueda &modo) {
    c_.boton->setText(modo.titulo);
    buscar_->setChecked(true);
    c_.campo->setFocus();
}

void BarraBusqueda::Usar(bool si) {
    c_.campo->setEnabled(si);
    c_.boton->setEnabled(si);
    Marcar(c_.campo, "sinDatos", !si);
}

bool BarraBusqueda::EnUso() const {
    return buscar_->isChecked();
}

void BarraBusqueda::Empezar(const QString &texto) {
    buscar_->setChecked(true);
    c_.campo->setFocus();
    c_.campo->setText(texto);
}

bool BarraBusqueda::BuscarEn(const QString &clave, const QString &texto) {
    ElegirModo(*std::ranges::find(modos_, clave, &ModoBusqueda::clave));
    c_.campo->setText(texto);
    return Buscar();
}

bool BarraBusqueda::Buscar() {
    const QString texto = c_.campo->text();
    if (texto.isEmpty()) {
        c_.campo->setFocus();
        return false;
    }
    const int fila = buscador_.Buscar(*c_.lista->Lista(), {Modo().columna}, texto);
    if (fila < 0) {
        // Before the box: a key that comes while it is closing must not go to the text that was not found.
        c_.lista->setFocus();
        preguntas_.Informar(QStringLiteral("La búsqueda ha finalizado."));
        emit Terminado();
        return false;
    }
    c_.lista->SeleccionarFila(fila);
    c_.campo->selectAll();
    emit Encontrado(Modo().clave);
    return true;
}

} // namespace tarvo
