#include "accounts/estadoslogica.h"

#include "accounts/listadoscuenta.h"
#include "accounts/movimientonuevo.h"
#include "accounts/sumacuenta.h"
#include "desktop/preguntas.h"
#include "desktop/reloj.h"
#include "documents/impresoras.h"
#include "store/errordatos.h"
#include "store/store.h"

namespace tarvo {

namespace {

const QString kFormaFechaOrden = QStringLiteral("yyyy/MM/dd");

RangoCaja RangoDe(const PeriodoCaja &periodo) {
    return {periodo.desde.toString(kFormaFechaOrden), TextoHora(periodo.desde),
            periodo.hasta.toString(kFormaFechaOrden), TextoHora(periodo.hasta)};
}

} // namespace

EstadosLogica::EstadosLogica(const Servicios &servicios, VistaEstados &vista)
    : servicios_(servicios),
      vista_(vista),
      listas_{ListaTexto(ColumnasCuenta(ListaCuenta::Estado)),
              ListaTexto(ColumnasCuenta(ListaCuenta::Contado)),
              ListaTexto(ColumnasCuenta(ListaCuenta::Caja))} {
    for (ListaTexto &lista : listas_)
        OrdenInicial(lista);
}

const Moneda &EstadosLogica::moneda() const {
    return servicios_.frmBases.moneda();
}

void EstadosLogica::Critico(const QString &texto) {
    servicios_.preguntas.Mostrar(texto, Icono::Critico);
}

void EstadosLogica::Abrir() {
    ElegirImpresora(servicios_.impresoras, servicios_.ajustes, Proposito::Listado);
    pantalla_.saldo = moneda().FormatoMoneda(0.0, true);
    vista_.PonerCantidad(pantalla_.saldo);
    Mostrar();
}

// --- views

void EstadosLogica::PonerVista(ListaCuenta cual) {
    if (pantalla_.devolucion)
        DejarDevolucion();
    pantalla_.lista = cual;
}

void EstadosLogica::QuitarCliente() {
    pantalla_.cliente.clear();
    pantalla_.idCliente.clear();
    pantalla_.conCliente = false;
}

// Fills the visible list. False when Ventas holds no row at all, or could not be read: the build ends there
// and leaves sum and buttons as they were.
bool EstadosLogica::Llenar(const std::function<ContenidoLista(FrmBases &)> &leer) {
    FrmBases &bases = servicios_.frmBases;
    pantalla_.ocultas = false;
    QString error;
    try {
        if (bases.datVentas.Abierto()) {
            ListaVisible().Asignar(leer(bases));
            if (bases.datVentas.RecordCount() > 0)
                return true;
        }
    } catch (const ErrorDatos &e) {
        error = e.Descripcion();
    }
    ListaVisible().Limpiar();
    Mostrar();
    if (!error.isEmpty())
        Critico(error);
    return false;
}

// The end of every build. An amount that can't be added up is told when everything else stands.
void EstadosLogica::Mostrada() {
    pantalla_.exportable = true;
    Mostrar();
    SeleccionarUltima();
    CalcularSaldo();
}

void EstadosLogica::SeleccionarCliente() {
    vista_.AbrirClientes();
}

void EstadosLogica::AceptarCliente() {
    ConstruirEstado();
}

void EstadosLogica::ConstruirEstado() {
    PonerVista(ListaCuenta::Estado);
    const std::optional<ClienteElegido> cliente = vista_.Elegido();
    if (!cliente) {
        Mostrar();
        return;
    }
    pantalla_.cliente = cliente->nombre;
    pantalla_.idCliente = cliente->id;
    pantalla_.conCliente = true;
    if (!Llenar([&](FrmBases &bases) { return ContenidoEstado(bases, cliente->id); }))
        return;
    const bool hay = Visible().Filas() > 0;
    pantalla_.conRecibo = true;
    pantalla_.conImprimir = pantalla_.conEliminar = pantalla_.conDevolucion = hay;
    Mostrada();
    // A customer without rows leaves the request for the next one that has some.
    if (hay && std::exchange(activarDevolucionPendiente_, false))
        EmpezarDevolucion();
}

void EstadosLogica::VerContado() {
    ConstruirContado();
}

void EstadosLogica::ConstruirContado() {
    PonerVista(ListaCuenta::Contado);
    QuitarCliente();
    if (!Llenar(ContenidoContado))
        return;
    pantalla_.conRecibo = pantalla_.entrada = pantalla_.conEliminar = false;
    pantalla_.conImprimir = pantalla_.conDevolucion = true;
    Mostrada();
}

void EstadosLogica::AlternarCaja() {
    pantalla_.panelCaja = !pantalla_.panelCaja;
    Mostrar();
}

void EstadosLogica::VerCaja() {
    const PeriodoCaja periodo = vista_.Periodo();
    if (periodo.desde.date() > periodo.hasta.date()) {
        servicios_.preguntas.Informar(
            QStringLiteral("La fecha inicial debe ser menor o igual a la fecha final."));
        vista_.EnfocarDesde();
        return;
    }
    if (periodo.desde > periodo.hasta) {
        servicios_.preguntas.Informar(
            QStringLiteral("La hora inicial debe ser menor o igual a la hora final."));
        vista_.EnfocarDesdeHora();
        return;
    }
    PonerVista(ListaCuenta::Caja);
    QuitarCliente();
    const RangoCaja rango = RangoDe(periodo);
    if (!Llenar([&](FrmBases &bases) { return ContenidoCaja(bases, rango); }))
        return;
    pantalla_.conRecibo = pantalla_.entrada = false;
    pantalla_.conEliminar = pantalla_.conDevolucion = false;
    pantalla_.conImprimir = Visible().Filas() > 0;
    Mostrada();
}

void EstadosLogica::Reconstruir() {
    if (pantalla_.lista == ListaCuenta::Contado)
        ConstruirContado();
    else
        ConstruirEstado();
}

void EstadosLogica::SeleccionarPrimera() {
    if (Visible().Filas() > 0)
        vista_.SeleccionarFila(0);
}

// The newest movement, at the end as long as no header was clicked.
void EstadosLogica::SeleccionarUltima() {
    const ListaTexto &lista = Visible();
    const bool alFinal =
        lista.ColumnaOrden() == lista.columnCount() - 1 && lista.Orden() == Qt::AscendingOrder;
    if (alFinal && lista.Filas() > 0)
        vista_.SeleccionarFila(lista.Filas() - 1);
    else
        SeleccionarPrimera();
}

void EstadosLogica::CalcularSaldo() {
    const SumaCuenta suma = CalcularSuma(Visible(), pantalla_.lista, moneda());
    pantalla_.saldo = moneda().FormatoMoneda(suma.suma, true);
    Mostrar();
    if (suma.sinNumero > 0)
        Critico(MensajeSinNumero(Visible(), pantalla_.lista, suma));
}

void EstadosLogica::Imprimir() {
    ElegirImpresora(servicios_.impresoras, servicios_.ajustes, Proposito::Listado);
    ImprimirReporte(servicios_.impresoras, servicios_.preguntas,
                    ReporteCuenta(Visible(), pantalla_.lista, pantalla_.cliente, pantalla_.saldo),
                    Visible().Filas());
}

// The caption tells what the button does and follows the button alone: a statement built meanwhile shows the
// cash documents under either.
void EstadosLogica::OcultarContado() {
    if (pantalla_.contadoOculto) {
        pantalla_.contadoOculto = false;
        ConstruirEstado();
        return;
    }
    if (!servicios_.preguntas.Confirma(QStringLiteral("Desea ocultar las Facturas Contado de la lista?"),
                                       Respuesta::Si))
        return;
    ListaTexto &lista = ListaVisible();
    lista.QuitarFilas([&](int fila) { return EsContado(lista, fila); });
    if (lista.Filas() == 0) {
        pantalla_.entrada = pantalla_.conRecibo = false;
        pantalla_.conImprimir = pantalla_.conEliminar = pantalla_.conDevolucion = false;
    }
    pantalla_.contadoOculto = pantalla_.ocultas = true;
    Mostrar();
    SeleccionarPrimera();
}

} // namespace tarvo
