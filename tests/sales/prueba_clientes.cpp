// The customer panel of the sale and its quick entry, by keys and clicks.
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

TEST_F(VentanaVentas, CustomerSearchModesStartOverAtTheEnd) {
    Abrir();
    Clic("cmdCliente");
    auto *boton = C<QPushButton>("cmdBuscarClientes");
    EXPECT_EQ(boton->text(), QStringLiteral("Buscar por nombre"));
    QStringList menu;
    for (const QAction *modo : Control<QAction>(*C<QToolBar>("tbrClientes"), "buscar")->menu()->actions())
        menu += modo->objectName();
    EXPECT_EQ(menu.join(QLatin1Char(' ')), QStringLiteral("codigo nombre telefono ruc"));
    const std::array<const char *, 3> modos[] = {{"codigo", "Buscar por código", "c1"},
                                                 {"nombre", "Buscar por nombre", "ÑANDÚ"},
                                                 {"telefono", "Buscar por teléfono", "444"},
                                                 {"ruc", "Buscar por i.fiscal", "-71"}};
    for (const auto &[clave, titulo, texto] : modos) {
        Modo("tbrClientes", clave);
        EXPECT_EQ(boton->text(), QString::fromUtf8(titulo));
        Lista("LVClientes")->SeleccionarFila(1);
        Campo("txtBuscarClientes")->setText(QString::fromUtf8(texto));
        for (int vuelta = 0; vuelta < 2; ++vuelta) {
            boton->click();
            EXPECT_EQ(Lista("LVClientes")->FilaActual(), 0);
            mundo.preguntas.EsperaMensaje(kFinal, Icono::Informacion);
            boton->click();
            EXPECT_EQ(ConFoco(), QStringLiteral("LVClientes"));
        }
    }
    EXPECT_EQ(Control<QAction>(*C<QToolBar>("tbrClientes"), "actualizar")->toolTip(),
              QStringLiteral("Acualizar"));
}

TEST_F(VentanaVentas, EscapeClosesTheTopmostPanel) {
    Abrir();
    Clic("cmdCliente");
    Clic("cmdAgregarCliente");
    EXPECT_EQ(ConFoco(), QStringLiteral("txtCodigo"));
    for (const char *control :
         {"LVClientes", "txtBuscarClientes", "tbrClientes", "cmdAceptar", "cmdCancelar"})
        EXPECT_FALSE(C<QWidget>(control)->isEnabled());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(Se("picNuevoCliente"));
    EXPECT_TRUE(Se("picClientes"));
    EXPECT_TRUE(C<QWidget>("LVClientes")->isEnabled());
    EXPECT_FALSE(mundo.frmBases().datClientes.FilaNueva());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(Se("picClientes"));
    EXPECT_TRUE(C<QWidget>("frArticulos")->isEnabled());
}

TEST_F(VentanaVentas, TheQuickEntrySavesWithoutPickingTheCustomer) {
    mundo.datos.Ejecutar("CREATE TRIGGER clientes.negar BEFORE INSERT ON Clientes WHEN NEW.nombre='Malo' "
                         "BEGIN SELECT RAISE(FAIL,'sin lugar'); END");
    Abrir();
    Clic("cmdCliente");
    Clic("cmdAgregarCliente");
    mundo.preguntas.EsperaMensaje(QStringLiteral("Debe llenar el campo \"Código\""), Icono::Informacion);
    Clic("cmdGuardarCliente");
    EXPECT_EQ(ConFoco(), QStringLiteral("txtCodigo"));
    Teclas(QStringLiteral("C1")); // a repeated code passes
    mundo.preguntas.EsperaMensaje(QStringLiteral("Debe llenar el campo \"Nombre\""), Icono::Informacion);
    Clic("cmdGuardarCliente");
    EXPECT_EQ(ConFoco(), QStringLiteral("txtNombre"));
    Teclas(QStringLiteral("Malo"));
    mundo.preguntas.EsperaMensaje(QStringLiteral("No se pudo escribir en la base de datos: sin lugar.\n\n"
                                                 "Los datos del cliente siguen en pantalla."),
                                  Icono::Critico);
    Clic("cmdGuardarCliente");
    EXPECT_TRUE(Se("picNuevoCliente"));
    EXPECT_EQ(Campo("txtNombre")->text(), QStringLiteral("Malo"));

    const QString raro = QStringLiteral("O'Hara \"x\"; <b>😀</b>\t") + QString(10000, QLatin1Char('z'));
    Campo("txtNombre")->selectAll();
    QApplication::clipboard()->setText(raro);
    QTest::keySequence(Campo("txtNombre"), QKeySequence::Paste);
    Campo("txtNombre")->setFocus();
    // Enter walks the fields to the button, whose own Enter saves.
    for (int i = 0; i < 13; ++i)
        Entrar();
    EXPECT_EQ(ConFoco(), QStringLiteral("cmdGuardarCliente"));
    Entrar();
    EXPECT_FALSE(Se("picNuevoCliente"));
    EXPECT_TRUE(Se("picClientes"));
    EXPECT_EQ(Texto("lblCliente"), QString());
    ASSERT_EQ(Lista("LVClientes")->Lista()->Filas(), 3);
    EXPECT_EQ(Lista("LVClientes")->Lista()->Celda(2, cliente::Nombre), raro);
    emit Lista("LVClientes")->FilaDobleClic((Lista("LVClientes")->SeleccionarFila(2), 2));
    EXPECT_EQ(Texto("lblCliente"), raro);
    EXPECT_LE(ventana->minimumSizeHint().width(), 800) << "a long name doesn't widen the window";
}

} // namespace
} // namespace tarvo
