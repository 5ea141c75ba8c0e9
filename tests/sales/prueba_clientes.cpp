// The customer of a sale, by keys and clicks.
#include "ventanaprueba.h"

namespace tarvo {
namespace {

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

} // namespace
} // namespace tarvo
