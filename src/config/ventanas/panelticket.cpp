#include "config/ventanas/panelticket.h"

#include "config/listaimpresoras.h"
#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/iconos.h"
#include "desktop/ventanas/kitmenu.h"
#include "desktop/ventanas/teclas.h"
#include "ui_panelticket.h"

#include <QAction>

namespace tarvo {

namespace {

void PonerNegrita(QWidget *control, bool si) {
    QFont letra = control->font();
    letra.setBold(si);
    control->setFont(letra);
}

} // namespace

PanelTicket::PanelTicket(const Servicios &servicios, const ListaImpresoras &impresoras, QWidget *padre)
    : QFrame(padre), ui_(std::make_unique<Ui::PanelTicket>()), ticket_(servicios), impresoras_(impresoras) {
    ui_->setupUi(this);
    setFocusProxy(ui_->txtLinea1);
    CrearAcciones();
    PonerTecla(ui_->cmdGuardarTicket, Qt::CTRL | Qt::Key_G);
    connect(ui_->cmdGuardarTicket, &QPushButton::clicked, this, [this] { ticket_.Guardar(Lineas()); });
    connect(ui_->cmdCerrarTicket, &QPushButton::clicked, this, &PanelTicket::CierrePedido);
}

PanelTicket::~PanelTicket() = default;

void PanelTicket::CrearAcciones() {
    const std::array textos{ui_->txtLinea1, ui_->txtLinea2, ui_->txtLinea3, ui_->txtLinea4, ui_->txtlinea5};
    const std::array barras{ui_->tbrNegrita1, ui_->tbrNegrita2, ui_->tbrNegrita3, ui_->tbrNegrita4,
                            ui_->tbrNegrita5};
    for (std::size_t i = 0; i < lineas_.size(); ++i) {
        QAction *accion = barras[i]->addAction(QStringLiteral("N"));
        accion->setObjectName(QStringLiteral("negrita"));
        accion->setCheckable(true);
        accion->setToolTip(QStringLiteral("Negrita"));
        QWidget *boton = barras[i]->widgetForAction(accion);
        boton->setAccessibleName(QStringLiteral("Negrita, línea %1").arg(i + 1));
        PonerNegrita(boton, true);
        HacerAlcanzable(*barras[i], textos[i]);
        connect(accion, &QAction::toggled, textos[i],
                [texto = textos[i]](bool si) { PonerNegrita(texto, si); });
        lineas_[i] = {textos[i], accion};
    }
    QAction *prueba =
        ui_->tbrTicket->addAction(IconoDe(QStringLiteral("imprimir")), QStringLiteral("Ticket de prueba"));
    prueba->setObjectName(QStringLiteral("prueba"));
    connect(prueba, &QAction::triggered, this,
            [this] { ticket_.ImprimirPrueba(Lineas(), impresoras_.Elegida()); });
    HacerAlcanzable(*ui_->tbrTicket, barras.back()->widgetForAction(lineas_.back().negrita));
}

// Enter goes from line to line, past the bold buttons.
void PanelTicket::ConectarTeclas(FiltroCampos &filtro) {
    for (std::size_t i = 0; i + 1 < lineas_.size(); ++i)
        filtro.AlEntrar(lineas_[i].texto, [siguiente = lineas_[i + 1].texto] { siguiente->setFocus(); });
    filtro.AlEntrar(lineas_.back().texto, [this] { ui_->cmdGuardarTicket->setFocus(); });
}

void PanelTicket::Cargar() {
    const Cabecera cabecera = ticket_.Cargar();
    for (std::size_t i = 0; i < lineas_.size(); ++i) {
        lineas_[i].texto->setText(cabecera[i].texto);
        lineas_[i].negrita->setChecked(cabecera[i].negrita);
    }
}

Cabecera PanelTicket::Lineas() const {
    Cabecera lineas;
    for (std::size_t i = 0; i < lineas.size(); ++i)
        lineas[i] = {lineas_[i].texto->text(), lineas_[i].negrita->isChecked()};
    return lineas;
}

} // namespace tarvo
