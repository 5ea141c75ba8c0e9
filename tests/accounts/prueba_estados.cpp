// Views, receipts and what each step enables.
#include "cuentasprueba.h"

namespace tarvo {
namespace {

struct Paso {
    void (EstadosLogica::*hacer)();
    const char *estado;
    QString saldo;
};

TEST_F(Cuentas, EachViewEnablesItsButtons) {
    const Paso pasos[] = {{&EstadosLogica::AceptarCliente, "LVEstado IEDR", u"$ 429,25"_qs},
                          {&EstadosLogica::EmpezarRecibo, "LVEstado IED entrada", u"$ 429,25"_qs},
                          {&EstadosLogica::VerContado, "LVEstadoContado ID", u"$ 20,00"_qs},
                          {&EstadosLogica::AlternarCaja, "LVEstadoContado ID caja", u"$ 20,00"_qs},
                          {&EstadosLogica::VerCaja, "LVCaja I caja", u"$ 1013,55"_qs}};
    Abrir();
    EXPECT_EQ(vista.Estado(), "LVEstado ");
    EXPECT_EQ(Saldo() + vista.cantidad, u"$ 0,00$ 0,00");
    logica->SeleccionarCliente();
    EXPECT_TRUE(vista.picker);
    for (const auto &[hacer, estado, saldo] : pasos) {
        (*logica.*hacer)();
        EXPECT_EQ(vista.Estado(), estado);
        EXPECT_EQ(Saldo(), saldo) << estado;
        const bool deCliente = vista.pantalla.lista == ListaCuenta::Estado;
        EXPECT_EQ(vista.pantalla.conCliente, deCliente) << estado;
        EXPECT_EQ(vista.pantalla.cliente + vista.pantalla.idCliente,
                  deCliente ? u"Ñandú S.A.1"_qs : QString());
        EXPECT_TRUE(!deCliente || vista.fila == 5) << "the newest movement";
    }
    vista.periodo.desde = vista.periodo.hasta.addSecs(-60);
    logica->VerCaja();
    EXPECT_EQ(vista.Estado(), "LVCaja  caja") << "an empty sheet can't be printed";
    EXPECT_EQ(Saldo(), u"$ 0,00");
    vista.elegido = ClienteElegido{u"77"_qs, u"Nadie"_qs};
    logica->AceptarCliente();
    EXPECT_EQ(vista.Estado(), "LVEstado R caja");
    logica->VerContado();
    EXPECT_EQ(vista.Estado(), "LVEstadoContado ID caja");
}

TEST_F(Cuentas, WithoutMovementsABuildEndsEarlyAndLeavesTheButtons) {
    mundo.datos.Ejecutar("DELETE FROM ventas.Ventas");
    Abrir();
    for (const auto &[hacer, estado] : {std::pair(&EstadosLogica::AceptarCliente, "LVEstado "),
                                        {&EstadosLogica::VerContado, "LVEstadoContado "},
                                        {&EstadosLogica::VerCaja, "LVCaja "},
                                        {&EstadosLogica::EjecutarContado, "LVEstadoContado "}}) {
        (*logica.*hacer)();
        EXPECT_EQ(vista.Estado(), estado);
        EXPECT_FALSE(vista.pantalla.exportable);
        EXPECT_EQ(vista.pantalla.conCliente, vista.pantalla.lista == ListaCuenta::Estado);
    }
    vista.elegido.reset();
    logica->AceptarCliente();
    EXPECT_EQ(vista.Estado(), "LVEstado ");
    EXPECT_FALSE(vista.pantalla.conCliente) << "nobody was picked";
}

TEST_F(Cuentas, TheEndsOfTheSheetMustBeInOrder) {
    Abrir();
    logica->VerContado();
    const auto refusa = [&](const QDateTime &desde, const QString &mensaje, const QString &foco) {
        vista.periodo.desde = desde;
        mundo.preguntas.EsperaMensaje(mensaje);
        logica->VerCaja();
        EXPECT_EQ(vista.foco, foco);
        EXPECT_EQ(vista.Estado(), "LVEstadoContado ID");
    };
    vista.periodo.hasta = QDateTime({2026, 11, 22}, {9, 0});
    refusa(QDateTime({2026, 11, 23}, {8, 0}), u"La fecha inicial debe ser menor o igual a la fecha final."_qs,
           u"DTPDesde"_qs);
    refusa(QDateTime({2026, 11, 22}, {9, 1}), u"La hora inicial debe ser menor o igual a la hora final."_qs,
           u"DTPDesde1"_qs);
    vista.periodo.desde = QDateTime({2026, 11, 21}, {10, 0});
    logica->VerCaja();
    EXPECT_EQ(Lista().Filas(), 0) << "10:00 of the first day to 09:00 of the next";
}

TEST_F(Cuentas, CashDocumentsHideBehindTheCaption) {
    const QString pregunta = u"Desea ocultar las Facturas Contado de la lista?"_qs;
    AbrirCliente();
    Esperar(pregunta, No);
    logica->OcultarContado();
    EXPECT_EQ(Lista().Filas(), 6);
    Esperar(pregunta, Si);
    logica->OcultarContado();
    EXPECT_EQ(vista.Estado(), "LVEstado IEDR mostrar");
    EXPECT_EQ(Lista().Filas(), 4);
    EXPECT_EQ(vista.fila, 0);
    EXPECT_EQ(Saldo(), u"$ 429,25");
    logica->OcultarContado();
    EXPECT_EQ(vista.Estado(), "LVEstado IEDR");
    EXPECT_EQ(Lista().Filas(), 6);
    vista.elegido->id = u"2"_qs; // has one marked cash invoice and nothing else
    logica->AceptarCliente();
    logica->EmpezarRecibo();
    Esperar(pregunta, Si);
    logica->OcultarContado();
    EXPECT_EQ(vista.Estado(), "LVEstado  mostrar");
    logica->AceptarCliente();
    EXPECT_EQ(vista.Estado(), "LVEstado IEDR mostrar") << "the caption follows its button alone";
}

// --- receipts

TEST_F(Cuentas, AReceiptIsOneRowASlipAndANewBalance) {
    AbrirCliente();
    logica->EmpezarRecibo();
    EXPECT_EQ(vista.foco, u"txtCantidad");
    logica->FocoCantidad(true);
    EXPECT_EQ(vista.cantidad, u"0,00");
    vista.cantidad = u"250.5"_qs;
    logica->FocoCantidad(false);
    EXPECT_EQ(vista.cantidad, u"$ 250,50");
    Esperar(kOfrecerRecibo, Si);
    logica->AgregarRecibo();
    EXPECT_EQ(Nuevas(), u"22/11/2026|10:42|1||||Recibo|Recibo||0|$ 250,50");
    EXPECT_EQ(Saldo(), u"$ 178,75");
    EXPECT_EQ(vista.Estado(), "LVEstado IEDR");
    EXPECT_EQ(vista.cantidad, u"$ 0,00");
    EXPECT_EQ(mundo.impresoras.actual, u"Tickets");
    EXPECT_TRUE(mundo.impresoras.Papel().contains(u"Cliente    Ñandú S.A.\nRecibo\n"))
        << mundo.impresoras.Papel().toStdString();
    EXPECT_TRUE(mundo.impresoras.Papel().contains(u"$ 250,50")) << mundo.impresoras.Papel().toStdString();
}

TEST_F(Cuentas, AReceiptOfZeroOrOfNoNumberWritesNothing) {
    AbrirCliente(u"77"_qs);
    for (const char *cero : {"", "0", "0,001"}) {
        Recibir(cero);
        EXPECT_EQ(vista.Estado(), "LVEstado IEDR") << "also without rows";
    }
    for (const char *malo : {"1.234,50", ",", "12,5,0"}) {
        mundo.preguntas.EsperaMensaje(u"El importe ingresado no es un número."_qs);
        Recibir(malo);
        EXPECT_EQ(vista.Estado(), "LVEstado IED entrada");
        EXPECT_EQ(vista.cantidad, QString::fromUtf8(malo));
    }
    vista.elegido.reset(); // the picker was emptied meanwhile
    mundo.preguntas.EsperaMensaje(u"Debe seleccionar un cliente."_qs);
    Recibir("5");
    EXPECT_EQ(Nuevas(), QString());
}

TEST_F(Cuentas, AReceiptBelongsToTheCustomerSelectedInThePicker) {
    AbrirCliente();
    logica->EmpezarRecibo();
    vista.elegido = ClienteElegido{u"2"_qs, u"Juan"_qs}; // and no accept
    vista.cantidad = u"5"_qs;
    Esperar(kOfrecerRecibo, No);
    logica->AgregarRecibo();
    EXPECT_EQ(Nuevas(), u"22/11/2026|10:42|2||||Recibo|Recibo||0|$ 5,00");
    EXPECT_EQ(vista.pantalla.cliente, u"Juan");
    EXPECT_EQ(Saldo(), u"$ -5,00");
}

TEST_F(Cuentas, ARefusedReceiptStaysInItsFieldAndTheSecondTryWritesOneRow) {
    mundo.datos.Ejecutar("CREATE TRIGGER ventas.negar BEFORE INSERT ON Ventas WHEN NEW.total='$ 66,00' "
                         "BEGIN SELECT RAISE(FAIL,'sin lugar'); END");
    AbrirCliente();
    mundo.preguntas.EsperaFalla(u"No se pudo escribir en la base de datos: sin lugar."
                                "\n\nEl recibo no se guardó."_qs);
    Recibir("66");
    EXPECT_EQ(vista.Estado(), "LVEstado IED entrada");
    EXPECT_EQ(vista.cantidad, u"$ 66,00");
    EXPECT_EQ(Nuevas(), QString());
    Esperar(kOfrecerRecibo, No);
    Recibir("67");
    EXPECT_EQ(Nuevas(), u"22/11/2026|10:42|1||||Recibo|Recibo||0|$ 67,00");
}

TEST_F(Cuentas, AReceiptThatCannotBePrintedIsStoredAndLeavesItsField) {
    AbrirCliente();
    mundo.impresoras.fallar = true;
    Esperar(kOfrecerRecibo, Si);
    mundo.preguntas.EsperaFalla(
        u"No se pudo imprimir el recibo. No hay impresora.\n\nEl recibo quedó guardado."_qs);
    Recibir("5");
    EXPECT_EQ(vista.Estado(), "LVEstado IEDR");
    EXPECT_EQ(Nuevas(), u"22/11/2026|10:42|1||||Recibo|Recibo||0|$ 5,00");
}

// With a symbol of two characters the third character of the text is its blank.
TEST(CuentasGuaranies, AReceiptOfZeroIsWritten) {
    MundoPrueba mundo;
    DatosPrueba datos(Moneda(u","_qs, u"Gs"_qs));
    datos.Ejecutar(kHistoria);
    VistaCuenta vista;
    EstadosLogica logica(mundo.Con(datos.Abrir()), vista);
    logica.Abrir();
    logica.AceptarCliente();
    logica.EmpezarRecibo();
    vista.cantidad = u"0"_qs;
    mundo.preguntas.Espera(kOfrecerRecibo, Si, No);
    logica.AgregarRecibo();
    EXPECT_EQ(datos.Tabla("SELECT total FROM ventas.Ventas WHERE id=10"), u"Gs 0,00");
}

TEST_F(Cuentas, AnAmountThatIsNoNumberIsToldOnceAndTheWindowGoesOn) {
    mundo.datos.Ejecutar("UPDATE ventas.Ventas SET total='mucho' WHERE id=3");
    Abrir();
    mundo.preguntas.EsperaFalla(u"El importe \"$ mucho\" no es un número y no se suma.\n\n"
                                "05/11/2026 - 19:00 - Factura contado"_qs);
    logica->VerContado();
    EXPECT_EQ(vista.Estado(), "LVEstadoContado ID");
    EXPECT_EQ(Saldo(), u"$ 10,00");
    EXPECT_EQ(Nuevas(), QString());
}

} // namespace
} // namespace tarvo
