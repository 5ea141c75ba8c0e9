// The sale window by real keys and clicks.
#include "ventanaprueba.h"

namespace tarvo {
namespace {

TEST_F(VentanaVentas, OpensAsAnEmptySale) {
    mundo.ajustes.setValue(u"ImpTick"_qs, u"Tickets"_qs);
    CobrarImpuesto(mundo.datos, "Si", "No");
    Abrir();
    EXPECT_EQ(mundo.impresoras.actual, u"Tickets");
    EXPECT_EQ(Texto("lblTitulo"), u"Ventas");
    EXPECT_EQ(Texto("lblFecha") + Texto("lblHora"), u"22/11/202610:42");
    for (const char *etiqueta : {"lblSubtotal", "lblIVA", "lblImpPersonalizado", "lblTotal", "lblDescuento"})
        EXPECT_EQ(Texto(etiqueta), u"0,00");
    EXPECT_TRUE(Se("lblImpPersonalizado"));
    EXPECT_EQ(Texto("lblImpPersonalizado1"), u"Percepción");
    EXPECT_EQ(Texto("txtDescuento") + Texto("txtCantidad"), u"0 %1");
    EXPECT_FALSE(Habilitado("cmdQuitar"));
    EXPECT_TRUE(Se("shVContado") && !Se("shVCredito"));
    EXPECT_TRUE(C<QCheckBox>("chkFinal")->isChecked());
    const auto *vendedores = C<QComboBox>("cboxVendedores");
    ASSERT_EQ(vendedores->count(), 3);
    EXPECT_EQ(vendedores->currentText(), u"> Seleccione un vendedor <");
    EXPECT_EQ(vendedores->itemText(2), u"V2 - Beto");

    mundo.reloj.Poner(QDateTime({2026, 11, 23}, {0, 0}));
    EXPECT_EQ(C<QTimer>("Timer1")->interval(), 1000);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Texto("lblFecha") == u"23/11/2026"_qs; }));
}

TEST_F(VentaAbierta, AWholeSaleByScannerAndKeys) {
    Escanear("7790001000011");
    Escanear("7790001000011");
    EXPECT_EQ(ConFoco(), u"txtBuscar");
    EXPECT_EQ(Texto("txtBuscar"), QString());
    EXPECT_EQ(Linea(0, linea::Cantidad), u"2");
    EXPECT_EQ(Stock(0), u"8");
    EXPECT_TRUE(ventana->EntradaEnCurso());

    // By quantity: Enter in the list goes there, Enter there adds.
    Lista("LVArticulos")->setFocus();
    Lista("LVArticulos")->SeleccionarFila(1);
    EXPECT_EQ(Entrar(), u"txtCantidad");
    Teclas(u"3"_qs);
    Entrar();
    EXPECT_EQ(Linea(1, linea::Cantidad), u"3");
    EXPECT_EQ(Lista("LVDetalle")->FilaActual(), 1);
    EXPECT_EQ(Texto("txtCantidad"), u"1");
    EXPECT_EQ(Texto("lblTotal"), u"$ 283,25");

    Teclear(Campo("txtNumComp"), u"77"_qs);
    Teclear(Campo("txtDescuento"), u"10"_qs);
    Entrar();
    EXPECT_EQ(Texto("txtDescuento"), u"10 %");
    EXPECT_EQ(Texto("lblDescuento"), u"$ 254,93");
    C<QComboBox>("cboxVendedores")->setCurrentIndex(1);
    EsperaEmision(mundo.preguntas, Si);
    Clic("cmdEmitir");
    EXPECT_EQ(mundo.datos.Tabla("SELECT numcomp,total,fecha,hora,idoperador FROM ventas.Ventas"),
              u"77|$ 254,93|22/11/2026|10:42|1");
    EXPECT_EQ(Lineas(), 0);
    EXPECT_EQ(Stock(0), u"8");
    EXPECT_EQ(Texto("lblDescuento"), u"$ 0,00");
    EXPECT_FALSE(Habilitado("cmdQuitar"));
    EXPECT_EQ(C<QComboBox>("cboxVendedores")->currentIndex(), 0);
    EXPECT_EQ(Texto("txtNumComp") + Texto("txtDescuento"), u"7710 %");
    EXPECT_EQ(ConFoco(), u"txtBuscar");
}

TEST_F(VentaAbierta, RefusedIssuesMoveTheFocus) {
    mundo.preguntas.EsperaMensaje(u"Debe agregar al menos un artículo a la lista."_qs);
    EXPECT_EQ(Clic("cmdEmitir"), u"txtBuscar");
    Escanear("28");
    mundo.preguntas.EsperaMensaje(u"Debe seleccionar un vendedor."_qs, Icono::Ninguno);
    EXPECT_EQ(Clic("cmdEmitir"), u"cboxVendedores");
    EXPECT_EQ(Lineas(), 1);
}

// --- search

TEST_F(VentaAbierta, SearchModes) {
    auto *campo = Campo("txtBuscar");
    auto *boton = C<QPushButton>("cmdBuscar");
    EXPECT_EQ(boton->text(), u"Código de barras");
    Teclas(u"000035"_qs);
    for (int i = 0; i < 2; ++i) {
        boton->click();
        EXPECT_EQ(Lista("LVArticulos")->FilaActual(), 2);
        EXPECT_EQ(ConFoco(), u"cmdAgregar");
    }
    campo->setText(u"000011"_qs); // a change starts over
    boton->click();
    EXPECT_EQ(Lista("LVArticulos")->FilaActual(), 0);
    mundo.preguntas.EsperaMensaje(kFinal);
    boton->click();
    EXPECT_EQ(ConFoco(), u"LVArticulos");
    campo->clear();
    boton->click();
    EXPECT_EQ(ConFoco(), u"txtBuscar");

    Accion("codigo")->trigger();
    EXPECT_EQ(boton->text(), u"Buscar por código");
    EXPECT_EQ(ConFoco(), u"txtBuscar");
    Teclas(u"a3"_qs);
    Entrar();
    EXPECT_EQ(Lista("LVArticulos")->FilaActual(), 2);
    EXPECT_EQ(campo->selectedText(), u"a3");

    // The article mode looks into the barcodes and not into the names.
    Accion("articulo")->trigger();
    EXPECT_EQ(boton->text(), u"Buscar por artículo");
    Teclas(u"Yerba"_qs);
    mundo.preguntas.EsperaMensaje(kFinal);
    Entrar();
    Teclear(campo, u"0028"_qs);
    Entrar();
    EXPECT_EQ(Lista("LVArticulos")->FilaActual(), 1);
    EXPECT_EQ(ConFoco(), u"txtBuscar");

    Accion("buscar")->trigger();
    EXPECT_FALSE(campo->isEnabled() || boton->isEnabled());
    Accion("barras")->trigger();
    EXPECT_TRUE(campo->isEnabled() && boton->isEnabled() && Accion("buscar")->isChecked());
}

// --- quantity, lines

TEST_F(VentaAbierta, TheQuantityTakesDigitsAndArrows) {
    auto *cantidad = Campo("txtCantidad");
    cantidad->setFocus();
    cantidad->selectAll();
    Teclas(u"-9.998"_qs);
    for (int vez = 0; vez < 2; ++vez) {
        Tecla(cantidad, Qt::Key_Up);
        EXPECT_EQ(cantidad->text(), u"9999");
    }
    C<QAbstractSlider>("FSB1")->setValue(-2);
    for (int vez = 0; vez < 2; ++vez) {
        Tecla(cantidad, Qt::Key_Down);
        EXPECT_EQ(cantidad->text(), u"1");
    }
    cantidad->clear();
    Campo("txtBuscar")->setFocus();
    EXPECT_EQ(cantidad->text(), u"1");
    cantidad->clear();
    cantidad->setFocus();
    Entrar();
    EXPECT_EQ(Linea(0, linea::Cantidad), u"1");
}

TEST_F(VentaAbierta, RemovingALineAsks) {
    const QString pregunta = u"Está seguro de querer quitar artículo de la lista?"_qs;
    Lista("LVDetalle")->setFocus();
    EXPECT_NE(ConFoco(), u"LVDetalle") << "an empty list passes the focus on";
    for (const char *codigo : {"000011", "000028", "000035"}) {
        Campo("txtBuscar")->setFocus();
        Escanear(codigo);
    }
    mundo.preguntas.Espera(pregunta, No, Si);
    Lista("LVDetalle")->setFocus();
    Tecla(Lista("LVDetalle"), Qt::Key_Delete);
    EXPECT_EQ(Lineas(), 2);
    EXPECT_EQ(Stock(2), u"3");
    EXPECT_EQ(ConFoco(), u"LVArticulos");
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(Habilitado("cmdQuitar"));
        mundo.preguntas.Espera(pregunta, No, Si);
        emit Lista("LVDetalle")->FilaDobleClic(0);
    }
    EXPECT_FALSE(Habilitado("cmdQuitar"));
    EXPECT_EQ(Texto("lblTotal"), u"$ 0,00");
}

TEST_F(VentaAbierta, ANewSaleAsksAndKeepsNumberAndDiscount) {
    Escanear("000028");
    Teclear(Campo("txtNumComp"), u"5"_qs);
    Teclear(Campo("txtDescuento"), u"150"_qs);
    EsperaNuevaVenta(No);
    Clic("cmdNuevo");
    EXPECT_EQ(Lineas(), 1);
    EsperaNuevaVenta(Si);
    Clic("cmdNuevo");
    EXPECT_EQ(Lineas(), 0);
    EXPECT_EQ(Stock(1), u"1");
    EXPECT_EQ(ConFoco(), u"LVArticulos");
    EXPECT_EQ(Texto("txtNumComp") + Texto("txtDescuento"), u"5100 %");
}

// A list with more rows than fit makes room for its scroll bar.
TEST_F(VentanaVentas, AFullListNarrowsItsColumn) {
    mundo.datos.Ejecutar("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<60) "
                         "INSERT INTO articulos.Articulos(codigo,codbarras1,nombre,subtotal,stock) SELECT "
                         "'X'||i,'','x','1','1' FROM n");
    Abrir();
    const auto titulo = [this] {
        return Lista("LVDetalle")->Lista()->headerData(linea::Cantidad, Qt::Horizontal).toString();
    };
    EXPECT_EQ(titulo(), u"Cantidad");
    for (int fila = 0; fila < 12; ++fila)
        emit Lista("LVArticulos")->FilaDobleClic((Lista("LVArticulos")->SeleccionarFila(fila), fila));
    EXPECT_EQ(titulo(), u"Cant.");
    EsperaNuevaVenta(Si);
    Clic("cmdNuevo");
    EXPECT_EQ(titulo(), u"Cantidad");
}

// --- the customer

TEST_F(VentanaVentas, CreditNeedsACustomerAndTheTaxFollowsHisFiscalId) {
    CobrarImpuesto(mundo.datos, "No", "Si");
    Abrir();
    Escanear("000011");
    mundo.preguntas.EsperaMensaje(u"Debe seleccionar un cliente."_qs);
    EXPECT_EQ(Clic("cmdVCredito"), u"cmdCliente");
    EXPECT_TRUE(Se("shVContado") && !Se("shVCredito"));

    Clic("cmdCliente");
    EXPECT_FALSE(Habilitado("frArticulos") || Habilitado("frDetalle") || Habilitado("frDatos"));
    EXPECT_TRUE(ventana->EntradaEnCurso()) << "the disabled frame doesn't end the entry";
    EXPECT_EQ(ConFoco(), u"txtBuscarClientes");
    Teclas(u"AND"_qs);
    Entrar();
    Clic("cmdAceptar");
    EXPECT_TRUE(Habilitado("frDatos"));
    const auto cliente = [this] { return Texto("lblIdCliente") + Texto("lblCliente") + Texto("lblRUC"); };
    EXPECT_EQ(cliente(), u"1Ñandú S.A.30-71234567-1");
    EXPECT_EQ(C<QLabel>("lblCliente")->accessibleName(), QString());
    EXPECT_FALSE(C<QCheckBox>("chkFinal")->isChecked());
    EXPECT_EQ(Texto("lblImpPersonalizado"), u"$ 3,00");
    Clic("cmdVCredito");
    EXPECT_TRUE(Se("shVCredito") && !Se("shVContado"));
    for (int vez = 0; vez < 2; ++vez) { // the second time it snaps back
        C<QCheckBox>("chkFinal")->click();
        EXPECT_TRUE(C<QCheckBox>("chkFinal")->isChecked());
        EXPECT_EQ(cliente(), QString());
        EXPECT_EQ(C<QLabel>("lblCliente")->accessibleName(), u"Sin cliente");
        EXPECT_TRUE(Se("shVContado"));
        EXPECT_EQ(Texto("lblTotal"), u"$ 121,00");
    }
}

// --- leaving

TEST_F(VentaAbierta, ClosingTheProgramAsksWithASaleInProgress) {
    EXPECT_TRUE(ventana->PermiteCerrarPrograma());
    Clic("cmdCliente");
    Clic("cmdAgregarCliente");
    EXPECT_FALSE(ventana->EntradaEnCurso());
    Teclas(u"C"_qs);
    EXPECT_TRUE(ventana->EntradaEnCurso()) << "a half-typed customer";
    for (int i = 0; i < 2; ++i)
        Pulsa(Qt::Key_Escape);
    EXPECT_FALSE(ventana->EntradaEnCurso());
    Escanear("000011");
    for (const Respuesta respuesta : {No, Si}) {
        mundo.preguntas.Espera(u"Desea cerrar el programa sin completar la venta?"_qs, No, respuesta);
        EXPECT_EQ(ventana->PermiteCerrarPrograma(), respuesta == Si);
    }
}

} // namespace
} // namespace tarvo
