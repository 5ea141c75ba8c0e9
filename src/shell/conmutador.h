// The rule of the workspace: one module window is open at a time and a half-done entry is never lost
// silently.
//
// Every menu entry, function key and toolbar button of a module runs the handler of that name. The rule knows
// no window: it reads and sets the menu checks and toolbar buttons through TableroModulos and opens, closes
// and asks the windows through VentanasModulos. Which handler asks about which modules, in which order, and
// what a refusal does to the buttons, is one table in conmutador.cpp.
//
// A click on a toolbar button has toggled it before its handler runs, so a refused switch notes in
// `botonPendiente` which button must look pressed, and the tick of Timer1 presses it.
#pragma once

#include "desktop/preguntas.h"
#include "shell/entradas.h"

#include <QString>

#include <array>
#include <optional>

namespace tarvo {

enum class Modulo { Ventas, Articulos, Clientes, Proveedores, Estados, Stats };
inline constexpr std::array kModulos{Modulo::Ventas,      Modulo::Articulos, Modulo::Clientes,
                                     Modulo::Proveedores, Modulo::Estados,   Modulo::Stats};

// What is fixed about a module: its entry and its part of the questions. A module whose `alSalir` is empty
// never has an entry in progress.
struct DatosModulo {
    Entrada entrada;
    QString alSalir;    // question when an entry is in progress
    QString formulario; // "formulario de ventas", in the dialogs' questions
};
const DatosModulo &DatosDe(Modulo modulo);

// Menu checks, toolbar buttons and Timer1 of the main window.
class TableroModulos {
  public:
    virtual ~TableroModulos() = default;
    virtual bool MenuMarcado(Entrada entrada) const = 0;
    virtual void MarcarMenu(Entrada entrada, bool valor) = 0;
    virtual bool BotonPresionado(Entrada entrada) const = 0;
    virtual void PresionarBoton(Entrada entrada, bool valor) = 0;
    virtual void IniciarTimer1() = 0; // one tick, once the current event has ended
};

// The windows behind the entries. Cerrar and CerrarCalculadora do nothing when the window is not open.
class VentanasModulos {
  public:
    virtual ~VentanasModulos() = default;
    virtual bool EntradaEnCurso(Modulo modulo) const = 0;
    virtual void Mostrar(Modulo modulo) = 0;
    virtual void Cerrar(Modulo modulo) = 0;
    virtual void MostrarOpciones(bool abrirDisenador) = 0; // modal
    virtual void MostrarRespaldo() = 0;                    // modal
    virtual void EjecutarContado() = 0;                    // on the open statements
    virtual void EjecutarPorCliente() = 0;
    virtual void MostrarCalculadora() = 0;
    virtual void CerrarCalculadora() = 0;
};

class Conmutador {
  public:
    Conmutador(TableroModulos &tablero, VentanasModulos &ventanas, Preguntas &preguntas);

    void mnuVentas();
    void mnuArticulos();
    void mnuClientes();
    void mnuProveedores();
    void mnuEstadosClientes();
    void mnuStats();

    void mnuOpciones();
    void mnuRespaldar();
    void mnuFactura();
    void mnuDevContado();
    void mnuDevCliente();
    void mnuCalc();

    // Closes whatever module is open and asks nothing.
    void CerrarModulos();
    // The calculator was closed by its own means.
    void CalculadoraCerrada();
    // The tick of Timer1.
    void Timer1_Timer();

    // Who runs a module handler: "opciones", "respaldo", "estadisticas" or nobody. With a caller the handler
    // only answers in `puedeCerrar` whether its module may be closed. The rule itself calls by the first two;
    // the third is kept for a caller from outside, which names itself, asks and reads the answer.
    void PonerLlamador(const QString &llamador) { llamador_ = llamador; }
    bool puedeCerrar() const { return puedeCerrar_; }
    const std::optional<Modulo> &botonPendiente() const { return botonPendiente_; }

  private:
    struct Manejador;
    struct Rechazo;
    struct Dialogo;
    static const Manejador &ManejadorDe(Modulo modulo);
    static const Dialogo &Opciones();
    static const Dialogo &Respaldo();

    bool Marcado(Modulo modulo) const;
    bool EnCurso(Modulo modulo) const;
    bool Pregunta(const QString &texto);
    void Pendiente(Modulo modulo);
    void Soltar(Modulo modulo);
    void Desmarcar(Modulo modulo);
    void CerrarModulo(Modulo modulo);
    void AbrirModulo(Modulo modulo);

    void Ejecutar(Modulo modulo);
    void Responder(Modulo modulo);
    bool PuedeConmutar(const Manejador &manejador);
    bool PuedeDejar(const Rechazo &otro);

    bool Despejar(const Dialogo &dialogo);
    bool DespejarModulo(Modulo modulo, const Dialogo &dialogo);
    bool AbrirEstados();

    TableroModulos &tablero_;
    VentanasModulos &ventanas_;
    Preguntas &preguntas_;
    bool puedeCerrar_ = false;
    bool abrirDisenador_ = false;
    QString llamador_;
    std::optional<Modulo> botonPendiente_;
};

} // namespace tarvo
