// The slips of the accounts, line by line.
#include "documents/recibos.h"

#include "testkit/papelprueba.h"

#include <gtest/gtest.h>

using namespace tarvo;

namespace {

const QDateTime kMomento({2026, 11, 22}, {10, 42});

Cabecera CabeceraTienda(bool quintaNegrita) {
    return {{{QStringLiteral("Almacén Sol"), false}, {}, {}, {}, {QStringLiteral("Gracias"), quintaNegrita}}};
}

template <typename Imprimir> std::string Pagina(const Imprimir &imprimir) {
    PapelPrueba papel;
    imprimir(papel);
    EXPECT_TRUE(papel.Terminado());
    return papel.Volcado().toStdString();
}

} // namespace

TEST(Recibos, ReceiptOfAPayment) {
    EXPECT_EQ(Pagina([](Superficie &papel) {
                  ImprimirRecibo(
                      papel, CabeceraTienda(true),
                      {kMomento, QStringLiteral("Panadería La Espiga"), QStringLiteral("$ 250,00")});
              }),
              R"(

        [11]Almacén Sol



          [n]Gracias

[8]22/11/2026    10:42

Cliente    Panadería La Espiga
[/n]Recibo
---------------------------------------
[n]Total                          [/n]$ 250,00


)");
}

// Bold or not, title and rule stay as header line 5 left them. An amount that the description has passed goes
// to the next line.
TEST(Recibos, CreditNoteAndCashReturn) {
    Devolucion nota{TituloNotaCredito(),       kMomento,
                    QStringLiteral("Ana"),     QStringLiteral("03/05/2026"),
                    QStringLiteral("14:07"),   QStringLiteral("Factura crédito"),
                    QStringLiteral("$ 250,00")};
    EXPECT_EQ(Pagina([&](Superficie &papel) { ImprimirDevolucion(papel, CabeceraTienda(true), nota); }),
              R"(

        [11]Almacén Sol



          [n]Gracias

[8]22/11/2026    10:42

Cliente    Ana
Nota de crédito
---------------------------------------
Fecha        Hora
[/n]03/05/2026 - 14:07
[n]Detalle                          Total
[/n]Factura crédito                $ 250,00


)");
    nota.titulo = TituloDevolucion();
    nota.cliente = std::nullopt;
    nota.descripcion = QString(40, u'x');
    EXPECT_EQ(Pagina([&](Superficie &papel) { ImprimirDevolucion(papel, CabeceraTienda(false), nota); }),
              R"(

        [11]Almacén Sol



          Gracias

[8]22/11/2026    10:42

Devolución Contado
---------------------------------------
[n]Fecha        Hora
[/n]03/05/2026 - 14:07
[n]Detalle                          Total
[/n]xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx
                               $ 250,00


)");
}
