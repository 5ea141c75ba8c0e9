// Receipts and returns of the accounts window.
#include "accounts/estadoslogica.h"
#include "accounts/movimientonuevo.h"
#include "desktop/almacenar.h"
#include "desktop/preguntas.h"
#include "desktop/reloj.h"
#include "documents/impresoras.h"
#include "documents/recibos.h"
#include "store/errordatos.h"
#include "store/store.h"

namespace tarvo {

namespace {

Devolucion ComprobanteDe(const DocumentoDevuelto &devuelto, const QDateTime &momento,
                         const std::optional<QString> &cliente) {
    return {.titulo = devuelto.titulo,
            .momento = momento,
            .cliente = cliente,
            .fecha = devuelto.fecha,
            .hora = devuelto.hora,
            .descripcion = devuelto.detalle,
            .importe = devuelto.importe};
}

} // namespace

// The one that is selected in the picker when a movement is written, which need not be the one on screen.
std::optional<ClienteElegido> EstadosLogica::ClienteDelMovimiento() {
    std::optional<ClienteElegido> cliente = vista_.Elegido();
    if (!cliente)
        servicios_.preguntas.Informar(QStringLiteral("Debe seleccionar un cliente."));
    return cliente;
}

// --- receipt

void EstadosLogica::EmpezarRecibo() {
    pantalla_.entrada = true;
    pantalla_.conRecibo = false;
    Mostrar();
    vista_.EnfocarCantidad();
}

void EstadosLogica::FocoCantidad(bool entra) {
    if (!entra) {
        CompletarCantidad();
        return;
    }
    const QString simbolo = moneda().sCurrency() + QLatin1Char(' ');
    const QString texto = vista_.Cantidad();
    vista_.PonerCantidad(texto.startsWith(simbolo) ? texto.mid(simbolo.size()) : texto);
}

// Brings txtCantidad into the form of money text; false, and it stays as typed, when it is no number.
bool EstadosLogica::CompletarCantidad() {
    const QString simbolo = moneda().sCurrency() + QLatin1Char(' ');
    QString texto = vista_.Cantidad();
    if (texto.startsWith(simbolo))
        texto.remove(0, simbolo.size());
    if (!Moneda::EsNumero(texto))
        return false;
    vista_.PonerCantidad(moneda().FormatoMoneda(texto, true));
    return true;
}

void EstadosLogica::TerminarRecibo() {
    vista_.PonerCantidad(moneda().FormatoMoneda(0.0, true));
    pantalla_.entrada = false;
    pantalla_.conImprimir = pantalla_.conEliminar = pantalla_.conDevolucion = pantalla_.conRecibo = true;
    Mostrar();
    vista_.EnfocarLista();
}

// Zero is told by the third character and the last two: with a symbol of two characters a receipt of zero is
// written like any other.
void EstadosLogica::AgregarRecibo() {
    ElegirImpresora(servicios_.impresoras, servicios_.ajustes, Proposito::Ticket);
    if (!CompletarCantidad()) {
        servicios_.preguntas.Informar(QStringLiteral("El importe ingresado no es un número."));
        vista_.EnfocarCantidad();
        return;
    }
    const QString total = vista_.Cantidad();
    if (total.mid(2, 1) + total.right(2) == QLatin1String("000")) {
        TerminarRecibo();
        return;
    }
    const std::optional<ClienteElegido> cliente = ClienteDelMovimiento();
    if (!cliente)
        return;
    const bool guardado = Almacenar(
        servicios_.frmBases, servicios_.preguntas, {QStringLiteral("Recibo"), cliente->id, total},
        [&] { EscribirRecibo(servicios_.frmBases, cliente->id, total, servicios_.reloj.Ahora()); },
        QStringLiteral("El recibo no se guardó."));
    if (!guardado)
        return;
    OfrecerRecibo(total);
    TerminarRecibo();
    ConstruirEstado();
}

// Whatever the printer does, a receipt that is stored must not stay in its field.
void EstadosLogica::OfrecerRecibo(const QString &total) {
    if (!servicios_.preguntas.Confirma(QStringLiteral("Desea imprimir el recibo?"), Respuesta::Si))
        return;
    try {
        const Cabecera cabecera = LeerCabecera(servicios_.frmBases);
        const auto papel = servicios_.impresoras.NuevoDocumento(ClasePapel::Rollo, QStringLiteral("Recibo"));
        ImprimirRecibo(*papel, cabecera,
                       {.momento = servicios_.reloj.Ahora(), .cliente = pantalla_.cliente, .importe = total});
    } catch (const std::exception &error) {
        Critico(QStringLiteral("No se pudo imprimir el recibo. %1\n\nEl recibo quedó guardado.")
                    .arg(QString::fromUtf8(error.what())));
    }
}

// --- return

void EstadosLogica::EmpezarDevolucion() {
    ListaTexto &lista = ListaVisible();
    if (lista.Filas() == 0)
        return;
    pantalla_.devolucion = true;
    pantalla_.conImprimir = pantalla_.conEliminar = pantalla_.conDevolucion = pantalla_.conRecibo = false;
    pantalla_.entrada = false;
    lista.PonerMarcable(true);
    lista.QuitarFilas([&](int fila) { return NoSeDevuelve(lista, pantalla_.lista, fila); });
    Mostrar();
    SeleccionarPrimera();
    vista_.EnfocarLista();
    CalcularSaldo();
}

void EstadosLogica::DejarDevolucion() {
    ListaVisible().PonerMarcable(false);
    pantalla_.devolucion = false;
    pantalla_.conImprimir = pantalla_.conEliminar = pantalla_.conDevolucion = pantalla_.conRecibo = true;
}

std::vector<int> EstadosLogica::FilasMarcadas() const {
    std::vector<int> filas;
    for (int fila = 0; fila < Visible().Filas(); ++fila)
        if (Visible().Marcada(fila))
            filas.push_back(fila);
    return filas;
}

// What fails ends the whole: the documents that are written by then stay, and lose their check marks, so that
// the same button does only the rest.
void EstadosLogica::Devolver() {
    pantalla_.contadoOculto = false;
    Mostrar();
    const std::vector<int> filas = FilasMarcadas();
    if (filas.empty()) {
        servicios_.preguntas.Informar(QStringLiteral("No ha seleccionado ningún item de la lista."));
        return;
    }
    QString idCliente;
    if (pantalla_.lista == ListaCuenta::Estado) {
        const std::optional<ClienteElegido> cliente = ClienteDelMovimiento();
        if (!cliente)
            return;
        idCliente = cliente->id;
    }
    for (const int fila : filas)
        if (!DevolverFila(fila, idCliente))
            return;
    Reconstruir();
    vista_.EnfocarLista();
}

// False when writing or printing failed. A row that is no invoice is passed over.
bool EstadosLogica::DevolverFila(int fila, const QString &idCliente) {
    const auto devuelto = DevolucionDe(Visible(), pantalla_.lista, fila, idCliente);
    if (!devuelto)
        return true;
    const bool guardada = Almacenar(
        servicios_.frmBases, servicios_.preguntas,
        {QStringLiteral("Devolución"), idCliente, devuelto->descripcion, devuelto->total},
        [&] { EscribirDevolucion(servicios_.frmBases, *devuelto, servicios_.reloj.Ahora()); },
        QStringLiteral("No se guardó la devolución de: %1 - %2 - %3")
            .arg(devuelto->fecha, devuelto->hora, devuelto->detalle));
    if (!guardada)
        return false;
    ListaVisible().Marcar(fila, false);
    return OfrecerComprobante(*devuelto);
}

bool EstadosLogica::OfrecerComprobante(const DocumentoDevuelto &devuelto) {
    const QString pregunta = QStringLiteral("Desea imprimir el comprobante?\n%1 - %2 - %3")
                                 .arg(devuelto.fecha, devuelto.hora, devuelto.detalle);
    if (!servicios_.preguntas.Confirma(pregunta, Respuesta::Si))
        return true;
    ElegirImpresora(servicios_.impresoras, servicios_.ajustes, Proposito::Ticket);
    try {
        const Cabecera cabecera = LeerCabecera(servicios_.frmBases);
        const auto papel = servicios_.impresoras.NuevoDocumento(ClasePapel::Rollo, devuelto.titulo);
        const bool conCliente = pantalla_.lista == ListaCuenta::Estado; // the cash list has none
        ImprimirDevolucion(*papel, cabecera,
                           ComprobanteDe(devuelto, servicios_.reloj.Ahora(),
                                         conCliente ? std::optional(pantalla_.cliente) : std::nullopt));
        return true;
    } catch (const std::exception &error) {
        Critico(QStringLiteral("No se pudo imprimir el comprobante. %1\n\nLa devolución quedó guardada.")
                    .arg(QString::fromUtf8(error.what())));
        return false;
    }
}

void EstadosLogica::CancelarDevolucion() {
    Reconstruir();
    vista_.EnfocarLista();
}

void EstadosLogica::EjecutarContado() {
    vista_.CerrarClientes();
    pantalla_.panelCaja = false;
    ConstruirContado();
    if (pantalla_.conDevolucion)
        EmpezarDevolucion();
}

void EstadosLogica::EjecutarPorCliente() {
    pantalla_.panelCaja = false;
    activarDevolucionPendiente_ = true;
    Mostrar();
    vista_.AbrirClientes();
}

} // namespace tarvo
