// The three list panels: one suite over what they share, driven by the names of their controls.
#include "opcionesprueba.h"

using namespace tarvo;

namespace {

struct Panel {
    const char *nombre;
    int nodo;
    const char *prefijo; // of the buttons
    const char *lista;
    std::vector<const char *> campos; // the first two are required
    const char *faltaSegundo;
    const char *otrasFilas; // SQL that adds the rows a1, "Uno" and b2, "Dos"
    const char *filas;      // SQL of the first two columns
    const char *modificar;
    const char *eliminar;
    const char *ultima;
    const char *segundoRepetido; // message; null: it may repeat
};

const Panel kPaneles[] = {
    {"iva",
     0,
     "IVA",
     "LVIVA",
     {"txtIVACodigo", "txtIVATipo", "txtIVAPorcentaje"},
     "Debe llenar el campo \"Tipo de IVA\"",
     "INSERT INTO Iva (codigo, tipo, porcentaje) VALUES ('1', 'Uno', '10,5'), ('2', 'Dos', '21')",
     "SELECT codigo, tipo FROM Iva ORDER BY id",
     "Está seguro de querer modificar los datos del Tipo de IVA seleccionado?",
     "Está seguro de querer eliminar el Tipo de IVA seleccionado?",
     "No se puede borrar.\nDebe existir al menos un tipo de IVA.",
     "El tipo de iva ingresado ya existe en la base de datos."},
    {"categorias",
     1,
     "Cat",
     "LVCategorias",
     {"txtCatCodigo", "txtCatCategoria"},
     "Debe llenar el campo \"Categoría\"",
     "INSERT INTO Categorias (codigo, categoria) VALUES ('1', 'Uno'), ('2', 'Dos')",
     "SELECT codigo, categoria FROM Categorias ORDER BY id",
     "Está seguro de querer modificar los datos de la categoría seleccionada?",
     "Está seguro de querer eliminar la categoría seleccionada?",
     "No se puede borrar.\nDebe existir al menos una categoría.",
     nullptr},
    {"vendedores",
     2,
     "Ven",
     "LVVendedores",
     {"txtVenCodigo", "txtVenNombre", "txtVenDocumento", "txtVenDireccion", "txtVenTelefono", "txtVenEmail",
      "txtVenOtros"},
     "Debe llenar el campo \"Nombre\"",
     "INSERT INTO Vendedores (codigo, nombre) VALUES ('1', 'Uno'), ('2', 'Dos')",
     "SELECT codigo, nombre FROM Vendedores ORDER BY id",
     "Está seguro de querer modificar los datos del vendedor seleccionado?",
     "Está seguro de querer eliminar el vendedor seleccionado?",
     "No se puede borrar.\nDebe existir al menos un vendedor.",
     "El nombre ingresado ya existe en la base de datos."},
};

class ListasOpciones : public OpcionesPrueba, public testing::WithParamInterface<Panel> {
  protected:
    const Panel &p = GetParam();

    QPushButton *cmd(const char *accion) {
        return Boton((QByteArray("cmd") + p.prefijo + accion).constData());
    }
    void Clic(const char *accion) { tarvo::Pulsar(cmd(accion)); }
    QString Botones() {
        QStringList encendidos;
        for (const char *accion : {"Nuevo", "Guardar", "Eliminar", "Actualizar", "Cancelar"})
            if (cmd(accion)->isEnabled())
                encendidos << QString::fromLatin1(accion);
        return encendidos.join(QLatin1Char(' '));
    }
    void ConDosFilas() {
        Sql(p.otrasFilas);
        Abrir();
        ElegirNodo(p.nodo);
    }
    void Llenar(const char *codigo, const char *segundo) {
        Escribir(p.campos[0], codigo);
        Escribir(p.campos[1], segundo);
    }
};

INSTANTIATE_TEST_SUITE_P(Paneles, ListasOpciones, testing::ValuesIn(kPaneles),
                         [](const auto &panel) { return panel.param.nombre; });

TEST_P(ListasOpciones, AnEmptyTableOffersNewAndRefreshOnly) {
    Abrir();
    ElegirNodo(p.nodo);
    EXPECT_EQ(Botones(), QStringLiteral("Nuevo Actualizar"));
    for (const char *campo : p.campos)
        EXPECT_FALSE(Campo(campo)->isEnabled()) << campo;
    EXPECT_FALSE(Control<QWidget>(*ventana, "FSB1")->isEnabled()); // IVA
    QTest::keyClick(Lista(p.lista), Qt::Key_Delete);               // no question
    Clic("Nuevo");
    Llenar("7", "Primera");
    Clic("Guardar");
    EXPECT_EQ(Filas(p.filas), QStringLiteral("7|Primera"));
    EXPECT_EQ(Botones(), QStringLiteral("Nuevo Guardar Eliminar Actualizar"));
}

TEST_P(ListasOpciones, ARowIsShownByItsHiddenIdAlsoWhenSorted) {
    ConDosFilas();
    EXPECT_EQ(Texto(p.campos[0]), QStringLiteral("1"));
    ListaTexto *lista = Lista(p.lista)->Lista();
    lista->ClicEncabezado(1); // "Dos" before "Uno"
    Lista(p.lista)->setFocus();
    QTest::keyClick(Lista(p.lista), Qt::Key_Home);
    EXPECT_EQ(Texto(p.campos[1]), QStringLiteral("Dos"));
    EXPECT_EQ(lista->Celda(0, lista->columnCount() - 1), QStringLiteral("2"));
    EXPECT_TRUE(Lista(p.lista)->isColumnHidden(lista->columnCount() - 1));
}

TEST_P(ListasOpciones, ANewRowLocksTreeAndListUntilItIsSaved) {
    ConDosFilas();
    Clic("Nuevo");
    EXPECT_EQ(Botones(), QStringLiteral("Guardar Cancelar"));
    EXPECT_FALSE(Lista(p.lista)->isEnabled());
    EXPECT_FALSE(Control<QTreeView>(*ventana, "TVOpciones")->isEnabled());
    EXPECT_TRUE(Campo(p.campos[0])->hasFocus());
    for (const char *campo : p.campos)
        EXPECT_EQ(Texto(campo), QByteArray(campo) == "txtIVAPorcentaje" ? QStringLiteral("0") : QString())
            << campo;
    EsperaMensaje("Debe llenar el campo \"Código\"");
    Clic("Guardar");
    Escribir(p.campos[0], "3");
    EsperaMensaje(p.faltaSegundo);
    Clic("Guardar");
    EXPECT_TRUE(Campo(p.campos[1])->hasFocus());
    Escribir(p.campos[1], "Tres");
    Clic("Guardar");
    EXPECT_EQ(Filas(p.filas), QStringLiteral("1|Uno; 2|Dos; 3|Tres"));
    EXPECT_EQ(Botones(), QStringLiteral("Nuevo Guardar Eliminar Actualizar"));
    EXPECT_TRUE(Control<QTreeView>(*ventana, "TVOpciones")->isEnabled());
    EXPECT_TRUE(Lista(p.lista)->hasFocus());
    EXPECT_EQ(Texto(p.campos[0]), QStringLiteral("1"));
}

TEST_P(ListasOpciones, ACancelledOrAbandonedNewRowIsNeverStored) {
    ConDosFilas();
    Clic("Nuevo");
    Llenar("3", "Tres");
    Clic("Cancelar");
    EXPECT_EQ(Texto(p.campos[0]), QStringLiteral("1"));
    EXPECT_TRUE(Lista(p.lista)->isEnabled());
    Clic("Nuevo");
    Llenar("3", "Tres");
    QTest::keyClick(Campo(p.campos[1]), Qt::Key_Escape);
    EXPECT_FALSE(ventana->isVisible());
    CerrarTodo();
    EXPECT_EQ(Filas(p.filas), QStringLiteral("1|Uno; 2|Dos"));
}

TEST_P(ListasOpciones, AChangeAsksBeforeItLooksForDuplicates) {
    ConDosFilas();
    Llenar("2", "Dos");
    EsperaPregunta(p.modificar, Respuesta::No);
    Clic("Guardar");
    EsperaPregunta(p.modificar, Respuesta::Si);
    EsperaMensaje("El código ingresado ya existe en la base de datos.");
    Clic("Guardar");
    EXPECT_TRUE(Campo(p.campos[0])->hasFocus());

    Llenar("12", "dos"); // 1 and 12 are different codes; case is ignored in names
    EsperaPregunta(p.modificar, Respuesta::Si);
    if (p.segundoRepetido != nullptr)
        EsperaMensaje(p.segundoRepetido);
    Clic("Guardar");
    EXPECT_EQ(Filas(p.filas), p.segundoRepetido != nullptr ? QStringLiteral("1|Uno; 2|Dos")
                                                           : QStringLiteral("12|dos; 2|Dos"));

    Llenar("12", "UNO"); // its own old name doesn't count
    EsperaPregunta(p.modificar, Respuesta::Si);
    Clic("Guardar");
    EXPECT_EQ(Filas(p.filas), QStringLiteral("12|UNO; 2|Dos"));
}

TEST_P(ListasOpciones, TheLastRowCannotGo) {
    ConDosFilas();
    Lista(p.lista)->setFocus();
    EsperaPregunta(p.eliminar, Respuesta::No);
    Clic("Eliminar");
    EsperaPregunta(p.eliminar, Respuesta::Si);
    QTest::keyClick(Lista(p.lista), Qt::Key_Delete);
    EXPECT_EQ(Filas(p.filas), QStringLiteral("2|Dos"));
    EXPECT_TRUE(Lista(p.lista)->hasFocus());
    EsperaMensaje(p.ultima);
    QTest::keyClick(Lista(p.lista), Qt::Key_Delete);
    EsperaMensaje(p.ultima);
    Clic("Eliminar");
    EXPECT_EQ(Filas(p.filas), QStringLiteral("2|Dos"));
}

// --- what the panels don't share

using FrmConfigListas = OpcionesPrueba;

TEST_F(FrmConfigListas, APercentageBeyondTheArrowsIsKept) {
    Sql(kPaneles[0].otrasFilas);
    Abrir();
    EXPECT_EQ(Texto("txtIVAPorcentaje"), QStringLiteral("10,5")); // stored elsewhere, shown as it is
    auto *girador = Control<QAbstractSlider>(*ventana, "FSB1");
    EXPECT_EQ(girador->value(), -10);

    QLineEdit *campo = Campo("txtIVAPorcentaje");
    Teclear("txtIVAPorcentaje", "1x5,0");
    EXPECT_EQ(campo->text(), QStringLiteral("150"));
    EXPECT_EQ(girador->value(), -99);
    QTest::keyClick(campo, Qt::Key_Up);
    EXPECT_EQ(campo->text(), QStringLiteral("151"));
    QTest::keyClick(campo, Qt::Key_Return);
    EXPECT_TRUE(Boton("cmdIVAGuardar")->hasFocus());
    EsperaPregunta(kPaneles[0].modificar, Respuesta::Si);
    Pulsar("cmdIVAGuardar");
    EXPECT_EQ(Filas("SELECT porcentaje FROM Iva ORDER BY id"), QStringLiteral("151; 21"));
}

} // namespace
