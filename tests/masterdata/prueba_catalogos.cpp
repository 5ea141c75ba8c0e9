// What the windows of customers, suppliers and articles have in common, driven by keys and clicks.
#include "desktop/ventanas/listavista.h"
#include "masterdata/ventanas/frmarticulos.h"
#include "masterdata/ventanas/frmclientes.h"
#include "masterdata/ventanas/frmproveedores.h"
#include "masterdata/vistaprueba.h"
#include "testkit/mundoprueba.h"

#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

namespace tarvo {
namespace {

struct Catalogo {
    const char *nombre;
    VentanaCatalogo *(*crear)(const Servicios &, Anfitrion &);
    const char *tabla;
    const char *lista;
    const char *que;      // in the questions
    const char *pregunta; // before printing
    bool vaciaApaga;      // an empty list turns search and print off
    bool otroTrasGuardar; // a saved new row begins another one
    int exportarAlBorrar; // how often a delete speaks of the export: off and on, or on alone
};

void PrintTo(const Catalogo &catalogo, std::ostream *salida) {
    *salida << catalogo.nombre;
}

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

class Catalogos : public testing::TestWithParam<Catalogo> {
  protected:
    ~Catalogos() override { ventana_.reset(); }

    void Filas(std::initializer_list<std::pair<const char *, const char *>> filas) {
        for (const auto &[codigo, nombre] : filas)
            mundo_.datos.Ejecutar((std::string("INSERT INTO ") + GetParam().tabla +
                                   "(codigo, nombre) VALUES ('" + codigo + "','" + nombre + "')")
                                      .c_str());
    }
    void TresFilas() { Filas({{"2", "Banana S.A."}, {"10", "Ana"}, {"1", "Zulema"}}); }

    void Abrir() {
        ventana_.reset(GetParam().crear(mundo_.servicios(), anfitrion_));
        ventana_->resize(1000, 700);
        MostrarVentana(*ventana_);
    }
    template <typename T = QLineEdit> T *C(const char *nombre) { return Control<T>(*ventana_, nombre); }
    ListaVista *LV() { return C<ListaVista>(GetParam().lista); }
    void Click(const char *boton) { Pulsar(C<QPushButton>(boton)); }

    // Enabled buttons as letters, in the order of the row: N G E A C B I.
    QString Botones() {
        QString letras;
        for (const char *boton : {"cmdNuevo", "cmdGuardar", "cmdEliminar", "cmdActualizar", "cmdCancelar",
                                  "cmdBuscar", "cmdImprimir"})
            letras += C<QPushButton>(boton)->isEnabled() ? QLatin1Char(boton[3]) : QLatin1Char('-');
        return letras;
    }
    QStringList Codigos() {
        QStringList codigos;
        for (int fila = 0; fila < ventana_->Lista().Filas(); ++fila)
            codigos << ventana_->Lista().Celda(fila, 0);
        return codigos;
    }
    std::vector<std::vector<QString>> Tabla() {
        return mundo_.datos.Filas(
            (std::string("SELECT codigo, nombre FROM ") + GetParam().tabla + " ORDER BY id").c_str());
    }
    QString Texto(const char *plantilla) {
        return QString::fromUtf8(plantilla).arg(QString::fromUtf8(GetParam().que));
    }
    void Confirmar(const char *verbo, Respuesta respuesta) {
        mundo_.preguntas.Espera(QStringLiteral("Está seguro de querer %1 los datos del %2 seleccionado?")
                                    .arg(QString::fromUtf8(verbo), QString::fromUtf8(GetParam().que)),
                                Respuesta::No, respuesta);
    }

    MundoPrueba mundo_;
    AnfitrionPrueba anfitrion_;
    std::unique_ptr<VentanaCatalogo> ventana_;
};

INSTANTIATE_TEST_SUITE_P(Todos, Catalogos, testing::ValuesIn(kCatalogos),
                         [](const auto &caso) { return caso.param.nombre; });

TEST_P(Catalogos, AnEmptyTableGreysTheFieldsAndOffersOnlyNewAndRefresh) {
    Abrir();
    EXPECT_EQ(Botones(), GetParam().vaciaApaga ? u"N--A---"_qs : u"N--A-BI"_qs);
    EXPECT_FALSE(C("txtNombre")->isEnabled());
    EXPECT_TRUE(C("txtNombre")->property("sinDatos").toBool());
    EXPECT_TRUE(anfitrion_.dicho.isEmpty());
    EXPECT_FALSE(ventana_->EntradaEnCurso());
    Click("cmdNuevo");
    EXPECT_EQ(Botones(), GetParam().vaciaApaga ? u"-G--C--"_qs : u"-G--CBI"_qs);
    EXPECT_FALSE(C("txtNombre")->property("sinDatos").toBool());
    Click("cmdCancelar");
    EXPECT_FALSE(C("txtNombre")->isEnabled());
    EXPECT_TRUE(Tabla().empty());
    Click("cmdNuevo");
    Teclear(C("txtCodigo"), u"7"_qs);
    Teclear(C("txtNombre"), u"Uno"_qs);
    Click("cmdGuardar");
    EXPECT_EQ(Codigos(), QStringList(u"7"_qs));
    EXPECT_EQ(anfitrion_.dicho, QList{true});
    EXPECT_EQ(ventana_->EntradaEnCurso(), GetParam().otroTrasGuardar);
}

TEST_P(Catalogos, ShowsTheFirstRowInTextOrderAndFollowsClicksAndArrows) {
    TresFilas();
    Abrir();
    EXPECT_EQ(Botones(), u"NGEA-BI"_qs);
    EXPECT_EQ(Codigos(), QStringList({u"1"_qs, u"10"_qs, u"2"_qs}));
    EXPECT_EQ(C("txtNombre")->text(), u"Zulema"_qs);
    EXPECT_EQ(anfitrion_.dicho, QList{true});
    LV()->setFocus();
    Tecla(LV(), Qt::Key_Down);
    EXPECT_EQ(C("txtNombre")->text(), u"Ana"_qs);
    QTest::mouseClick(LV()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      LV()->visualRect(LV()->model()->index(2, 0)).center());
    EXPECT_EQ(C("txtNombre")->text(), u"Banana S.A."_qs);
    LV()->Lista()->ClicEncabezado(1);
    Click("cmdActualizar"); // the sort outlives a fill
    EXPECT_EQ(Codigos(), QStringList({u"10"_qs, u"2"_qs, u"1"_qs}));
    EXPECT_EQ(C("txtCodigo")->text(), u"10"_qs);
    ventana_->close();
    EXPECT_FALSE(anfitrion_.dicho.last());
}

TEST_P(Catalogos, TakesANewRowByKeysAlone) {
    TresFilas();
    Abrir();
    Tecla(C<QPushButton>("cmdNuevo"), Qt::Key_Return);
    EXPECT_EQ(Botones(), u"-G--CBI"_qs);
    EXPECT_FALSE(LV()->isEnabled());
    EXPECT_EQ(ConFoco(), u"txtCodigo"_qs);
    EXPECT_TRUE(ventana_->EntradaEnCurso());
    mundo_.preguntas.EsperaMensaje(u"Debe llenar el campo \"Código\""_qs, Icono::Informacion);
    Click("cmdGuardar");
    EXPECT_EQ(ConFoco(), u"txtCodigo"_qs);
    Teclear(C("txtCodigo"), u"0"_qs);
    mundo_.preguntas.EsperaMensaje(u"Debe llenar el campo \"Nombre\""_qs, Icono::Informacion);
    Click("cmdGuardar");
    EXPECT_EQ(ConFoco(), u"txtNombre"_qs);
    Teclear(C("txtNombre"), u"O'Hara, \"ñ\""_qs);
    for (int i = 0; i < 20 && ConFoco() != u"cmdGuardar"_qs; ++i)
        Tecla(QApplication::focusWidget(), Qt::Key_Return);
    ASSERT_EQ(ConFoco(), u"cmdGuardar"_qs); // Enter leads through all fields
    Tecla(QApplication::focusWidget(), Qt::Key_Return);

    ASSERT_EQ(Tabla().size(), 4U);
    EXPECT_EQ(Tabla()[3], (std::vector<QString>{u"0"_qs, u"O'Hara, \"ñ\""_qs}));
    EXPECT_EQ(Codigos(), QStringList({u"0"_qs, u"1"_qs, u"10"_qs, u"2"_qs}));
    EXPECT_EQ(LV()->FilaActual(), 3); // the last row, not the new one
    EXPECT_EQ(Botones(), GetParam().otroTrasGuardar ? u"-G--CBI"_qs : u"NGEA-BI"_qs);
    EXPECT_EQ(LV()->isEnabled(), !GetParam().otroTrasGuardar);
}

TEST_P(Catalogos, AChangeIsAskedForAndShownInTheListAtItsOldPlace) {
    TresFilas();
    Abrir();
    Teclear(C("txtCodigo"), u"99"_qs);
    Confirmar("modificar", Respuesta::No);
    Click("cmdGuardar");
    EXPECT_EQ(Codigos().first(), u"1"_qs);
    Confirmar("modificar", Respuesta::Si);
    Click("cmdGuardar");
    EXPECT_EQ(Codigos(), QStringList({u"99"_qs, u"10"_qs, u"2"_qs}));
    EXPECT_EQ(Tabla()[2], (std::vector<QString>{u"99"_qs, u"Zulema"_qs}));
    EXPECT_EQ(ConFoco(), GetParam().otroTrasGuardar ? u"cmdGuardar"_qs : LV()->objectName());
}

TEST_P(Catalogos, DeletesWithTheDeleteKeyUntilNothingIsLeft) {
    Filas({{"1", "Uno"}, {"2", "Dos"}});
    Abrir();
    LV()->setFocus();
    Confirmar("eliminar", Respuesta::No);
    Tecla(LV(), Qt::Key_Delete);
    EXPECT_EQ(Tabla().size(), 2U);
    anfitrion_.dicho.clear();
    Confirmar("eliminar", Respuesta::Si);
    Tecla(LV(), Qt::Key_Delete);
    EXPECT_EQ(Codigos(), QStringList(u"2"_qs));
    EXPECT_EQ(anfitrion_.dicho.size(), GetParam().exportarAlBorrar);
    EXPECT_TRUE(anfitrion_.dicho.last());
    EXPECT_TRUE(LV()->hasFocus());
    Confirmar("eliminar", Respuesta::Si);
    Click("cmdEliminar");
    EXPECT_TRUE(Tabla().empty());
    EXPECT_EQ(Botones().left(5), u"N--A-"_qs);
    Tecla(LV(), Qt::Key_Delete); // an empty list asks nothing
}

TEST_P(Catalogos, SearchSelectsARowAndLeavesTheFields) {
    TresFilas(); // in order: 1 Zulema, 10 Ana, 2 Banana S.A.
    Abrir();
    Click("cmdBuscar");
    EXPECT_EQ(ConFoco(), u"txtArtBuscar"_qs);
    EXPECT_FALSE(C<QPushButton>("cmdNuevo")->isEnabled());
    Tecla(C("txtArtBuscar"), Qt::Key_Return); // an empty text searches nothing
    EXPECT_EQ(LV()->FilaActual(), 0);
    Pulsar(C<QAbstractButton>("chkBuscarPor(0)"));
    EXPECT_EQ(ConFoco(), u"txtArtBuscar"_qs);
    mundo_.preguntas.EsperaMensaje(u"Debe seleccionar al menos un criterio de búsqueda."_qs,
                                   Icono::Informacion);
    Tecla(C("txtArtBuscar"), Qt::Key_Return);
    Pulsar(C<QAbstractButton>("chkBuscarPor(1)"));
    Teclear(C("txtArtBuscar"), u"ANA"_qs);
    Tecla(C("txtArtBuscar"), Qt::Key_Return);
    EXPECT_EQ(LV()->FilaActual(), 1);
    EXPECT_EQ(C("txtArtBuscar")->selectedText(), u"ANA"_qs);
    EXPECT_EQ(C("txtNombre")->text(), u"Zulema"_qs);
    Tecla(C("txtArtBuscar"), Qt::Key_Escape);
    EXPECT_TRUE(C<QPushButton>("cmdNuevo")->isEnabled());
    // Save and delete act on the row in the fields, not on the one that was found.
    Confirmar("eliminar", Respuesta::Si);
    Click("cmdEliminar");
    EXPECT_EQ(Codigos(), QStringList({u"10"_qs, u"2"_qs}));
    Click("cmdBuscar");
    Teclear(C("txtArtBuscar"), u"banana"_qs);
    Click("cmdBuscarArt");
    EXPECT_EQ(LV()->FilaActual(), 1);
    Click("cmdCancelarArt");
    Teclear(C("txtCodigo"), u"0"_qs);
    Confirmar("modificar", Respuesta::Si);
    Click("cmdGuardar");
    EXPECT_EQ(Tabla()[1], (std::vector<QString>{u"0"_qs, u"Ana"_qs}));
    EXPECT_EQ(Codigos(), QStringList({u"0"_qs, u"2"_qs}));
}

TEST_P(Catalogos, EscapeGivesUpANewRowAndClosingAsks) {
    TresFilas();
    Abrir();
    EXPECT_TRUE(ventana_->PermiteCerrarPrograma());
    Click("cmdNuevo");
    for (const Respuesta respuesta : {Respuesta::No, Respuesta::Si}) {
        mundo_.preguntas.Espera(Texto("Desea cerrar el programa sin completar el ingreso del %1?"),
                                Respuesta::No, respuesta);
        EXPECT_EQ(ventana_->PermiteCerrarPrograma(), respuesta == Respuesta::Si);
    }
    Teclear(C("txtCodigo"), u"half"_qs);
    FrmBases &bases = mundo_.frmBases();
    for (Cursor *cursor : {&bases.datArticulos, &bases.datClientes, &bases.datProveedores})
        cursor->Refresh(); // must not store what is half typed
    Tecla(C("txtCodigo"), Qt::Key_Escape);
    EXPECT_EQ(Botones(), u"NGEA-BI"_qs);
    EXPECT_TRUE(LV()->hasFocus());
    EXPECT_EQ(C("txtNombre")->text(), u"Zulema"_qs);
    EXPECT_EQ(Tabla().size(), 3U);
}

TEST_P(Catalogos, AWriteThatTheDiskRefusesIsToldAndLeavesEverythingAsTyped) {
    TresFilas();
    for (const char *orden : {"INSERT", "UPDATE", "DELETE"}) {
        const std::string tabla = GetParam().tabla;
        const std::string esquema = tabla.substr(0, tabla.find('.'));
        mundo_.datos.Ejecutar(("CREATE TRIGGER " + esquema + ".no" + orden + " BEFORE " + orden + " ON " +
                               tabla.substr(tabla.find('.') + 1) + " BEGIN SELECT RAISE(ABORT,'prueba'); END")
                                  .c_str());
    }
    Abrir();
    const QString aviso = u"No se pudo escribir en la base de datos: prueba."_qs;
    Teclear(C("txtCodigo"), u"5"_qs);
    Confirmar("modificar", Respuesta::Si);
    mundo_.preguntas.EsperaMensaje(aviso, Icono::Critico);
    Click("cmdGuardar");
    EXPECT_EQ(C("txtCodigo")->text(), u"5"_qs);
    Confirmar("eliminar", Respuesta::Si);
    mundo_.preguntas.EsperaMensaje(aviso, Icono::Critico);
    Click("cmdEliminar");
    Click("cmdNuevo");
    Teclear(C("txtCodigo"), u"6"_qs);
    Teclear(C("txtNombre"), u"Seis"_qs);
    mundo_.preguntas.EsperaMensaje(aviso, Icono::Critico);
    Click("cmdGuardar");
    EXPECT_EQ(C("txtNombre")->text(), u"Seis"_qs);
    EXPECT_TRUE(ventana_->EntradaEnCurso());
    EXPECT_EQ(Codigos(), QStringList({u"1"_qs, u"10"_qs, u"2"_qs}));
    EXPECT_EQ(Tabla().size(), 3U);
}

TEST_P(Catalogos, PrintsTheRowsOnScreenAfterAQuestion) {
    TresFilas();
    Abrir();
    mundo_.preguntas.Espera(QString::fromUtf8(GetParam().pregunta), Respuesta::Si, Respuesta::Si);
    Click("cmdImprimir");
    ASSERT_EQ(mundo_.impresoras.documentos.size(), 1U);
    const QString papel = mundo_.impresoras.documentos[0]->Lineas().join(u'\n');
    EXPECT_LT(papel.indexOf(u"Zulema"_qs), papel.indexOf(u"Banana"_qs));
}

} // namespace
} // namespace tarvo
