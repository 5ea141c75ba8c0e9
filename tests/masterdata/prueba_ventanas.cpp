// What each window has of its own, by keys and clicks.
#include "desktop/ventanas/listavista.h"
#include "masterdata/ventanas/frmarticulos.h"
#include "masterdata/ventanas/frmclientes.h"
#include "masterdata/ventanas/frmproveedores.h"
#include "masterdata/vistaprueba.h"
#include "testkit/mundoprueba.h"

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

namespace tarvo {
namespace {

// Chooses an entry of a combo as the operator does, with the arrow keys.
void Elegir(QComboBox *combo, int entrada) {
    combo->setFocus();
    Tecla(combo, Qt::Key_Home);
    for (int i = 0; i < entrada; ++i)
        Tecla(combo, Qt::Key_Down);
    ASSERT_EQ(combo->currentIndex(), entrada);
}

class VentanaArticulos : public testing::Test {
  protected:
    VentanaArticulos() {
        mundo_.datos.Ejecutar(
            "INSERT INTO main.Categorias(codigo, categoria) VALUES ('1','Almacén');"
            "INSERT INTO main.Iva(codigo, tipo, porcentaje) VALUES ('1','General','21'),('2','Bajo','5');"
            "INSERT INTO proveedores.Proveedores(codigo, nombre) VALUES ('P1','Mayorista');"
            "INSERT INTO articulos.Articulos(codigo, nombre, idcategoria1, idtipoiva, pcompra, subtotal, "
            "stock)"
            " VALUES ('A1','Yerba','1','1','80','100','10');");
        ventana_ = std::make_unique<FrmArticulos>(mundo_.servicios(), anfitrion_);
        ventana_->resize(1000, 700);
        MostrarVentana(*ventana_);
    }
    template <typename T = QLineEdit> T *C(const char *nombre) { return Control<T>(*ventana_, nombre); }
    void Click(const char *boton) { Pulsar(C<QPushButton>(boton)); }

    MundoPrueba mundo_;
    AnfitrionPrueba anfitrion_;
    std::unique_ptr<FrmArticulos> ventana_;
};

TEST_F(VentanaArticulos, ARunOfArticlesIsTypedWithTheKeyboardAlone) {
    Click("cmdNuevo");
    Teclear(C("txtCodigo"), u"7790"_qs);
    Tecla(C("txtCodigo"), Qt::Key_Return);
    EXPECT_EQ(C("txtCodBarras1")->text(), u"7790"_qs); // copied on leaving the code
    Teclear(C("txtNombre"), u"Leche"_qs);
    Teclear(C("txtPCompra"), u"7x.25"_qs); // letters are not taken
    EXPECT_EQ(C("txtPCompra")->text(), u"7.25"_qs);
    Tecla(C("txtPCompra"), Qt::Key_Return);
    EXPECT_EQ(C("txtPCompra")->text(), u"$ 7,25"_qs);
    EXPECT_EQ(ConFoco(), u"txtSubtotal"_qs);
    EXPECT_EQ(C("txtSubtotal")->text(), u"0,00"_qs); // without the symbol while it is edited
    EXPECT_EQ(C("txtSubtotal")->selectedText(), u"0,00"_qs);
    QTest::keyClicks(C("txtSubtotal"), u"10"_qs);
    Elegir(C<QComboBox>("cboxTipoIVA"), 1);
    EXPECT_EQ(C("txtPVenta")->text(), u"$ 10,50"_qs);
    Elegir(C<QComboBox>("cboxProveedor"), 0);
    Teclear(C("txtStock"), {});
    C("txtStock")->clear();
    Tecla(C("txtStock"), Qt::Key_Return);
    EXPECT_EQ(C("txtStock")->text(), u"0"_qs);
    EXPECT_EQ(ConFoco(), u"txtStockMin"_qs);
    Tecla(C("txtStockMin"), Qt::Key_Return);
    EXPECT_EQ(ConFoco(), u"cmdGuardar"_qs);
    Tecla(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(ConFoco(), u"txtCodigo"_qs); // the next one
    EXPECT_EQ(C("txtCodigo")->text(), QString());
    const auto filas =
        mundo_.datos.Filas("SELECT codigo, codbarras1, pcompra, subtotal, idtipoiva, idproveedores, "
                           "idcategoria1, stock, stockmin FROM articulos.Articulos WHERE id=2");
    ASSERT_EQ(filas.size(), 1U);
    EXPECT_EQ(filas[0], (std::vector<QString>{u"7790"_qs, u"7790"_qs, u"7,25"_qs, u"10"_qs, u"2"_qs, u"1"_qs,
                                              QString(), u"0"_qs, QString()}));
}

TEST_F(VentanaArticulos, TheNewCategoryPanelCoversTheWindowUntilItIsSavedOrEscaped) {
    auto *filtro = C<QComboBox>("cboxFiltrarCategoria");
    Elegir(filtro, 1);
    EXPECT_EQ(C("txtIdCategoriaFiltro")->text(), u"-1"_qs);
    EXPECT_FALSE(C("txtNombre")->isEnabled()); // no article is without category
    Elegir(filtro, 2);
    emit filtro->activated(3);
    EXPECT_EQ(ConFoco(), u"txtCatCodigo"_qs);
    EXPECT_FALSE(C<QWidget>("frControles")->isEnabled());
    EXPECT_FALSE(C<ListaVista>("LVArticulos")->isEnabled());
    EXPECT_EQ(C("txtIdCategoriaFiltro")->text(), u"1"_qs);
    Tecla(C("txtCatCodigo"), Qt::Key_Escape);
    EXPECT_FALSE(C<QFrame>("picNuevaCategoria")->isVisible());
    EXPECT_TRUE(C<QWidget>("frControles")->isEnabled());
    EXPECT_EQ(filtro->currentText(), u"1 - Almacén"_qs);

    emit filtro->activated(3);
    Teclear(C("txtCatCodigo"), u"a2"_qs);
    Teclear(C("txtCatCategoria"), u"Bebidas"_qs);
    Click("cmdCatGuardar");
    EXPECT_EQ(mundo_.datos.Filas("SELECT codigo, categoria FROM main.Categorias WHERE id=2")[0],
              (std::vector<QString>{u"2"_qs, u"Bebidas"_qs}));
    EXPECT_EQ(filtro->currentIndex(), 0);
    EXPECT_EQ(C("txtIdCategoriaFiltro")->text(), u"0"_qs);
    EXPECT_EQ(ConFoco(), u"LVArticulos"_qs) << "not the button that is hidden now";
}

TEST_F(VentanaArticulos, TheSearchPanelShutsTheFilterAndLeavesTheFocusInTheEntry) {
    Click("cmdNuevo");
    Teclear(C("txtCodigo"), u"A2"_qs);
    Click("cmdBuscar");
    EXPECT_FALSE(C<QComboBox>("cboxFiltrarCategoria")->isEnabled());
    emit C<QComboBox>("cboxFiltrarCategoria")->activated(3);
    EXPECT_FALSE(C<QFrame>("picNuevaCategoria")->isVisible());
    Tecla(C("txtArtBuscar"), Qt::Key_Escape);
    EXPECT_EQ(ConFoco(), u"txtCodigo"_qs);
    EXPECT_EQ(C("txtCodigo")->text(), u"A2"_qs);
    EXPECT_FALSE(C<ListaVista>("LVArticulos")->isEnabled());
}

TEST_F(VentanaArticulos, TheSecondCategoryStaysInert) {
    auto *segunda = C<QComboBox>("cboxCategoria2");
    EXPECT_EQ(C<QLabel>("lblCategoria2")->text(), u"C&ategoría &2"_qs); // both letters marked
    EXPECT_EQ(segunda->count(), 0);
    EXPECT_FALSE(segunda->isEnabled());
    EXPECT_FALSE(C("txtPVenta")->isEnabled());
    EXPECT_EQ(C("txtPVenta")->text(), u"$ 121,00"_qs);
    Click("cmdNuevo");
    EXPECT_FALSE(segunda->isEnabled());
}

TEST_F(VentanaArticulos, EscapeDoesNotGiveUpTheFirstArticleOfAll) {
    mundo_.preguntas.Espera(u"Está seguro de querer eliminar los datos del artículo seleccionado?"_qs,
                            Respuesta::No, Respuesta::Si);
    Click("cmdEliminar");
    Click("cmdNuevo");
    Tecla(C("txtCodigo"), Qt::Key_Escape);
    EXPECT_TRUE(ventana_->EntradaEnCurso());
    EXPECT_EQ(C("txtPCompra")->text(), u"$ 0,00"_qs);
}

TEST(Personas, TwoCustomersShareACodeAndLeaveTheirSalesBehind) {
    MundoPrueba mundo;
    mundo.datos.Ejecutar(
        "INSERT INTO clientes.Clientes(id, codigo, nombre) VALUES (1,'1','Ana'),(2,'1','Ana');"
        "INSERT INTO ventas.Ventas(idcliente, tipo) VALUES ('1','Contado')");
    AnfitrionPrueba anfitrion;
    FrmClientes ventana(mundo.servicios(), anfitrion);
    MostrarVentana(ventana);
    EXPECT_EQ(ventana.Lista().Filas(), 2);
    mundo.preguntas.Espera(u"Está seguro de querer eliminar los datos del cliente seleccionado?"_qs,
                           Respuesta::No, Respuesta::Si);
    Pulsar(Control<QPushButton>(ventana, "cmdEliminar"));
    EXPECT_EQ(mundo.datos.Filas("SELECT idcliente FROM ventas.Ventas")[0][0], u"1"_qs);
    EXPECT_EQ(mundo.datos.Filas("SELECT id FROM clientes.Clientes")[0][0], u"2"_qs);
}

// Every field goes to the column of its name: a different text in each, read back in table order.
template <typename Ventana>
void ProbarCampos(const char *tabla, const QStringList &campos, const QString &columnas) {
    MundoPrueba mundo;
    AnfitrionPrueba anfitrion;
    Ventana ventana(mundo.servicios(), anfitrion);
    MostrarVentana(ventana);
    Pulsar(Control<QPushButton>(ventana, "cmdNuevo"));
    for (const QString &campo : campos)
        Teclear(Control<QLineEdit>(ventana, campo.toUtf8().constData()), campo);
    Pulsar(Control<QPushButton>(ventana, "cmdGuardar"));
    const QString sql = QStringLiteral("SELECT %1 FROM %2").arg(columnas, QString::fromUtf8(tabla));
    const std::vector<QString> fila = mundo.datos.Filas(sql.toUtf8().constData()).at(0);
    EXPECT_EQ(QStringList(fila.begin(), fila.end()), campos);
}

TEST(Personas, EachFieldIsStoredInItsOwnColumn) {
    ProbarCampos<FrmClientes>(
        "clientes.Clientes",
        QStringLiteral(
            "txtCodigo txtNombre txtNFiscal txtIFiscal txtDocumento txtDomicilio txtPoblacion txtCPostal "
            "txtProvincia txtTel1 txtTel2 txtFax txtMail txtWebPage")
            .split(u' '),
        u"codigo,nombre,nfiscal,ifiscal,documento,domicilio,poblacion,cpostal,provincia,tel1,tel2,fax,mail,webpage"_qs);
    ProbarCampos<FrmProveedores>(
        "proveedores.Proveedores",
        QStringLiteral("txtCodigo txtNombre txtNFiscal txtIFiscal txtTelefono txtFax txtDireccion txtEmail")
            .split(u' '),
        u"codigo,nombre,nfiscal,ifiscal,telefono,fax,direccion,email"_qs);
}

TEST(Personas, FieldsThatAFailedReadLeftHalfFilledAreNotSaved) {
    MundoPrueba mundo;
    mundo.datos.Ejecutar("INSERT INTO clientes.Clientes(codigo, nombre, tel2) VALUES ('1','Ana','a'),"
                         "('2','Beto','b')");
    AnfitrionPrueba anfitrion;
    FrmClientes ventana(mundo.servicios(), anfitrion);
    MostrarVentana(ventana);
    FrmBases &bases = mundo.frmBases();
    bases.datClientes.Invalidar();
    bases.datClientes.Cargar({&bases.camCliCodigo, &bases.camCliNombre});
    mundo.datos.Filas("ALTER TABLE clientes.Clientes RENAME TO Otra");
    Tecla(Control<ListaVista>(ventana, "LVClientes"), Qt::Key_Down);
    EXPECT_EQ(Control<QLineEdit>(ventana, "txtNombre")->text(), u"Beto"_qs);
    EXPECT_EQ(Control<QLineEdit>(ventana, "txtTel2")->text(), u"a"_qs);
    mundo.datos.Filas("ALTER TABLE clientes.Otra RENAME TO Clientes");
    mundo.preguntas.Espera(u"Está seguro de querer modificar los datos del cliente seleccionado?"_qs,
                           Respuesta::No, Respuesta::Si);
    mundo.preguntas.EsperaMensaje(u"El registro ya no existe."_qs, Icono::Critico);
    Pulsar(Control<QPushButton>(ventana, "cmdGuardar"));
    EXPECT_EQ(mundo.datos.Filas("SELECT group_concat(nombre||tel2) FROM clientes.Clientes")[0][0],
              u"Anaa,Betob"_qs);
}

TEST(Personas, AFailedReadOfTheSuppliersIsTold) {
    MundoPrueba mundo;
    mundo.datos.Ejecutar("INSERT INTO proveedores.Proveedores(codigo, nombre) VALUES ('1','Uno')");
    AnfitrionPrueba anfitrion;
    FrmProveedores ventana(mundo.servicios(), anfitrion);
    MostrarVentana(ventana);
    mundo.datos.Filas("ALTER TABLE proveedores.Proveedores RENAME TO Otra");
    mundo.frmBases().datProveedores.Invalidar();
    mundo.preguntas.EsperaMensaje(
        u"No se pudo leer la base de datos: no such table: proveedores.Proveedores."_qs, Icono::Critico);
    Pulsar(Control<QPushButton>(ventana, "cmdActualizar"));
}

} // namespace
} // namespace tarvo
