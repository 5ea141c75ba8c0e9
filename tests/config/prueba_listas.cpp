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
    const char *modificar, *eliminar, *ultima;
    const char *segundoRepetido; // message; null: it may repeat

    friend std::ostream &operator<<(std::ostream &salida, const Panel &caso) { return salida << caso.nombre; }
};

const std::vector<const char *> kCamposIva{"txtIVACodigo", "txtIVATipo", "txtIVAPorcentaje"};
const std::vector<const char *> kCamposCategorias{"txtCatCodigo", "txtCatCategoria"};
const std::vector<const char *> kCamposVendedores{"txtVenCodigo",    "txtVenNombre",   "txtVenDocumento",
                                                  "txtVenDireccion", "txtVenTelefono", "txtVenEmail",
                                                  "txtVenOtros"};

const Panel kPaneles[] = {
    {"iva", 0, "IVA", "LVIVA", kCamposIva, "Debe llenar el campo \"Tipo de IVA\"",
     "INSERT INTO Iva (codigo, tipo, porcentaje) VALUES ('1', 'Uno', '10,5'), ('2', 'Dos', '21')",
     "SELECT codigo, tipo FROM Iva ORDER BY id",
     "Está seguro de querer modificar los datos del Tipo de IVA seleccionado?",
     "Está seguro de querer eliminar el Tipo de IVA seleccionado?",
     "No se puede borrar.\nDebe existir al menos un tipo de IVA.",
     "El tipo de iva ingresado ya existe en la base de datos."},
    {"categorias", 1, "Cat", "LVCategorias", kCamposCategorias, "Debe llenar el campo \"Categoría\"",
     "INSERT INTO Categorias (codigo, categoria) VALUES ('1', 'Uno'), ('2', 'Dos')",
     "SELECT codigo, categoria FROM Categorias ORDER BY id",
     "Está seguro de querer modificar los datos de la categoría seleccionada?",
     "Está seguro de querer eliminar la categoría seleccionada?",
     "No se puede borrar.\nDebe existir al menos una categoría.", nullptr},
    {"vendedores", 2, "Ven", "LVVendedores", kCamposVendedores, "Debe llenar el campo \"Nombre\"",
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
        return C<QPushButton>((QByteArray("cmd") + p.prefijo + accion).constData());
    }
    void Accion(const char *accion) { Pulsar(cmd(accion)); }
    QString Botones() {
        QStringList encendidos;
        for (const char *accion : {"Nuevo", "Guardar", "Eliminar", "Actualizar", "Cancelar"})
            if (cmd(accion)->isEnabled())
                encendidos << QString::fromLatin1(accion);
        return encendidos.join(u' ');
    }
    void AbrirPanel() {
        Abrir();
        ElegirNodo(p.nodo);
    }
    void ConDosFilas() {
        Sql(p.otrasFilas);
        AbrirPanel();
    }
    void Llenar(const char *codigo, const char *segundo) {
        Escribir(p.campos[0], codigo);
        Escribir(p.campos[1], segundo);
    }
};

INSTANTIATE_TEST_SUITE_P(Paneles, ListasOpciones, testing::ValuesIn(kPaneles),
                         [](const auto &panel) { return panel.param.nombre; });

TEST_P(ListasOpciones, TheFirstRowOfAllLocksTreeAndListUntilItIsSaved) {
    AbrirPanel();
    EXPECT_EQ(Botones(), u"Nuevo Actualizar");
    for (const char *campo : p.campos)
        EXPECT_FALSE(Habilitado(campo)) << campo;
    EXPECT_FALSE(Habilitado("FSB1"));      // IVA
    Tecla(Lista(p.lista), Qt::Key_Delete); // no question
    Accion("Nuevo");
    EXPECT_FALSE(Habilitado(p.lista) || Habilitado("TVOpciones"));
    for (const char *campo : p.campos)
        EXPECT_EQ(Texto(campo), QByteArray(campo) == "txtIVAPorcentaje" ? u"0"_qs : QString()) << campo;
    EsperaMensaje("Debe llenar el campo \"Código\"");
    Accion("Guardar");
    Escribir(p.campos[0], "3");
    EsperaMensaje(p.faltaSegundo);
    Accion("Guardar");
    EXPECT_TRUE(Campo(p.campos[1])->hasFocus());
    Escribir(p.campos[1], "Tres");
    Accion("Guardar");
    EXPECT_EQ(Tabla(p.filas), u"3|Tres");
    EXPECT_EQ(Botones(), u"Nuevo Guardar Eliminar Actualizar");
    EXPECT_TRUE(Habilitado("TVOpciones") && Lista(p.lista)->hasFocus());
    Accion("Nuevo");
    Accion("Cancelar");
    EXPECT_TRUE(Habilitado("TVOpciones"));
    EXPECT_EQ(Texto(p.campos[0]), u"3");
}

TEST_P(ListasOpciones, AChangeAsksBeforeItLooksForDuplicates) {
    ConDosFilas();
    Llenar("2", "Dos");
    EsperaPregunta(p.modificar, No);
    Accion("Guardar");
    EsperaPregunta(p.modificar, Si);
    EsperaMensaje("El código ingresado ya existe en la base de datos.");
    Accion("Guardar");
    EXPECT_TRUE(Campo(p.campos[0])->hasFocus());

    Llenar("12", "dos"); // 1 and 12 are different codes; case is ignored in names
    EsperaPregunta(p.modificar, Si);
    if (p.segundoRepetido != nullptr)
        EsperaMensaje(p.segundoRepetido);
    Accion("Guardar");
    EXPECT_EQ(Tabla(p.filas), p.segundoRepetido != nullptr ? u"1|Uno; 2|Dos"_qs : u"12|dos; 2|Dos"_qs);

    Llenar("12", "UNO"); // its own old name doesn't count
    EsperaPregunta(p.modificar, Si);
    Accion("Guardar");
    EXPECT_EQ(Tabla(p.filas), u"12|UNO; 2|Dos");
}

TEST_P(ListasOpciones, TheLastRowCannotGo) {
    ConDosFilas();
    Lista(p.lista)->setFocus();
    EsperaPregunta(p.eliminar, No);
    Accion("Eliminar");
    EsperaPregunta(p.eliminar, Si);
    Tecla(Lista(p.lista), Qt::Key_Delete);
    EXPECT_EQ(Tabla(p.filas), u"2|Dos");
    EXPECT_TRUE(Lista(p.lista)->hasFocus());
    EsperaMensaje(p.ultima);
    Tecla(Lista(p.lista), Qt::Key_Delete);
    EsperaMensaje(p.ultima);
    Accion("Eliminar");
    EXPECT_EQ(Tabla(p.filas), u"2|Dos");
}

// --- what the panels don't share

using FrmConfigListas = OpcionesPrueba;

TEST_F(FrmConfigListas, APercentageBeyondTheArrowsIsKept) {
    Sql(kPaneles[0].otrasFilas);
    Abrir();
    EXPECT_EQ(Texto("txtIVAPorcentaje"), u"10,5"); // stored elsewhere, shown as it is
    auto *girador = C<QAbstractSlider>("FSB1");
    EXPECT_EQ(girador->value(), -10);

    QLineEdit *campo = Campo("txtIVAPorcentaje");
    Teclear("txtIVAPorcentaje", "1x5,0");
    EXPECT_EQ(campo->text(), u"150");
    EXPECT_EQ(girador->value(), -99);
    Tecla(campo, Qt::Key_Up);
    EXPECT_EQ(campo->text(), u"151");
    Tecla(campo, Qt::Key_Return);
    EXPECT_TRUE(C<QPushButton>("cmdIVAGuardar")->hasFocus());
    EsperaPregunta(kPaneles[0].modificar, Si);
    Clic("cmdIVAGuardar");
    EXPECT_EQ(Tabla("SELECT porcentaje FROM Iva ORDER BY id"), u"151; 21");
}

} // namespace
} // namespace tarvo
