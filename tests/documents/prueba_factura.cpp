// What lies where on the invoice form.
#include "documents/archivos.h"
#include "documents/comprobanteprueba.h"
#include "documents/factura.h"

#include "testkit/papelprueba.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace tarvo {
namespace {

FormularioFactura Formulario() {
    FormularioFactura formulario{{}, LogoIncorporado()};
    EtiquetaLibre &etiqueta = formulario.diseno.etiquetas[4];
    etiqueta.visible = true;
    etiqueta.texto = u"Gracias"_qs;
    etiqueta.alineacion = 1;
    etiqueta.negrita = etiqueta.cursiva = etiqueta.tachada = etiqueta.subrayada = true;
    return formulario;
}

Comprobante Venta(int lineas) {
    Comprobante venta = VentaContado(lineas);
    venta.numero = u"0001-00000077"_qs;
    venta.codigoCliente = u"C1"_qs;
    venta.cliente = QString(60, u'n');
    venta.totalConDescuento = u"$ 123456789012,75"_qs;
    return venta;
}

// "page text x y" of every piece of the page.
QStringList Lugares(const PapelPrueba &papel) {
    QStringList lugares;
    for (const auto &trozo : papel.Trozos())
        lugares
            << u"%1 %2 %3 %4"_qs.arg(trozo.pagina).arg(trozo.texto).arg(trozo.punto.x()).arg(trozo.punto.y());
    return lugares;
}

QStringList Imprimir(const FormularioFactura &formulario, const Comprobante &venta, int porHoja) {
    PapelPrueba papel;
    ImprimirFactura(papel, formulario, venta, porHoja);
    EXPECT_TRUE(papel.Terminado());
    return Lugares(papel);
}

TEST(Factura, TestPageShowsCaptionsLabelsAndLogo) {
    FormularioFactura formulario = Formulario();
    formulario.diseno.campos[0].visible = false;
    formulario.diseno.campos[1].left = -15.4F;
    PapelPrueba papel;
    ImprimirPruebaFactura(papel, formulario);
    EXPECT_TRUE(papel.Terminado());
    const QStringList lugares = Lugares(papel);
    ASSERT_EQ(lugares.size(), 19 + 1 + 1);
    EXPECT_EQ(lugares.first(), u"0 Nombre Cliente -15 720");
    EXPECT_EQ(lugares[18], u"0 Total c/descuento 8760 5700");
    EXPECT_EQ(lugares[19], u"0 Gracias 240 3360");
    EXPECT_EQ(papel.Trozos()[19].letra, (Letra{u"Courier New"_qs, 10, true, true, true, true}));
    EXPECT_EQ(papel.Trozos()[20].letra, Letra());
    EXPECT_EQ(lugares[20], u"0 [imagen 2400x1350] 240 240");
}

// A character of size 8 is 96 twips wide; amounts end at Left + Width, and a long one is never cut.
TEST(Factura, ValuesStandInTheirFields) {
    FormularioFactura formulario = Formulario();
    formulario.diseno.campos[static_cast<std::size_t>(CampoFactura::Hora)].visible = false;
    EXPECT_EQ(Imprimir(formulario, Venta(2), 5).join(u'|'),
              u"0 C1 3840 360|0 %1 3840 720|0 X 5640 1080|0 0001-00000077 8520 240|"
              "0 Factura contado 8520 600|0 22/11/2026 9000 960|0 1 - Ana 240 5700|"
              "0 A0 240 1800|0 Yerba 1500 1800|0 $ 12,50 6573 1800|0 3 8589 1800|0 $ 37,50 9468 1800|"
              "0 A1 240 1981|0 Yerba 1500 1981|0 $ 12,50 6573 1981|0 3 8589 1981|0 $ 37,50 9468 1981|"
              "0 0 % 7197 5700|0 $ 37,50 9453 4560|0 $ 8,25 9549 4845|0 $ 45,75 9453 5415|"
              "0 $ 123456789012,75 8493 5700|0 Gracias 240 3360|0 [imagen 2400x1350] 240 240"_qs.arg(
                  QString(37, u'n')));
}

TEST(Factura, WhatDoesNotFitGoesOnOnFurtherSheets) {
    const std::array<int, 3> casos[] = {{0, 3, 1}, {3, 3, 1}, {4, 3, 2}, {9, 3, 3}, {2, 0, 2}, {2, -5, 2}};
    for (const auto &[lineas, porHoja, hojas] : casos) {
        const QStringList lugares = Imprimir(Formulario(), Venta(lineas), porHoja);
        for (int hoja = 0; hoja < hojas; ++hoja) {
            const QStringList enHoja = lugares.filter(QRegularExpression(u"^%1 "_qs.arg(hoja)));
            const bool ultima = hoja == hojas - 1;
            EXPECT_EQ(enHoja.filter(u" 22/11/2026 "_qs).size(), 1);
            EXPECT_EQ(enHoja.filter(u"[imagen"_qs).size(), 1);
            EXPECT_EQ(enHoja.filter(u"Sigue..."_qs).size(), ultima ? 0 : 1);
            EXPECT_EQ(enHoja.filter(u"$ 8,25"_qs).size(), ultima ? 1 : 0);
            EXPECT_EQ(enHoja.filter(u" Yerba 1500 1800"_qs).size(), lineas == 0 ? 0 : 1);
        }
        EXPECT_TRUE(lugares.filter(QRegularExpression(u"^%1 "_qs.arg(hojas))).isEmpty());
    }
    FormularioFactura formulario = Formulario();
    for (Pieza &campo : formulario.diseno.campos)
        campo.visible = false;
    EXPECT_TRUE(Imprimir(formulario, Venta(4), 3).filter(u"Sigue"_qs).isEmpty());
}

} // namespace
} // namespace tarvo
