// What stands in the three lists, their tones, order and sums; texts of a file that no window would write.
#include "cuentasprueba.h"

#include "accounts/codigoleido.h"
#include "accounts/contenidocuenta.h"
#include "accounts/formasmovimiento.h"
#include "accounts/sumacuenta.h"

namespace tarvo {
namespace {

TEST(FormasMovimiento, ADateOrHourTakesItsOneFormAndOtherTextStays) {
    const std::pair<const char *, const char *> fechas[] = {{"22/11/2026", "2026/11/22"},
                                                            {"1/2/2020", "2020/02/01"},
                                                            {"29/02/2024", "2024/02/29"},
                                                            {"2020-02-01", "2020/02/01"}};
    const std::pair<const char *, const char *> horas[] = {
        {"09:05", "09:05"}, {"9:05", "09:05"}, {"9:5", "09:05"}, {"23:59:59", "23:59"}};
    std::string bufer;
    for (const auto &[texto, esperado] : fechas)
        EXPECT_EQ(FechaOrden(texto, bufer), esperado);
    for (const auto &[texto, esperado] : horas)
        EXPECT_EQ(HoraMovimiento(texto, bufer), esperado);
    for (const char *texto : {"29/02/2023", "31/02/2020", "1/2/20", "01/13/2020", "01/02-2020", "01/02/20201",
                              "ayer", "", "00/01/2020", "01/02/2020 9:05"})
        EXPECT_EQ(FechaOrden(texto, bufer), texto);
    for (const char *texto : {"24:00", "9:60", "9", "9.05", "9:05 PM", "", "9:05:", "9:05:61"})
        EXPECT_EQ(HoraMovimiento(texto, bufer), texto);
}

TEST(CodigoLeido, IsWhatNoAmountLooksLike) {
    const std::pair<const char *, bool> casos[] = {{"7790001000011", true}, {"12345678", true},
                                                   {"1234567", false},      {"12345678,90", false},
                                                   {"AB-7", true},          {"-5", false}};
    for (const auto &[leido, esCodigo] : casos)
        EXPECT_EQ(EsCodigoLeido(QString::fromUtf8(leido)), esCodigo) << leido;
}

class Contenido : public ::testing::Test {
  protected:
    explicit Contenido(Moneda moneda = Moneda()) : datos(std::move(moneda)) { datos.Ejecutar(kHistoria); }

    void Mostrar(ListaCuenta cual, const RangoCaja &rango = {}, const char *cliente = "1") {
        lista = std::make_unique<ListaTexto>(ColumnasCuenta(cual));
        OrdenInicial(*lista);
        FrmBases &bases = datos.Abrir();
        lista->Asignar(cual == ListaCuenta::Contado  ? ContenidoContado(bases)
                       : cual == ListaCuenta::Estado ? ContenidoEstado(bases, QString::fromUtf8(cliente))
                                                     : ContenidoCaja(bases, rango));
        suma = CalcularSuma(*lista, cual, bases.moneda());
        mensaje = MensajeSinNumero(*lista, cual, suma).toStdString();
    }
    QString Columna(int columna) const { return ColumnaDe(*lista, columna); }

    DatosPrueba datos;
    std::unique_ptr<ListaTexto> lista;
    SumaCuenta suma;
    std::string mensaje;
};

TEST_F(Contenido, TheStatementHasEveryMovementOfItsCustomerInTableOrder) {
    const QStringList filas{u"03/11/2026|09:14|Factura crédito|51|$ 1250,00|$ 0,00|$ 1250,00|2026/11/03|"_qs,
                            u"05/11/2026|18:40|Factura contado|55|$ 84,90|$ 84,90|$ 0,00|2026/11/05|"_qs,
                            u"08/11/2026|11:02|Recibo||$ 0,00|$ 500,00|$ -500,00|2026/11/08|"_qs,
                            u"14/11/2026|10:05|Nota de crédito (12/11/2026 - 16:27)||$ 0,00|$ 320,75|"
                            "$ -320,75|2026/11/14|"_qs,
                            u"19/11/2026|12:51|Devolución contado (05/11/2026 - 18:40)||$ 84,90|$ 84,90|"
                            "$ 0,00|2026/11/19|"_qs,
                            u"22/11/2026|10:00|Ticket|60|||8|2026/11/22|"_qs};
    Mostrar(ListaCuenta::Estado);
    ASSERT_EQ(lista->Filas(), filas.size());
    using enum Tono;
    const std::array<std::array<Tono, 3>, 6> tonos{{{Normal, Azul, Normal},
                                                    {Normal, Normal, Verde},
                                                    {Marron, Normal, Rojo},
                                                    {Purpura, Normal, Rojo},
                                                    {Purpura, Normal, Verde},
                                                    {Normal, Normal, Normal}}};
    for (int fila = 0; fila < lista->Filas(); ++fila) {
        EXPECT_EQ(FilaDe(*lista, fila), filas[fila]);
        const auto &[detalle, haber, subtotal] = tonos[static_cast<std::size_t>(fila)];
        EXPECT_EQ(lista->TonoDe(fila, movimiento::Detalle), detalle) << fila;
        EXPECT_EQ(lista->TonoDe(fila, movimiento::Haber), haber) << fila;
        EXPECT_EQ(lista->TonoDe(fila, movimiento::Subtotal), subtotal) << fila;
    }
    EXPECT_DOUBLE_EQ(suma.suma, 429.25);
    EXPECT_EQ(mensaje, "");
}

// The symbol is cut from the id too, when a kind isn't known.
TEST_F(Contenido, TheIdOfAnUnknownKindCountsInTheBalance) {
    datos.Ejecutar("UPDATE ventas.Ventas SET id=12345 WHERE tipo='Otro'");
    Mostrar(ListaCuenta::Estado);
    EXPECT_EQ(lista->Celda(5, movimiento::Subtotal), u"12345");
    EXPECT_DOUBLE_EQ(suma.suma, 429.25 + 345);
}

TEST_F(Contenido, TheCashListHasEveryMovementWithoutCustomerAndAddsReturns) {
    Mostrar(ListaCuenta::Contado);
    ASSERT_EQ(lista->Filas(), 2);
    EXPECT_EQ(FilaDe(*lista, 0), u"05/11/2026|19:00|Factura contado|56|$ 10,00|3|2026/11/05");
    EXPECT_EQ(FilaDe(*lista, 1),
              u"21/11/2026|09:05|Devolución contado (05/11/2026 - 19:00)||$ 10,00|7|2026/11/21");
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
    EXPECT_EQ(Columna(movimiento::Id), u"1|2|3|4|5|6|7|8|9");
    EXPECT_EQ(FilaDe(*lista, 0),
              u"03/11/2026|09:14|Factura crédito|51|$ 1250,00|$ 0,00|$ 1250,00|1|2026/11/03");
    EXPECT_EQ(FilaDe(*lista, 7), u"22/11/2026|10:00|Ticket|60||||8|2026/11/22");
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
        EXPECT_EQ(Columna(movimiento::Id), QLatin1String(ids));
    }
}

TEST_F(Contenido, DatesThatAreNoneAreComparedAsTextAndHoursStayInTheirDay) {
    PonerVenta(datos, "'2026/11/21x','10:00','0','','Contado','Rara','$ 1,00'");
    PonerVenta(datos, "'','10:00','0','','Contado','Vacía','$ 1,00'");
    PonerVenta(datos, "'22/11/2026','tarde','0','','Contado','Sin hora','$ 1,00'");
    Mostrar(ListaCuenta::Caja, {u"2026/11/20"_qs, u"00:00"_qs, u"2026/11/23"_qs, u"23:59"_qs});
    EXPECT_EQ(Columna(movimiento::Detalle),
              u"Devolución contado (05/11/2026 - 19:00)|Rara|Ticket|Factura contado (D)|Sin hora");
    Mostrar(ListaCuenta::Caja, {u"2026/11/22"_qs, u"00:00"_qs, u"2026/11/22"_qs, u"23:59"_qs});
    EXPECT_EQ(Columna(movimiento::Detalle), u"Ticket|Factura contado (D)") << "\"tarde\" is behind 23:59";
}

TEST_F(Contenido, ATotalOfAnyFormIsShownAndOneThatIsNoNumberIsToldWithItsRow) {
    // The total, what the cash list shows, what the statement shows, the sum of the cash list.
    const std::tuple<const char *, QString, QString, double> casos[] = {
        {"$ 12,5", u"$ 12,50"_qs, u"$ 12,50"_qs, 12.5},
        {"12.50", u"$ 12,50"_qs, u"$ 0,50"_qs, 12.5}, // the cut takes two characters
        {"$12,50", u"$ 12,50"_qs, u"$ 2,50"_qs, 12.5},
        {"$ -3,00", u"$ -3,00"_qs, u"$ -3,00"_qs, -3},
        {"", u"$ 0,00"_qs, u"$ 0,00"_qs, 0},
        {"Bs 12,50", u"$ Bs 12,50"_qs, u"$ 12,50"_qs, 0},
        {"$ 1.234,50", u"$ $ 1.234,50"_qs, u"$ 1.234,50"_qs, 0},
        {"doce", u"$ doce"_qs, u"$ ce"_qs, 0}};
    for (const auto &[total, enContado, enEstado, sumado] : casos) {
        SCOPED_TRACE(total);
        datos.Cerrar();
        datos.Ejecutar("DELETE FROM ventas.Ventas");
        for (const std::string id : {"0", "1"})
            PonerVenta(datos,
                       "'01/02/2026','8:00','" + id + "','7','Contado','Factura contado','" + total + "'");
        Mostrar(ListaCuenta::Estado);
        EXPECT_EQ(lista->Celda(0, movimiento::Debe), enEstado);
        Mostrar(ListaCuenta::Contado);
        EXPECT_EQ(lista->Celda(0, contado::Subtotal), enContado);
        EXPECT_DOUBLE_EQ(suma.suma, sumado);
    }
    EXPECT_EQ(mensaje,
              "El importe \"$ doce\" no es un número y no se suma.\n\n01/02/2026 - 08:00 - Factura contado");
}

TEST_F(Contenido, ANumberTooLongToAddUpIsShownWholeAndTheOthersAreSummed) {
    const std::string largo = "$ " + std::string(400, '7') + ",00";
    datos.Ejecutar("UPDATE ventas.Ventas SET total='" + largo + "' WHERE id IN (3, 7)");
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
    ContenidoGuaranies() : Contenido(Moneda(u"."_qs, u"Gs"_qs)) {}
};

TEST_F(ContenidoGuaranies, TheFixedCutOfTwoCharactersReadsAReceiptAsPositive) {
    datos.Ejecutar("DELETE FROM ventas.Ventas");
    PonerVenta(datos, "'01/02/2026','08:00','1','','Recibo','Recibo','Gs 12.00'");
    PonerVenta(datos, "'01/02/2026','08:00','1','','Credito','Factura crédito','Gs 512.00'");
    Mostrar(ListaCuenta::Estado);
    EXPECT_EQ(Columna(movimiento::Haber), u"Gs 12.00|Gs 0.00");
    EXPECT_EQ(Columna(movimiento::Subtotal), u"Gs-12.00|Gs512.00");
    EXPECT_DOUBLE_EQ(suma.suma, 12 + 12);
}

// --- the order

// The column that the rows are sorted by and the header with the arrow.
std::pair<int, int> OrdenYFlecha(const ListaTexto &lista) {
    int flecha = 0;
    while (lista.headerData(flecha, Qt::Horizontal, Qt::DecorationRole).isNull())
        ++flecha;
    return {lista.ColumnaOrden(), flecha};
}

TEST(OrdenCuenta, ADateHeaderSortsByTheHiddenColumnOfItsList) {
    for (const ListaCuenta cual : kListasCuenta) {
        ListaTexto lista(ColumnasCuenta(cual));
        OrdenInicial(lista);
        const int ultima = lista.columnCount() - 1;
        lista.ClicEncabezado(2); // nothing, without rows
        EXPECT_EQ(OrdenYFlecha(lista), std::pair(ultima, 0));
        lista.AgregarFila(QStringList(ultima + 1, u"x"_qs));
        for (const Qt::SortOrder orden : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            lista.ClicEncabezado(0);
            EXPECT_EQ(OrdenYFlecha(lista), std::pair(ultima - 1, 0));
            EXPECT_EQ(lista.Orden(), orden);
        }
        lista.ClicEncabezado(2);
        EXPECT_EQ(OrdenYFlecha(lista), std::pair(2, 2));
    }
}

} // namespace
} // namespace tarvo
