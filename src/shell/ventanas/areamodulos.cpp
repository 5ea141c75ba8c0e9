#include "shell/ventanas/areamodulos.h"

#include "desktop/anfitrion.h"

#include <QApplication>
#include <QScrollArea>

namespace tarvo {

AreaModulos::AreaModulos(QScrollArea &area, Anfitrion &anfitrion, Composicion composicion)
    : area_(area), anfitrion_(anfitrion), composicion_(std::move(composicion)) {}

AreaModulos::~AreaModulos() {
    blockSignals(true);
    delete calculadora_;
    delete abierta_;
}

bool AreaModulos::EntradaEnCurso(Modulo modulo) const {
    return abierta_ && cual_ == modulo && abierta_->EntradaEnCurso();
}

void AreaModulos::Mostrar(Modulo modulo) {
    abierta_ = composicion_.modulos.at(modulo)(anfitrion_, &area_);
    cual_ = modulo;
    // What the window chose to have the keyboard while it was not visible gets it now.
    QWidget *const elegido = abierta_->focusWidget();
    emit Cambio(true);
    area_.setWidget(abierta_);
    abierta_->show();
    if (!abierta_->isAncestorOf(QApplication::focusWidget()))
        (elegido != nullptr ? elegido : abierta_.data())->setFocus();
}

void AreaModulos::Cerrar(Modulo modulo) {
    if (!abierta_ || cual_ != modulo)
        return;
    abierta_->close();
    delete abierta_;
    cual_.reset();
    emit Cambio(false);
    anfitrion_.PonerExportable(false);
    anfitrion_.Sugerencia(QString());
}

void AreaModulos::MostrarOpciones(bool abrirDisenador) {
    composicion_.opciones(abrirDisenador, area_.window());
}

void AreaModulos::MostrarRespaldo() {
    composicion_.respaldo(area_.window());
}

void AreaModulos::EjecutarContado() {
    composicion_.devContado(*abierta_);
}

void AreaModulos::EjecutarPorCliente() {
    composicion_.devCliente(*abierta_);
}

void AreaModulos::MostrarCalculadora() {
    calculadora_ = composicion_.calculadora(area_.window());
    calculadora_->setAttribute(Qt::WA_DeleteOnClose);
    connect(calculadora_, &QObject::destroyed, this, &AreaModulos::CalculadoraCerrada);
    calculadora_->show();
}

void AreaModulos::CerrarCalculadora() {
    if (!calculadora_)
        return;
    // It is destroyed later, when another one may be open.
    disconnect(calculadora_, nullptr, this, nullptr);
    calculadora_->close();
    calculadora_.clear();
}

void AreaModulos::Exportar() {
    const std::optional<Exportable> lista = abierta_ ? abierta_->ParaExportar() : std::nullopt;
    if (lista)
        composicion_.exportar(*lista);
}

} // namespace tarvo
