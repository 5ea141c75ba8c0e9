// The small shop of these tests: two customers and a history with every kind of movement; and the rules of
// the accounts window on it, with a window that only remembers.
#pragma once

#include "accounts/estadoslogica.h"
#include "accounts/listascuenta.h"
#include "testkit/listas.h"
#include "testkit/mundoprueba.h"

namespace tarvo {

// Rows of Ventas: fecha, hora, idcliente, numcomp, tipo, descripcion, total.
inline constexpr const char *kHistoria =
    "INSERT INTO clientes.Clientes(codigo,nombre,tel1,ifiscal) VALUES"
    "('C1','Ñandú S.A.','4444','30-71234567-1'),('C2','Juan','5555','');"
    "INSERT INTO ventas.Ventas(fecha,hora,idcliente,numcomp,tipo,descripcion,total) VALUES"
    "('03/11/2026','09:14','1','51','Credito','Factura crédito','$ 1250,00'),"
    "('05/11/2026','18:40','1','55','Contado','Factura contado','$ 84,90'),"
    "('05/11/2026','19:00','0','56','Contado','Factura contado','$ 10,00'),"
    "('08/11/2026','11:02','1','','Recibo','Recibo','$ 500,00'),"
    "('14/11/2026','10:05','1','','NotaCredito','Nota de crédito (12/11/2026 - 16:27)','$ 320,75'),"
    "('19/11/2026','12:51','1','','DevContado','Devolución contado (05/11/2026 - 18:40)','$ 84,90'),"
    "('21/11/2026','9:05','0','','DevContado','Devolución contado (05/11/2026 - 19:00)','10'),"
    "('22/11/2026','10:00','1','60','Otro','Ticket','$ 7,00'),"
    "('22/11/2026','10:30','2','61','Contado','Factura contado (D)','$ 3,00');";

inline void PonerVenta(DatosPrueba &datos, const std::string &valores) {
    datos.Ejecutar("INSERT INTO ventas.Ventas(fecha,hora,idcliente,numcomp,tipo,descripcion,total) VALUES(" +
                   valores + ")");
}

// A window that only remembers, and what it shows as one short text.
class VistaCuenta final : public VistaEstados {
  public:
    PantallaEstados pantalla;
    int fila = -1; // selected in the visible list
    bool picker = false;
    std::optional<ClienteElegido> elegido = ClienteElegido{u"1"_qs, u"Ñandú S.A."_qs};
    QString cantidad;
    QString foco;
    PeriodoCaja periodo{{{2026, 11, 1}, {0, 0}}, {{2026, 11, 22}, {23, 59}}};

    void Mostrar(const PantallaEstados &nueva) override { pantalla = nueva; }
    void SeleccionarFila(int nueva) override { fila = nueva; }
    void EnfocarLista() override { foco = u"lista"_qs; }
    void AbrirClientes() override { picker = true; }
    void CerrarClientes() override { picker = false; }
    std::optional<ClienteElegido> Elegido() const override { return elegido; }
    QString Cantidad() const override { return cantidad; }
    void PonerCantidad(const QString &texto) override { cantidad = texto; }
    void EnfocarCantidad() override { foco = u"txtCantidad"_qs; }
    PeriodoCaja Periodo() const override { return periodo; }
    void EnfocarDesde() override { foco = u"DTPDesde"_qs; }
    void EnfocarDesdeHora() override { foco = u"DTPDesde1"_qs; }

    // "LVEstado IEDR": the visible list and the enabled ones of cmdImprimir, cmdEliminar, cmdDevolucion and
    // cmdRecibo; " entrada", " devolucion", " caja" and " mostrar" when those are on.
    std::string Estado() const {
        std::string texto = ReglasDe(pantalla.lista).nombre.toStdString() + " ";
        const std::pair<bool, const char *> partes[] = {
            {pantalla.conImprimir, "I"},    {pantalla.conEliminar, "E"},
            {pantalla.conDevolucion, "D"},  {pantalla.conRecibo, "R"},
            {pantalla.entrada, " entrada"}, {pantalla.devolucion, " devolucion"},
            {pantalla.panelCaja, " caja"},  {pantalla.contadoOculto, " mostrar"},
        };
        for (const auto &[si, parte] : partes)
            texto += si ? parte : "";
        return texto;
    }
};

inline const QString kOfrecerRecibo = u"Desea imprimir el recibo?"_qs;

class Cuentas : public ::testing::Test {
  protected:
    Cuentas() { mundo.datos.Ejecutar(kHistoria); }

    EstadosLogica &Abrir() {
        mundo.ajustes.setValue(u"ImpTick"_qs, u"Tickets"_qs);
        mundo.ajustes.setValue(u"ImpList"_qs, u"Láser"_qs);
        logica = std::make_unique<EstadosLogica>(mundo.servicios(), vista);
        logica->Abrir();
        return *logica;
    }
    // Opens with the statement of that customer.
    void AbrirCliente(const QString &id = u"1"_qs) {
        Abrir();
        vista.elegido->id = id;
        logica->AceptarCliente();
    }
    void Recibir(const char *importe) {
        logica->EmpezarRecibo();
        vista.cantidad = QString::fromUtf8(importe);
        logica->AgregarRecibo();
    }
    QString Saldo() const { return vista.pantalla.saldo; }
    const ListaTexto &Lista() const { return logica->Visible(); }
    // Rows of Ventas behind the first nine.
    QString Nuevas() {
        return mundo.datos.Tabla(
            "SELECT fecha,hora,idcliente,idoperador,idusuario,numcomp,tipo,descripcion,subtotal,iva,total "
            "FROM ventas.Ventas WHERE id > 9 ORDER BY id");
    }
    void Marcar(std::initializer_list<int> filas) {
        for (const int fila : filas)
            logica->Lista(vista.pantalla.lista).Marcar(fila, true);
    }
    void Esperar(const QString &pregunta, Respuesta respuesta) {
        mundo.preguntas.Espera(pregunta, Si, respuesta);
    }
    MundoPrueba mundo;
    VistaCuenta vista;
    std::unique_ptr<EstadosLogica> logica;
};

} // namespace tarvo
