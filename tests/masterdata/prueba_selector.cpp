// The customer panel as each task has it, and its quick entry, by keys and clicks.
#include "desktop/buscador.h"
#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/listavista.h"
#include "masterdata/ventanas/picclientes.h"
#include "store/store.h"
#include "testkit/mundoprueba.h"

#include <QAction>
#include <QClipboard>
#include <QFrame>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolBar>

namespace tarvo {
namespace {

class Selector : public ::testing::Test {
  protected:
    Selector() {
        mundo.datos.Ejecutar("INSERT INTO clientes.Clientes(codigo,nombre,tel1,ifiscal) VALUES"
                             "('C1','Ñandú S.A.','4444','30-71234567-1'),('C2','Juan','5555','');");
    }
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
    template <typename T> T *C(const char *nombre) { return Control<T>(*ventana, nombre); }
    ListaVista *Lista() { return C<ListaVista>("LVClientes"); }
    QLineEdit *Campo(const char *nombre) { return C<QLineEdit>(nombre); }
    bool Se(const char *nombre) { return C<QWidget>(nombre)->isVisible(); }
    void Clic(const char *boton) { Pulsar(C<QWidget>(boton)); }
    static void Entrar() { Tecla(QApplication::focusWidget(), Qt::Key_Return); }

    MundoPrueba mundo;
    Buscador buscador;
    std::unique_ptr<QWidget> ventana;
    PicClientes *panel = nullptr;
};

struct CasoModo {
    const char *clave; // null: not in the menu
    const char *titulo;
    const char *texto;
};

TEST_F(Selector, SearchModesOfTheSaleAndOfTheAccounts) {
    const QString final = QStringLiteral("La búsqueda ha finalizado.");
    const std::vector<CasoModo> ventas{{"codigo", "Buscar por código", "c1"},
                                       {"nombre", "Buscar por nombre", "ÑANDÚ"},
                                       {"telefono", "Buscar por teléfono", "444"},
                                       {"ruc", "Buscar por i.fiscal", "-71"}};
    std::vector<CasoModo> cuentas = ventas;
    cuentas.back().titulo = "Buscar por i. fiscal";
    cuentas.push_back({nullptr, "Buscar por dirección", "444"});
    for (const auto &[reglas, modos] :
         {std::pair(SelectorDeVentas(), ventas), std::pair(SelectorDeCuentas(), cuentas)}) {
        Abrir(reglas);
        EXPECT_EQ(ConFoco(), reglas.enfocarLista ? u"LVClientes" : u"txtBuscarClientes");
        EXPECT_EQ(Se("cmdAgregarCliente"), reglas.alta);
        auto *boton = C<QPushButton>("cmdBuscarClientes");
        EXPECT_EQ(boton->text(), QStringLiteral("Buscar por nombre"));
        for (const auto &[clave, titulo, texto] : modos) {
            if (clave != nullptr)
                Control<QAction>(*C<QToolBar>("tbrClientes"), clave)->trigger();
            else
                boton->setText(QString::fromUtf8(titulo));
            EXPECT_EQ(boton->text(), QString::fromUtf8(titulo));
            Lista()->SeleccionarFila(1);
            Campo("txtBuscarClientes")->setText(QString::fromUtf8(texto));
            boton->click();
            EXPECT_EQ(Lista()->FilaActual(), 0);
            EXPECT_EQ(ConFoco(), QStringLiteral("txtBuscarClientes"));
            EXPECT_FALSE(Campo("txtBuscarClientes")->selectedText().isEmpty());
            mundo.preguntas.EsperaMensaje(final, Icono::Informacion);
            boton->click();
            EXPECT_EQ(ConFoco(), QStringLiteral("LVClientes"));
            EXPECT_EQ(buscador.indiceBusqueda(), reglas.volverAlInicio ? 1 : 2);
        }
    }
    EXPECT_EQ(C<QToolBar>("tbrClientes")->findChild<QAction *>(QStringLiteral("direccion")), nullptr);
    EXPECT_EQ(Control<QAction>(*C<QToolBar>("tbrClientes"), "actualizar")->toolTip(),
              QStringLiteral("Acualizar"));
}

TEST_F(Selector, EnterOnARowPicksItAndAnEmptyListPicksNone) {
    Abrir(SelectorDeCuentas());
    const QSignalSpy elegido(panel, &PicClientes::Elegido);
    Tecla(Lista(), Qt::Key_Down);
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
        EXPECT_FALSE(C<QWidget>(control)->isEnabled());
    mundo.frmBases().datClientes.Refresh();
    EXPECT_EQ(mundo.frmBases().datClientes.RecordCount(), 2);
    mundo.preguntas.EsperaMensaje(QStringLiteral("Debe llenar el campo \"Código\""), Icono::Informacion);
    Clic("cmdGuardarCliente");
    Teclear(QApplication::focusWidget(), QStringLiteral("C1")); // a repeated code passes
    mundo.preguntas.EsperaMensaje(QStringLiteral("Debe llenar el campo \"Nombre\""), Icono::Informacion);
    Clic("cmdGuardarCliente");
    EXPECT_EQ(ConFoco(), QStringLiteral("txtNombre"));
    Teclear(QApplication::focusWidget(), QStringLiteral("Malo"));
    mundo.preguntas.EsperaMensaje(QStringLiteral("No se pudo escribir en la base de datos: sin lugar.\n\n"
                                                 "Los datos del cliente siguen en pantalla."),
                                  Icono::Critico);
    Clic("cmdGuardarCliente");
    EXPECT_EQ(Campo("txtNombre")->text(), QStringLiteral("Malo"));

    const QString raro = QStringLiteral("O'Hara \"x\"; <b>😀</b>\t") + QString(10000, QLatin1Char('z'));
    Campo("txtNombre")->selectAll();
    QApplication::clipboard()->setText(raro);
    QTest::keySequence(Campo("txtNombre"), QKeySequence::Paste);
    Campo("txtNombre")->setFocus();
    // Enter walks the fields to the button, whose own Enter saves.
    for (int i = 0; i < 12; ++i) {
        Entrar();
        Teclear(QApplication::focusWidget(), ConFoco());
    }
    Entrar();
    EXPECT_EQ(ConFoco(), QStringLiteral("cmdGuardarCliente"));
    Entrar();
    EXPECT_FALSE(Se("picNuevoCliente"));
    ASSERT_EQ(Lista()->Lista()->Filas(), 3);
    EXPECT_EQ(Lista()->Lista()->Celda(2, cliente::Nombre), raro);
    EXPECT_EQ(
        mundo.datos.Filas("SELECT codigo,nfiscal,ifiscal,documento,domicilio,poblacion,cpostal,provincia,"
                          "tel1,tel2,fax,mail,webpage FROM clientes.Clientes WHERE id=3"),
        (std::vector<std::vector<QString>>{{u"C1"_qs, u"txtNFiscal"_qs, u"txtIFiscal"_qs, u"txtDocumento"_qs,
                                            u"txtDomicilio"_qs, u"txtPoblacion"_qs, u"txtCPostal"_qs,
                                            u"txtProvincia"_qs, u"txtTel1"_qs, u"txtTel2"_qs, u"txtFax"_qs,
                                            u"txtMail"_qs, u"txtWebPage"_qs}}));
    EXPECT_TRUE(elegido.isEmpty());
}

// Escape closes the topmost panel, and the focus is never left in a hidden one.
TEST_F(Selector, EscapeClosesTheTopmostPanel) {
    Abrir(SelectorDeVentas());
    Clic("cmdAgregarCliente");
    EXPECT_EQ(ConFoco(), QStringLiteral("txtCodigo"));
    Tecla(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(Se("picNuevoCliente"));
    EXPECT_TRUE(Se("picClientes"));
    EXPECT_EQ(ConFoco(), QStringLiteral("txtBuscarClientes"));
    EXPECT_TRUE(Lista()->isEnabled());
    Tecla(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(Se("picClientes"));
}

} // namespace
} // namespace tarvo
