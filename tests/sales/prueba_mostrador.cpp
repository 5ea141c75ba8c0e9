// What the counter shows besides the sale itself: the article at hand, the change, what the last document
// left; and its keys.
#include "documents/archivofactura.h"
#include "ventanaprueba.h"

namespace tarvo {
namespace {

TEST_F(VentaAbierta, TheArticleAtHandAndTheLineJustAddedAreTold) {
    const auto alaVista = [this] { return Texto("lblSeleccionado"); };
    EXPECT_EQ(alaVista(), u"Yerba mate, con IVA $ 121,00, quedan 10");
    Escanear("28");
    Escanear("28");
    // 10,5 % is charged as 10
    EXPECT_EQ(alaVista(), u"Azúcar, con IVA $ 13,75, quedan -1");
    EXPECT_EQ(anfitrion.sugerencia, u"Azúcar: 2 x $ 12,50 = $ 25,00");
}

TEST_F(VentaAbierta, TheChangeIsExactAndGoesWithTheSale) {
    Escanear("28"); // 13,75
    const std::array<const char *, 3> casos[] = {
        {"20", "Vuelto", "$ 6,25"},  {"13.75", "Vuelto", "$ 0,00"},
        {"13,7", "Falta", "$ 0,05"}, {"1.000,5", "Vuelto", ""},
        {"", "Vuelto", ""},          {"20", "Vuelto", "$ 6,25"},
    };
    for (const auto &[entregado, rotulo, vuelto] : casos) {
        Campo("txtEntregado")->clear();
        Teclear(Campo("txtEntregado"), QLatin1String(entregado));
        EXPECT_EQ(Texto("lblVuelto1"), QLatin1String(rotulo)) << entregado;
        EXPECT_EQ(Texto("lblVuelto"), QLatin1String(vuelto)) << entregado;
    }
    Campo("txtBuscar")->setFocus();
    Escanear("28");
    EXPECT_EQ(Texto("lblVuelto1") + Texto("lblVuelto"), u"Falta$ 7,50");
    EsperaNuevaVenta(Si);
    Pulsa(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Texto("txtEntregado") + Texto("lblVuelto"), QString());
}

// By Ctrl+Enter with the discount half typed: it counts, and stands out until it is touched.
TEST_F(VentaAbierta, WhatTheLastIssueLeftStandsOutUntilTouched) {
    Escanear("28");
    C<QComboBox>("cboxVendedores")->setCurrentIndex(1);
    Teclear(Campo("txtNumComp"), u"77"_qs);
    Teclear(Campo("txtDescuento"), u"10"_qs);
    EsperaEmision(mundo.preguntas, No);
    Pulsa(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(mundo.datos.Tabla("SELECT total FROM ventas.Ventas"), u"$ 12,38");
    const auto resalta = [this](const char *campo) { return Campo(campo)->property("conservado").toBool(); };
    EXPECT_TRUE(resalta("txtNumComp") && resalta("txtDescuento"));
    Campo("txtNumComp")->setFocus();
    EXPECT_FALSE(resalta("txtNumComp"));
    EXPECT_TRUE(resalta("txtDescuento"));
}

TEST_F(VentanaVentas, TheTabKeyFollowsTheScreenAndPassesAnEmptyListBothWays) {
    const QStringList camino{u"txtBuscar"_qs,    u"cmdBuscar"_qs,  u"LVArticulos"_qs,    u"txtCantidad"_qs,
                             u"cmdAgregar"_qs,   u"cmdCliente"_qs, u"chkFinal"_qs,       u"cmdVContado"_qs,
                             u"cmdVCredito"_qs,  u"txtNumComp"_qs, u"cboxVendedores"_qs, u"txtDescuento"_qs,
                             u"txtEntregado"_qs, u"cmdEmitir"_qs,  u"cmdNuevo"_qs};
    Abrir();
    for (const QString &control : camino) {
        EXPECT_EQ(ConFoco(), control);
        Pulsa(Qt::Key_Tab);
    }
    EXPECT_TRUE(C<QToolBar>("tbrControles")->isAncestorOf(QApplication::focusWidget()));
    for (auto control = camino.rbegin(); control != camino.rend(); ++control)
        EXPECT_EQ(Pulsa(Qt::Key_Backtab), *control);
    // Enter presses a payment button, which shows its state also to a screen reader.
    C<QPushButton>("cmdVCredito")->setFocus();
    mundo.preguntas.EsperaMensaje(u"Debe seleccionar un cliente."_qs);
    Entrar();
    EXPECT_TRUE(C<QPushButton>("cmdVContado")->isChecked() && !C<QPushButton>("cmdVCredito")->isChecked());
    EXPECT_EQ(Pulsa(Qt::Key_B, Qt::ControlModifier), u"txtBuscar");
}

// --- the card of the last issued document: what it tells, what it prints, how long it stays

class Ultimo : public VentanaVentas {
  protected:
    void Vender(const char *codigo) {
        Escanear(codigo);
        C<QComboBox>("cboxVendedores")->setCurrentIndex(1);
        EsperaEmision(mundo.preguntas, Si);
        Clic("cmdEmitir");
    }
};

TEST_F(Ultimo, StaysBeyondItsWindowAndPrintsTheTicketAgain) {
    Abrir();
    EXPECT_FALSE(Se("frUltimo"));
    Teclear(Campo("txtNumComp"), u"77"_qs);
    Campo("txtBuscar")->setFocus();
    Vender("7790001000011");
    EXPECT_TRUE(Se("frUltimo"));
    EXPECT_EQ(Texto("lblUltimoTotal"), u"$ 121,00 · 10:42 · contado · 77"); // folded
    ventana->resize(1000, 760);
    EXPECT_EQ(Texto("lblUltimo"), u"77 · Factura contado");
    EXPECT_EQ(Texto("lblUltimoTotal"), u"$ 121,00 · 10:42");
    EXPECT_EQ(Texto("cmdReimprimir"), u"Reimprimir ticket");
    EXPECT_EQ(Texto("cmdFactura"), u"Imprimir factura");
    EXPECT_FALSE(Habilitado("cmdFactura")); // no layout is stored

    mundo.reloj.Poner(QDateTime({2026, 11, 23}, {9, 0}));
    Abrir();
    Clic("cmdReimprimir");
    EXPECT_EQ(mundo.impresoras.Papel(1), mundo.impresoras.Papel(0));
    EXPECT_EQ(ConFoco(), u"txtBuscar");
    mundo.impresoras.fallar = true;
    mundo.preguntas.EsperaFalla(u"No se pudo imprimir. No hay impresora."_qs);
    Tecla(ventana.get(), Qt::Key_R, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return mundo.preguntas.Terminado(); })); // a pressed button shows it
    EXPECT_EQ(mundo.datos.Filas("SELECT id FROM ventas.Ventas").size(), 1U);
}

TEST_F(Ultimo, PrintsTheInvoiceOnTheStoredLayout) {
    const QString ruta = mundo.datos.Carpeta() + u"/factura.kzd"_qs;
    GuardarDiseno(ruta, DisenoFactura(), {}, QDateTime());
    mundo.datos.Ejecutar(
        u"UPDATE main.Factura SET rutafactura='%1', cantlineas='1'"_qs.arg(ruta).toStdString());
    Abrir();
    Escanear("7790001000028");
    Vender("7790001000011");
    Clic("cmdFactura");
    const QString papel = mundo.impresoras.Papel(1);
    EXPECT_EQ(papel.count(u'\f'), 1); // two lines, one a sheet
    for (const char *texto : {"Azúcar", "Yerba mate", "Sigue...", "V1 - Ana", "22/11/2026"})
        EXPECT_TRUE(papel.contains(QString::fromUtf8(texto))) << texto;

    QFile::remove(ruta);
    mundo.preguntas.EsperaMensaje(u"No se reconoce el formato del archivo."_qs);
    Clic("cmdFactura");
    EXPECT_EQ(mundo.impresoras.documentos.size(), 2U);
}

} // namespace
} // namespace tarvo
