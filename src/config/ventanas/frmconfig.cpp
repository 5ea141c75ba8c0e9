#include "config/ventanas/frmconfig.h"

#include "config/nodosopciones.h"
#include "config/ventanas/panelcategorias.h"
#include "config/ventanas/panelimpresion.h"
#include "config/ventanas/panelimpuestos.h"
#include "config/ventanas/panellista.h"
#include "config/ventanas/panelticket.h"
#include "config/ventanas/panelvendedores.h"
#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/iconos.h"
#include "desktop/ventanas/paneles.h"
#include "desktop/ventanas/tamano.h"
#include "documents/ventanas/frmfactura.h"
#include "ui_frmconfig.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTimer>

namespace tarvo {

namespace {} // namespace

FrmConfig::FrmConfig(const Servicios &servicios, bool abrirDisenador, QWidget *padre)
    : Dialogo(padre), ui_(std::make_unique<Ui::FrmConfig>()), arbol_(new QStandardItemModel(this)) {
    ui_->setupUi(this);
    CrearPaneles(servicios);
    CrearArbol();
    Llenar();
    ConectarTeclas();
    SeleccionarNodo(abrirDisenador ? kNodoImpresion : 0);
    resize(LoQueCabe(*this, (size() * Crecido()).expandedTo(sizeHint())));
    const auto disenar = [this, servicios] { FrmFactura(servicios, this).exec(); };
    connect(frImpresion, &PanelImpresion::DisenadorPedido, this, disenar);
    if (abrirDisenador) // behind the showing of this window
        QTimer::singleShot(0, this, disenar);
}

FrmConfig::~FrmConfig() = default;

void FrmConfig::CrearPaneles(const Servicios &servicios) {
    frImpuestos = new PanelImpuestos(servicios);
    frCategorias = new PanelCategorias(servicios);
    frVendedores = new PanelVendedores(servicios);
    frImpresion = new PanelImpresion(servicios);
    for (QWidget *panel :
         std::initializer_list<QWidget *>{frImpuestos, frCategorias, frVendedores, frImpresion})
        ui_->paneles->addWidget(panel);
    for (PanelLista *lista : {&frImpuestos->Lista(), &frCategorias->Lista(), &frVendedores->Lista()})
        connect(&lista->Controles(), &ControlesDetalle::ListaHabilitada, ui_->TVOpciones,
                &QWidget::setEnabled);
    picTicket = new PanelTicket(servicios, frImpresion->ImpresoraTicket(), this);
    ui_->rejilla->addWidget(picTicket, 0, 0, Qt::AlignCenter);
    picTicket->hide();
    setTabOrder(picTicket->previousInFocusChain(), ui_->cmdCerrar); // behind all panels, as on screen
    connect(frImpresion, &PanelImpresion::LineasTicketPedidas, this, [this] { MostrarTicket(true); });
    connect(ui_->cmdCerrar, &QPushButton::clicked, this, &QDialog::reject);
    connect(picTicket, &PanelTicket::CierrePedido, this, [this] { MostrarTicket(false); });
}

void FrmConfig::CrearArbol() {
    for (const NodoOpciones &nodo : NodosOpciones()) {
        auto *fila = new QStandardItem(IconoDe(nodo.imagen), nodo.texto);
        fila->setData(nodo.clave, Qt::UserRole);
        arbol_->appendRow(fila);
    }
    ui_->TVOpciones->setModel(arbol_);
    ui_->TVOpciones->viewport()->installEventFilter(this);
    connect(ui_->TVOpciones->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &nodo) { MostrarPanel(nodo.row()); });
}

void FrmConfig::Llenar() {
    for (PanelLista *lista : {&frImpuestos->Lista(), &frCategorias->Lista(), &frVendedores->Lista()})
        lista->Logica().LlenarLista();
    frImpuestos->CargarPersonalizado();
    frImpresion->LlenarImpresoras();
    picTicket->Cargar();
    frImpresion->CargarDetalle();
}

void FrmConfig::ConectarTeclas() {
    auto *filtro = new FiltroCampos(this);
    frImpuestos->ConectarTeclas(*filtro);
    frCategorias->ConectarTeclas(*filtro);
    frVendedores->ConectarTeclas(*filtro);
    frImpresion->ConectarTeclas(*filtro);
    picTicket->ConectarTeclas(*filtro);
    filtro->AlEscapar([this] {
        if (picTicket->isVisible())
            MostrarTicket(false);
        else
            reject();
        return true;
    });
}

void FrmConfig::SeleccionarNodo(int nodo) {
    ui_->TVOpciones->setCurrentIndex(arbol_->index(nodo, 0));
}

void FrmConfig::MostrarPanel(int nodo) {
    const NodoOpciones &elegido = NodosOpciones().at(std::size_t(nodo));
    auto *const panel = ui_->paneles->findChild<QWidget *>(elegido.panel);
    // The panels that can't be seen ask for no room, and none begins where another one was scrolled to.
    for (QWidget *otro :
         std::initializer_list<QWidget *>{frImpuestos, frCategorias, frVendedores, frImpresion}) {
        const QSizePolicy::Policy politica = otro == panel ? QSizePolicy::Preferred : QSizePolicy::Ignored;
        otro->setSizePolicy(politica, politica);
    }
    ui_->paneles->setCurrentWidget(panel);
    for (QScrollBar *barra : {ui_->desplazable->horizontalScrollBar(), ui_->desplazable->verticalScrollBar()})
        barra->setValue(0);
    ui_->lblTitulo->setText(elegido.titulo);
}

void FrmConfig::MostrarTicket(bool visible) {
    ui_->frFondo->setEnabled(!visible);
    if (!visible) {
        CerrarPanel(*picTicket, {frImpresion->BotonLineasTicket()});
        return;
    }
    picTicket->show();
    picTicket->raise();
    picTicket->setFocus();
}

// A click gives the tree the focus before the tree sees it. When the field of the detail lines has taken the
// focus back by then, its panel stays.
bool FrmConfig::eventFilter(QObject *objeto, QEvent *evento) {
    const bool clic =
        evento->type() == QEvent::MouseButtonPress || evento->type() == QEvent::MouseButtonDblClick;
    return (clic && frImpresion->EnDetalle()) || Dialogo::eventFilter(objeto, evento);
}

void FrmConfig::done(int resultado) {
    if (frImpresion->EnDetalle() && !frImpresion->PermiteSalirDeDetalle())
        return;
    Dialogo::done(resultado);
}

} // namespace tarvo
