#include "config/ventanas/panelimpresion.h"

#include "desktop/escritorio.h"
#include "desktop/preguntas.h"
#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/solocaracteres.h"
#include "documents/impresoras.h"
#include "ui_panelimpresion.h"

#include <QScopedValueRollback>

namespace tarvo {

PanelImpresion::PanelImpresion(const Servicios &servicios, QWidget *padre)
    : QWidget(padre),
      servicios_(servicios),
      ui_(std::make_unique<Ui::PanelImpresion>()),
      detalle_(servicios),
      ticket_(servicios.ajustes, QStringLiteral("ImpTick"), QStringLiteral("Impresora para facturas")),
      listado_(servicios.ajustes, QStringLiteral("ImpList"), QStringLiteral("Impresora para listados")) {
    ui_->setupUi(this);
    SoloCaracteres(ui_->txtLinDetalle, QStringLiteral("0123456789"));
    ui_->FSBLinDetalle->Acompanar(ui_->txtLinDetalle, LineasDetalle::kMinimo, LineasDetalle::kMaximo);
    connect(ui_->txtLinDetalle, &QLineEdit::textChanged, this, [this](const QString &texto) {
        if (!llenando_)
            detalle_.Escribir(texto);
    });
    Conectar(ticket_, ui_->LVImpTick);
    Conectar(listado_, ui_->LVImpList);
    connect(ui_->cmdImpActualizar, &QPushButton::clicked, this, &PanelImpresion::LlenarImpresoras);
    connect(ui_->cmdImpAgregar, &QPushButton::clicked, this, &PanelImpresion::AgregarImpresora);
    connect(ui_->cmdTicket, &QPushButton::clicked, this, &PanelImpresion::DisenadorPedido);
    connect(ui_->cmdLineasTicket, &QPushButton::clicked, this, &PanelImpresion::LineasTicketPedidas);
}

PanelImpresion::~PanelImpresion() = default;

void PanelImpresion::Conectar(ListaImpresoras &impresoras, ListaVista *vista) {
    vista->Mostrar(&impresoras.Lista());
    connect(vista, &ListaVista::FilaPulsada, &impresoras, [this, &impresoras](int fila) {
        if (!llenando_)
            impresoras.Elegir(fila);
    });
    connect(&impresoras, &ListaImpresoras::FilaElegida, vista, &ListaVista::SeleccionarFila);
    connect(&impresoras, &ListaImpresoras::NoGuardada, this, [this] {
        servicios_.preguntas.Mostrar(
            QStringLiteral("No se pudo guardar la impresora elegida: vale hasta cerrar el programa."),
            Icono::Critico);
    });
}

void PanelImpresion::LlenarImpresoras() {
    const QScopedValueRollback llenando(llenando_, true);
    const QStringList nombres = servicios_.impresoras.Nombres();
    ticket_.Llenar(nombres);
    listado_.Llenar(nombres);
    for (auto [vista, impresoras] : {std::pair{ui_->LVImpTick, &ticket_}, {ui_->LVImpList, &listado_}}) {
        vista->PonerAncho(0, impresoras->Ancho());
        vista->SeleccionarFila(nombres.isEmpty() ? -1 : 0);
    }
}

void PanelImpresion::CargarDetalle() {
    const QScopedValueRollback llenando(llenando_, true);
    ui_->txtLinDetalle->setText(detalle_.Cargar());
}

void PanelImpresion::ConectarTeclas(FiltroCampos &filtro) {
    filtro.AlFlecha(ui_->txtLinDetalle, [this](int paso) { ui_->FSBLinDetalle->Paso(paso); });
    filtro.AlFoco(ui_->txtLinDetalle, [this](bool entra) {
        if (!entra && isVisible())
            PermiteSalirDeDetalle();
    });
}

bool PanelImpresion::PermiteSalirDeDetalle() {
    if (detalle_.Admite(ui_->txtLinDetalle->text()))
        return true;
    ui_->txtLinDetalle->setText(QString::number(LineasDetalle::kMaximo));
    ui_->txtLinDetalle->setFocus();
    ui_->txtLinDetalle->selectAll();
    return false;
}

// Also while the window isn't active again, just after a message.
bool PanelImpresion::EnDetalle() const {
    return window()->focusWidget() == ui_->txtLinDetalle;
}

QWidget *PanelImpresion::BotonLineasTicket() const {
    return ui_->cmdLineasTicket;
}

void PanelImpresion::AgregarImpresora() {
    if (!servicios_.escritorio.AbrirAjustesImpresoras())
        servicios_.preguntas.Informar(
            QStringLiteral("No se pudo abrir la configuración de impresoras del sistema."));
}

} // namespace tarvo
