#include "shell/conmutador.h"

#include <QScopeGuard>
#include <vector>

namespace tarvo {

// A module that a handler asks about, and what the answer does to the buttons.
struct Conmutador::Rechazo {
    Modulo otro;
    Modulo pendiente;               // No: the button that is pressed one tick later
    Modulo alNoSuelta;              // No: the button that is un-pressed at once
    std::vector<Modulo> alSiSuelta; // Yes: the buttons that are un-pressed once everything is closed
};

struct Conmutador::Manejador {
    Modulo propio;
    QString estadisticas; // the spelling of the third caller that this handler knows
    std::vector<Rechazo> otros;
};

struct Conmutador::Dialogo {
    QString llamador;
    Entrada entrada;
    QString ingreso;
};

namespace {

constexpr std::array kOrdenCierre{Modulo::Stats,   Modulo::Clientes, Modulo::Articulos,
                                  Modulo::Estados, Modulo::Ventas,   Modulo::Proveedores};
// Statistics are not among the modules that a dialog closes.
constexpr std::array kOrdenDialogos{Modulo::Ventas, Modulo::Estados, Modulo::Articulos, Modulo::Proveedores,
                                    Modulo::Clientes};

} // namespace

const DatosModulo &DatosDe(Modulo modulo) {
    static const std::array<DatosModulo, 6> datos{{
        {Entrada::Ventas, QStringLiteral("Confirma que desea salir sin completar la venta?"),
         QStringLiteral("formulario de ventas")},
        {Entrada::Articulos,
         QStringLiteral("Confirma que desea salir sin completar el ingreso del artículo?"),
         QStringLiteral("formulario de artículos")},
        {Entrada::Clientes, QStringLiteral("Confirma que desea salir sin completar el ingreso del cliente?"),
         QStringLiteral("formulario de clientes")},
        {Entrada::Proveedores,
         QStringLiteral("Confirma que desea salir sin completar el ingreso del proveedor?"),
         QStringLiteral("formulario de proveedores")},
        {Entrada::Estado, QString(), QStringLiteral("formulario de estados de cuenta")},
        {Entrada::Stats, QString(), QString()},
    }};
    return datos[static_cast<std::size_t>(modulo)];
}

// The rows that look like slips are the program's own behaviour: which button is un-pressed or comes back is
// not always that of the module asked about.
const Conmutador::Manejador &Conmutador::ManejadorDe(Modulo modulo) {
    using enum Modulo;
    static const QString estadisticas = QStringLiteral("estadisticas");
    static const std::array<Manejador, 6> tabla{{
        {Ventas,
         estadisticas,
         {{Articulos, Ventas, Ventas, {Estados}},
          {Proveedores, Proveedores, Ventas, {Estados}},
          {Clientes, Clientes, Ventas, {Clientes}}}},
        {Articulos,
         estadisticas,
         {{Ventas, Ventas, Articulos, {Ventas}},
          {Clientes, Clientes, Articulos, {Clientes}},
          {Proveedores, Proveedores, Articulos, {Proveedores}}}},
        {Clientes,
         estadisticas,
         {{Ventas, Ventas, Clientes, {Ventas}},
          {Articulos, Articulos, Clientes, {Articulos}},
          {Proveedores, Proveedores, Articulos, {Proveedores}}}},
        {Proveedores,
         QStringLiteral("estadísticas"),
         {{Ventas, Ventas, Proveedores, {Ventas}},
          {Articulos, Articulos, Proveedores, {Articulos}},
          {Clientes, Clientes, Proveedores, {Clientes}}}},
        {Estados,
         estadisticas,
         {{Ventas, Ventas, Estados, {Ventas}},
          {Articulos, Clientes, Estados, {Articulos}},
          {Proveedores, Proveedores, Estados, {Proveedores, Estados}},
          {Clientes, Clientes, Estados, {Clientes}}}},
        {Stats,
         estadisticas,
         {{Ventas, Ventas, Stats, {Ventas}},
          {Articulos, Articulos, Stats, {Articulos}},
          {Proveedores, Ventas, Stats, {Proveedores}},
          {Clientes, Clientes, Stats, {Clientes}}}},
    }};
    return tabla[static_cast<std::size_t>(modulo)];
}

const Conmutador::Dialogo &Conmutador::Opciones() {
    static const Dialogo dialogo{QStringLiteral("opciones"), Entrada::Opciones,
                                 QStringLiteral("las opciones del programa")};
    return dialogo;
}

const Conmutador::Dialogo &Conmutador::Respaldo() {
    static const Dialogo dialogo{QStringLiteral("respaldo"), Entrada::Respaldar,
                                 QStringLiteral("las opciones de respaldo")};
    return dialogo;
}

Conmutador::Conmutador(TableroModulos &tablero, VentanasModulos &ventanas, Preguntas &preguntas)
    : tablero_(tablero), ventanas_(ventanas), preguntas_(preguntas) {}

void Conmutador::mnuVentas() {
    Ejecutar(Modulo::Ventas);
}
void Conmutador::mnuArticulos() {
    Ejecutar(Modulo::Articulos);
}
void Conmutador::mnuClientes() {
    Ejecutar(Modulo::Clientes);
}
void Conmutador::mnuProveedores() {
    Ejecutar(Modulo::Proveedores);
}
void Conmutador::mnuEstadosClientes() {
    Ejecutar(Modulo::Estados);
}
void Conmutador::mnuStats() {
    Ejecutar(Modulo::Stats);
}

bool Conmutador::Marcado(Modulo modulo) const {
    return tablero_.MenuMarcado(DatosDe(modulo).entrada);
}

bool Conmutador::EnCurso(Modulo modulo) const {
    return !DatosDe(modulo).alSalir.isEmpty() && Marcado(modulo) && ventanas_.EntradaEnCurso(modulo);
}

bool Conmutador::Pregunta(const QString &texto) {
    return preguntas_.Confirma(texto, Respuesta::No);
}

void Conmutador::Pendiente(Modulo modulo) {
    botonPendiente_ = modulo;
    tablero_.IniciarTimer1();
}

void Conmutador::Timer1_Timer() {
    if (botonPendiente_)
        tablero_.PresionarBoton(DatosDe(*botonPendiente_).entrada, true);
    botonPendiente_.reset();
}

void Conmutador::Soltar(Modulo modulo) {
    tablero_.PresionarBoton(DatosDe(modulo).entrada, false);
}

void Conmutador::Desmarcar(Modulo modulo) {
    tablero_.MarcarMenu(DatosDe(modulo).entrada, false);
    Soltar(modulo);
}

void Conmutador::CerrarModulo(Modulo modulo) {
    Desmarcar(modulo);
    ventanas_.Cerrar(modulo);
}

void Conmutador::CerrarModulos() {
    for (const Modulo modulo : kOrdenCierre) {
        if (Marcado(modulo))
            CerrarModulo(modulo);
    }
}

void Conmutador::AbrirModulo(Modulo modulo) {
    CerrarModulos();
    tablero_.MarcarMenu(DatosDe(modulo).entrada, true);
    // A window that could not be made must not leave its entry checked.
    auto sinVentana = qScopeGuard([this, modulo] { Desmarcar(modulo); });
    ventanas_.Mostrar(modulo);
    sinVentana.dismiss();
    tablero_.PresionarBoton(DatosDe(modulo).entrada, true);
}

void Conmutador::Ejecutar(Modulo modulo) {
    const Manejador &manejador = ManejadorDe(modulo);
    if (llamador_ == Opciones().llamador || llamador_ == Respaldo().llamador ||
        llamador_ == manejador.estadisticas) {
        Responder(modulo);
        return;
    }
    if (!PuedeConmutar(manejador))
        return;
    if (Marcado(modulo))
        CerrarModulo(modulo);
    else
        AbrirModulo(modulo);
    puedeCerrar_ = false;
}

// Nothing is closed here: the caller does it.
void Conmutador::Responder(Modulo modulo) {
    puedeCerrar_ = !EnCurso(modulo) || Pregunta(DatosDe(modulo).alSalir);
    if (!puedeCerrar_)
        Pendiente(modulo);
}

// The module that is open is told by its menu check, not by the buttons: after some refusals a second button
// looks pressed, and an entry must not be lost because of it.
bool Conmutador::PuedeConmutar(const Manejador &manejador) {
    const Modulo propio = manejador.propio;
    if (Marcado(propio)) {
        if (!EnCurso(propio) || Pregunta(DatosDe(propio).alSalir))
            return true;
        Pendiente(propio);
        return false;
    }
    for (const Rechazo &otro : manejador.otros) {
        if (EnCurso(otro.otro) && !PuedeDejar(otro))
            return false;
    }
    return true;
}

bool Conmutador::PuedeDejar(const Rechazo &otro) {
    if (!Pregunta(DatosDe(otro.otro).alSalir)) {
        Soltar(otro.alNoSuelta);
        Pendiente(otro.pendiente);
        return false;
    }
    CerrarModulos();
    for (const Modulo modulo : otro.alSiSuelta)
        Soltar(modulo);
    return true;
}

void Conmutador::mnuOpciones() {
    const auto fin = qScopeGuard([this] {
        abrirDisenador_ = false;
        tablero_.PresionarBoton(Opciones().entrada, false);
    });
    if (Despejar(Opciones()))
        ventanas_.MostrarOpciones(abrirDisenador_);
}

void Conmutador::mnuRespaldar() {
    const auto fin = qScopeGuard([this] { tablero_.PresionarBoton(Respaldo().entrada, false); });
    if (Despejar(Respaldo()))
        ventanas_.MostrarRespaldo();
}

void Conmutador::mnuFactura() {
    abrirDisenador_ = true;
    mnuOpciones();
}

// Closes the module of the first pressed button, with its questions; false when the operator refused. A
// button that stayed pressed after a refusal, with its module closed, is passed over: the module that is open
// must not stay behind the dialog.
bool Conmutador::Despejar(const Dialogo &dialogo) {
    for (const Modulo modulo : kOrdenDialogos) {
        if (tablero_.BotonPresionado(DatosDe(modulo).entrada) && Marcado(modulo))
            return DespejarModulo(modulo, dialogo);
    }
    return true;
}

bool Conmutador::DespejarModulo(Modulo modulo, const Dialogo &dialogo) {
    const QString aviso = QStringLiteral("Al ingresar a %1 se cerrará el %2.\nDesea continuar?")
                              .arg(dialogo.ingreso, DatosDe(modulo).formulario);
    if (!EnCurso(modulo) && !Pregunta(aviso))
        return false;
    if (modulo == Modulo::Estados) {
        mnuEstadosClientes();
        return true;
    }
    puedeCerrar_ = true;
    {
        const auto fin = qScopeGuard([this] { llamador_.clear(); });
        llamador_ = dialogo.llamador;
        Ejecutar(modulo);
    }
    if (!puedeCerrar_)
        return false;
    puedeCerrar_ = false;
    CerrarModulo(modulo);
    return true;
}

bool Conmutador::AbrirEstados() {
    if (!Marcado(Modulo::Estados))
        mnuEstadosClientes();
    return Marcado(Modulo::Estados);
}

void Conmutador::mnuDevContado() {
    if (AbrirEstados())
        ventanas_.EjecutarContado();
}

void Conmutador::mnuDevCliente() {
    if (AbrirEstados())
        ventanas_.EjecutarPorCliente();
}

void Conmutador::mnuCalc() {
    if (tablero_.MenuMarcado(Entrada::Calculadora)) {
        ventanas_.CerrarCalculadora();
        CalculadoraCerrada();
        return;
    }
    ventanas_.MostrarCalculadora();
    tablero_.MarcarMenu(Entrada::Calculadora, true);
    tablero_.PresionarBoton(Entrada::Calculadora, true);
}

void Conmutador::CalculadoraCerrada() {
    tablero_.MarcarMenu(Entrada::Calculadora, false);
    tablero_.PresionarBoton(Entrada::Calculadora, false);
}

} // namespace tarvo
