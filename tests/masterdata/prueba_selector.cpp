// The customer panel as each task has it, and its quick entry, by keys and clicks.
#include "desktop/buscador.h"
#include "desktop/ventanas/filtrocampos.h"
#include "masterdata/ventanas/picclientes.h"
#include "testkit/conventana.h"

#include <QClipboard>

namespace tarvo {
namespace {

class Selector : public ConVentana<QWidget> {
  protected:
    Selector() {
        mundo.datos.Ejecutar("INSERT INTO clientes.Clientes(codigo,nombre,tel1,ifiscal) VALUES"
                             "('C1','Ñandú S.A.','4444','30-71234567-1'),('C2','Juan','5555','');");
    }
    ~Selector() override { ventana.reset(); } // before the search that it works with
    void Abrir(const ReglasSelector &reglas) {
        ventana = std::make_unique<QWidget>();
        auto *filtro = new FiltroCampos(ventana.get());
        panel = new PicClientes(mundo.servicios(), reglas, buscador, *filtro, ventana.get());
        filtro->AlEscapar([this] { return panel->Escapar(); });
        ventana->resize(800, 455);
        panel->Colocar(ventana->rect());
        panel->CargarClientes();
        MostrarVentana(*ventana);
        panel->Abrir();
    }
    ListaVista *LV() { return Lista("LVClientes"); }

    Buscador buscador;
    PicClientes *panel = nullptr;
};

// Key in the menu, null when it has none, caption and a text to search.
using Modo = std::array<const char *, 3>;

TEST_F(Selector, AListThatCannotBeReadSaysSo) {
    FrmBases &bases = mundo.frmBases();
    ListaTexto lista(ColumnasClientes());
    mundo.datos.Filas("ALTER TABLE clientes.Clientes RENAME TO Otra");
    for (const bool abierta : {true, false}) {
        if (!abierta)
            bases.Cerrar();
        bases.datClientes.Invalidar();
        CargarClientes(bases, lista);
        EXPECT_TRUE(lista.Ilegible()) << abierta;
    }
}

TEST_F(Selector, SearchModesOfTheSaleAndOfTheAccounts) {
    const QString final = u"La búsqueda ha finalizado."_qs;
    const std::vector<Modo> ventas{{"codigo", "Buscar por código", "c1"},
                                   {"nombre", "Buscar por nombre", "ÑANDÚ"},
                                   {"telefono", "Buscar por teléfono", "444"},
                                   {"ruc", "Buscar por i.fiscal", "-71"}};
    std::vector<Modo> cuentas = ventas;
    cuentas.back()[1] = "Buscar por i. fiscal";
    cuentas.push_back({nullptr, "Buscar por dirección", "444"});
    for (const auto &[reglas, modos] :
         {std::pair(SelectorDeVentas(), ventas), std::pair(SelectorDeCuentas(), cuentas)}) {
        Abrir(reglas);
        EXPECT_EQ(ConFoco(), reglas.enfocarLista ? u"LVClientes" : u"txtBuscarClientes");
        EXPECT_EQ(Se("cmdAgregarCliente"), reglas.alta);
        auto *boton = C<QPushButton>("cmdBuscarClientes");
        EXPECT_EQ(boton->text(), u"Buscar por nombre");
        for (const auto &[clave, titulo, texto] : modos) {
            if (clave != nullptr)
                Control<QAction>(*C<QToolBar>("tbrClientes"), clave)->trigger();
            else
                boton->setText(QString::fromUtf8(titulo));
            EXPECT_EQ(boton->text(), QString::fromUtf8(titulo));
            LV()->SeleccionarFila(1);
            Campo("txtBuscarClientes")->setText(QString::fromUtf8(texto));
            boton->click();
            EXPECT_EQ(LV()->FilaActual(), 0);
            EXPECT_EQ(ConFoco(), u"txtBuscarClientes");
            EXPECT_FALSE(Campo("txtBuscarClientes")->selectedText().isEmpty());
            mundo.preguntas.EsperaMensaje(final);
            boton->click();
            EXPECT_EQ(ConFoco(), u"LVClientes");
            if (!reglas.volverAlInicio)
                mundo.preguntas.EsperaMensaje(final);
            LV()->SeleccionarFila(1);
            boton->click();
            EXPECT_EQ(LV()->FilaActual(), reglas.volverAlInicio ? 0 : 1);
        }
    }
    EXPECT_EQ(C<QToolBar>("tbrClientes")->findChild<QAction *>(u"direccion"_qs), nullptr);
    EXPECT_EQ(Control<QAction>(*C<QToolBar>("tbrClientes"), "actualizar")->toolTip(), u"Acualizar"_qs);
}

TEST_F(Selector, EnterOnARowPicksItAndAnEmptyListPicksNone) {
    Abrir(SelectorDeCuentas());
    const QSignalSpy elegido(panel, &PicClientes::Elegido);
    Tecla(LV(), Qt::Key_Down);
    Entrar();
    EXPECT_EQ(elegido.value(0).value(0).toInt(), 1);
    EXPECT_FALSE(Se("picClientes"));
    Cursor &clientes = mundo.frmBases().datClientes;
    for (clientes.MoveFirst(); clientes.RecordCount() > 0; clientes.MoveFirst())
        clientes.Delete();
    Abrir(SelectorDeVentas());
    const QSignalSpy ninguno(panel, &PicClientes::Elegido);
    Clic("cmdAceptar");
    EXPECT_EQ(ninguno.value(0).value(0).toInt(), -1);
    EXPECT_FALSE(Se("picClientes"));
}

TEST_F(Selector, TheQuickEntryIsARowOnlyWhenSavedAndPicksNobody) {
    mundo.datos.Ejecutar("CREATE TRIGGER clientes.negar BEFORE INSERT ON Clientes WHEN NEW.nombre='Malo' "
                         "BEGIN SELECT RAISE(FAIL,'sin lugar'); END");
    Abrir(SelectorDeVentas());
    const QSignalSpy elegido(panel, &PicClientes::Elegido);
    Clic("cmdAgregarCliente");
    for (const char *control :
         {"LVClientes", "txtBuscarClientes", "tbrClientes", "cmdAceptar", "cmdCancelar"})
        EXPECT_FALSE(Habilitado(control));
    mundo.frmBases().datClientes.Refresh();
    EXPECT_EQ(mundo.frmBases().datClientes.RecordCount(), 2);
    mundo.preguntas.EsperaMensaje(u"Debe llenar el campo \"Código\""_qs);
    Clic("cmdGuardarCliente");
    Teclear(QApplication::focusWidget(), u"C1"_qs); // a repeated code passes
    mundo.preguntas.EsperaMensaje(u"Debe llenar el campo \"Nombre\""_qs);
    EXPECT_EQ(Clic("cmdGuardarCliente"), u"txtNombre");
    Teclear(QApplication::focusWidget(), u"Malo"_qs);
    mundo.preguntas.EsperaFalla(u"No se pudo escribir en la base de datos: sin lugar.\n\n"
                                "Los datos del cliente siguen en pantalla."_qs);
    Clic("cmdGuardarCliente");
    EXPECT_EQ(Campo("txtNombre")->text(), u"Malo");

    const QString raro = u"O'Hara \"x\"; <b>😀</b>\t"_qs + QString(10000, u'z');
    Campo("txtNombre")->selectAll();
    QApplication::clipboard()->setText(raro);
    QTest::keySequence(Campo("txtNombre"), QKeySequence::Paste);
    Campo("txtNombre")->setFocus();
    // Enter walks the fields to the button, whose own Enter saves.
    for (int i = 0; i < 12; ++i) {
        Entrar();
        Teclear(QApplication::focusWidget(), ConFoco());
    }
    EXPECT_EQ(Entrar(), u"cmdGuardarCliente");
    Entrar();
    EXPECT_FALSE(Se("picNuevoCliente"));
    ASSERT_EQ(LV()->Lista()->Filas(), 3);
    EXPECT_EQ(LV()->Lista()->Celda(2, cliente::Nombre), raro);
    EXPECT_EQ(
        mundo.datos.Tabla("SELECT codigo,nfiscal,ifiscal,documento,domicilio,poblacion,cpostal,provincia,"
                          "tel1,tel2,fax,mail,webpage FROM clientes.Clientes WHERE id=3"),
        u"C1|txtNFiscal|txtIFiscal|txtDocumento|txtDomicilio|txtPoblacion|txtCPostal|txtProvincia|txtTel1|"
        "txtTel2|txtFax|txtMail|txtWebPage"_qs);
    EXPECT_TRUE(elegido.isEmpty());
}

// Escape closes the topmost panel, and the focus is never left in a hidden one.
TEST_F(Selector, EscapeClosesTheTopmostPanel) {
    Abrir(SelectorDeVentas());
    EXPECT_EQ(Clic("cmdAgregarCliente"), u"txtCodigo");
    Pulsa(Qt::Key_Escape);
    EXPECT_TRUE(!Se("picNuevoCliente") && Se("picClientes"));
    EXPECT_EQ(ConFoco(), u"txtBuscarClientes");
    EXPECT_TRUE(LV()->isEnabled());
    Pulsa(Qt::Key_Escape);
    EXPECT_FALSE(Se("picClientes"));
}

} // namespace
} // namespace tarvo
