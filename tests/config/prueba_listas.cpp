// The three list panels: their words and tables, and what they do besides the list-and-detail pattern, which
// the windows of the master data test.
#include "opcionesprueba.h"

namespace tarvo {
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
    EXPECT_EQ(Botones(), u"Nuevo Actualizar"_qs);
    for (const char *campo : p.campos)
        EXPECT_FALSE(Campo(campo)->isEnabled()) << campo;
    EXPECT_FALSE(Control<QWidget>(*ventana, "FSB1")->isEnabled()); // IVA
    QTest::keyClick(Lista(p.lista), Qt::Key_Delete);               // no question
    Clic("Nuevo");
    Llenar("7", "Primera");
    Clic("Guardar");
    EXPECT_EQ(Filas(p.filas), u"7|Primera"_qs);
    EXPECT_EQ(Botones(), u"Nuevo Guardar Eliminar Actualizar"_qs);
}

TEST_P(ListasOpciones, ANewRowLocksTreeAndListUntilItIsSaved) {
    ConDosFilas();
    Clic("Nuevo");
    EXPECT_FALSE(Lista(p.lista)->isEnabled());
    EXPECT_FALSE(Control<QTreeView>(*ventana, "TVOpciones")->isEnabled());
    for (const char *campo : p.campos)
        EXPECT_EQ(Texto(campo), QByteArray(campo) == "txtIVAPorcentaje" ? u"0"_qs : QString()) << campo;
    EsperaMensaje("Debe llenar el campo \"Código\"");
    Clic("Guardar");
    Escribir(p.campos[0], "3");
    EsperaMensaje(p.faltaSegundo);
    Clic("Guardar");
    EXPECT_TRUE(Campo(p.campos[1])->hasFocus());
    Escribir(p.campos[1], "Tres");
    Clic("Guardar");
    EXPECT_EQ(Filas(p.filas), u"1|Uno; 2|Dos; 3|Tres"_qs);
    EXPECT_TRUE(Control<QTreeView>(*ventana, "TVOpciones")->isEnabled());
    EXPECT_TRUE(Lista(p.lista)->hasFocus());
    Clic("Nuevo");
    Clic("Cancelar");
    EXPECT_TRUE(Control<QTreeView>(*ventana, "TVOpciones")->isEnabled());
    EXPECT_EQ(Texto(p.campos[0]), u"1"_qs);
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
    EXPECT_EQ(Filas(p.filas), p.segundoRepetido != nullptr ? u"1|Uno; 2|Dos"_qs : u"12|dos; 2|Dos"_qs);

    Llenar("12", "UNO"); // its own old name doesn't count
    EsperaPregunta(p.modificar, Respuesta::Si);
    Clic("Guardar");
    EXPECT_EQ(Filas(p.filas), u"12|UNO; 2|Dos"_qs);
}

TEST_P(ListasOpciones, TheLastRowCannotGo) {
    ConDosFilas();
    Lista(p.lista)->setFocus();
    EsperaPregunta(p.eliminar, Respuesta::No);
    Clic("Eliminar");
    EsperaPregunta(p.eliminar, Respuesta::Si);
    QTest::keyClick(Lista(p.lista), Qt::Key_Delete);
    EXPECT_EQ(Filas(p.filas), u"2|Dos"_qs);
    EXPECT_TRUE(Lista(p.lista)->hasFocus());
    EsperaMensaje(p.ultima);
    QTest::keyClick(Lista(p.lista), Qt::Key_Delete);
    EsperaMensaje(p.ultima);
    Clic("Eliminar");
    EXPECT_EQ(Filas(p.filas), u"2|Dos"_qs);
}

// --- what the panels don't share

using FrmConfigListas = OpcionesPrueba;

TEST_F(FrmConfigListas, APercentageBeyondTheArrowsIsKept) {
    Sql(kPaneles[0].otrasFilas);
    Abrir();
    EXPECT_EQ(Texto("txtIVAPorcentaje"), u"10,5"_qs); // stored elsewhere, shown as it is
    auto *girador = Control<QAbstractSlider>(*ventana, "FSB1");
    EXPECT_EQ(girador->value(), -10);

    QLineEdit *campo = Campo("txtIVAPorcentaje");
    Teclear("txtIVAPorcentaje", "1x5,0");
    EXPECT_EQ(campo->text(), u"150"_qs);
    EXPECT_EQ(girador->value(), -99);
    QTest::keyClick(campo, Qt::Key_Up);
    EXPECT_EQ(campo->text(), u"151"_qs);
    QTest::keyClick(campo, Qt::Key_Return);
    EXPECT_TRUE(Boton("cmdIVAGuardar")->hasFocus());
    EsperaPregunta(kPaneles[0].modificar, Respuesta::Si);
    Pulsar("cmdIVAGuardar");
    EXPECT_EQ(Filas("SELECT porcentaje FROM Iva ORDER BY id"), u"151; 21"_qs);
}

} // namespace
} // namespace tarvo
