// The sale in progress without a window: its lists, its lines, its amounts, its customer.
#include "tiendaprueba.h"

#include "masterdata/selectorclientes.h"
#include "sales/acciones.h"
#include "sales/venta.h"
#include "testkit/listas.h"
#include "testkit/preguntasguion.h"

namespace tarvo {
namespace {

class VentaPrueba : public ::testing::Test {
  protected:
    explicit VentaPrueba(const Moneda &moneda = Moneda()) : datos(moneda) { datos.Ejecutar(kTienda); }

    Venta &venta() {
        if (!venta_) {
            venta_ = std::make_unique<Venta>(datos.Abrir());
            venta_->CargarArticulos();
            CargarClientes(datos.Abrir(), clientes);
        }
        return *venta_;
    }
    QString Stock(int fila) { return venta().Articulos().Celda(fila, articulo::Stock); }
    Tono TonoStockDe(int fila) { return venta().Articulos().TonoDe(fila, articulo::Stock); }

    DatosPrueba datos;
    ListaTexto clientes{ColumnasClientes()};

  private:
    std::unique_ptr<Venta> venta_;
};

TEST_F(VentaPrueba, TheArticleListShowsPricesIvaAndTones) {
    datos.Ejecutar("INSERT INTO articulos.Articulos(codigo,nombre,subtotal,stock,idtipoiva) VALUES"
                   "('B1','Cero','','0',''),('B2','Debe','9.999','-2','1')");
    const ListaTexto &lista = venta().Articulos();
    ASSERT_EQ(lista.Filas(), 5);
    EXPECT_EQ(FilaDe(lista, 1), u"A2|7790001000028|Azúcar|1|$ 12,50|10,5%|2|2");
    EXPECT_EQ(lista.Celda(2, articulo::Iva), QString()); // its IVA type is gone
    EXPECT_EQ(lista.Celda(4, articulo::Precio), u"$ 10,00");
    EXPECT_EQ(TonoStockDe(0), Tono::Normal);
    EXPECT_EQ(TonoStockDe(3), Tono::Verde);
    EXPECT_EQ(TonoStockDe(4), Tono::Rojo);
}

TEST_F(VentaPrueba, TheSameArticleTwiceIsOneLine) {
    EXPECT_EQ(venta().Agregar(0, 1), 0);
    EXPECT_EQ(venta().Agregar(1, 2), 1);
    EXPECT_EQ(venta().Agregar(0, 3), 0);
    EXPECT_EQ(FilaDe(venta().Detalle(), 0), u"A1|Yerba mate|$ 100,00|4|$ 400,00|1|$ 84,00");
    // 10,5% is charged as 10: 2 x 12,50 x 0,10
    EXPECT_EQ(venta().Detalle().Celda(1, linea::Iva), u"$ 2,50");
    EXPECT_EQ(venta().Detalle().Filas(), 2);
    EXPECT_EQ(Stock(0), u"6");
}

TEST_F(VentaPrueba, StockFallsBelowZeroAndComesBack) {
    for (int i = 0; i < 3; ++i)
        venta().Agregar(1, 1);
    venta().Agregar(2, 3);
    EXPECT_EQ(Stock(1), u"-2");
    EXPECT_EQ(TonoStockDe(1), Tono::Rojo);
    EXPECT_EQ(Stock(2), u"0");
    EXPECT_EQ(TonoStockDe(2), Tono::Verde);
    // Sorted meanwhile, the article is found where it stands now.
    venta().Articulos().Ordenar(articulo::Codigo, Qt::DescendingOrder);
    venta().Quitar(0);
    EXPECT_EQ(Stock(1), u"1");
    EXPECT_EQ(TonoStockDe(1), Tono::Normal);
    EXPECT_EQ(venta().Detalle().Celda(0, linea::Codigo), u"A3");
}

TEST_F(VentaPrueba, NoRowAddsNothingAndQuantitiesOutgrowFourBytes) {
    EXPECT_EQ(venta().Agregar(-1, 1), -1);
    EXPECT_EQ(venta().Agregar(3, 1), -1);
    EXPECT_FALSE(venta().EnCurso());
    for (int i = 0; i < 3; ++i)
        venta().Agregar(2, 999999999);
    EXPECT_EQ(venta().Detalle().Celda(0, linea::Cantidad), u"2999999997");
    EXPECT_EQ(Stock(2), u"-2999999994");
}

// --- customer, payment kind, consumer final

TEST_F(VentaPrueba, ConsumerFinalFollowsTheFiscalId) {
    Venta &v = venta();
    EXPECT_TRUE(v.ConsumidorFinal());
    v.PonerConsumidorFinal(false);
    EXPECT_TRUE(v.ConsumidorFinal()) << "snaps back without a fiscal customer";
    EXPECT_FALSE(v.PonerPago(Pago::Credito)) << "credit needs a customer";

    v.ElegirCliente(clientes, 0);
    EXPECT_FALSE(v.ConsumidorFinal());
    EXPECT_EQ(v.Cliente().ruc, u"30-71234567-1");
    EXPECT_TRUE(v.PonerPago(Pago::Credito));

    v.ElegirCliente(clientes, 1); // replaces the former, the credit stays
    EXPECT_TRUE(v.ConsumidorFinal());
    EXPECT_EQ(v.Cliente().nombre, u"Juan");
    EXPECT_EQ(v.Cliente().ruc, QString());
    EXPECT_EQ(v.pago(), Pago::Credito);
    v.PonerConsumidorFinal(true); // nothing to drop: he has no fiscal id
    EXPECT_EQ(v.Cliente().nombre, u"Juan");
    EXPECT_EQ(v.pago(), Pago::Credito);

    v.ElegirCliente(clientes, 0);
    v.PonerConsumidorFinal(true);
    EXPECT_EQ(v.Cliente().nombre, QString());
    EXPECT_EQ(v.Cliente().id, QString());
    EXPECT_EQ(v.pago(), Pago::Contado);
}

TEST_F(VentaPrueba, StartingOverKeepsTheDiscountOnly) {
    Venta &v = venta();
    v.Agregar(0, 4);
    v.ElegirCliente(clientes, 0);
    v.PonerPago(Pago::Credito);
    v.PonerDescuento(u"10"_qs);
    v.Reiniciar();
    EXPECT_FALSE(v.EnCurso());
    EXPECT_EQ(Stock(0), u"10");
    EXPECT_EQ(v.Cliente().nombre, QString());
    EXPECT_EQ(v.pago(), Pago::Contado);
    EXPECT_TRUE(v.ConsumidorFinal());
    EXPECT_EQ(v.TextoDescuento(), u"10 %");
}

TEST_F(VentaPrueba, TheDiscountIsAPercentageBetween0And100) {
    const std::pair<QString, QString> casos[] = {
        {QString(), u"0 %"_qs},
        {u"7"_qs, u"7 %"_qs},
        {u"007"_qs, u"7 %"_qs},
        {u"150"_qs, u"100 %"_qs},
        {QString(5000, u'9'), u"100 %"_qs},
    };
    for (const auto &[tecleado, texto] : casos) {
        venta().PonerDescuento(tecleado);
        EXPECT_EQ(venta().TextoDescuento(), texto);
    }
    venta().Agregar(0, 1);
    EXPECT_EQ(venta().CalcularTotales().total, u"$ 121,00");
    EXPECT_EQ(venta().CalcularTotales().conDescuento, u"$ 0,00");
}

// A price that is no amount is not sold at what a reading of it leaves, and a stock that can't be computed is
// not rewritten; one with decimals is computed exactly.
TEST_F(VentaPrueba, WhatIsNoNumberIsRefusedAndNamed) {
    const std::array<const char *, 4> casos[] = {
        // price, stock, stock after 3, what the refusal names
        {"1.234,50", "1", "1", "\"1.234,50\""},
        {"12 €", "1", "1", "\"12 €\""},
        {"1e3", "1", "1", "\"1e3\""},
        {"12.5", "12.50", "9,5", nullptr},
        {"", "", "-3", nullptr},
        {"1", "0,00001", "-2,99999", nullptr},
        {"1", "muchos", "muchos", "\"muchos\""},
        {"1", "1.234,5", "1.234,5", "\"1.234,5\""},
        {"1", "1234567890123", "1234567890123", "cifras: \"1234567890123\""},
    };
    for (const auto &[precio, stock, despues, nombra] : casos)
        datos.Ejecutar(("INSERT INTO articulos.Articulos(codigo,nombre,subtotal,stock) VALUES('X','Raro','" +
                        std::string(precio) + "','" + stock + "')"));
    int fila = 3;
    for (const auto &[precio, stock, despues, nombra] : casos) {
        const QString impedimento = venta().Impedimento(fila);
        EXPECT_EQ(impedimento.isEmpty(), nombra == nullptr) << precio << " " << stock;
        EXPECT_EQ(venta().Agregar(fila, 3) < 0, nombra != nullptr) << precio << " " << stock;
        EXPECT_EQ(Stock(fila), QString::fromUtf8(despues));
        for (const QString &nombrado : {u"\"Raro\""_qs, QString::fromUtf8(nombra)})
            EXPECT_TRUE(nombra == nullptr || impedimento.contains(nombrado)) << impedimento.toStdString();
        ++fila;
    }
    venta().Quitar(0); // given back as it was, but for zeros at its end
    EXPECT_EQ(Stock(6), u"12,5");
}

TEST_F(VentaPrueba, EachStepAsksOrTells) {
    EXPECT_EQ(CantidadPedida({}), 1);
    EXPECT_EQ(CantidadPedida(u"999999"_qs), 999999);
    EXPECT_EQ(CantidadPedida(u"7790001000028"_qs), std::nullopt) << "a barcode";
    datos.Ejecutar(
        "INSERT INTO articulos.Articulos(codigo,nombre,subtotal,stock) VALUES('X','Raro','12 €','1')");
    PreguntasGuion preguntas;
    preguntas.EsperaMensaje(venta().Impedimento(3));
    EXPECT_EQ(AgregarArticulo(preguntas, venta(), 3, 1), -1);
    EXPECT_EQ(AgregarArticulo(preguntas, venta(), -1, 1), -1) << "no article selected";
    EXPECT_EQ(AgregarArticulo(preguntas, venta(), 0, 2), 0);
    EXPECT_FALSE(QuitarLinea(preguntas, venta(), -1));
    for (const Respuesta contesta : {No, Si}) {
        preguntas.Espera(u"Está seguro de querer quitar artículo de la lista?"_qs, No, contesta);
        EXPECT_EQ(QuitarLinea(preguntas, venta(), 0), contesta == Si);
        EXPECT_EQ(venta().Detalle().Filas(), contesta == Si ? 0 : 1);
    }
}

// --- totals

struct CasoTotales {
    const char *utilizar, *sobreIva, *existeIFiscal; // of the tax
    bool conIFiscal;                                 // a customer with fiscal id
    int descuento;
    QString impuesto, total, conDescuento;
};

// S = 4 x 100 + 3 x 12,50 = 437,50; I = 84 + 3,75 = 87,75; the rate is 3 %
const CasoTotales kTotales[] = {
    {"No", "Si", "No", true, 0, u"$ 0,00"_qs, u"$ 525,25"_qs, u"$ 525,25"_qs},
    {"Si", "No", "No", false, 0, u"$ 13,13"_qs, u"$ 538,38"_qs, u"$ 538,38"_qs},
    {"Si", "Si", "No", false, 0, u"$ 15,76"_qs, u"$ 541,01"_qs, u"$ 541,01"_qs},
    {"Si", "Si", "Si", false, 0, u"$ 0,00"_qs, u"$ 525,25"_qs, u"$ 525,25"_qs},
    {"Si", "Si", "Si", true, 10, u"$ 15,76"_qs, u"$ 541,01"_qs, u"$ 486,91"_qs},
    {"Si", "Si", "", true, 0, u"$ 0,00"_qs, u"$ 525,25"_qs, u"$ 525,25"_qs}, // neither: never charged
};

TEST_F(VentaPrueba, TotalsByTaxSettingsAndDiscount) {
    ListaTexto detalle(ColumnasDetalle());
    const auto agregar = [&](const char *subtotal, const char *iva) {
        detalle.AgregarFila({{}, {}, {}, {}, QLatin1String(subtotal), {}, QLatin1String(iva)});
    };
    agregar("$ 400,00", "$ 84,00");
    agregar("$ 37,50", "$ 3,75");
    for (const CasoTotales &caso : kTotales) {
        DatosPrueba otros;
        CobrarImpuesto(otros, caso.sobreIva, caso.existeIFiscal);
        otros.Ejecutar(std::string("UPDATE main.Impuesto SET utilizar='") + caso.utilizar + "'");
        const Totales totales =
            CalcularTotales(detalle, LeerImpuesto(otros.Abrir()), caso.conIFiscal, caso.descuento, Moneda());
        EXPECT_EQ(totales.subtotal + totales.iva, u"$ 437,50$ 87,75");
        EXPECT_EQ(totales.impuesto, caso.impuesto);
        EXPECT_EQ(totales.total, caso.total);
        EXPECT_EQ(totales.conDescuento, caso.conDescuento);
    }
}

// Lines are summed as they are shown, so three times 0,333.. is 0,99 and not 1,00; and the unrounded tax of
// 0,5 % (0,00495) makes no cent.
TEST_F(VentaPrueba, LineRoundingCountsAndTheTaxStaysUnrounded) {
    ListaTexto detalle(ColumnasDetalle());
    for (int i = 0; i < 3; ++i)
        detalle.AgregarFila({{}, {}, {}, {}, u"$ 0,33"_qs, {}, u"$ 0,00"_qs});
    ImpuestoPersonalizado impuesto;
    impuesto.utilizar = impuesto.sinCondicion = true;
    impuesto.porcentaje = QStringLiteral("0,5");
    const Totales totales = CalcularTotales(detalle, impuesto, false, 0, Moneda());
    EXPECT_EQ(totales.subtotal, u"$ 0,99");
    EXPECT_EQ(totales.impuesto, u"$ 0,00");
    EXPECT_EQ(totales.total, u"$ 0,99");
    EXPECT_EQ(TotalesEnCero(Moneda()).total, u"0,00");
}

class VentaBolivia : public VentaPrueba {
  protected:
    VentaBolivia() : VentaPrueba(Moneda(u"."_qs, u"Bs"_qs)) {}
};

TEST_F(VentaBolivia, PointLocaleAndTwoLetterSymbol) {
    datos.Ejecutar("UPDATE main.Iva SET porcentaje='10.5' WHERE id=2");
    venta().Agregar(1, 3);
    EXPECT_EQ(venta().Detalle().Celda(0, linea::Precio), u"Bs 12.50");
    // With a point the whole 10.5 % is read: 37.50 x 0.105 = 3.9375
    EXPECT_EQ(venta().Detalle().Celda(0, linea::Iva), u"Bs 3.94");
    EXPECT_EQ(venta().CalcularTotales().conDescuento, u"Bs 41.44");
}

} // namespace
} // namespace tarvo
