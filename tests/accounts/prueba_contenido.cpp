// What stands in the three lists, their tones, order and sums; texts of a file that no window would write.
#include "cuentasprueba.h"

#include "accounts/contenidocuenta.h"
#include "accounts/formasmovimiento.h"
#include "accounts/sumacuenta.h"

namespace tarvo {
namespace {

using Textos = std::vector<std::string>;

TEST(FormasMovimiento, ADateOrHourTakesItsOneFormAndOtherTextStays) {
    const std::pair<const char *, const char *> fechas[] = {{"22/11/2026", "2026/11/22"},
                                                            {"1/2/2020", "2020/02/01"},
                                                            {"29/02/2024", "2024/02/29"},
                                                            {"29/02/2023", "29/02/2023"},
                                                            {"31/02/2020", "31/02/2020"},
                                                            {"2020-02-01", "2020/02/01"},
                                                            {"1/2/20", "1/2/20"},
                                                            {"01/13/2020", "01/13/2020"},
                                                            {"01/02-2020", "01/02-2020"},
                                                            {"01/02/20201", "01/02/20201"},
                                                            {"ayer", "ayer"},
                                                            {"", ""},
                                                            {"00/01/2020", "00/01/2020"},
                                                            {"01/02/2020 9:05", "01/02/2020 9:05"}};
    const std::pair<const char *, const char *> horas[] = {
        {"09:05", "09:05"},     {"9:05", "09:05"}, {"9:5", "09:05"},   {"23:59:59", "23:59"},
        {"24:00", "24:00"},     {"9:60", "9:60"},  {"9", "9"},         {"9.05", "9.05"},
        {"9:05 PM", "9:05 PM"}, {"", ""},          {"9:05:", "9:05:"}, {"9:05:61", "9:05:61"}};
    std::string bufer;
    for (const auto &[texto, esperado] : fechas)
        EXPECT_EQ(FechaOrden(texto, bufer), esperado);
    for (const auto &[texto, esperado] : horas)
        EXPECT_EQ(HoraMovimiento(texto, bufer), esperado);
}

class Contenido : public ::testing::Test {
  protected:
    explicit Contenido(Moneda moneda = Moneda()) : datos(std::move(moneda)) { datos.Ejecutar(kHistoria); }

    ListaTexto &Mostrar(ListaCuenta cual, const RangoCaja &rango = {}, const char *cliente = "1") {
        lista = std::make_unique<ListaTexto>(ColumnasCuenta(cual));
        OrdenInicial(*lista);
        FrmBases &bases = datos.Abrir();
        lista->Asignar(cual == ListaCuenta::Contado  ? ContenidoContado(bases)
                       : cual == ListaCuenta::Estado ? ContenidoEstado(bases, QString::fromUtf8(cliente))
                                                     : ContenidoCaja(bases, rango));
        suma = CalcularSuma(*lista, cual, bases.moneda());
        mensaje = MensajeSinNumero(*lista, cual, suma).toStdString();
        return *lista;
    }
    std::string Columna(int columna) {
        QStringList celdas;
        for (int fila = 0; fila < lista->Filas(); ++fila)
            celdas += lista->Celda(fila, columna);
        return celdas.join(QLatin1Char('|')).toStdString();
    }

    DatosPrueba datos;
    std::unique_ptr<ListaTexto> lista;
    SumaCuenta suma;
    std::string mensaje;
};

TEST_F(Contenido, TheStatementHasEveryMovementOfItsCustomerInTableOrder) {
    EXPECT_EQ(FilasDe(Mostrar(ListaCuenta::Estado)),
              (Textos{"03/11/2026|09:14|Factura crédito|51|$ 1250,00|$ 0,00|$ 1250,00|2026/11/03|",
                      "05/11/2026|18:40|Factura contado|55|$ 84,90|$ 84,90|$ 0,00|2026/11/05|",
                      "08/11/2026|11:02|Recibo||$ 0,00|$ 500,00|$ -500,00|2026/11/08|",
                      "14/11/2026|10:05|Nota de crédito (12/11/2026 - 16:27)||$ 0,00|$ 320,75|$ "
                      "-320,75|2026/11/14|",
                      "19/11/2026|12:51|Devolución contado (05/11/2026 - 18:40)||$ 84,90|$ 84,90|$ "
                      "0,00|2026/11/19|",
                      "22/11/2026|10:00|Ticket|60|||8|2026/11/22|"}));
    using enum Tono;
    const std::array<std::array<Tono, 3>, 6> tonos{{{Normal, Azul, Normal},
                                                    {Normal, Normal, Verde},
                                                    {Marron, Normal, Rojo},
                                                    {Purpura, Normal, Rojo},
                                                    {Purpura, Normal, Verde},
                                                    {Normal, Normal, Normal}}};
    for (int fila = 0; fila < lista->Filas(); ++fila)
        EXPECT_EQ(
            (std::array{lista->TonoDe(fila, movimiento::Detalle), lista->TonoDe(fila, movimiento::Haber),
                        lista->TonoDe(fila, movimiento::Subtotal)}),
            tonos[static_cast<std::size_t>(fila)])
            << fila;
    EXPECT_DOUBLE_EQ(suma.suma, 429.25);
    EXPECT_EQ(mensaje, "");
}

// The symbol is cut from the id too, when a kind isn't known.
TEST_F(Contenido, TheIdOfAnUnknownKindCountsInTheBalance) {
    datos.Ejecutar("UPDATE ventas.Ventas SET id=12345 WHERE tipo='Otro'");
    Mostrar(ListaCuenta::Estado);
    EXPECT_EQ(lista->Celda(5, movimiento::Subtotal), QStringLiteral("12345"));
    EXPECT_DOUBLE_EQ(suma.suma, 429.25 + 345);
}

TEST_F(Contenido, TheCashListHasEveryMovementWithoutCustomerAndAddsReturns) {
    EXPECT_EQ(FilasDe(Mostrar(ListaCuenta::Contado)),
              (Textos{"05/11/2026|19:00|Factura contado|56|$ 10,00|3|2026/11/05",
                      "21/11/2026|09:05|Devolución contado (05/11/2026 - 19:00)||$ 10,00|7|2026/11/21"}));
    EXPECT_EQ(lista->TonoDe(0, contado::Detalle), Tono::Normal);
    EXPECT_EQ(lista->TonoDe(1, contado::Detalle), Tono::Purpura);
    EXPECT_DOUBLE_EQ(suma.suma, 20);
}

TEST_F(Contenido, TheCashSheetTakesBothEndsAndSumsWhatCameIn) {
    const auto rango = [](const char *desde, const char *hora, const char *hasta, const char *horaHasta) {
        return RangoCaja{QString::fromUtf8(desde), QString::fromUtf8(hora), QString::fromUtf8(hasta),
                         QString::fromUtf8(horaHasta)};
    };
    Mostrar(ListaCuenta::Caja, rango("2026/11/03", "00:00", "2026/11/22", "23:59"));
    EXPECT_EQ(Columna(movimiento::Id), "1|2|3|4|5|6|7|8|9");
    EXPECT_EQ(Fila(*lista, 0), "03/11/2026|09:14|Factura crédito|51|$ 1250,00|$ 0,00|$ 1250,00|1|2026/11/03");
    EXPECT_EQ(Fila(*lista, 7), "22/11/2026|10:00|Ticket|60||||8|2026/11/22");
    EXPECT_EQ(lista->TonoDe(4, movimiento::Detalle), Tono::Purpura);
    EXPECT_EQ(lista->TonoDe(4, movimiento::Subtotal), Tono::Rojo);
    EXPECT_DOUBLE_EQ(suma.suma, 84.9 + 10 + 500 + 320.75 + 84.9 + 10 + 3);
    // The hours bind on the first and the last day only; 9:05 compares as 09:05.
    const std::pair<RangoCaja, const char *> rangos[] = {
        {rango("2026/11/05", "18:40", "2026/11/05", "18:40"), "2"},
        {rango("2026/11/05", "18:41", "2026/11/21", "09:05"), "3|4|5|6|7"},
        {rango("2026/11/05", "19:01", "2026/11/21", "09:04"), "4|5|6"},
        {rango("2026/11/23", "00:00", "2026/11/24", "23:59"), ""}};
    for (const auto &[este, ids] : rangos) {
        Mostrar(ListaCuenta::Caja, este);
        EXPECT_EQ(Columna(movimiento::Id), ids);
    }
}

TEST_F(Contenido, DatesThatAreNoneAreComparedAsTextAndHoursStayInTheirDay) {
    PonerVenta(datos, "'2026/11/21x','10:00','0','','Contado','Rara','$ 1,00'");
    PonerVenta(datos, "'','10:00','0','','Contado','Vacía','$ 1,00'");
    PonerVenta(datos, "'22/11/2026','tarde','0','','Contado','Sin hora','$ 1,00'");
    Mostrar(ListaCuenta::Caja, {QStringLiteral("2026/11/20"), QStringLiteral("00:00"),
                                QStringLiteral("2026/11/23"), QStringLiteral("23:59")});
    EXPECT_EQ(Columna(movimiento::Detalle),
              "Devolución contado (05/11/2026 - 19:00)|Rara|Ticket|Factura contado (D)|Sin hora");
    Mostrar(ListaCuenta::Caja, {QStringLiteral("2026/11/22"), QStringLiteral("00:00"),
                                QStringLiteral("2026/11/22"), QStringLiteral("23:59")});
    EXPECT_EQ(Columna(movimiento::Detalle), "Ticket|Factura contado (D)") << "\"tarde\" is behind 23:59";
}

struct TotalRaro {
    const char *total;
    const char *contado; // shown in the cash list and on the sheet
    const char *estado;  // shown in the statement
    double suma;         // of the cash list
};

TEST_F(Contenido, ATotalOfAnyFormIsShownAndOneThatIsNoNumberIsToldWithItsRow) {
    const TotalRaro casos[] = {{"$ 12,5", "$ 12,50", "$ 12,50", 12.5},
                               {"12.50", "$ 12,50", "$ 0,50", 12.5}, // the cut takes two characters
                               {"$12,50", "$ 12,50", "$ 2,50", 12.5},
                               {"$ -3,00", "$ -3,00", "$ -3,00", -3},
                               {"", "$ 0,00", "$ 0,00", 0},
                               {"Bs 12,50", "$ Bs 12,50", "$ 12,50", 0},
                               {"$ 1.234,50", "$ $ 1.234,50", "$ 1.234,50", 0},
                               {"doce", "$ doce", "$ ce", 0}};
    for (const TotalRaro &caso : casos) {
        SCOPED_TRACE(caso.total);
        datos.Cerrar();
        datos.Ejecutar("DELETE FROM ventas.Ventas");
        PonerVenta(datos, (std::string("'01/02/2026','8:00','0','7','Contado','Factura contado','") +
                           caso.total + "'")
                              .c_str());
        PonerVenta(datos, (std::string("'01/02/2026','8:00','1','7','Credito','Factura crédito','") +
                           caso.total + "'")
                              .c_str());
        Mostrar(ListaCuenta::Estado);
        EXPECT_EQ(lista->Celda(0, movimiento::Debe), QString::fromUtf8(caso.estado));
        Mostrar(ListaCuenta::Contado);
        EXPECT_EQ(lista->Celda(0, contado::Subtotal), QString::fromUtf8(caso.contado));
        EXPECT_DOUBLE_EQ(suma.suma, caso.suma);
    }
    EXPECT_EQ(mensaje,
              "El importe \"$ doce\" no es un número y no se suma.\n\n01/02/2026 - 08:00 - Factura contado");
}

TEST_F(Contenido, ANumberTooLongToAddUpIsShownWholeAndTheOthersAreSummed) {
    const std::string largo = "$ " + std::string(400, '7') + ",00";
    datos.Ejecutar(("UPDATE ventas.Ventas SET total='" + largo + "' WHERE id IN (3, 7)").c_str());
    PonerVenta(datos, "'01/02/2026','08:00','0','','Contado','Factura contado','$ 5,00'");
    Mostrar(ListaCuenta::Contado);
    const std::string mostrado = "$ " + largo; // as any text that is no number
    EXPECT_EQ(lista->Celda(1, contado::Subtotal).toStdString(), mostrado);
    EXPECT_DOUBLE_EQ(suma.suma, 5);
    EXPECT_EQ(mensaje, "El importe \"" + mostrado.substr(0, 60) +
                           "\" no es un número y no se suma.\n\n05/11/2026 - 19:00 - Factura contado\n\n"
                           "Otras filas en el mismo caso: 1");
}

// A symbol of two characters loses its blank in the signed text, and the sum reads what is left.
class ContenidoGuaranies : public Contenido {
  protected:
    ContenidoGuaranies() : Contenido(Moneda(QStringLiteral("."), QStringLiteral("Gs"))) {}
};

TEST_F(ContenidoGuaranies, TheFixedCutOfTwoCharactersReadsAReceiptAsPositive) {
    datos.Ejecutar("DELETE FROM ventas.Ventas");
    PonerVenta(datos, "'01/02/2026','08:00','1','','Recibo','Recibo','Gs 12.00'");
    PonerVenta(datos, "'01/02/2026','08:00','1','','Credito','Factura crédito','Gs 512.00'");
    Mostrar(ListaCuenta::Estado);
    EXPECT_EQ(Columna(movimiento::Haber), "Gs 12.00|Gs 0.00");
    EXPECT_EQ(Columna(movimiento::Subtotal), "Gs-12.00|Gs512.00");
    EXPECT_DOUBLE_EQ(suma.suma, 12 + 12);
}

// --- the order

struct Clic {
    int columna;
    int clave; // sorted by after it
    Qt::SortOrder orden;
    int flechaRellena; // header with the arrow once the list is filled again
};

TEST(OrdenCuenta, ADateHeaderSortsByTheHiddenColumnOfItsList) {
    constexpr auto kSube = Qt::AscendingOrder;
    constexpr auto kBaja = Qt::DescendingOrder;
    for (const ListaCuenta cual : kListasCuenta) {
        ListaTexto lista(ColumnasCuenta(cual));
        OrdenInicial(lista);
        const int ultima = lista.columnCount() - 1;
        const auto llenar = [&] {
            ContenidoLista contenido{std::vector<ColumnaTexto>(static_cast<std::size_t>(ultima + 1))};
            for (ColumnaTexto &columna : contenido.celdas)
                columna.Agregar("x");
            lista.Asignar(std::move(contenido));
        };
        lista.ClicEncabezado(2); // nothing, without rows
        llenar();
        EXPECT_EQ(lista.ColumnaOrden(), ultima);
        EXPECT_EQ(lista.ColumnaFlecha(), 0);
        const Clic clics[] = {{0, ultima - 1, kSube, ultima - 1},
                              {0, ultima - 1, kBaja, ultima - 1},
                              {2, 2, kSube, 2},
                              {2, 2, kBaja, 2},
                              {0, ultima - 1, kSube, ultima - 1}};
        for (const Clic &clic : clics) {
            lista.ClicEncabezado(clic.columna);
            EXPECT_EQ(lista.ColumnaFlecha(), clic.columna);
            EXPECT_EQ(lista.ColumnaOrden(), clic.clave);
            EXPECT_EQ(lista.Orden(), clic.orden);
            llenar();
            EXPECT_EQ(lista.ColumnaFlecha(), clic.flechaRellena);
        }
    }
}

} // namespace
} // namespace tarvo
