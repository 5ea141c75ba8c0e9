// The options window as a whole: tree, titles, keys.
#include "config/nodosopciones.h"
#include "opcionesprueba.h"

namespace tarvo {
namespace {

class Ventana : public OpcionesPrueba {
  protected:
    QString Titulo() { return Texto("lblTitulo"); }
    QString PanelesVisibles() {
        QStringList visibles;
        for (const char *panel : {"frImpuestos", "frCategorias", "frVendedores", "frImpresion"})
            if (Se(panel))
                visibles << QString::fromLatin1(panel);
        return visibles.join(u' ');
    }
};

TEST_F(Ventana, TheTreeShowsOnePanelUnderItsTitle) {
    const char *const nodos[][4] = {
        {"Impuestos", "Impuestos", "frImpuestos", "Configuración de impuestos"},
        {"Categorías", "Artículos", "frCategorias", "Configuración de categorías"},
        {"Vendedores", "Vendedores", "frVendedores", "Configuración de vendedores"},
        {"Impresión", "Impresión", "frImpresion", "Configuración de impresión"}};
    Abrir();
    EXPECT_EQ(ventana->windowTitle(), u"Opciones");
    auto *arbol = C<QTreeView>("TVOpciones");
    ASSERT_EQ(arbol->model()->rowCount(), 4);
    arbol->setFocus();
    for (const auto &[clave, texto, panel, titulo] : nodos) {
        const QModelIndex fila = arbol->currentIndex();
        const QStringList dicho{fila.data(Qt::UserRole).toString(), fila.data().toString(), PanelesVisibles(),
                                Titulo()};
        EXPECT_EQ(dicho, QStringList({QString::fromUtf8(clave), QString::fromUtf8(texto),
                                      QString::fromUtf8(panel), QString::fromUtf8(titulo)}));
        EXPECT_FALSE(fila.data(Qt::DecorationRole).value<QIcon>().isNull());
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
        EXPECT_EQ(PanelesVisibles(), u"frImpresion");
        Tecla(modal, Qt::Key_Escape);
    });
    cerrar.start(0);
    ventana = std::make_unique<FrmConfig>(mundo.servicios(), true);
    ventana->show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return disenadores == 1; }));
    EXPECT_EQ(Titulo(), u"Configuración de impresión");
    EXPECT_TRUE(ventana->isVisible());
    Clic("cmdTicket");
    EXPECT_EQ(disenadores, 2);
}

TEST_F(Ventana, TheListOfTheFirstPanelHasTheFocusAtTheOpening) {
    Sql("INSERT INTO Iva (codigo, tipo, porcentaje) VALUES ('1', 'Normal', '22')");
    Sql("INSERT INTO Vendedores (codigo, nombre) VALUES ('1', 'Ana')");
    Abrir();
    EXPECT_EQ(ConFoco(), u"LVIVA");
    for (const QString &anterior : {u"TVOpciones"_qs, u"cmdCerrar"_qs, u"cmdGuardarPersonalizado"_qs})
        EXPECT_EQ(Pulsa(Qt::Key_Backtab, Qt::ShiftModifier), anterior);
}

TEST_F(Ventana, ASellerIsEnteredWithTheKeyboardAlone) {
    Abrir();
    ElegirNodo(2);
    C<QPushButton>("cmdVenNuevo")->setFocus();
    Tecla(C<QPushButton>("cmdVenNuevo"), Qt::Key_Return);
    for (const char *texto : {"1", "Ñandú", "30-1", "Calle 2", "555", "a@b", "ninguno"}) {
        tarvo::Teclear(QApplication::focusWidget(), QString::fromUtf8(texto));
        Entrar();
    }
    EXPECT_EQ(ConFoco(), u"cmdVenGuardar");
    Entrar();
    EXPECT_EQ(Tabla("SELECT codigo, nombre, documento, direccion, telefono, mail, otros FROM Vendedores"),
              u"1|Ñandú|30-1|Calle 2|555|a@b|ninguno"_qs);
    EXPECT_EQ(ConFoco(), u"LVVendedores");
    C<QPushButton>("cmdVenNuevo")->click();
    C<QPushButton>("cmdVenCancelar")->click();
    EXPECT_EQ(Texto("txtVenEmail") + Texto("txtVenOtros"), u"a@bninguno");
}

// An opening that stops at a missing table leaves that one and the ones behind it closed.
TEST_F(Ventana, ClosedTablesAreToldAndNotWritten) {
    Sql("DROP TABLE Factura");
    FrmBases &bases = mundo.datos.Bases();
    ASSERT_EQ(bases.Abrir().estado, EstadoApertura::Parcial);
    ventana = std::make_unique<FrmConfig>(mundo.Con(bases), false);
    MostrarVentana(*ventana);
    ElegirNodo(3);
    EsperaFalla("No se pudo guardar: la tabla Factura no está abierta.");
    Teclear("txtLinDetalle", "5");
    EXPECT_EQ(Texto("txtLinDetalle"), u"5");
    Clic("cmdLineasTicket");
    EsperaFalla("No se pudo guardar: la tabla Ticket no está abierta.");
    Clic("cmdGuardarTicket");
    Clic("cmdCerrarTicket");
    ElegirNodo(2);
    EXPECT_TRUE(Habilitado("cmdVenNuevo") && !Habilitado("cmdVenGuardar"));
    ElegirNodo(0);
    Clic("cmdGuardarPersonalizado"); // this table is open
}

} // namespace
} // namespace tarvo
