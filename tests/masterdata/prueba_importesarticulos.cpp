// What the articles' amounts and stocks show, read and store.
#include "masterdata/mundoarticulos.h"

namespace tarvo {
namespace {

TEST_F(Articulos, ListsPricesFromTheTruePercentageAndColoursOnlyByTheSignOfTheStock) {
    // With a point, under a comma: both can come into the tables.
    mundo_.datos.Ejecutar("UPDATE articulos.Articulos SET idtipoiva='5', stock='0.5' WHERE id=4");
    const ListaTexto &lista = Abrir().Lista();
    EXPECT_EQ(Columna(col::kSubtotal), u"$ 100,00|$ 12,50|$ 33,33|$ 10,00");
    EXPECT_EQ(Columna(col::kPVenta), u"$ 121,00|$ 25,00|$ 0,00|$ 11,05");
    EXPECT_EQ(Columna(col::kIva), u"$ 21,00|$ 12,50|$ -33,33|$ 1,05");
    EXPECT_EQ(Columna(col::kPCompra), u"$ 80,00|$ 9,00|x|$ 0,00");
    const Tono tonos[] = {Tono::Azul, Tono::Rojo, Tono::Verde, Tono::Azul};
    for (int fila = 0; fila < 4; ++fila)
        EXPECT_EQ(lista.TonoDe(fila, col::kStock), tonos[fila]) << fila;
    EXPECT_EQ(anfitrion.dicho, QList{true});
}

TEST_F(ArticulosAbiertos, ReadsThePercentageOnScreenFromTheLastThreeCharactersOfTheLabel) {
    const std::pair<const char *, const char *> casos[] = {
        {"1 - General - 21%", "$ 121,00"},    {"3 - Bajo - 5%", "$ 105,00"},
        {"2 - Doble - 100%", "$ 100,00"},     {"5 - Raro - 10.5%", "$ 100,50"},
        {"4 - Reducido - 10,5%", "$ 100,00"}, {"", "$ 100,00"}};
    for (const auto &[etiqueta, precio] : casos) {
        vista.textos[A::kTipoIVA] = QString::fromUtf8(etiqueta);
        logica_->CalcularPVenta();
        EXPECT_EQ(vista.textos[A::kPVenta], QString::fromUtf8(precio)) << etiqueta;
    }
    Elegir(1); // 100%: the list has doubled the price, the field has not
    EXPECT_EQ(vista.textos[A::kPVenta], u"$ 12,50");
}

TEST_F(Articulos, NothingIsComputedFromAPriceThatIsNoNumber) {
    mundo_.datos.Ejecutar("UPDATE articulos.Articulos SET subtotal='1.234,50' WHERE id=1");
    const ListaTexto &lista = Abrir().Lista();
    EXPECT_EQ(lista.Celda(0, col::kSubtotal), u"1.234,50");
    EXPECT_EQ(lista.Celda(0, col::kIva) + lista.Celda(0, col::kPVenta), QString());
    EXPECT_EQ(vista.textos[A::kSubtotal], u"1.234,50");
    EXPECT_EQ(vista.textos[A::kPVenta], QString());
}

TEST_F(ArticulosAbiertos, StoresPlainNumbersWithoutTrailingZeros) {
    const std::pair<const char *, const char *> casos[] = {
        {"$ 12,00", "12"}, {"1500", "1500"},    {"$ 12,50", "12,5"}, {"$ 12,05", "12,05"},
        {"$ 0,00", "0"},   {"$ 100,00", "100"}, {"7,50", "7,5"},     {"$ -1,10", "-1,1"}};
    for (const auto &[texto, guardado] : casos) {
        vista.textos[A::kSubtotal] = QString::fromUtf8(texto);
        ConfirmarCambio();
        EXPECT_EQ(Guardado("subtotal", 1), QString::fromUtf8(guardado)) << texto;
    }
}

TEST_F(ArticulosAbiertos, NeverWritesTheMinimumAndKeepsTheColourOfAChangedRow) {
    vista.Escribir({{A::kStockMin, u"8"_qs}, {A::kStock, u"0"_qs}});
    ConfirmarCambio();
    EXPECT_EQ(Guardado("stockmin", 1), u"50");
    EXPECT_EQ(vista.textos[A::kStockMin], u"50");
    EXPECT_EQ(Columna(col::kStock), u"0|-3|0|1");
    EXPECT_EQ(logica_->Lista().TonoDe(0, col::kStock), Tono::Azul);
    logica_->Actualizar();
    EXPECT_EQ(logica_->Lista().TonoDe(0, col::kStock), Tono::Verde);
}

TEST_F(ArticulosAbiertos, LeavesAmountsReadWithAPointOnly) {
    const std::pair<const char *, const char *> casos[] = {
        {"", "$ 0,00"},  {"0,5", "$ 0,00"},   {"0.5", "$ 0,50"}, {"12,5", "$ 12,50"},
        {",", "$ 0,00"}, {"2.675", "$ 2,68"}, {"1,2,3", "1,2,3"}};
    for (const auto &[tecleado, mostrado] : casos) {
        vista.textos[A::kPCompra] = QString::fromUtf8(tecleado);
        logica_->SalirImporte(A::kPCompra);
        EXPECT_EQ(vista.textos[A::kPCompra], QString::fromUtf8(mostrado)) << tecleado;
    }
    for (const QString &importe : {u"12,50"_qs, u"0,50"_qs}) {
        vista.textos[A::kPCompra] = u"$ "_qs + importe;
        logica_->EntrarImporte(A::kPCompra);
        EXPECT_EQ(vista.textos[A::kPCompra], importe);
        EXPECT_TRUE(logica_->SalirImporte(A::kPCompra));
        EXPECT_EQ(vista.textos[A::kPCompra], u"$ "_qs + importe) << "nobody has typed anything";
    }
    vista.textos[A::kPCompra] = u"0,5"_qs;
    EXPECT_FALSE(logica_->SalirImporte(A::kPCompra)) << "decimals are lost";
}

TEST_F(ArticulosAbiertos, AnAmountThatIsNoNumberIsRefusedBeforeAnythingIsAsked) {
    for (const int campo : {A::kPCompra, A::kSubtotal}) {
        for (const char *texto : {"1.2.3", "$ 1,2,3", "1.234,50", "$ .", "x"}) {
            SCOPED_TRACE(texto);
            Elegir(0);
            vista.textos[campo] = QString::fromUtf8(texto);
            vista.foco = -1;
            mundo_.preguntas.EsperaMensaje(u"El importe ingresado no es un número."_qs);
            logica_->Guardar();
            EXPECT_EQ(vista.foco, campo);
        }
    }
    EXPECT_EQ(Guardado("pcompra || ' ' || subtotal", 1), u"80 100");
    vista.textos[A::kNombre].clear(); // a missing name comes first
    mundo_.preguntas.EsperaMensaje(u"Debe llenar el campo \"Nombre\""_qs);
    logica_->Guardar();
}

} // namespace
} // namespace tarvo
