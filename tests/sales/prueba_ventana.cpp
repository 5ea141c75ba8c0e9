// The sale window by real keys and clicks.
#include "ventanaprueba.h"

namespace tarvo {
namespace {

TEST_F(VentanaVentas, OpensAsAnEmptySale) {
    mundo.ajustes.setValue(QStringLiteral("ImpTick"), QStringLiteral("Tickets"));
    CobrarImpuesto(mundo.datos, "Si", "No");
    Abrir();
    EXPECT_EQ(mundo.impresoras.actual, QStringLiteral("Tickets"));
    EXPECT_EQ(Texto("lblTitulo"), QStringLiteral("Ventas"));
    EXPECT_EQ(Texto("lblFecha") + Texto("lblHora"), QStringLiteral("22/11/202610:42"));
    for (const char *etiqueta : {"lblSubtotal", "lblIVA", "lblImpPersonalizado", "lblTotal", "lblDescuento"})
        EXPECT_EQ(Texto(etiqueta), QStringLiteral("0,00"));
    EXPECT_TRUE(Se("lblImpPersonalizado"));
    EXPECT_EQ(Texto("lblImpPersonalizado1"), QStringLiteral("Percepción"));
    EXPECT_EQ(Campo("txtDescuento")->text(), QStringLiteral("0 %"));
    EXPECT_EQ(Campo("txtCantidad")->text(), QStringLiteral("1"));
    EXPECT_FALSE(C<QPushButton>("cmdQuitar")->isEnabled());
    EXPECT_TRUE(Se("shVContado"));
    EXPECT_FALSE(Se("shVCredito"));
    EXPECT_TRUE(C<QCheckBox>("chkFinal")->isChecked());
    EXPECT_FALSE(ventana->EntradaEnCurso());
    const auto *vendedores = C<QComboBox>("cboxVendedores");
    ASSERT_EQ(vendedores->count(), 3);
    EXPECT_EQ(vendedores->currentText(), QStringLiteral("> Seleccione un vendedor <"));
    EXPECT_EQ(vendedores->itemText(2), QStringLiteral("V2 - Beto"));

    mundo.reloj.Poner(QDateTime({2026, 11, 23}, {0, 0}));
    EXPECT_EQ(C<QTimer>("Timer1")->interval(), 1000);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Texto("lblFecha") == QStringLiteral("23/11/2026"); }));
}

TEST_F(VentanaVentas, AWholeSaleByScannerAndKeys) {
    Abrir();
    Escanear("7790001000011");
    Escanear("7790001000011");
    EXPECT_EQ(ConFoco(), QStringLiteral("txtBuscar"));
    EXPECT_EQ(Campo("txtBuscar")->text(), QString());
    EXPECT_EQ(Linea(0, linea::Cantidad), QStringLiteral("2"));
    EXPECT_EQ(Lista("LVArticulos")->Lista()->Celda(0, articulo::Stock), QStringLiteral("8"));
    EXPECT_TRUE(ventana->EntradaEnCurso());

    // By quantity: Enter in the list goes there, Enter there adds.
    Lista("LVArticulos")->setFocus();
    Lista("LVArticulos")->SeleccionarFila(1);
    Entrar();
    EXPECT_EQ(ConFoco(), QStringLiteral("txtCantidad"));
    Teclas(QStringLiteral("3"));
    Entrar();
    EXPECT_EQ(Linea(1, linea::Cantidad), QStringLiteral("3"));
    EXPECT_EQ(Lista("LVDetalle")->FilaActual(), 1);
    EXPECT_EQ(Campo("txtCantidad")->text(), QStringLiteral("1"));
    EXPECT_EQ(Texto("lblTotal"), QStringLiteral("$ 283,25"));

    Teclear(Campo("txtNumComp"), QStringLiteral("77"));
    Teclear(Campo("txtDescuento"), QStringLiteral("10"));
    Entrar();
    EXPECT_EQ(Campo("txtDescuento")->text(), QStringLiteral("10 %"));
    EXPECT_EQ(Texto("lblDescuento"), QStringLiteral("$ 254,93"));
    C<QComboBox>("cboxVendedores")->setCurrentIndex(1);
    mundo.preguntas.Espera(QStringLiteral("Confirma la emisión de la factura?"), Respuesta::Si,
                           Respuesta::Si);
    mundo.preguntas.Espera(QStringLiteral("Desea imprimir el ticket?"), Respuesta::Si, Respuesta::Si);
    mundo.preguntas.EsperaMensaje(QStringLiteral("La venta se realizó con exito."), Icono::Informacion);
    Clic("cmdEmitir");

    EXPECT_EQ(mundo.datos.Filas("SELECT numcomp,total,fecha,hora,idoperador FROM ventas.Ventas"),
              (std::vector<std::vector<QString>>{{QStringLiteral("77"), QStringLiteral("$ 254,93"),
                                                  QStringLiteral("22/11/2026"), QStringLiteral("10:42"),
                                                  QStringLiteral("1")}}));
    EXPECT_EQ(Lineas(), 0);
    EXPECT_EQ(Lista("LVArticulos")->Lista()->Celda(0, articulo::Stock), QStringLiteral("8"));
    EXPECT_EQ(Texto("lblDescuento"), QStringLiteral("$ 0,00"));
    EXPECT_FALSE(C<QPushButton>("cmdQuitar")->isEnabled());
    EXPECT_EQ(C<QComboBox>("cboxVendedores")->currentIndex(), 0);
    EXPECT_EQ(Campo("txtNumComp")->text(), QStringLiteral("77"));
    EXPECT_EQ(Campo("txtDescuento")->text(), QStringLiteral("10 %"));
    EXPECT_EQ(ConFoco(), QStringLiteral("txtBuscar"));
}

TEST_F(VentanaVentas, RefusedIssuesMoveTheFocus) {
    Abrir();
    mundo.preguntas.EsperaMensaje(QStringLiteral("Debe agregar al menos un artículo a la lista."),
                                  Icono::Informacion);
    Clic("cmdEmitir");
    EXPECT_EQ(ConFoco(), QStringLiteral("txtBuscar"));
    Escanear("28");
    mundo.preguntas.EsperaMensaje(QStringLiteral("Debe seleccionar un vendedor."), Icono::Ninguno);
    Clic("cmdEmitir");
    EXPECT_EQ(ConFoco(), QStringLiteral("cboxVendedores"));
    EXPECT_EQ(Lineas(), 1);
}

// --- search

TEST_F(VentanaVentas, SearchModes) {
    Abrir();
    auto *campo = Campo("txtBuscar");
    auto *boton = C<QPushButton>("cmdBuscar");
    EXPECT_EQ(boton->text(), QStringLiteral("Código de barras"));
    Teclas(QStringLiteral("000035"));
    for (int i = 0; i < 2; ++i) {
        boton->click();
        EXPECT_EQ(Lista("LVArticulos")->FilaActual(), 2);
        EXPECT_EQ(ConFoco(), QStringLiteral("cmdAgregar"));
    }
    campo->setText(QStringLiteral("000011")); // a change starts over
    boton->click();
    EXPECT_EQ(Lista("LVArticulos")->FilaActual(), 0);
    mundo.preguntas.EsperaMensaje(kFinal, Icono::Informacion);
    boton->click();
    EXPECT_EQ(ConFoco(), QStringLiteral("LVArticulos"));
    campo->clear();
    boton->click();
    EXPECT_EQ(ConFoco(), QStringLiteral("txtBuscar"));

    Modo("tbrControles", "codigo");
    EXPECT_EQ(boton->text(), QStringLiteral("Buscar por código"));
    EXPECT_EQ(ConFoco(), QStringLiteral("txtBuscar"));
    Teclas(QStringLiteral("a3"));
    Entrar();
    EXPECT_EQ(Lista("LVArticulos")->FilaActual(), 2);
    EXPECT_EQ(campo->selectedText(), QStringLiteral("a3"));

    // The article mode looks into the barcodes and not into the names.
    Modo("tbrControles", "articulo");
    EXPECT_EQ(boton->text(), QStringLiteral("Buscar por artículo"));
    Teclas(QStringLiteral("Yerba"));
    mundo.preguntas.EsperaMensaje(kFinal, Icono::Informacion);
    Entrar();
    Teclear(campo, QStringLiteral("0028"));
    Entrar();
    EXPECT_EQ(Lista("LVArticulos")->FilaActual(), 1);
    EXPECT_EQ(ConFoco(), QStringLiteral("txtBuscar"));

    auto *buscar = Control<QAction>(*C<QToolBar>("tbrControles"), "buscar");
    buscar->trigger();
    EXPECT_FALSE(campo->isEnabled() || boton->isEnabled());
    Modo("tbrControles", "barras");
    EXPECT_TRUE(campo->isEnabled() && boton->isEnabled() && buscar->isChecked());
}

// --- quantity, lines

TEST_F(VentanaVentas, TheQuantityTakesDigitsAndArrows) {
    Abrir();
    auto *cantidad = Campo("txtCantidad");
    cantidad->setFocus();
    cantidad->selectAll();
    Teclas(QStringLiteral("-9.998"));
    for (const char *texto : {"9999", "9999"}) {
        Tecla(cantidad, Qt::Key_Up);
        EXPECT_EQ(cantidad->text(), QLatin1String(texto));
    }
    C<QAbstractSlider>("FSB1")->setValue(-2);
    for (const char *texto : {"1", "1"}) {
        Tecla(cantidad, Qt::Key_Down);
        EXPECT_EQ(cantidad->text(), QLatin1String(texto));
    }
    cantidad->clear();
    Campo("txtBuscar")->setFocus();
    EXPECT_EQ(cantidad->text(), QStringLiteral("1"));
    cantidad->clear();
    cantidad->setFocus();
    Entrar();
    EXPECT_EQ(Linea(0, linea::Cantidad), QStringLiteral("1"));
}

TEST_F(VentanaVentas, RemovingALineAsks) {
    const QString pregunta = QStringLiteral("Está seguro de querer quitar artículo de la lista?");
    Abrir();
    Lista("LVDetalle")->setFocus();
    EXPECT_NE(ConFoco(), QStringLiteral("LVDetalle")) << "an empty list passes the focus on";
    for (const char *codigo : {"000011", "000028", "000035"}) {
        Campo("txtBuscar")->setFocus();
        Escanear(codigo);
    }
    mundo.preguntas.Espera(pregunta, Respuesta::No, Respuesta::No);
    Clic("cmdQuitar");
    EXPECT_EQ(Lineas(), 3);
    mundo.preguntas.Espera(pregunta, Respuesta::No, Respuesta::Si);
    Lista("LVDetalle")->setFocus();
    Tecla(Lista("LVDetalle"), Qt::Key_Delete);
    EXPECT_EQ(Lineas(), 2);
    EXPECT_EQ(Lista("LVArticulos")->Lista()->Celda(2, articulo::Stock), QStringLiteral("3"));
    EXPECT_EQ(ConFoco(), QStringLiteral("LVArticulos"));
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(C<QPushButton>("cmdQuitar")->isEnabled());
        mundo.preguntas.Espera(pregunta, Respuesta::No, Respuesta::Si);
        emit Lista("LVDetalle")->FilaDobleClic(0);
    }
    EXPECT_FALSE(C<QPushButton>("cmdQuitar")->isEnabled());
    EXPECT_EQ(Texto("lblTotal"), QStringLiteral("$ 0,00"));
}

TEST_F(VentanaVentas, ANewSaleAsksAndKeepsNumberAndDiscount) {
    const QString pregunta = QStringLiteral("Está seguro de querer comenzar una nueva venta?");
    Abrir();
    Escanear("000028");
    Teclear(Campo("txtNumComp"), QStringLiteral("5"));
    Teclear(Campo("txtDescuento"), QStringLiteral("150"));
    mundo.preguntas.Espera(pregunta, Respuesta::No, Respuesta::No);
    Clic("cmdNuevo");
    EXPECT_EQ(Lineas(), 1);
    mundo.preguntas.Espera(pregunta, Respuesta::No, Respuesta::Si);
    Clic("cmdNuevo");
    EXPECT_EQ(Lineas(), 0);
    EXPECT_EQ(Lista("LVArticulos")->Lista()->Celda(1, articulo::Stock), QStringLiteral("1"));
    EXPECT_EQ(ConFoco(), QStringLiteral("LVArticulos"));
    EXPECT_EQ(Campo("txtNumComp")->text() + Campo("txtDescuento")->text(), QStringLiteral("5100 %"));
}

TEST_F(VentanaVentas, AnEmptyCatalogueAddsNothing) {
    mundo.datos.Ejecutar("DELETE FROM articulos.Articulos; DELETE FROM clientes.Clientes");
    Abrir();
    Clic("cmdAgregar");
    EXPECT_EQ(Lineas(), 0);
    Clic("cmdCliente");
    Clic("cmdAceptar"); // an empty list: as cancel
    EXPECT_EQ(Texto("lblCliente"), QString());
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
    EXPECT_EQ(titulo(), QStringLiteral("Cantidad"));
    for (int fila = 0; fila < 12; ++fila)
        emit Lista("LVArticulos")->FilaDobleClic((Lista("LVArticulos")->SeleccionarFila(fila), fila));
    EXPECT_EQ(titulo(), QStringLiteral("Cant."));
    mundo.preguntas.Espera(QStringLiteral("Está seguro de querer comenzar una nueva venta?"), Respuesta::No,
                           Respuesta::Si);
    Clic("cmdNuevo");
    EXPECT_EQ(titulo(), QStringLiteral("Cantidad"));
}

// --- the customer

TEST_F(VentanaVentas, CreditNeedsACustomerAndTheTaxFollowsHisFiscalId) {
    CobrarImpuesto(mundo.datos, "No", "Si");
    Abrir();
    Escanear("000011");
    mundo.preguntas.EsperaMensaje(QStringLiteral("Debe seleccionar un cliente."), Icono::Informacion);
    Clic("cmdVCredito");
    EXPECT_EQ(ConFoco(), QStringLiteral("cmdCliente"));
    EXPECT_TRUE(Se("shVContado"));

    Clic("cmdCliente");
    for (const char *marco : {"frArticulos", "frDetalle", "frDatos"})
        EXPECT_FALSE(C<QWidget>(marco)->isEnabled());
    EXPECT_TRUE(ventana->EntradaEnCurso()) << "the disabled frame doesn't end the entry";
    EXPECT_EQ(ConFoco(), QStringLiteral("txtBuscarClientes"));
    Teclas(QStringLiteral("AND"));
    Entrar();
    Clic("cmdAceptar");
    EXPECT_TRUE(C<QWidget>("frDatos")->isEnabled());
    EXPECT_EQ(Texto("lblCliente"), QStringLiteral("Ñandú S.A."));
    EXPECT_EQ(Texto("lblRUC"), QStringLiteral("30-71234567-1"));
    EXPECT_EQ(Texto("lblIdCliente"), QStringLiteral("1"));
    EXPECT_FALSE(C<QCheckBox>("chkFinal")->isChecked());
    EXPECT_EQ(Texto("lblImpPersonalizado"), QStringLiteral("$ 3,00"));
    Clic("cmdVCredito");
    EXPECT_TRUE(Se("shVCredito"));
    EXPECT_FALSE(Se("shVContado"));

    C<QCheckBox>("chkFinal")->click();
    EXPECT_TRUE(C<QCheckBox>("chkFinal")->isChecked());
    EXPECT_EQ(Texto("lblCliente") + Texto("lblRUC") + Texto("lblIdCliente"), QString());
    EXPECT_TRUE(Se("shVContado"));
    EXPECT_EQ(Texto("lblTotal"), QStringLiteral("$ 121,00"));
    C<QCheckBox>("chkFinal")->click();
    EXPECT_TRUE(C<QCheckBox>("chkFinal")->isChecked()) << "snaps back";
}

// --- leaving

TEST_F(VentanaVentas, ClosingTheProgramAsksWithASaleInProgress) {
    Abrir();
    EXPECT_TRUE(ventana->PermiteCerrarPrograma());
    Clic("cmdCliente");
    Clic("cmdAgregarCliente");
    EXPECT_FALSE(ventana->EntradaEnCurso());
    Teclas(QStringLiteral("C"));
    EXPECT_TRUE(ventana->EntradaEnCurso()) << "a half-typed customer";
    for (int i = 0; i < 2; ++i)
        Tecla(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(ventana->EntradaEnCurso());
    Escanear("000011");
    for (const Respuesta respuesta : {Respuesta::No, Respuesta::Si}) {
        mundo.preguntas.Espera(QStringLiteral("Desea cerrar el programa sin completar la venta?"),
                               Respuesta::No, respuesta);
        EXPECT_EQ(ventana->PermiteCerrarPrograma(), respuesta == Respuesta::Si);
    }
}

} // namespace
} // namespace tarvo
