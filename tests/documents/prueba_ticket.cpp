// What slips carry, line by line.
#include "documents/comprobanteprueba.h"
#include "documents/recibos.h"

#include "testkit/datosprueba.h"
#include "testkit/papelprueba.h"

namespace tarvo {
namespace {

QString VolcadoDe(const Comprobante &venta) {
    PapelPrueba papel;
    ImprimirTicket(papel, CabeceraTienda(), venta);
    EXPECT_TRUE(papel.Terminado());
    return papel.Volcado();
}

// The lines from the title on.
QStringList CuerpoDe(const Comprobante &venta) {
    PapelPrueba papel;
    ImprimirTicket(papel, CabeceraTienda(), venta);
    return papel.Lineas().mid(10);
}

TEST(Ticket, CashSaleWithoutCustomer) {
    EXPECT_EQ(VolcadoDe(VentaContado()).toStdString(), R"(

        [11][n]Almacén Sol
      [/n]Av. Italia 1234

       Tel. 2400 0000
          [n]Gracias

[8]22/11/2026    10:42

[/n]Factura contado
---------------------------------------
[n]Detalle                           Total
[/n]Yerba                           $ 37,50
  3 x $ 12,50
---------------------------------------
Subtotal                        $ 37,50
IVA                              $ 8,25
Total                           $ 45,75
Descuento                           0 %
[n]Total c/Descuento               $ 45,75
[/n]Vendedor 1 - Ana


)");
}

TEST(Ticket, CreditSaleWithCustomerNumberAndCustomTax) {
    Comprobante venta = VentaContado();
    venta.tipo = u"Factura crédito"_qs;
    venta.numero = u"A-0001"_qs;
    venta.cliente = u"Panadería La Espiga"_qs;
    venta.idFiscal = u"211234560018"_qs;
    venta.nombreImpuesto = u"COFIS"_qs;
    venta.impuesto = u"$ 1,00"_qs;
    venta.descuento = u"10 %"_qs;
    const QString volcado = VolcadoDe(venta);
    // The customer stands in the bold that header line 5 left.
    for (const QString &parte :
         {u"[n]Gracias\n\n[8]22/11/2026    10:42\n\nCliente    Panadería La Espiga\n"
          "[/n]Id. Fiscal 211234560018\nFactura crédito\nNº Comprobante A-0001\n-----"_qs,
          u"\nIVA                              $ 8,25\nCOFIS                            $ 1,00\n"
          "Total                           $ 45,75\nDescuento                          10 %\n"_qs})
        EXPECT_TRUE(volcado.contains(parte)) << volcado.toStdString();
}

TEST(Ticket, NothingLeavesTheThirtyNineColumns) {
    Comprobante venta = VentaContado();
    const QString largo(60, u'x');
    venta.tipo = venta.numero = venta.cliente = venta.idFiscal = venta.vendedor = largo;
    venta.nombreImpuesto = largo;
    venta.impuesto = u"$ 1234567,00"_qs;
    venta.lineas = {{largo, largo, largo, largo, u"$ 37,50"_qs}};
    const QStringList cuerpo = CuerpoDe(venta);
    for (const QString &linea : cuerpo)
        EXPECT_LE(linea.size(), 39) << linea.toStdString();
    EXPECT_TRUE(cuerpo.contains(QString(26, u'x') + u" $ 1234567,00"_qs));
}

TEST(Ticket, LongNameIsCutAndItsAmountGoesToTheNextLine) {
    const std::tuple<int, QString, QStringList> casos[] = {
        {31, u"$ 37,50"_qs, {QString(31, u'x') + u" $ 37,50"_qs}},
        {32, u"$ 37,50"_qs, {QString(32, u'x') + u"$ 37,50"_qs}},
        {33, u"$ 37,50"_qs, {QString(33, u'x'), QString(32, u' ') + u"$ 37,50"_qs}},
        {60, u"1,50"_qs, {QString(35, u'x') + u"1,50"_qs}},
        {60, u"12,50"_qs, {QString(35, u'x'), QString(34, u' ') + u"12,50"_qs}},
    };
    for (const auto &[largo, importe, lineas] : casos) {
        Comprobante venta = VentaContado();
        venta.lineas = {{{}, QString(largo, u'x'), u"1"_qs, importe, importe}};
        EXPECT_EQ(CuerpoDe(venta).mid(3, lineas.size()), lineas) << largo;
    }
}

// Slips and the test ticket disagree on odd lengths: the one rounds to the even column, the other truncates.
TEST(Ticket, HeaderLinesAreCentredByTwoRules) {
    const std::array<int, 3> casos[] = {{1, 14, 14}, {2, 13, 13}, {3, 12, 13}, {5, 12, 12}, {7, 10, 11},
                                        {27, 0, 1},  {28, 0, 0},  {29, 0, 0},  {31, 0, 0},  {40, 0, 0}};
    for (const auto &[largo, enTicket, enPrueba] : casos) {
        Cabecera cabecera;
        cabecera[0].texto = QString(largo, u'x');
        PapelPrueba ticket;
        ImprimirCabecera(ticket, cabecera, QDateTime({2026, 11, 22}, {10, 42}));
        PapelPrueba prueba;
        ImprimirTicketPrueba(prueba, cabecera);
        EXPECT_EQ(ticket.Trozos().front().columna, enTicket) << largo;
        EXPECT_EQ(prueba.Trozos().front().columna, enPrueba) << largo;
    }
}

TEST(Ticket, TestTicketHasOneEmptyLineAndTheFiveLines) {
    PapelPrueba papel;
    ImprimirTicketPrueba(papel, CabeceraTienda());
    EXPECT_TRUE(papel.Terminado());
    EXPECT_EQ(papel.Volcado().toStdString(), R"(
         [11][n]Almacén Sol
       [/n]Av. Italia 1234

       Tel. 2400 0000
           [n]Gracias
)");
}

TEST(Ticket, HeaderIsReadFromTheTicketTable) {
    DatosPrueba datos;
    datos.Ejecutar("UPDATE main.Ticket SET linea1='Uno', negrita1='S', linea2='Dos', negrita2='N', linea3='',"
                   " negrita3='s', linea4='Cuatro', negrita4='', linea5='Cinco', negrita5='S'");
    const Cabecera cabecera = LeerCabecera(datos.Abrir());
    QString lineas;
    for (const LineaCabecera &linea : cabecera)
        lineas += linea.texto + (linea.negrita ? u" S|"_qs : u" N|"_qs);
    EXPECT_EQ(lineas, u"Uno S|Dos N| N|Cuatro N|Cinco S|");
}

const QDateTime kMomento({2026, 11, 22}, {10, 42});

// The slip from its date on.
template <typename Imprimir> QString Hoja(const Imprimir &imprimir) {
    PapelPrueba papel;
    imprimir(papel);
    EXPECT_TRUE(papel.Terminado());
    return papel.Volcado().section(u"[8]"_qs, 1);
}

// The heading has left its bold on.
TEST(Recibos, ReceiptOfAPayment) {
    const Recibo recibo{kMomento, u"Panadería La Espiga"_qs, u"$ 250,00"_qs};
    EXPECT_EQ(Hoja([&](Superficie &papel) { ImprimirRecibo(papel, CabeceraTienda(), recibo); }).toStdString(),
              R"(22/11/2026    10:42

Cliente    Panadería La Espiga
[/n]Recibo
---------------------------------------
[n]Total                          [/n]$ 250,00


)");
}

// Bold or not, title and rule stay as header line 5 left them. An amount that the description has passed goes
// to the next line.
TEST(Recibos, CreditNoteAndCashReturn) {
    Cabecera cabecera = CabeceraTienda();
    Devolucion nota{u"Nota de crédito"_qs, kMomento,      u"Ana"_qs, u"03/05/2026"_qs, u"14:07"_qs,
                    u"Factura crédito"_qs, u"$ 250,00"_qs};
    const auto hoja = [&] {
        return Hoja([&](Superficie &papel) { ImprimirDevolucion(papel, cabecera, nota); }).toStdString();
    };
    EXPECT_EQ(hoja(), R"(22/11/2026    10:42

Cliente    Ana
Nota de crédito
---------------------------------------
Fecha        Hora
[/n]03/05/2026 - 14:07
[n]Detalle                          Total
[/n]Factura crédito                $ 250,00


)");
    nota.titulo = u"Devolución Contado"_qs;
    nota.cliente = std::nullopt;
    nota.descripcion = QString(40, u'x');
    cabecera[4].negrita = false;
    EXPECT_EQ(hoja(), R"(22/11/2026    10:42

Devolución Contado
---------------------------------------
[n]Fecha        Hora
[/n]03/05/2026 - 14:07
[n]Detalle                          Total
[/n]xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx
                               $ 250,00


)");
}

} // namespace
} // namespace tarvo
