#include "masterdata/ventanas/frmusuarios.h"

#include "desktop/preguntas.h"
#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/tamano.h"
#include "masterdata/usuarioslogica.h"
#include "masterdata/ventanas/controlesdetalle.h"
#include "store/errordatos.h"
#include "store/store.h"
#include "ui_frmusuarios.h"

#include <QTimer>

namespace tarvo {

namespace {

constexpr int kFilasSinBarra = 9;
constexpr int kAnchoConBarra = 4620; // twips
constexpr int kAnchoSinBarra = 4850;

} // namespace

FrmUsuarios::FrmUsuarios(const Servicios &servicios, QWidget *padre)
    : Dialogo(padre),
      ui_(std::make_unique<Ui::FrmUsuarios>()),
      controles_(nullptr),
      Timer1(new QTimer(this)) {
    ui_->setupUi(this);
    ui_->txtUsuClaveOculta->hide();
    ui_->LVUsuarios->PonerTextoVacio(QStringLiteral("Todavía no hay usuarios. Nuevo agrega el primero."));
    controles_ = new ControlesDetalle(this, ui_->LVUsuarios, QStringLiteral("Usu"));
    logica_ = std::make_unique<UsuariosLogica>(
        servicios.frmBases, servicios.preguntas, *controles_,
        UsuariosLogica::Acciones{[this](bool pide) { HabilitarConfirmacion(pide); },
                                 [this] { Timer1->start(); }});
    controles_->Montar(*logica_);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(1);
    Timer1->setSingleShot(true);
    connect(Timer1, &QTimer::timeout, this, [this] {
        if (!logica_->EntradaEnCurso())
            logica_->LlenarLista();
    });
    connect(ui_->txtUsuClave, &QLineEdit::textChanged, this, [this] { logica_->VigilarClave(); });
    connect(controles_, &ControlesDetalle::FilasCambiadas, this, &FrmUsuarios::AjustarColumnas);
    connect(ui_->cmdCerrar, &QPushButton::clicked, this, &QDialog::reject);
    ConectarTeclas();
    logica_->LlenarLista();
    controles_->EnfocarLista();
    resize(LoQueCabe(*this, size() * Crecido()));
}

FrmUsuarios::~FrmUsuarios() = default;

void FrmUsuarios::ConectarTeclas() {
    auto *filtro = new FiltroCampos(this);
    controles_->ConectarTeclas(*filtro);
    filtro->AlEntrar(ui_->txtUsuNombre, [this] { ui_->cboxCategoria->setFocus(); });
    filtro->AlEntrar(ui_->cboxCategoria, [this] { ui_->txtUsuClave->setFocus(); });
    filtro->AlEntrar(ui_->txtUsuClave, [this] {
        logica_->PideConfirmacion() ? ui_->txtUsuConfirma->setFocus() : logica_->Guardar();
    });
    filtro->AlEntrar(ui_->txtUsuConfirma, [this] { logica_->Guardar(); });
}

void FrmUsuarios::HabilitarConfirmacion(bool pide) {
    ui_->txtUsuConfirma->setEnabled(pide);
    Marcar(ui_->txtUsuConfirma, "sinDatos", !pide);
}

void FrmUsuarios::AjustarColumnas() {
    const bool conBarra = logica_->Lista().Filas() > kFilasSinBarra;
    ui_->LVUsuarios->PonerAncho(1, conBarra ? kAnchoConBarra : kAnchoSinBarra);
}

void MostrarUsuarios(const Servicios &servicios, QWidget *padre) {
    try {
        servicios.frmBases.AbrirUsuarios();
    } catch (const ErrorDatos &error) {
        servicios.preguntas.Mostrar(error.Descripcion(), Icono::Critico);
        return;
    }
    FrmUsuarios(servicios, padre).exec();
}

} // namespace tarvo
