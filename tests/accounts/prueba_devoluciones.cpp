// Returns and credit notes, from the statement and from the cash list, and the listings.
#include "cuentavista.h"

namespace tarvo {
namespace {

using Textos = std::vector<std::string>;

constexpr const char *kCredito = "Desea imprimir el comprobante?\n03/11/2026 - 09:14 - Factura crédito";
constexpr const char *kContado = "Desea imprimir el comprobante?\n05/11/2026 - 18:40 - Factura contado";
constexpr const char *kMostrador = "Desea imprimir el comprobante?\n05/11/2026 - 19:00 - Factura contado";
constexpr const char *kFilaCredito = "22/11/2026|10:42|1||||NotaCredito|Nota de crédito (03/11/2026 - "
                                     "09:14)||0|$ 1250,00";
constexpr const char *kFilaContado =
    "22/11/2026|10:42|1||||DevContado|Devolución contado (05/11/2026 - 18:40)||0|$ 84,90";

TEST_F(Cuentas, AReturnLeavesOnlyWhatCanBeTakenBackAndCancellingBringsAllBack) {
    Abrir();
    logica->AceptarCliente();
    logica->EmpezarDevolucion();
    EXPECT_EQ(vista.Estado(), "LVEstado  devolucion");
    ASSERT_EQ(Lista().Filas(), 3);
    EXPECT_EQ(Lista().Celda(2, movimiento::Detalle), QStringLiteral("Ticket"));
    EXPECT_EQ(Lista().data(Lista().index(0, 0), Qt::CheckStateRole), QVariant(Qt::Unchecked));
    EXPECT_EQ(vista.fila, 0);
    EXPECT_EQ(Saldo(), "$ 1250,00");
    logica->CancelarDevolucion();
    EXPECT_EQ(vista.Estado(), "LVEstado IEDR");
    EXPECT_EQ(Lista().Filas(), 6);
    EXPECT_FALSE(Lista().data(Lista().index(0, 0), Qt::CheckStateRole).isValid());
    EXPECT_EQ(Nuevas(), Textos{});

    vista.elegido->id = QStringLiteral("77");
    logica->AceptarCliente();
    logica->EmpezarDevolucion();
    EXPECT_EQ(vista.Estado(), "LVEstado R") << "an empty list has nothing to take back";
}

TEST_F(Cuentas, SeveralDocumentsAreTakenBackInOneActionEachWithItsQuestion) {
    Abrir();
    logica->AceptarCliente();
    logica->EmpezarDevolucion();
    mundo.preguntas.EsperaMensaje(QStringLiteral("No ha seleccionado ningún item de la lista."),
                                  Icono::Informacion);
    logica->Devolver();
    EXPECT_EQ(vista.Estado(), "LVEstado  devolucion");
    Marcar({0, 1, 2}); // the last one, "Ticket", is passed over
    Esperar(kCredito, Respuesta::Si);
    Esperar(kContado, Respuesta::No);
    logica->Devolver();
    EXPECT_EQ(Nuevas(), (Textos{kFilaCredito, kFilaContado}));
    EXPECT_EQ(vista.Estado(), "LVEstado IEDR");
    EXPECT_EQ(Lista().Filas(), 8);
    EXPECT_EQ(Saldo(), "$ -820,75");
    EXPECT_EQ(Lista().Celda(0, movimiento::Detalle), QStringLiteral("Factura crédito")) << "not marked";
    EXPECT_EQ(mundo.impresoras.actual, QStringLiteral("Tickets"));
    ASSERT_EQ(mundo.impresoras.documentos.size(), 1u);
    const QString papel = mundo.impresoras.documentos[0]->Lineas().join(u'\n');
    for (const char *parte : {"Cliente    Ñandú S.A.\nNota de crédito\n", "03/11/2026 - 09:14", "$ 1250,00"})
        EXPECT_TRUE(papel.contains(QString::fromUtf8(parte))) << papel.toStdString();
}

// The number of the document stands where its amount is looked for.
TEST_F(Cuentas, AReturnFromTheCashListTakesTheDocumentNumberForItsTotal) {
    Abrir();
    logica->VerContado();
    logica->EmpezarDevolucion();
    EXPECT_EQ(vista.Estado(), "LVEstadoContado  devolucion");
    ASSERT_EQ(Lista().Filas(), 1);
    Marcar({0});
    Esperar(kMostrador, Respuesta::Si);
    logica->Devolver();
    EXPECT_EQ(Nuevas(),
              Textos{"22/11/2026|10:42|0||||DevContado|Devolución contado (05/11/2026 - 19:00)||0|56"});
    EXPECT_EQ(vista.Estado(), "LVEstadoContado ID");
    EXPECT_EQ(Saldo(), "$ 76,00");
    const QStringList papel = mundo.impresoras.documentos[0]->Lineas();
    EXPECT_FALSE(papel.join(u'\n').contains(QStringLiteral("Cliente")));
    EXPECT_TRUE(papel.contains(QStringLiteral("Factura contado") + QString(22, u' ') + QStringLiteral("56")))
        << papel.join(u'\n').toStdString();
}

// A text that happens to be the id of a row marks that row.
TEST_F(Cuentas, TheMarkGoesToTheRowWhoseIdTheFixedColumnHolds) {
    mundo.datos.Ejecutar("UPDATE ventas.Ventas SET fecha='8' WHERE id=1");
    Abrir();
    logica->AceptarCliente();
    logica->EmpezarDevolucion();
    Marcar({0});
    Esperar("Desea imprimir el comprobante?\n8 - 09:14 - Factura crédito", Respuesta::No);
    logica->Devolver();
    EXPECT_EQ(mundo.datos.Filas("SELECT id, tipo FROM ventas.Ventas WHERE descripcion LIKE '%(D)' AND id<>9"),
              (std::vector<std::vector<QString>>{{QStringLiteral("8"), QStringLiteral("Otro")}}));
}

TEST_F(Cuentas, WhatFailsHalfWayEndsTheReturnAndTheSameButtonDoesTheRest) {
    mundo.datos.Ejecutar("CREATE TRIGGER ventas.negar BEFORE INSERT ON Ventas WHEN NEW.tipo='DevContado' "
                         "BEGIN SELECT RAISE(FAIL,'sin lugar'); END");
    Abrir();
    logica->AceptarCliente();
    logica->EmpezarDevolucion();
    Marcar({0, 1});
    mundo.impresoras.fallar = true;
    Esperar(kCredito, Respuesta::Si);
    mundo.preguntas.EsperaMensaje(
        QStringLiteral(
            "No se pudo imprimir el comprobante. No hay impresora.\n\nLa devolución quedó guardada."),
        Icono::Critico);
    logica->Devolver();
    EXPECT_EQ(Nuevas(), Textos{kFilaCredito});
    EXPECT_EQ(vista.Estado(), "LVEstado  devolucion");
    for (int vez = 0; vez < 2; ++vez) {
        mundo.preguntas.EsperaMensaje(
            QStringLiteral(
                "No se pudo escribir en la base de datos: sin lugar.\n\nNo se guardó la devolución de: "
                "05/11/2026 - 18:40 - Factura contado"),
            Icono::Critico);
        logica->Devolver();
    }
    EXPECT_EQ(Nuevas(), Textos{kFilaCredito});
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
    vista.elegido->id = QStringLiteral("77");
    logica->AceptarCliente();
    EXPECT_EQ(vista.Estado(), "LVEstado R");
    vista.elegido->id = QStringLiteral("1");
    logica->AceptarCliente();
    EXPECT_EQ(vista.Estado(), "LVEstado  devolucion");
    logica->CancelarDevolucion();
    logica->AceptarCliente();
    EXPECT_EQ(vista.Estado(), "LVEstado IEDR") << "once only";
}

// --- listings

struct CasoListado {
    const char *pregunta;
    Textos lineas; // from the title on, without the empty ones
};

TEST_F(Cuentas, EachListingPrintsItsListAsItStands) {
    const std::string raya(95, '-');
    const CasoListado casos[] = {
        {"Desea imprimir el listado de ventas contado?",
         {std::string(30, ' ') + "VENTAS CONTADO", std::string(30, ' ') + "--------------",
          "Hoja     1 de 1 ", raya,
          "    Fecha      Hora       Detalle                                                    Subtotal",
          " 05/11/2026   19:00       Factura contado" + std::string(45, ' ') + "$ 10,00",
          " 21/11/2026   09:05       Devolución contado (05/11/2026 - 19:00)" + std::string(21, ' ') +
              "$ 10,00",
          std::string(57, ' ') + "Total    $ 20,00"}},
        {"Desea imprimir el estado de cuenta?",
         {std::string(29, ' ') + "ESTADO DE CUENTA", std::string(29, ' ') + "----------------",
          "Cliente: Juan", "Hoja     1 de 1 ", raya,
          "  Fecha      Hora   Detalle                      Debe                Haber              Saldo",
          " 22/11/2026 10:30   Factura contado (D)        $ 3,00               $ 3,00             $ 0,00",
          std::string(58, ' ') + "Saldo    $ 0,00"}},
        {"Desea imprimir la planilla de caja?",
         {std::string(29, ' ') + "PLANILLA DE CAJA", std::string(29, ' ') + "----------------",
          "Hoja     1 de 1 ", raya,
          "  Fecha      Hora   Detalle                      Debe                Haber              Saldo",
          " 22/11/2026 10:00   Ticket",
          " 22/11/2026 10:30   Factura contado (D)        $ 3,00               $ 3,00             $ 0,00",
          std::string(58, ' ') + "Saldo    $ 3,00"}},
    };
    Abrir();
    vista.elegido = ClienteElegido{QStringLiteral("2"), QStringLiteral("Juan")};
    vista.periodo.desde = QDateTime({2026, 11, 22}, {0, 0});
    void (EstadosLogica::*const vistas[])() = {&EstadosLogica::VerContado, &EstadosLogica::AceptarCliente,
                                               &EstadosLogica::VerCaja};
    mundo.impresoras.actual = QStringLiteral("Tickets");
    for (std::size_t i = 0; i < 3; ++i) {
        (*logica.*vistas[i])();
        Esperar(casos[i].pregunta, Respuesta::Si);
        logica->Imprimir();
        EXPECT_EQ(mundo.impresoras.actual, QStringLiteral("Láser"));
        QStringList lineas = mundo.impresoras.documentos.back()->Lineas();
        lineas.removeAll(QString());
        Textos textos;
        for (const QString &linea : lineas)
            textos.push_back(linea.toStdString());
        EXPECT_EQ(textos, casos[i].lineas);
    }
    mundo.impresoras.fallar = true;
    Esperar(casos[2].pregunta, Respuesta::Si);
    mundo.preguntas.EsperaMensaje(QStringLiteral("No se han encontrado impresoras instaladas."),
                                  Icono::Informacion);
    logica->Imprimir();
    EXPECT_EQ(vista.Estado(), "LVCaja I");
}

} // namespace
} // namespace tarvo
