// What lies where on the invoice form.
#include "documents/archivos.h"
#include "documents/factura.h"

#include "testkit/papelprueba.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace tarvo;

namespace {

FormularioFactura Formulario() {
    FormularioFactura formulario{{}, LogoIncorporado()};
    EtiquetaLibre &etiqueta = formulario.diseno.etiquetas[4];
    etiqueta.visible = true;
    etiqueta.texto = QStringLiteral("Gracias");
    etiqueta.alineacion = 1;
    etiqueta.negrita = etiqueta.cursiva = etiqueta.tachada = etiqueta.subrayada = true;
    return formulario;
}

Comprobante Venta(int lineas) {
    Comprobante venta;
    venta.tipo = QStringLiteral("Factura contado");
    venta.numero = QStringLiteral("0001-00000077");
    venta.fecha = QStringLiteral("22/11/2026");
    venta.hora = QStringLiteral("10:42");
    venta.codigoCliente = QStringLiteral("C1");
    venta.cliente = QString(60, u'n');
    venta.vendedor = QStringLiteral("1 - Ana");
    for (int i = 0; i < lineas; ++i)
        venta.lineas.push_back({QStringLiteral("A%1").arg(i), QStringLiteral("Yerba"), QStringLiteral("3"),
                                QStringLiteral("$ 12,50"), QStringLiteral("$ 37,50")});
    venta.subtotal = QStringLiteral("$ 37,50");
    venta.iva = QStringLiteral("$ 8,25");
    venta.total = QStringLiteral("$ 45,75");
    venta.descuento = QStringLiteral("0 %");
    venta.totalConDescuento = QStringLiteral("$ 123456789012,75");
    return venta;
}

// "page text x y" of every piece of the page.
QStringList Lugares(const PapelPrueba &papel) {
    QStringList lugares;
    for (const auto &trozo : papel.Trozos())
        lugares << QStringLiteral("%1 %2 %3 %4")
                       .arg(trozo.pagina)
                       .arg(trozo.texto)
                       .arg(trozo.punto.x())
                       .arg(trozo.punto.y());
    return lugares;
}

QStringList Imprimir(const FormularioFactura &formulario, const Comprobante &venta, int porHoja) {
    PapelPrueba papel;
    ImprimirFactura(papel, formulario, venta, porHoja);
    EXPECT_TRUE(papel.Terminado());
    return Lugares(papel);
}

} // namespace

TEST(Factura, TestPageShowsCaptionsLabelsAndLogo) {
    FormularioFactura formulario = Formulario();
    formulario.diseno.campos[0].visible = false;
    formulario.diseno.campos[1].left = -15.4F;
    PapelPrueba papel;
    ImprimirPruebaFactura(papel, formulario);
    EXPECT_TRUE(papel.Terminado());
    const QStringList lugares = Lugares(papel);
    ASSERT_EQ(lugares.size(), 19 + 1 + 1);
    EXPECT_EQ(lugares.first(), QStringLiteral("0 Nombre Cliente -15 720"));
    EXPECT_EQ(lugares[18], QStringLiteral("0 Total c/descuento 8760 5700"));
    EXPECT_EQ(lugares[19], QStringLiteral("0 Gracias 240 3360"));
    EXPECT_EQ(papel.Trozos()[19].letra, (Letra{QStringLiteral("Courier New"), 10, true, true, true, true}));
    EXPECT_EQ(papel.Trozos()[20].letra, Letra());
    EXPECT_EQ(lugares[20], QStringLiteral("0 [imagen 2400x1350] 240 240"));
}

// A character of size 8 is 96 twips wide; amounts end at Left + Width, and a long one is never cut.
TEST(Factura, ValuesStandInTheirFields) {
    FormularioFactura formulario = Formulario();
    formulario.diseno.campos[static_cast<std::size_t>(CampoFactura::Hora)].visible = false;
    EXPECT_EQ(Imprimir(formulario, Venta(2), 5),
              (QStringList{
                  QStringLiteral("0 C1 3840 360"),
                  QStringLiteral("0 %1 3840 720").arg(QString(37, u'n')),
                  QStringLiteral("0 X 5640 1080"),
                  QStringLiteral("0 0001-00000077 8520 240"),
                  QStringLiteral("0 Factura contado 8520 600"),
                  QStringLiteral("0 22/11/2026 9000 960"),
                  QStringLiteral("0 1 - Ana 240 5700"),
                  QStringLiteral("0 A0 240 1800"),
                  QStringLiteral("0 Yerba 1500 1800"),
                  QStringLiteral("0 $ 12,50 %1 1800").arg(6120 + 1125 - 7 * 96),
                  QStringLiteral("0 3 %1 1800").arg(7560 + 1125 - 96),
                  QStringLiteral("0 $ 37,50 %1 1800").arg(9015 + 1125 - 7 * 96),
                  QStringLiteral("0 A1 240 1981"),
                  QStringLiteral("0 Yerba 1500 1981"),
                  QStringLiteral("0 $ 12,50 %1 1981").arg(6120 + 1125 - 7 * 96),
                  QStringLiteral("0 3 %1 1981").arg(7560 + 1125 - 96),
                  QStringLiteral("0 $ 37,50 %1 1981").arg(9015 + 1125 - 7 * 96),
                  QStringLiteral("0 0 % %1 5700").arg(5880 + 1605 - 3 * 96),
                  QStringLiteral("0 $ 37,50 %1 4560").arg(8760 + 1365 - 7 * 96),
                  QStringLiteral("0 $ 8,25 %1 4845").arg(8760 + 1365 - 6 * 96),
                  QStringLiteral("0 $ 45,75 %1 5415").arg(8760 + 1365 - 7 * 96),
                  QStringLiteral("0 $ 123456789012,75 %1 5700").arg(8760 + 1365 - 17 * 96),
                  QStringLiteral("0 Gracias 240 3360"),
                  QStringLiteral("0 [imagen 2400x1350] 240 240"),
              }));
}

TEST(Factura, WhatDoesNotFitGoesOnOnFurtherSheets) {
    const struct {
        int lineas;
        int porHoja;
        int hojas;
    } casos[] = {{0, 3, 1}, {3, 3, 1}, {4, 3, 2}, {9, 3, 3}, {2, 0, 2}, {2, -5, 2}};
    for (const auto &caso : casos) {
        const QStringList lugares = Imprimir(Formulario(), Venta(caso.lineas), caso.porHoja);
        for (int hoja = 0; hoja < caso.hojas; ++hoja) {
            const QStringList enHoja = lugares.filter(QRegularExpression(QStringLiteral("^%1 ").arg(hoja)));
            const bool ultima = hoja == caso.hojas - 1;
            EXPECT_EQ(enHoja.filter(QStringLiteral(" 22/11/2026 ")).size(), 1);
            EXPECT_EQ(enHoja.filter(QStringLiteral("[imagen")).size(), 1);
            EXPECT_EQ(enHoja.filter(QStringLiteral("Sigue...")).size(), ultima ? 0 : 1);
            EXPECT_EQ(enHoja.filter(QStringLiteral("$ 8,25")).size(), ultima ? 1 : 0);
            EXPECT_EQ(enHoja.filter(QStringLiteral(" Yerba 1500 1800")).size(), caso.lineas == 0 ? 0 : 1);
        }
        EXPECT_TRUE(lugares.filter(QRegularExpression(QStringLiteral("^%1 ").arg(caso.hojas))).isEmpty());
    }
    FormularioFactura formulario = Formulario();
    for (Pieza &campo : formulario.diseno.campos)
        campo.visible = false;
    EXPECT_TRUE(Imprimir(formulario, Venta(4), 3).filter(QStringLiteral("Sigue")).isEmpty());
}
