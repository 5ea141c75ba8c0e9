// The accounts window by keys and clicks.
#include "cuentasprueba.h"

#include "accounts/ventanas/frmestados.h"
#include "testkit/conventana.h"

#include <QDateEdit>
#include <QTimeEdit>

namespace tarvo {
namespace {

class VentanaEstados : public ConVentana<FrmEstados> {
  protected:
    VentanaEstados() {
        mundo.datos.Ejecutar(kHistoria);
        ventana = std::make_unique<FrmEstados>(mundo.servicios(), anfitrion, nullptr);
        ventana->resize(800, 455);
        MostrarVentana(*ventana);
    }
    void TabHasta(const char *nombre) {
        for (int i = 0; i < 30 && ConFoco() != QLatin1String(nombre); ++i)
            Pulsa(Qt::Key_Tab);
        ASSERT_EQ(ConFoco(), QLatin1String(nombre));
    }
    void ElegirCliente(const char *parte) {
        TabHasta("cmdCliente");
        Entrar();
        EXPECT_EQ(ConFoco(), u"LVClientes"); // what is typed there is searched
        Teclas(QString::fromUtf8(parte));
        Entrar();
        TabHasta("LVClientes");
        Entrar();
    }
};

TEST_F(VentanaEstados, OpensEmptyWithTodayInThePickers) {
    EXPECT_EQ(Texto("lblTitulo"), u"Estado de cuenta");
    EXPECT_EQ(Texto("lblSaldo1") + Texto("lblSaldo"), u"Saldo$ 0,00");
    EXPECT_EQ(Texto("txtCantidad"), u"$ 0,00");
    for (const char *nombre : {"DTPDesde", "DTPHasta"})
        EXPECT_EQ(C<QDateEdit>(nombre)->date(), QDate(2026, 11, 22));
    EXPECT_EQ(Texto("DTPDesde1") + Texto("DTPHasta1"), u"00:0023:59");
    for (const char *nombre : {"cmdAgregar", "cmdContinuarDev", "cmdCancelarDevolver", "lblCliente1",
                               "frCaja", "LVEstadoContado", "LVCaja", "picClientes", "lblIdCliente"})
        EXPECT_FALSE(Se(nombre)) << nombre;
    EXPECT_FALSE(anfitrion.Exportable());
    EXPECT_FALSE(ventana->ParaExportar().has_value());
    EXPECT_EQ(ConFoco(), u"cmdCliente");
}

// Both Enters of a scanner, and what came before its code stays.
TEST_F(VentanaEstados, AScannedCodeIsNoAmount) {
    ElegirCliente("jua");
    TabHasta("cmdRecibo");
    Entrar();
    quint64 momento = 1000;
    const auto escanear = [&](const char *codigo) {
        for (const char *letra = codigo; *letra != '\0'; ++letra, ++momento) {
            const bool fin = *letra == '\r';
            QKeyEvent tecla(QEvent::KeyPress, fin ? Qt::Key_Return : Qt::Key_0, Qt::NoModifier,
                            QString(QLatin1Char(*letra)));
            tecla.setTimestamp(momento);
            QApplication::sendEvent(QApplication::focusWidget(), &tecla);
        }
        momento += 1000;
    };
    escanear("12,5");
    Campo("txtCantidad")->setCursorPosition(1);
    escanear("7790001000011\r\r");
    EXPECT_EQ(ConFoco() + Texto("txtCantidad"), u"txtCantidad12,5");
    Campo("txtCantidad")->selectAll();
    escanear("1500.50\r"); // typed by a program, or by fast hands
    EXPECT_EQ(ConFoco() + Texto("txtCantidad"), u"cmdAgregar$ 1500,50");
    escanear("7790001000011\r\r"); // on the button, which it doesn't press
    EXPECT_TRUE(Habilitado("txtCantidad"));
    Clic("cmdCaja");
    const QString fecha = Texto("DTPDesde");
    for (const char *codigo : {"7790001000011\r\r", "96385074\r\r", "AB-7\r"}) {
        escanear(codigo);
        EXPECT_EQ(ConFoco() + Texto("DTPDesde"), u"DTPDesde"_qs + fecha) << codigo;
    }
    escanear("15/02/2026\r");
    EXPECT_EQ(ConFoco() + Texto("DTPDesde"), u"DTPDesde115/02/2026");
    escanear("0360002914521\r\r");
    EXPECT_EQ(Texto("DTPDesde1"), u"00:00");
    escanear("0815");
    EXPECT_EQ(Texto("DTPDesde1"), u"08:15");
}

TEST_F(VentanaEstados, AReceiptAndAReturnByKeysAlone) {
    ElegirCliente("jua");
    EXPECT_EQ(Texto("lblCliente") + Texto("lblIdCliente"), u"Juan2");
    EXPECT_EQ(ConFoco(), u"LVEstado");
    EXPECT_TRUE(anfitrion.Exportable());
    EXPECT_EQ(ventana->ParaExportar()->nombre, u"LVEstado");
    EXPECT_EQ(ventana->ParaExportar()->cliente, u"Juan");
    TabHasta("cmdRecibo");
    EXPECT_EQ(Entrar(), u"txtCantidad");
    EXPECT_EQ(C<QLineEdit>("txtCantidad")->selectedText(), u"0,00");
    Teclas(u"1a2.5-"_qs);
    EXPECT_EQ(Entrar(), u"cmdAgregar");
    EXPECT_EQ(Texto("txtCantidad"), u"$ 12,50");
    mundo.preguntas.Espera(u"Desea imprimir el recibo?"_qs, Si, No);
    Entrar();
    EXPECT_EQ(Texto("lblSaldo"), u"$ -12,50");
    EXPECT_FALSE(Se("cmdAgregar"));
    EXPECT_EQ(ConFoco(), u"LVEstado");

    mundo.datos.Cerrar();
    mundo.datos.Ejecutar("UPDATE ventas.Ventas SET descripcion='Factura contado' WHERE id=9");
    mundo.datos.Abrir();
    ElegirCliente("jua");
    TabHasta("cmdDevolucion");
    EXPECT_EQ(Pulsa(Qt::Key_Space), u"LVEstado");
    Pulsa(Qt::Key_Space);
    TabHasta("cmdContinuarDev");
    mundo.preguntas.Espera(u"Desea imprimir el comprobante?\n22/11/2026 - 10:30 - Factura contado"_qs, Si,
                           No);
    Entrar();
    EXPECT_EQ(mundo.datos.Tabla("SELECT tipo, total FROM ventas.Ventas WHERE id>9"),
              u"Recibo|$ 12,50; DevContado|$ 3,00");
    EXPECT_FALSE(Se("cmdContinuarDev"));
    EXPECT_EQ(ConFoco(), u"LVEstado");
}

TEST_F(VentanaEstados, ReturnModeDisablesWhatChoosesAViewAndChecksRowsThatItSelects) {
    Clic("cmdContado");
    EXPECT_EQ(Texto("lblTitulo"), u"Estado de cuenta - Ventas contado");
    EXPECT_EQ(Texto("lblSaldo1"), u"Total");
    Clic("cmdDevolucion");
    for (const char *nombre : {"cmdCliente", "cmdContado", "cmdCaja", "frCont1", "cmdImprimir"})
        EXPECT_FALSE(Habilitado(nombre)) << nombre;
    EXPECT_TRUE(Se("cmdContinuarDev") && Se("cmdCancelarDevolver"));
    ListaVista *const lista = Lista("LVEstadoContado");
    lista->SeleccionarFila(-1);
    lista->Lista()->setData(lista->Lista()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
    EXPECT_EQ(lista->FilaActual(), 0);
    ClicFila(lista, 0, lista->columnViewportPosition(contado::Detalle) + 5);
    Pulsa(Qt::Key_Space);
    EXPECT_FALSE(lista->Lista()->Marcada(0));
    Clic("cmdCancelarDevolver");
    EXPECT_EQ(lista->Lista()->Filas(), 2);
    EXPECT_TRUE(Habilitado("frCont1"));
}

TEST_F(VentanaEstados, ThePanelOfTheCashSheetTakesThePlaceOfTheButtons) {
    Clic("cmdCaja");
    EXPECT_TRUE(Se("frCaja") && !Se("frCont1"));
    EXPECT_EQ(ConFoco(), u"DTPDesde");
    for (int i = 0; i < 4; ++i)
        Entrar();
    EXPECT_EQ(ConFoco(), u"cmdVerCaja");
    Entrar();
    EXPECT_EQ(Lista("LVCaja")->Lista()->Filas(), 2);
    EXPECT_EQ(Texto("lblTitulo"), u"Estado de cuenta - Caja");
    EXPECT_EQ(Texto("lblSaldo"), u"$ 3,00");
    C<QTimeEdit>("DTPDesde1")->setTime(QTime(23, 59));
    C<QTimeEdit>("DTPHasta1")->setTime(QTime(23, 58));
    mundo.preguntas.EsperaMensaje(u"La hora inicial debe ser menor o igual a la hora final."_qs);
    EXPECT_EQ(Clic("cmdVerCaja"), u"DTPDesde1");
    Teclear(C("DTPDesde1"), u"0815"_qs); // over what is selected
    EXPECT_EQ(Texto("DTPDesde1"), u"08:15");
    ventana->EjecutarContado();
    EXPECT_TRUE(!Se("frCaja") && Se("cmdContinuarDev"));
}

TEST_F(VentanaEstados, APickerThatIsClosedLeavesTheWindowUsable) {
    ventana->EjecutarPorCliente();
    EXPECT_FALSE(Habilitado("frEstado") || Habilitado("frSeleccionar"));
    EXPECT_EQ(Pulsa(Qt::Key_Escape), u"cmdCliente");
    ventana->EjecutarPorCliente();
    ventana->EjecutarContado();
    EXPECT_TRUE(!Se("picClientes") && Habilitado("frEstado"));
    EXPECT_EQ(ConFoco(), u"LVEstadoContado");
}

} // namespace
} // namespace tarvo
