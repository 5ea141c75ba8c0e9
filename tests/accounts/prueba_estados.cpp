// Views, receipts and what each step enables.
#include "cuentavista.h"

namespace tarvo {
namespace {

using Textos = std::vector<std::string>;

TEST_F(Cuentas, EachViewEnablesItsButtons) {
    Abrir();
    EXPECT_EQ(vista.Estado(), "LVEstado ");
    EXPECT_EQ(Saldo(), "$ 0,00");
    EXPECT_EQ(vista.cantidad, QStringLiteral("$ 0,00"));
    logica->SeleccionarCliente();
    EXPECT_TRUE(vista.picker);
    logica->AceptarCliente();
    EXPECT_EQ(vista.Estado(), "LVEstado IEDR");
    EXPECT_EQ(vista.pantalla.cliente, QStringLiteral("Ñandú S.A."));
    EXPECT_EQ(vista.pantalla.idCliente, QStringLiteral("1"));
    EXPECT_TRUE(vista.pantalla.conCliente);
    EXPECT_EQ(Saldo(), "$ 429,25");
    EXPECT_EQ(vista.fila, 5) << "the newest movement";
    logica->EmpezarRecibo();
    EXPECT_EQ(vista.Estado(), "LVEstado IED entrada");
    logica->VerContado();
    EXPECT_EQ(vista.Estado(), "LVEstadoContado ID");
    EXPECT_FALSE(vista.pantalla.conCliente);
    EXPECT_EQ(vista.pantalla.cliente + vista.pantalla.idCliente, QString());
    EXPECT_EQ(Saldo(), "$ 20,00");
    logica->AlternarCaja();
    EXPECT_EQ(vista.Estado(), "LVEstadoContado ID caja");
    logica->VerCaja();
    EXPECT_EQ(vista.Estado(), "LVCaja I caja");
    EXPECT_EQ(Saldo(), "$ 1013,55");
    vista.periodo.desde = vista.periodo.hasta.addSecs(-60);
    logica->VerCaja();
    EXPECT_EQ(vista.Estado(), "LVCaja  caja") << "an empty sheet can't be printed";
    EXPECT_EQ(Saldo(), "$ 0,00");
    vista.elegido = ClienteElegido{QStringLiteral("77"), QStringLiteral("Nadie")};
    logica->AceptarCliente();
    EXPECT_EQ(vista.Estado(), "LVEstado R caja");
    logica->VerContado();
    EXPECT_EQ(vista.Estado(), "LVEstadoContado ID caja");
}

TEST_F(Cuentas, WithoutMovementsABuildEndsEarlyAndLeavesTheButtons) {
    mundo.datos.Ejecutar("DELETE FROM ventas.Ventas");
    Abrir();
    logica->AceptarCliente();
    EXPECT_EQ(vista.Estado(), "LVEstado ");
    EXPECT_TRUE(vista.pantalla.conCliente);
    logica->VerContado();
    EXPECT_EQ(vista.Estado(), "LVEstadoContado ");
    logica->VerCaja();
    EXPECT_EQ(vista.Estado(), "LVCaja ");
    EXPECT_FALSE(vista.pantalla.exportable);
    logica->EjecutarContado();
    EXPECT_EQ(vista.Estado(), "LVEstadoContado ");
    vista.elegido.reset();
    logica->AceptarCliente();
    EXPECT_EQ(vista.Estado(), "LVEstado ");
    EXPECT_FALSE(vista.pantalla.conCliente) << "nobody was picked";
}

TEST_F(Cuentas, TheEndsOfTheSheetMustBeInOrder) {
    Abrir();
    logica->VerContado();
    const auto refusa = [&](const QDateTime &desde, const char *mensaje, const char *foco) {
        vista.periodo.desde = desde;
        mundo.preguntas.EsperaMensaje(QString::fromUtf8(mensaje), Icono::Informacion);
        logica->VerCaja();
        EXPECT_EQ(vista.foco, QString::fromUtf8(foco));
        EXPECT_EQ(vista.Estado(), "LVEstadoContado ID");
    };
    vista.periodo.hasta = QDateTime({2026, 11, 22}, {9, 0});
    refusa(QDateTime({2026, 11, 23}, {8, 0}), "La fecha inicial debe ser menor o igual a la fecha final.",
           "DTPDesde");
    refusa(QDateTime({2026, 11, 22}, {9, 1}), "La hora inicial debe ser menor o igual a la hora final.",
           "DTPDesde1");
    vista.periodo.desde = QDateTime({2026, 11, 21}, {10, 0});
    logica->VerCaja();
    EXPECT_EQ(Lista().Filas(), 0) << "10:00 of the first day to 09:00 of the next";
}

TEST_F(Cuentas, CashDocumentsHideBehindTheCaption) {
    const char *const pregunta = "Desea ocultar las Facturas Contado de la lista?";
    Abrir();
    logica->AceptarCliente();
    Esperar(pregunta, Respuesta::No);
    logica->OcultarContado();
    EXPECT_EQ(Lista().Filas(), 6);
    Esperar(pregunta, Respuesta::Si);
    logica->OcultarContado();
    EXPECT_EQ(vista.Estado(), "LVEstado IEDR mostrar");
    EXPECT_EQ(Lista().Filas(), 4);
    EXPECT_EQ(vista.fila, 0);
    EXPECT_EQ(Saldo(), "$ 429,25");
    logica->OcultarContado();
    EXPECT_EQ(vista.Estado(), "LVEstado IEDR");
    EXPECT_EQ(Lista().Filas(), 6);
    vista.elegido->id = QStringLiteral("2"); // has one marked cash invoice and nothing else
    logica->AceptarCliente();
    logica->EmpezarRecibo();
    Esperar(pregunta, Respuesta::Si);
    logica->OcultarContado();
    EXPECT_EQ(vista.Estado(), "LVEstado  mostrar");
    logica->AceptarCliente();
    EXPECT_EQ(vista.Estado(), "LVEstado IEDR mostrar") << "the caption follows its button alone";
}

// --- receipts

TEST_F(Cuentas, AReceiptIsOneRowASlipAndANewBalance) {
    Abrir();
    logica->AceptarCliente();
    logica->EmpezarRecibo();
    EXPECT_EQ(vista.foco, QStringLiteral("txtCantidad"));
    logica->FocoCantidad(true);
    EXPECT_EQ(vista.cantidad, QStringLiteral("0,00"));
    vista.cantidad = QStringLiteral("250.5");
    logica->FocoCantidad(false);
    EXPECT_EQ(vista.cantidad, QStringLiteral("$ 250,50"));
    mundo.preguntas.Espera(kOfrecerRecibo, Respuesta::Si, Respuesta::Si);
    logica->AgregarRecibo();
    EXPECT_EQ(Nuevas(), Textos{"22/11/2026|10:42|1||||Recibo|Recibo||0|$ 250,50"});
    EXPECT_EQ(Saldo(), "$ 178,75");
    EXPECT_EQ(vista.Estado(), "LVEstado IEDR");
    EXPECT_EQ(vista.cantidad, QStringLiteral("$ 0,00"));
    EXPECT_EQ(mundo.impresoras.actual, QStringLiteral("Tickets"));
    ASSERT_EQ(mundo.impresoras.documentos.size(), 1u);
    const QString papel = mundo.impresoras.documentos[0]->Lineas().join(u'\n');
    EXPECT_TRUE(papel.contains(QStringLiteral("Cliente    Ñandú S.A.\nRecibo\n"))) << papel.toStdString();
    EXPECT_TRUE(papel.contains(QStringLiteral("$ 250,50"))) << papel.toStdString();
}

TEST_F(Cuentas, AReceiptOfZeroOrOfNoNumberWritesNothing) {
    Abrir();
    vista.elegido->id = QStringLiteral("77");
    logica->AceptarCliente();
    for (const char *cero : {"", "0", "0,001"}) {
        Recibir(cero);
        EXPECT_EQ(vista.Estado(), "LVEstado IEDR") << "also without rows";
    }
    for (const char *malo : {"1.234,50", ",", "12,5,0"}) {
        mundo.preguntas.EsperaMensaje(QStringLiteral("El importe ingresado no es un número."),
                                      Icono::Informacion);
        Recibir(malo);
        EXPECT_EQ(vista.Estado(), "LVEstado IED entrada");
        EXPECT_EQ(vista.cantidad, QString::fromUtf8(malo));
    }
    vista.elegido.reset(); // the picker was emptied meanwhile
    mundo.preguntas.EsperaMensaje(QStringLiteral("Debe seleccionar un cliente."), Icono::Informacion);
    Recibir("5");
    EXPECT_EQ(Nuevas(), Textos{});
}

TEST_F(Cuentas, AReceiptBelongsToTheCustomerSelectedInThePicker) {
    Abrir();
    logica->AceptarCliente();
    logica->EmpezarRecibo();
    vista.elegido = ClienteElegido{QStringLiteral("2"), QStringLiteral("Juan")}; // and no accept
    vista.cantidad = QStringLiteral("5");
    mundo.preguntas.Espera(kOfrecerRecibo, Respuesta::Si, Respuesta::No);
    logica->AgregarRecibo();
    EXPECT_EQ(Nuevas(), Textos{"22/11/2026|10:42|2||||Recibo|Recibo||0|$ 5,00"});
    EXPECT_EQ(vista.pantalla.cliente, QStringLiteral("Juan"));
    EXPECT_EQ(Saldo(), "$ -5,00");
}

TEST_F(Cuentas, ARefusedReceiptStaysInItsFieldAndTheSecondTryWritesOneRow) {
    mundo.datos.Ejecutar("CREATE TRIGGER ventas.negar BEFORE INSERT ON Ventas WHEN NEW.total='$ 66,00' "
                         "BEGIN SELECT RAISE(FAIL,'sin lugar'); END");
    Abrir();
    logica->AceptarCliente();
    mundo.preguntas.EsperaMensaje(QStringLiteral("No se pudo escribir en la base de datos: sin lugar."
                                                 "\n\nEl recibo no se guardó."),
                                  Icono::Critico);
    Recibir("66");
    EXPECT_EQ(vista.Estado(), "LVEstado IED entrada");
    EXPECT_EQ(vista.cantidad, QStringLiteral("$ 66,00"));
    EXPECT_EQ(Nuevas(), Textos{});
    mundo.preguntas.Espera(kOfrecerRecibo, Respuesta::Si, Respuesta::No);
    Recibir("67");
    EXPECT_EQ(Nuevas(), Textos{"22/11/2026|10:42|1||||Recibo|Recibo||0|$ 67,00"});
}

TEST_F(Cuentas, AReceiptThatCannotBePrintedIsStoredAndLeavesItsField) {
    Abrir();
    logica->AceptarCliente();
    mundo.impresoras.fallar = true;
    mundo.preguntas.Espera(kOfrecerRecibo, Respuesta::Si, Respuesta::Si);
    mundo.preguntas.EsperaMensaje(
        QStringLiteral("No se pudo imprimir el recibo. No hay impresora.\n\nEl recibo quedó guardado."),
        Icono::Critico);
    Recibir("5");
    EXPECT_EQ(vista.Estado(), "LVEstado IEDR");
    EXPECT_EQ(Nuevas().size(), 1u);
}

// With a symbol of two characters the third character of the text is its blank.
TEST(CuentasGuaranies, AReceiptOfZeroIsWritten) {
    MundoPrueba mundo;
    DatosPrueba datos(Moneda(QStringLiteral(","), QStringLiteral("Gs")));
    datos.Ejecutar(kHistoria);
    VistaCuenta vista;
    EstadosLogica logica(
        {datos.Abrir(), mundo.preguntas, mundo.reloj, mundo.impresoras, mundo.ajustes, mundo.escritorio},
        vista);
    logica.Abrir();
    logica.AceptarCliente();
    logica.EmpezarRecibo();
    vista.cantidad = QStringLiteral("0");
    mundo.preguntas.Espera(kOfrecerRecibo, Respuesta::Si, Respuesta::No);
    logica.AgregarRecibo();
    EXPECT_EQ(datos.Filas("SELECT total FROM ventas.Ventas WHERE id=10"),
              (std::vector<std::vector<QString>>{{QStringLiteral("Gs 0,00")}}));
}

TEST_F(Cuentas, AnAmountThatIsNoNumberIsToldOnceAndTheWindowGoesOn) {
    mundo.datos.Ejecutar("UPDATE ventas.Ventas SET total='mucho' WHERE id=3");
    Abrir();
    mundo.preguntas.EsperaMensaje(QStringLiteral("El importe \"$ mucho\" no es un número y no se suma.\n\n"
                                                 "05/11/2026 - 19:00 - Factura contado"),
                                  Icono::Critico);
    logica->VerContado();
    EXPECT_EQ(vista.Estado(), "LVEstadoContado ID");
    EXPECT_EQ(Saldo(), "$ 10,00");
    EXPECT_EQ(Nuevas(), Textos{});
}

} // namespace
} // namespace tarvo
