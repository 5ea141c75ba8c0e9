// What the windows of customers, suppliers and articles have in common, driven by keys and clicks.
#include "masterdata/ventanas/frmarticulos.h"
#include "masterdata/ventanas/frmclientes.h"
#include "masterdata/ventanas/frmproveedores.h"
#include "testkit/conventana.h"

namespace tarvo {
namespace {

struct Catalogo {
    const char *nombre;
    VentanaCatalogo *(*crear)(const Servicios &, Anfitrion &);
    const char *tabla, *lista;
    const char *que;      // in the questions
    const char *pregunta; // before printing
    bool vaciaApaga;      // an empty list turns search and print off
    bool otroTrasGuardar; // a saved new row begins another one
    int exportarAlBorrar; // how often a delete speaks of the export: off and on, or on alone

    friend std::ostream &operator<<(std::ostream &salida, const Catalogo &caso) {
        return salida << caso.nombre;
    }
};

template <typename Ventana> VentanaCatalogo *Crear(const Servicios &servicios, Anfitrion &anfitrion) {
    return new Ventana(servicios, anfitrion);
}

const Catalogo kCatalogos[] = {
    {"Articulos", Crear<FrmArticulos>, "articulos.Articulos", "LVArticulos", "artículo",
     "Desea imprimir el listado de artículos?", true, true, 1},
    {"Clientes", Crear<FrmClientes>, "clientes.Clientes", "LVClientes", "cliente",
     "Desea imprimir el listado de clientes?", false, false, 2},
    {"Proveedores", Crear<FrmProveedores>, "proveedores.Proveedores", "LVProveedores", "proveedor",
     "Desea imprimir el listado de proveedores?", false, false, 1},
};

class Catalogos : public ConVentana<VentanaCatalogo>, public testing::WithParamInterface<Catalogo> {
  protected:
    void Insertar(std::initializer_list<std::pair<const char *, const char *>> filas) {
        for (const auto &[codigo, nombre] : filas)
            mundo.datos.Ejecutar(std::string("INSERT INTO ") + GetParam().tabla +
                                 "(codigo, nombre) VALUES ('" + codigo + "','" + nombre + "')");
    }
    void Abrir() {
        ventana.reset(GetParam().crear(mundo.servicios(), anfitrion));
        ventana->resize(1000, 700);
        MostrarVentana(*ventana);
    }
    void AbrirConTresFilas() {
        Insertar({{"2", "Banana S.A."}, {"10", "Ana"}, {"1", "Zulema"}});
        Abrir();
    }
    ListaVista *LV() { return Lista(GetParam().lista); }

    // Enabled buttons as letters, in the order of the row: N G E A C B I.
    QString Botones() {
        QString letras;
        for (const char *boton : {"cmdNuevo", "cmdGuardar", "cmdEliminar", "cmdActualizar", "cmdCancelar",
                                  "cmdBuscar", "cmdImprimir"})
            letras += QLatin1Char(Habilitado(boton) ? boton[3] : '-');
        return letras;
    }
    QString Codigos() { return ColumnaDe(ventana->Lista(), 0); }
    QString Tabla() {
        return mundo.datos.Tabla(std::string("SELECT codigo, nombre FROM ") + GetParam().tabla +
                                 " ORDER BY id");
    }
    void Confirmar(const char *verbo, Respuesta respuesta) {
        mundo.preguntas.Espera(u"Está seguro de querer %1 los datos del %2 seleccionado?"_qs.arg(
                                   QString::fromUtf8(verbo), QString::fromUtf8(GetParam().que)),
                               No, respuesta);
    }
};

INSTANTIATE_TEST_SUITE_P(Todos, Catalogos, testing::ValuesIn(kCatalogos),
                         [](const auto &caso) { return caso.param.nombre; });

TEST_P(Catalogos, AnEmptyTableGreysTheFieldsAndOffersOnlyNewAndRefresh) {
    Abrir();
    EXPECT_EQ(Botones(), GetParam().vaciaApaga ? u"N--A---"_qs : u"N--A-BI"_qs);
    EXPECT_FALSE(Habilitado("txtNombre"));
    EXPECT_TRUE(Campo("txtNombre")->property("sinDatos").toBool());
    EXPECT_TRUE(anfitrion.dicho.isEmpty());
    Clic("cmdNuevo");
    EXPECT_EQ(Botones(), GetParam().vaciaApaga ? u"-G--C--"_qs : u"-G--CBI"_qs);
    EXPECT_FALSE(Campo("txtNombre")->property("sinDatos").toBool());
    Clic("cmdCancelar");
    EXPECT_FALSE(Habilitado("txtNombre"));
    EXPECT_EQ(Tabla(), QString());
    Clic("cmdNuevo");
    Teclear(Campo("txtCodigo"), u"7"_qs);
    Teclear(Campo("txtNombre"), u"Uno"_qs);
    Clic("cmdGuardar");
    EXPECT_EQ(Codigos(), u"7");
    EXPECT_EQ(anfitrion.dicho, QList{true});
}

TEST_P(Catalogos, ShowsTheFirstRowInTextOrderAndFollowsClicksAndArrows) {
    AbrirConTresFilas();
    EXPECT_EQ(Botones(), u"NGEA-BI");
    EXPECT_EQ(Codigos(), u"1|10|2");
    EXPECT_EQ(Texto("txtNombre"), u"Zulema");
    EXPECT_EQ(anfitrion.dicho, QList{true});
    LV()->setFocus();
    Pulsa(Qt::Key_Down);
    EXPECT_EQ(Texto("txtNombre"), u"Ana");
    ClicFila(LV(), 2, 20);
    EXPECT_EQ(Texto("txtNombre"), u"Banana S.A.");
    LV()->Lista()->ClicEncabezado(1);
    Clic("cmdActualizar"); // the sort outlives a fill
    EXPECT_EQ(Codigos(), u"10|2|1");
    EXPECT_EQ(Texto("txtCodigo"), u"10");
    ventana->close();
    EXPECT_FALSE(anfitrion.dicho.last());
}

TEST_P(Catalogos, TakesANewRowByKeysAlone) {
    AbrirConTresFilas();
    Tecla(C("cmdNuevo"), Qt::Key_Return);
    EXPECT_EQ(Botones(), u"-G--CBI");
    EXPECT_FALSE(LV()->isEnabled());
    EXPECT_EQ(ConFoco(), u"txtCodigo");
    EXPECT_TRUE(ventana->EntradaEnCurso());
    mundo.preguntas.EsperaMensaje(u"Debe llenar el campo \"Código\""_qs);
    EXPECT_EQ(Clic("cmdGuardar"), u"txtCodigo");
    Teclas(u"0"_qs);
    mundo.preguntas.EsperaMensaje(u"Debe llenar el campo \"Nombre\""_qs);
    EXPECT_EQ(Clic("cmdGuardar"), u"txtNombre");
    Teclear(Campo("txtNombre"), u"O'Hara, \"ñ\""_qs);
    for (int i = 0; i < 20 && ConFoco() != u"cmdGuardar"; ++i)
        Entrar();
    ASSERT_EQ(ConFoco(), u"cmdGuardar"); // Enter leads through all fields
    Entrar();
    EXPECT_EQ(Tabla(), u"2|Banana S.A.; 10|Ana; 1|Zulema; 0|O'Hara, \"ñ\"");
    EXPECT_EQ(Codigos(), u"0|1|10|2");
    EXPECT_EQ(LV()->FilaActual(), 3); // the last row, not the new one
    EXPECT_EQ(Botones(), GetParam().otroTrasGuardar ? u"-G--CBI"_qs : u"NGEA-BI"_qs);
    EXPECT_EQ(LV()->isEnabled(), !GetParam().otroTrasGuardar);
}

TEST_P(Catalogos, AChangeIsAskedForAndShownInTheListAtItsOldPlace) {
    AbrirConTresFilas();
    Teclear(Campo("txtCodigo"), u"99"_qs);
    Confirmar("modificar", No);
    Clic("cmdGuardar");
    EXPECT_EQ(Codigos(), u"1|10|2");
    Confirmar("modificar", Si);
    Clic("cmdGuardar");
    EXPECT_EQ(Codigos(), u"99|10|2");
    EXPECT_EQ(Tabla(), u"2|Banana S.A.; 10|Ana; 99|Zulema");
    EXPECT_EQ(ConFoco(), GetParam().otroTrasGuardar ? u"cmdGuardar"_qs : LV()->objectName());
}

TEST_P(Catalogos, DeletesWithTheDeleteKeyUntilNothingIsLeft) {
    Insertar({{"1", "Uno"}, {"2", "Dos"}});
    Abrir();
    LV()->setFocus();
    Confirmar("eliminar", No);
    Tecla(LV(), Qt::Key_Delete);
    EXPECT_EQ(Tabla(), u"1|Uno; 2|Dos");
    anfitrion.dicho.clear();
    Confirmar("eliminar", Si);
    Tecla(LV(), Qt::Key_Delete);
    EXPECT_EQ(Codigos(), u"2");
    EXPECT_EQ(anfitrion.dicho.size(), GetParam().exportarAlBorrar);
    EXPECT_TRUE(anfitrion.dicho.last());
    EXPECT_TRUE(LV()->hasFocus());
    Confirmar("eliminar", Si);
    Clic("cmdEliminar");
    EXPECT_EQ(Tabla(), QString());
    EXPECT_EQ(Botones().left(5), u"N--A-");
    Tecla(LV(), Qt::Key_Delete); // an empty list asks nothing
}

// Save and delete act on the row in the fields, not on the one that was found.
TEST_P(Catalogos, SearchSelectsARowAndLeavesTheFields) {
    AbrirConTresFilas(); // in order: 1 Zulema, 10 Ana, 2 Banana S.A.
    EXPECT_EQ(Clic("cmdBuscar"), u"txtArtBuscar");
    EXPECT_FALSE(Habilitado("cmdNuevo"));
    Entrar(); // an empty text searches nothing
    EXPECT_EQ(LV()->FilaActual(), 0);
    EXPECT_EQ(Clic("chkBuscarPor(0)"), u"txtArtBuscar");
    mundo.preguntas.EsperaMensaje(u"Debe seleccionar al menos un criterio de búsqueda."_qs);
    Entrar();
    Clic("chkBuscarPor(1)");
    Teclas(u"ANA"_qs);
    Entrar();
    EXPECT_EQ(LV()->FilaActual(), 1);
    EXPECT_EQ(Campo("txtArtBuscar")->selectedText(), u"ANA");
    EXPECT_EQ(Texto("txtNombre"), u"Zulema");
    Pulsa(Qt::Key_Escape);
    EXPECT_TRUE(Habilitado("cmdNuevo"));
    Confirmar("eliminar", Si);
    Clic("cmdEliminar");
    EXPECT_EQ(Codigos(), u"10|2");
    Clic("cmdBuscar");
    Teclas(u"banana"_qs);
    Clic("cmdBuscarArt");
    EXPECT_EQ(LV()->FilaActual(), 1);
    Clic("cmdCancelarArt");
    Teclear(Campo("txtCodigo"), u"0"_qs);
    Confirmar("modificar", Si);
    Clic("cmdGuardar");
    EXPECT_EQ(Tabla(), u"2|Banana S.A.; 0|Ana");
    EXPECT_EQ(Codigos(), u"0|2");
}

TEST_P(Catalogos, EscapeGivesUpANewRowAndClosingAsks) {
    AbrirConTresFilas();
    EXPECT_TRUE(ventana->PermiteCerrarPrograma());
    Clic("cmdNuevo");
    for (const Respuesta respuesta : {No, Si}) {
        mundo.preguntas.Espera(u"Desea cerrar el programa sin completar el ingreso del %1?"_qs.arg(
                                   QString::fromUtf8(GetParam().que)),
                               No, respuesta);
        EXPECT_EQ(ventana->PermiteCerrarPrograma(), respuesta == Si);
    }
    Teclear(Campo("txtCodigo"), u"half"_qs);
    FrmBases &bases = mundo.frmBases();
    for (Cursor *cursor : {&bases.datArticulos, &bases.datClientes, &bases.datProveedores})
        cursor->Refresh(); // must not store what is half typed
    Pulsa(Qt::Key_Escape);
    EXPECT_EQ(Botones(), u"NGEA-BI");
    EXPECT_TRUE(LV()->hasFocus());
    EXPECT_EQ(Texto("txtNombre"), u"Zulema");
    EXPECT_EQ(Tabla(), u"2|Banana S.A.; 10|Ana; 1|Zulema");
}

TEST_P(Catalogos, AWriteThatTheDiskRefusesIsToldAndLeavesEverythingAsTyped) {
    const std::string tabla = GetParam().tabla;
    const std::size_t punto = tabla.find('.');
    Insertar({{"1", "Zulema"}, {"2", "Ana"}});
    for (const std::string orden : {"INSERT", "UPDATE", "DELETE"})
        mundo.datos.Ejecutar("CREATE TRIGGER " + tabla.substr(0, punto) + ".no" + orden + " BEFORE " + orden +
                             " ON " + tabla.substr(punto + 1) + " BEGIN SELECT RAISE(ABORT,'prueba'); END");
    Abrir();
    const auto rechaza = [this](const char *boton) {
        mundo.preguntas.EsperaFalla(u"No se pudo escribir en la base de datos: prueba."_qs);
        Clic(boton);
    };
    Teclear(Campo("txtCodigo"), u"5"_qs);
    Confirmar("modificar", Si);
    rechaza("cmdGuardar");
    EXPECT_EQ(Texto("txtCodigo"), u"5");
    Confirmar("eliminar", Si);
    rechaza("cmdEliminar");
    Clic("cmdNuevo");
    Teclear(Campo("txtCodigo"), u"6"_qs);
    Teclear(Campo("txtNombre"), u"Seis"_qs);
    rechaza("cmdGuardar");
    EXPECT_EQ(Texto("txtNombre"), u"Seis");
    EXPECT_TRUE(ventana->EntradaEnCurso());
    EXPECT_EQ(Codigos(), u"1|2");
    EXPECT_EQ(Tabla(), u"1|Zulema; 2|Ana");
}

TEST_P(Catalogos, PrintsTheRowsOnScreenAfterAQuestion) {
    AbrirConTresFilas();
    mundo.preguntas.Espera(QString::fromUtf8(GetParam().pregunta), Si, Si);
    Clic("cmdImprimir");
    const QString papel = mundo.impresoras.Papel();
    EXPECT_LT(papel.indexOf(u"Zulema"), papel.indexOf(u"Banana"));
}

} // namespace
} // namespace tarvo
