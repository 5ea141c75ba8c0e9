// The options window as a whole: tree, titles, keys.
#include "config/nodosopciones.h"
#include "opcionesprueba.h"

#include <QLabel>
#include <QTimer>

namespace tarvo {
namespace {

class Ventana : public OpcionesPrueba {
  protected:
    QString Titulo() { return Control<QLabel>(*ventana, "lblTitulo")->text(); }
    QString PanelesVisibles() {
        QStringList visibles;
        for (const char *panel : {"frImpuestos", "frCategorias", "frVendedores", "frImpresion"})
            if (Control<QWidget>(*ventana, panel)->isVisible())
                visibles << QString::fromLatin1(panel);
        return visibles.join(QLatin1Char(' '));
    }
};

TEST_F(Ventana, TheTreeShowsOnePanelUnderItsTitle) {
    const char *const nodos[][4] = {
        {"Impuestos", "Impuestos", "frImpuestos", "Configuración de impuestos"},
        {"Categorías", "Artículos", "frCategorias", "Configuración de categorías"},
        {"Vendedores", "Vendedores", "frVendedores", "Configuración de vendedores"},
        {"Impresión", "Impresión", "frImpresion", "Configuración de impresión"},
    };
    Abrir();
    EXPECT_EQ(ventana->windowTitle(), u"Opciones"_qs);
    auto *arbol = Control<QTreeView>(*ventana, "TVOpciones");
    ASSERT_EQ(arbol->model()->rowCount(), 4);
    arbol->setFocus();
    for (int i = 0; i < 4; ++i) {
        const auto &[clave, texto, panel, titulo] = nodos[i];
        const QModelIndex fila = arbol->model()->index(i, 0);
        EXPECT_EQ(arbol->currentIndex(), fila);
        EXPECT_EQ(fila.data(Qt::UserRole).toString(), QString::fromUtf8(clave));
        EXPECT_EQ(fila.data().toString(), QString::fromUtf8(texto));
        EXPECT_FALSE(fila.data(Qt::DecorationRole).value<QIcon>().isNull());
        EXPECT_EQ(PanelesVisibles(), QString::fromUtf8(panel));
        EXPECT_EQ(Titulo(), QString::fromUtf8(titulo));
        Tecla(arbol, Qt::Key_Down);
    }
}

TEST_F(Ventana, TheDesignerOpensOverTheOptionsByButtonOrAtOnce) {
    int disenadores = 0;
    QTimer cerrar;
    QObject::connect(&cerrar, &QTimer::timeout, &cerrar, [&] {
        QWidget *const modal = QApplication::activeModalWidget();
        if (modal == nullptr || modal->objectName() != QLatin1String("frmFactura"))
            return;
        ++disenadores;
        EXPECT_EQ(PanelesVisibles(), QStringLiteral("frImpresion"));
        Tecla(modal, Qt::Key_Escape);
    });
    cerrar.start(0);
    mundo.datos.Abrir();
    ventana = std::make_unique<FrmConfig>(mundo.servicios(), true);
    ventana->show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return disenadores == 1; }));
    EXPECT_EQ(Titulo(), QStringLiteral("Configuración de impresión"));
    EXPECT_TRUE(ventana->isVisible());
    Pulsar("cmdTicket");
    EXPECT_EQ(disenadores, 2);
}

TEST_F(Ventana, TheListOfTheFirstPanelHasTheFocusAtTheOpening) {
    Sql("INSERT INTO Iva (codigo, tipo, porcentaje) VALUES ('1', 'Normal', '22')");
    Sql("INSERT INTO Vendedores (codigo, nombre) VALUES ('1', 'Ana')");
    Abrir();
    EXPECT_EQ(ConFoco(), u"LVIVA"_qs);
    for (const QString &anterior : {u"TVOpciones"_qs, u"cmdCerrar"_qs, u"cmdGuardarPersonalizado"_qs}) {
        Tecla(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(ConFoco(), anterior);
    }
}

TEST_F(Ventana, ASellerIsEnteredWithTheKeyboardAlone) {
    Abrir();
    ElegirNodo(2);
    Boton("cmdVenNuevo")->setFocus();
    Tecla(Boton("cmdVenNuevo"), Qt::Key_Return);
    for (const char *texto : {"1", "Ñandú", "30-1", "Calle 2", "555", "a@b", "ninguno"}) {
        tarvo::Teclear(QApplication::focusWidget(), QString::fromUtf8(texto));
        Tecla(QApplication::focusWidget(), Qt::Key_Return);
    }
    EXPECT_EQ(ConFoco(), u"cmdVenGuardar"_qs);
    Tecla(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Filas("SELECT codigo, nombre, documento, direccion, telefono, mail, otros FROM Vendedores"),
              u"1|Ñandú|30-1|Calle 2|555|a@b|ninguno"_qs);
    EXPECT_EQ(ConFoco(), u"LVVendedores"_qs);
    Boton("cmdVenNuevo")->click();
    Boton("cmdVenCancelar")->click();
    EXPECT_EQ(Texto("txtVenEmail") + Texto("txtVenOtros"), u"a@bninguno"_qs);
}

TEST_F(Ventana, EnterInTheCategoryNameSavesAndInAListPressesNothing) {
    Abrir();
    ElegirNodo(1);
    Pulsar("cmdCatNuevo");
    Teclear("txtCatCodigo", "1x2");
    Tecla(Campo("txtCatCodigo"), Qt::Key_Return);
    tarvo::Teclear(QApplication::focusWidget(), u"Bebidas"_qs);
    Tecla(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Filas("SELECT codigo, categoria FROM Categorias"), u"12|Bebidas"_qs);
    Tecla(Lista("LVCategorias"), Qt::Key_Return);
    EXPECT_TRUE(Boton("cmdCatNuevo")->isEnabled());
}

// An opening that stops at a missing table leaves that one and the ones behind it closed.
TEST_F(Ventana, ClosedTablesAreToldAndNotWritten) {
    Sql("DROP TABLE Factura");
    FrmBases &bases = mundo.datos.Bases();
    ASSERT_EQ(bases.Abrir().estado, EstadoApertura::Parcial);
    ventana = std::make_unique<FrmConfig>(
        Servicios{bases, mundo.preguntas, mundo.reloj, mundo.impresoras, mundo.ajustes, mundo.escritorio},
        false);
    MostrarVentana(*ventana);
    ElegirNodo(3);
    EsperaMensaje("No se pudo guardar: la tabla Factura no está abierta.", Icono::Critico);
    Teclear("txtLinDetalle", "5");
    EXPECT_EQ(Texto("txtLinDetalle"), u"5"_qs);
    Pulsar("cmdLineasTicket");
    EsperaMensaje("No se pudo guardar: la tabla Ticket no está abierta.", Icono::Critico);
    Pulsar("cmdGuardarTicket");
    Pulsar("cmdCerrarTicket");
    ElegirNodo(2);
    EXPECT_TRUE(Boton("cmdVenNuevo")->isEnabled());
    EXPECT_FALSE(Boton("cmdVenGuardar")->isEnabled());
    ElegirNodo(0);
    Pulsar("cmdGuardarPersonalizado"); // this table is open
}

} // namespace
} // namespace tarvo
