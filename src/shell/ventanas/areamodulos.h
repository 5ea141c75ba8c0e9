// The central area of the main window: makes, shows and destroys the window of the open module, the dialogs
// and the calculator, as the switching rule says.
#pragma once

#include "desktop/ventanas/ventanamodulo.h"
#include "shell/ventanas/composicion.h"

#include <QObject>
#include <QPointer>

#include <optional>

class QScrollArea;

namespace tarvo {

class AreaModulos : public QObject, public VentanasModulos {
    Q_OBJECT
  public:
    AreaModulos(QScrollArea &area, Anfitrion &anfitrion, Composicion composicion);
    ~AreaModulos() override;

    // The open module's window, null when none is open.
    VentanaModulo *Abierta() const { return abierta_; }
    bool HayVentana(Entrada entrada) const { return composicion_.Hay(entrada); }
    // The list of the open module.
    void Exportar();

    bool EntradaEnCurso(Modulo modulo) const override;
    void Mostrar(Modulo modulo) override;
    void Cerrar(Modulo modulo) override;
    void MostrarOpciones(bool abrirDisenador) override;
    void MostrarRespaldo() override;
    void EjecutarContado() override;
    void EjecutarPorCliente() override;
    void MostrarCalculadora() override;
    void CerrarCalculadora() override;

  signals:
    void CalculadoraCerrada();
    void Cambio(bool abierta); // a module was opened, or none is open any more

  private:
    QScrollArea &area_;
    Anfitrion &anfitrion_;
    Composicion composicion_;
    QPointer<VentanaModulo> abierta_;
    std::optional<Modulo> cual_;
    QPointer<QWidget> calculadora_;
};

} // namespace tarvo
