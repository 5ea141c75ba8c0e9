#include "documents/ventanas/frmfacturaadmin.h"

#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/tamano.h"
#include "documents/disenador.h"
#include "ui_frmfacturaadmin.h"

#include <QHeaderView>

namespace tarvo {

FrmFacturaAdmin::FrmFacturaAdmin(Disenador &disenador, QWidget *padre)
    : Dialogo(padre),
      disenador_(disenador),
      ui_(std::make_unique<Ui::FrmFacturaAdmin>()),
      campos_({{.titulo = QStringLiteral("Campo"), .ancho = 6000}}) {
    ui_->setupUi(this);
    resize(LoQueCabe(*this, size() * Crecido()));
    auto *filtro = new FiltroCampos(this);
    filtro->AlEscapar([this] {
        reject();
        return true;
    });
    Llenar();
    connect(ui_->chkLogo, &QCheckBox::toggled, this,
            [this](bool si) { disenador_.PonerVisible(pieza::kLogo, si); });
    connect(&campos_, &ListaTexto::MarcaPulsada, this, &FrmFacturaAdmin::Cambio);
    connect(ui_->cmdSelTodo, &QPushButton::clicked, this, [this] {
        for (int fila = campos_.Filas() - 1; fila >= 0; --fila)
            Marcar(fila, true);
    });
    connect(ui_->cmdSelInvertir, &QPushButton::clicked, this, [this] {
        for (int fila = campos_.Filas() - 1; fila >= 0; --fila)
            Marcar(fila, !campos_.Marcada(fila));
    });
}

FrmFacturaAdmin::~FrmFacturaAdmin() = default;

void FrmFacturaAdmin::Llenar() {
    ui_->chkLogo->setChecked(disenador_.De(pieza::kLogo).visible);
    campos_.PonerMarcable(true);
    for (int fila = 0; fila < pieza::kLogo; ++fila)
        campos_.AgregarFila({disenador_.Rotulo(fila)});
    for (int fila = 0; fila < pieza::kLogo; ++fila)
        campos_.Marcar(fila, disenador_.De(fila).visible);
    ui_->lstCampos->Mostrar(&campos_);
    ui_->lstCampos->header()->setSectionsClickable(false); // rows are fields by their number
    ui_->lstCampos->SeleccionarFila(0);
}

void FrmFacturaAdmin::Marcar(int fila, bool marcada) {
    campos_.Marcar(fila, marcada);
    Cambio();
}

// Each change writes all marks.
void FrmFacturaAdmin::Cambio() {
    for (int fila = 0; fila < pieza::kLogo; ++fila)
        disenador_.PonerVisible(fila, campos_.Marcada(fila));
}

} // namespace tarvo
