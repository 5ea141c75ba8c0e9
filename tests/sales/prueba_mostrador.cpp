// What the counter shows besides the sale itself: the article at hand, the change, what the last document
// left; and its keys.
#include "ventanaprueba.h"

namespace tarvo {
namespace {

TEST_F(VentanaVentas, TheArticleAtHandAndTheLineJustAddedAreTold) {
    Abrir();
    const auto alaVista = [this] { return Texto("lblSeleccionado"); };
    EXPECT_EQ(alaVista(), QStringLiteral("Yerba mate, con IVA $ 121,00, quedan 10"));
    Escanear("28");
    Escanear("28");
    // 10,5 % is charged as 10
    EXPECT_EQ(alaVista(), QStringLiteral("Azúcar, con IVA $ 13,75, quedan -1"));
    EXPECT_EQ(anfitrion.sugerencia, QStringLiteral("Azúcar: 2 x $ 12,50 = $ 25,00"));
}

TEST_F(VentanaVentas, TheChangeIsExactAndGoesWithTheSale) {
    Abrir();
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
    EXPECT_EQ(Texto("lblVuelto1") + Texto("lblVuelto"), QStringLiteral("Falta$ 7,50"));
    mundo.preguntas.Espera(QStringLiteral("Está seguro de querer comenzar una nueva venta?"), Respuesta::No,
                           Respuesta::Si);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Campo("txtEntregado")->text() + Texto("lblVuelto"), QString());
}

// By Ctrl+Enter with the discount half typed: it counts, and stands out until it is touched.
TEST_F(VentanaVentas, WhatTheLastIssueLeftStandsOutUntilTouched) {
    Abrir();
    Escanear("28");
    C<QComboBox>("cboxVendedores")->setCurrentIndex(1);
    Teclear(Campo("txtNumComp"), QStringLiteral("77"));
    Teclear(Campo("txtDescuento"), QStringLiteral("10"));
    mundo.preguntas.Espera(QStringLiteral("Confirma la emisión de la factura?"), Respuesta::Si,
                           Respuesta::Si);
    mundo.preguntas.Espera(QStringLiteral("Desea imprimir el ticket?"), Respuesta::Si, Respuesta::No);
    mundo.preguntas.EsperaMensaje(QStringLiteral("La venta se realizó con exito."), Icono::Informacion);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(mundo.datos.Filas("SELECT total FROM ventas.Ventas"),
              (std::vector<std::vector<QString>>{{QStringLiteral("$ 12,38")}}));
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
        Tecla(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_TRUE(C<QToolBar>("tbrControles")->isAncestorOf(QApplication::focusWidget()));
    for (auto control = camino.rbegin(); control != camino.rend(); ++control) {
        Tecla(QApplication::focusWidget(), Qt::Key_Backtab);
        EXPECT_EQ(ConFoco(), *control);
    }
    // Enter presses a payment button, which shows its state also to a screen reader.
    C<QPushButton>("cmdVCredito")->setFocus();
    mundo.preguntas.EsperaMensaje(QStringLiteral("Debe seleccionar un cliente."), Icono::Informacion);
    Entrar();
    EXPECT_TRUE(C<QPushButton>("cmdVContado")->isChecked());
    EXPECT_FALSE(C<QPushButton>("cmdVCredito")->isChecked());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(ConFoco(), QStringLiteral("txtBuscar"));
}

} // namespace
} // namespace tarvo
