// Returns and credit notes, from the statement and from the cash list, and the listings.
#include "cuentasprueba.h"

namespace tarvo {
namespace {

const QString kCredito = u"Desea imprimir el comprobante?\n03/11/2026 - 09:14 - Factura crédito"_qs;
const QString kContado = u"Desea imprimir el comprobante?\n05/11/2026 - 18:40 - Factura contado"_qs;
const QString kFilaCredito =
    u"22/11/2026|10:42|1||||NotaCredito|Nota de crédito (03/11/2026 - 09:14)||0|$ 1250,00"_qs;
const QString kFilaContado =
    u"22/11/2026|10:42|1||||DevContado|Devolución contado (05/11/2026 - 18:40)||0|$ 84,90"_qs;

TEST_F(Cuentas, AReturnLeavesOnlyWhatCanBeTakenBackAndCancellingBringsAllBack) {
    AbrirCliente();
    logica->EmpezarDevolucion();
    EXPECT_EQ(vista.Estado(), "LVEstado  devolucion");
    ASSERT_EQ(Lista().Filas(), 3);
    EXPECT_EQ(Lista().Celda(2, movimiento::Detalle), u"Ticket");
    EXPECT_EQ(Lista().data(Lista().index(0, 0), Qt::CheckStateRole), QVariant(Qt::Unchecked));
    EXPECT_EQ(vista.fila, 0);
    EXPECT_EQ(Saldo(), u"$ 1250,00");
    logica->CancelarDevolucion();
    EXPECT_EQ(vista.Estado(), "LVEstado IEDR");
    EXPECT_EQ(Lista().Filas(), 6);
    EXPECT_FALSE(Lista().data(Lista().index(0, 0), Qt::CheckStateRole).isValid());
    EXPECT_EQ(Nuevas(), QString());

    vista.elegido->id = u"77"_qs;
    logica->AceptarCliente();
    logica->EmpezarDevolucion();
    EXPECT_EQ(vista.Estado(), "LVEstado R") << "an empty list has nothing to take back";
}

TEST_F(Cuentas, SeveralDocumentsAreTakenBackInOneActionEachWithItsQuestion) {
    AbrirCliente();
    logica->EmpezarDevolucion();
    mundo.preguntas.EsperaMensaje(u"No ha seleccionado ningún item de la lista."_qs);
    logica->Devolver();
    EXPECT_EQ(vista.Estado(), "LVEstado  devolucion");
    Marcar({0, 1, 2}); // the last one, "Ticket", is passed over
    Esperar(kCredito, Si);
    Esperar(kContado, No);
    logica->Devolver();
    EXPECT_EQ(Nuevas(), kFilaCredito + u"; "_qs + kFilaContado);
    EXPECT_EQ(vista.Estado(), "LVEstado IEDR");
    EXPECT_EQ(Lista().Filas(), 8);
    EXPECT_EQ(Saldo(), u"$ -820,75");
    EXPECT_EQ(Lista().Celda(0, movimiento::Detalle), u"Factura crédito") << "not marked";
    EXPECT_EQ(mundo.impresoras.actual, u"Tickets");
    for (const char *parte : {"Cliente    Ñandú S.A.\nNota de crédito\n", "03/11/2026 - 09:14", "$ 1250,00"})
        EXPECT_TRUE(mundo.impresoras.Papel().contains(QString::fromUtf8(parte)))
            << mundo.impresoras.Papel().toStdString();
}

// The number of the document stands where its amount is looked for.
TEST_F(Cuentas, AReturnFromTheCashListTakesTheDocumentNumberForItsTotal) {
    Abrir();
    logica->VerContado();
    logica->EmpezarDevolucion();
    EXPECT_EQ(vista.Estado(), "LVEstadoContado  devolucion");
    ASSERT_EQ(Lista().Filas(), 1);
    Marcar({0});
    Esperar(u"Desea imprimir el comprobante?\n05/11/2026 - 19:00 - Factura contado"_qs, Si);
    logica->Devolver();
    EXPECT_EQ(Nuevas(), u"22/11/2026|10:42|0||||DevContado|Devolución contado (05/11/2026 - 19:00)||0|56");
    EXPECT_EQ(vista.Estado(), "LVEstadoContado ID");
    EXPECT_EQ(Saldo(), u"$ 76,00");
    EXPECT_FALSE(mundo.impresoras.Papel().contains(u"Cliente"));
    EXPECT_TRUE(mundo.impresoras.Papel().contains(u"Factura contado"_qs + QString(22, u' ') + u"56\n"_qs))
        << mundo.impresoras.Papel().toStdString();
}

// A text that happens to be the id of a row marks that row.
TEST_F(Cuentas, TheMarkGoesToTheRowWhoseIdTheFixedColumnHolds) {
    mundo.datos.Ejecutar("UPDATE ventas.Ventas SET fecha='8' WHERE id=1");
    AbrirCliente();
    logica->EmpezarDevolucion();
    Marcar({0});
    Esperar(u"Desea imprimir el comprobante?\n8 - 09:14 - Factura crédito"_qs, No);
    logica->Devolver();
    EXPECT_EQ(mundo.datos.Tabla("SELECT id, tipo FROM ventas.Ventas WHERE descripcion LIKE '%(D)' AND id<>9"),
              u"8|Otro");
}

TEST_F(Cuentas, WhatFailsHalfWayEndsTheReturnAndTheSameButtonDoesTheRest) {
    mundo.datos.Ejecutar("CREATE TRIGGER ventas.negar BEFORE INSERT ON Ventas WHEN NEW.tipo='DevContado' "
                         "BEGIN SELECT RAISE(FAIL,'sin lugar'); END");
    AbrirCliente();
    logica->EmpezarDevolucion();
    Marcar({0, 1});
    mundo.impresoras.fallar = true;
    Esperar(kCredito, Si);
    mundo.preguntas.EsperaFalla(
        u"No se pudo imprimir el comprobante. No hay impresora.\n\nLa devolución quedó guardada."_qs);
    logica->Devolver();
    EXPECT_EQ(Nuevas(), kFilaCredito);
    EXPECT_EQ(vista.Estado(), "LVEstado  devolucion");
    for (int vez = 0; vez < 2; ++vez) {
        mundo.preguntas.EsperaFalla(
            u"No se pudo escribir en la base de datos: sin lugar.\n\nNo se guardó la devolución de: "
            "05/11/2026 - 18:40 - Factura contado"_qs);
        logica->Devolver();
    }
    EXPECT_EQ(Nuevas(), kFilaCredito);
    EXPECT_EQ(vista.Estado(), "LVEstado  devolucion");
}

// --- the entries of the menu

TEST_F(Cuentas, TheEntryForCashSalesLeadsToAReturnFromAnyState) {
    Abrir();
    logica->AlternarCaja();
    logica->EjecutarContado();
    EXPECT_EQ(vista.Estado(), "LVEstadoContado  devolucion");
    logica->CancelarDevolucion();
    logica->AceptarCliente();
    logica->EmpezarDevolucion();
    logica->EjecutarContado();
    EXPECT_EQ(vista.Estado(), "LVEstadoContado  devolucion");
    EXPECT_FALSE(logica->Lista(ListaCuenta::Estado).flags(logica->Lista(ListaCuenta::Estado).index(0, 0)) &
                 Qt::ItemIsUserCheckable)
        << "the return of the statement has ended";
}

TEST_F(Cuentas, TheEntryForACustomerWaitsForAStatementWithRows) {
    Abrir();
    logica->AlternarCaja();
    logica->EjecutarPorCliente();
    EXPECT_TRUE(vista.picker);
    EXPECT_EQ(vista.Estado(), "LVEstado ");
    vista.elegido->id = u"77"_qs;
    logica->AceptarCliente();
    EXPECT_EQ(vista.Estado(), "LVEstado R");
    vista.elegido->id = u"1"_qs;
    logica->AceptarCliente();
    EXPECT_EQ(vista.Estado(), "LVEstado  devolucion");
    logica->CancelarDevolucion();
    logica->AceptarCliente();
    EXPECT_EQ(vista.Estado(), "LVEstado IEDR") << "once only";
}

// --- listings

struct CasoListado {
    void (EstadosLogica::*ver)();
    QString pregunta;
    const char *hoja; // without the empty lines
};

TEST_F(Cuentas, EachListingPrintsItsListAsItStands) {
    const CasoListado casos[] = {
        {&EstadosLogica::VerContado, u"Desea imprimir el listado de ventas contado?"_qs, R"(
                              VENTAS CONTADO
                              --------------
Hoja     1 de 1 
-----------------------------------------------------------------------------------------------
    Fecha      Hora       Detalle                                                    Subtotal
 05/11/2026   19:00       Factura contado                                             $ 10,00
 21/11/2026   09:05       Devolución contado (05/11/2026 - 19:00)                     $ 10,00
                                                         Total    $ 20,00)"},
        {&EstadosLogica::AceptarCliente, u"Desea imprimir el estado de cuenta?"_qs, R"(
                             ESTADO DE CUENTA
                             ----------------
Cliente: Juan
Hoja     1 de 1 
-----------------------------------------------------------------------------------------------
  Fecha      Hora   Detalle                      Debe                Haber              Saldo
 22/11/2026 10:30   Factura contado (D)        $ 3,00               $ 3,00             $ 0,00
                                                          Saldo    $ 0,00)"},
        {&EstadosLogica::VerCaja, u"Desea imprimir la planilla de caja?"_qs, R"(
                             PLANILLA DE CAJA
                             ----------------
Hoja     1 de 1 
-----------------------------------------------------------------------------------------------
  Fecha      Hora   Detalle                      Debe                Haber              Saldo
 22/11/2026 10:00   Ticket
 22/11/2026 10:30   Factura contado (D)        $ 3,00               $ 3,00             $ 0,00
                                                          Saldo    $ 3,00)"},
    };
    Abrir();
    vista.elegido = ClienteElegido{u"2"_qs, u"Juan"_qs};
    vista.periodo.desde = QDateTime({2026, 11, 22}, {0, 0});
    mundo.impresoras.actual = u"Tickets"_qs;
    for (const auto &[ver, pregunta, hoja] : casos) {
        (*logica.*ver)();
        Esperar(pregunta, Si);
        logica->Imprimir();
        EXPECT_EQ(mundo.impresoras.actual, u"Láser");
        QStringList lineas = mundo.impresoras.documentos.back()->Lineas();
        lineas.removeAll(QString());
        EXPECT_EQ(u'\n' + lineas.join(u'\n'), QString::fromUtf8(hoja));
    }
    mundo.impresoras.fallar = true;
    Esperar(casos[2].pregunta, Si);
    mundo.preguntas.EsperaMensaje(u"No se han encontrado impresoras instaladas."_qs);
    logica->Imprimir();
    EXPECT_EQ(vista.Estado(), "LVCaja I");
}

} // namespace
} // namespace tarvo
