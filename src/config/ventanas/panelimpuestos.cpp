#include "config/ventanas/panelimpuestos.h"

#include "config/ventanas/panellista.h"
#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/solocaracteres.h"
#include "ui_panelimpuestos.h"

namespace tarvo {

namespace {

constexpr int kPorcentajeMaximo = 99; // of the arrows; more can be typed

void PrepararPorcentaje(QLineEdit *campo, Girador *girador) {
    SoloCaracteres(campo, QStringLiteral("0123456789"));
    girador->Acompanar(campo, 0, kPorcentajeMaximo);
}

} // namespace

PanelImpuestos::PanelImpuestos(const Servicios &servicios, QWidget *padre)
    : QWidget(padre), ui_(std::make_unique<Ui::PanelImpuestos>()), impuesto_(servicios) {
    ui_->setupUi(this);
    PrepararPorcentaje(ui_->txtIVAPorcentaje, ui_->FSB1);
    PrepararPorcentaje(ui_->txtPersPorcentaje, ui_->FSB2);
    lista_ = std::make_unique<PanelLista>(this, ui_->LVIVA, QStringLiteral("IVA"), servicios,
                                          ReglasIva(servicios.frmBases), kAnchoIva);
    connect(ui_->chkUtilizar, &QCheckBox::toggled, this, &PanelImpuestos::HabilitarPersonalizado);
    connect(ui_->cmdGuardarPersonalizado, &QPushButton::clicked, this, &PanelImpuestos::GuardarPersonalizado);
}

PanelImpuestos::~PanelImpuestos() = default;

void PanelImpuestos::ConectarTeclas(FiltroCampos &filtro) {
    lista_->Controles().ConectarTeclas(filtro);
    filtro.AlEntrar(ui_->txtIVAPorcentaje, [this] { ui_->cmdIVAGuardar->setFocus(); });
    filtro.AlFlecha(ui_->txtIVAPorcentaje, [this](int paso) { ui_->FSB1->Paso(paso); });
    filtro.AlFlecha(ui_->txtPersPorcentaje, [this](int paso) { ui_->FSB2->Paso(paso); });
}

void PanelImpuestos::CargarPersonalizado() {
    const ImpuestoPersonalizado datos = impuesto_.Cargar();
    ui_->chkUtilizar->setChecked(datos.utilizar);
    HabilitarPersonalizado(datos.utilizar);
    ui_->txtNomImp->setText(datos.nombre);
    ui_->txtNomImp->setCursorPosition(0);
    ui_->txtPersPorcentaje->setText(datos.porcentaje);
    ui_->chkGravarSobre->setChecked(datos.sobreIva);
    ui_->chkGravarIFiscal->setChecked(datos.exigeIFiscal);
}

void PanelImpuestos::HabilitarPersonalizado(bool utilizar) {
    const std::initializer_list<QWidget *> controles{
        ui_->lblNomImp,      ui_->txtNomImp,        ui_->lblPersPorcentaje, ui_->txtPersPorcentaje,
        ui_->chkGravarSobre, ui_->chkGravarIFiscal, ui_->lblSignoFSB2};
    for (QWidget *control : controles)
        control->setEnabled(utilizar);
}

void PanelImpuestos::GuardarPersonalizado() {
    const ImpuestoPersonalizado datos{.utilizar = ui_->chkUtilizar->isChecked(),
                                      .nombre = ui_->txtNomImp->text(),
                                      .porcentaje = ui_->txtPersPorcentaje->text(),
                                      .sobreIva = ui_->chkGravarSobre->isChecked(),
                                      .exigeIFiscal = ui_->chkGravarIFiscal->isChecked()};
    if (impuesto_.Guardar(datos) == ImpuestoLogica::Resultado::FaltaNombre)
        ui_->txtNomImp->setFocus();
}

} // namespace tarvo
