// The rules of the accounts window with a window that only remembers, and what they show as one short text.
#pragma once

#include "cuentasprueba.h"

#include "accounts/estadoslogica.h"

namespace tarvo {

class VistaCuenta final : public VistaEstados {
  public:
    PantallaEstados pantalla;
    int fila = -1; // selected in the visible list
    bool picker = false;
    std::optional<ClienteElegido> elegido = ClienteElegido{QStringLiteral("1"), QStringLiteral("Ñandú S.A.")};
    QString cantidad;
    QString foco;
    PeriodoCaja periodo{{{2026, 11, 1}, {0, 0}}, {{2026, 11, 22}, {23, 59}}};

    void Mostrar(const PantallaEstados &nueva) override { pantalla = nueva; }
    void SeleccionarFila(int nueva) override { fila = nueva; }
    void EnfocarLista() override { foco = QStringLiteral("lista"); }
    void AbrirClientes() override { picker = true; }
    void CerrarClientes() override { picker = false; }
    std::optional<ClienteElegido> Elegido() const override { return elegido; }
    QString Cantidad() const override { return cantidad; }
    void PonerCantidad(const QString &texto) override { cantidad = texto; }
    void EnfocarCantidad() override { foco = QStringLiteral("txtCantidad"); }
    PeriodoCaja Periodo() const override { return periodo; }
    void EnfocarDesde() override { foco = QStringLiteral("DTPDesde"); }
    void EnfocarDesdeHora() override { foco = QStringLiteral("DTPDesde1"); }

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

inline const QString kOfrecerRecibo = QStringLiteral("Desea imprimir el recibo?");

class Cuentas : public ::testing::Test {
  protected:
    Cuentas() { mundo.datos.Ejecutar(kHistoria); }

    EstadosLogica &Abrir() {
        mundo.ajustes.setValue(QStringLiteral("ImpTick"), QStringLiteral("Tickets"));
        mundo.ajustes.setValue(QStringLiteral("ImpList"), QStringLiteral("Láser"));
        logica = std::make_unique<EstadosLogica>(mundo.servicios(), vista);
        logica->Abrir();
        return *logica;
    }
    void Recibir(const char *importe) {
        logica->EmpezarRecibo();
        vista.cantidad = QString::fromUtf8(importe);
        logica->AgregarRecibo();
    }
    std::string Saldo() const { return vista.pantalla.saldo.toStdString(); }
    const ListaTexto &Lista() const { return logica->Visible(); }
    // Rows of Ventas behind the first nine, as text.
    std::vector<std::string> Nuevas() {
        std::vector<std::string> filas;
        for (const auto &fila : mundo.datos.Filas(
                 "SELECT fecha,hora,idcliente,idoperador,idusuario,numcomp,tipo,descripcion,subtotal,iva,"
                 "total FROM ventas.Ventas WHERE id > 9 ORDER BY id"))
            filas.push_back(QStringList(fila.begin(), fila.end()).join(u'|').toStdString());
        return filas;
    }
    void Marcar(std::initializer_list<int> filas) {
        for (const int fila : filas)
            logica->Lista(vista.pantalla.lista).Marcar(fila, true);
    }
    void Esperar(const char *pregunta, Respuesta respuesta) {
        mundo.preguntas.Espera(QString::fromUtf8(pregunta), Respuesta::Si, respuesta);
    }

    MundoPrueba mundo;
    VistaCuenta vista;
    std::unique_ptr<EstadosLogica> logica;
};

} // namespace tarvo
