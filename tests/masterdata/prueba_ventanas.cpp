// What each window has of its own, by keys and clicks.
#include "masterdata/ventanas/frmarticulos.h"
#include "masterdata/ventanas/frmclientes.h"
#include "masterdata/ventanas/frmproveedores.h"
#include "masterdata/ventanas/frmusuarios.h"
#include "testkit/conventana.h"

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

class VentanaArticulos : public ConVentana<FrmArticulos> {
  protected:
    VentanaArticulos() {
        mundo.datos.Ejecutar(
            "INSERT INTO main.Categorias(codigo, categoria) VALUES ('1','Almacén');"
            "INSERT INTO main.Iva(codigo, tipo, porcentaje) VALUES ('1','General','21'),('2','Bajo','5');"
            "INSERT INTO proveedores.Proveedores(codigo, nombre) VALUES ('P1','Mayorista');"
            "INSERT INTO articulos.Articulos(codigo, nombre, idcategoria1, idtipoiva, pcompra, subtotal, "
            "stock)"
            " VALUES ('A1','Yerba','1','1','80','100','10');");
        ventana = std::make_unique<FrmArticulos>(mundo.servicios(), anfitrion);
        ventana->resize(1000, 700);
        MostrarVentana(*ventana);
    }
};

TEST_F(VentanaArticulos, ARunOfArticlesIsTypedWithTheKeyboardAlone) {
    Clic("cmdNuevo");
    Teclas(u"7790"_qs);
    Entrar();
    EXPECT_EQ(Texto("txtCodBarras1"), u"7790"); // copied on leaving the code
    Teclear(Campo("txtNombre"), u"Leche"_qs);
    Teclear(Campo("txtPCompra"), u"7x.25"_qs); // letters are not taken
    EXPECT_EQ(Texto("txtPCompra"), u"7.25");
    Entrar();
    EXPECT_EQ(Texto("txtPCompra"), u"$ 7,25");
    EXPECT_EQ(ConFoco(), u"txtSubtotal");
    EXPECT_EQ(Texto("txtSubtotal"), u"0,00"); // without the symbol while it is edited
    EXPECT_EQ(Campo("txtSubtotal")->selectedText(), u"0,00");
    Teclas(u"10"_qs);
    Elegir(C<QComboBox>("cboxTipoIVA"), 1);
    EXPECT_EQ(Texto("txtPVenta"), u"$ 10,50");
    Elegir(C<QComboBox>("cboxProveedor"), 0);
    Teclear(Campo("txtStock"), {});
    Campo("txtStock")->clear();
    Entrar();
    EXPECT_EQ(Texto("txtStock"), u"0");
    EXPECT_EQ(ConFoco(), u"txtStockMin");
    EXPECT_EQ(Entrar(), u"cmdGuardar");
    Entrar();
    EXPECT_EQ(ConFoco(), u"txtCodigo"); // the next one
    EXPECT_EQ(Texto("txtCodigo"), QString());
    EXPECT_EQ(mundo.datos.Tabla("SELECT codigo, codbarras1, pcompra, subtotal, idtipoiva, idproveedores, "
                                "idcategoria1, stock, stockmin FROM articulos.Articulos WHERE id=2"),
              u"7790|7790|7,25|10|2|1||0|");
}

TEST_F(VentanaArticulos, TheNewCategoryPanelCoversTheWindowUntilItIsSavedOrEscaped) {
    auto *filtro = C<QComboBox>("cboxFiltrarCategoria");
    Elegir(filtro, 1);
    EXPECT_EQ(Texto("txtIdCategoriaFiltro"), u"-1");
    EXPECT_FALSE(Habilitado("txtNombre")); // no article is without category
    Elegir(filtro, 2);
    emit filtro->activated(3);
    EXPECT_EQ(ConFoco(), u"txtCatCodigo");
    EXPECT_FALSE(Habilitado("frControles") || Habilitado("LVArticulos"));
    EXPECT_EQ(Texto("txtIdCategoriaFiltro"), u"1");
    Pulsa(Qt::Key_Escape);
    EXPECT_FALSE(Se("picNuevaCategoria"));
    EXPECT_TRUE(Habilitado("frControles"));
    EXPECT_EQ(filtro->currentText(), u"1 - Almacén");

    emit filtro->activated(3);
    Teclear(Campo("txtCatCodigo"), u"a2"_qs);
    Teclear(Campo("txtCatCategoria"), u"Bebidas"_qs);
    Clic("cmdCatGuardar");
    EXPECT_EQ(mundo.datos.Tabla("SELECT codigo, categoria FROM main.Categorias WHERE id=2"), u"2|Bebidas");
    EXPECT_EQ(filtro->currentIndex(), 0);
    EXPECT_EQ(Texto("txtIdCategoriaFiltro"), u"0");
    EXPECT_EQ(ConFoco(), u"LVArticulos") << "not the button that is hidden now";
}

TEST_F(VentanaArticulos, TheSearchPanelLeavesTheFocusInTheEntry) {
    Clic("cmdNuevo");
    Teclas(u"A2"_qs);
    Clic("cmdBuscar");
    EXPECT_EQ(Pulsa(Qt::Key_Escape), u"txtCodigo");
    EXPECT_EQ(Texto("txtCodigo"), u"A2");
    EXPECT_FALSE(Habilitado("LVArticulos"));
}

TEST_F(VentanaArticulos, TheSecondCategoryStaysInert) {
    EXPECT_EQ(Texto("lblCategoria2"), u"C&ategoría &2"); // both letters marked
    EXPECT_EQ(C<QComboBox>("cboxCategoria2")->count(), 0);
    EXPECT_EQ(Texto("txtPVenta"), u"$ 121,00");
    for (int vez = 0; vez < 2; ++vez) {
        EXPECT_FALSE(Habilitado("cboxCategoria2") || Habilitado("txtPVenta"));
        Clic("cmdNuevo");
    }
}

TEST_F(VentanaArticulos, TheButtonsCloseUpOnANarrowScreen) {
    QWidget pantalla;
    ventana->setParent(&pantalla);
    ventana->show();
    MostrarVentana(pantalla);
    for (const int ancho : {640, 1000}) {
        pantalla.resize(ancho, 480);
        EXPECT_EQ(C<QPushButton>("cmdNuevo")->property("compacto").toBool(), ancho == 640);
    }
    ventana->setParent(nullptr);
}

TEST_F(VentanaArticulos, EscapeDoesNotGiveUpTheFirstArticleOfAll) {
    mundo.preguntas.Espera(u"Está seguro de querer eliminar los datos del artículo seleccionado?"_qs, No, Si);
    Clic("cmdEliminar");
    Clic("cmdNuevo");
    Pulsa(Qt::Key_Escape);
    EXPECT_TRUE(ventana->EntradaEnCurso());
    EXPECT_EQ(Texto("txtPCompra"), u"$ 0,00");
}

template <typename Ventana> class Personas : public ConVentana<Ventana> {
  protected:
    void Abrir(const char *sql = "") {
        this->mundo.datos.Ejecutar(sql);
        this->ventana = std::make_unique<Ventana>(this->mundo.servicios(), this->anfitrion);
        MostrarVentana(*this->ventana);
    }
    // Every field goes to the column of its name: a different text in each, read back in table order.
    void ProbarCampos(const char *tabla, const char *campos, const char *columnas) {
        const QStringList nombres = QString::fromLatin1(campos).split(u' ');
        Abrir();
        this->Clic("cmdNuevo");
        for (const QString &campo : nombres)
            Teclear(this->Campo(qPrintable(campo)), campo);
        this->Clic("cmdGuardar");
        EXPECT_EQ(this->mundo.datos.Tabla(std::string("SELECT ") + columnas + " FROM " + tabla),
                  nombres.join(u'|'));
    }
};
using Clientes = Personas<FrmClientes>;
using Proveedores = Personas<FrmProveedores>;

TEST_F(Clientes, EachFieldIsStoredInItsOwnColumn) {
    ProbarCampos(
        "clientes.Clientes",
        "txtCodigo txtNombre txtNFiscal txtIFiscal txtDocumento txtDomicilio txtPoblacion txtCPostal "
        "txtProvincia txtTel1 txtTel2 txtFax txtMail txtWebPage",
        "codigo, nombre, nfiscal, ifiscal, documento, domicilio, poblacion, cpostal, provincia, tel1, "
        "tel2, fax, mail, webpage");
}

TEST_F(Proveedores, EachFieldIsStoredInItsOwnColumn) {
    ProbarCampos("proveedores.Proveedores",
                 "txtCodigo txtNombre txtNFiscal txtIFiscal txtTelefono txtFax txtDireccion txtEmail",
                 "codigo, nombre, nfiscal, ifiscal, telefono, fax, direccion, email");
}

TEST_F(Clientes, TwoShareACodeAndLeaveTheirSalesBehind) {
    Abrir("INSERT INTO clientes.Clientes(id, codigo, nombre) VALUES (1,'1','Ana'),(2,'1','Ana');"
          "INSERT INTO ventas.Ventas(idcliente, tipo) VALUES ('1','Contado')");
    EXPECT_EQ(ventana->Lista().Filas(), 2);
    mundo.preguntas.Espera(u"Está seguro de querer eliminar los datos del cliente seleccionado?"_qs, No, Si);
    Clic("cmdEliminar");
    EXPECT_EQ(mundo.datos.Tabla("SELECT idcliente FROM ventas.Ventas"), u"1");
    EXPECT_EQ(mundo.datos.Tabla("SELECT id FROM clientes.Clientes"), u"2");
}

TEST_F(Clientes, FieldsThatAFailedReadLeftHalfFilledAreNotSaved) {
    Abrir("INSERT INTO clientes.Clientes(codigo, nombre, tel2) VALUES ('1','Ana','a'),('2','Beto','b')");
    FrmBases &bases = mundo.frmBases();
    bases.datClientes.Invalidar();
    bases.datClientes.Cargar({&bases.camCliCodigo, &bases.camCliNombre});
    mundo.datos.Filas("ALTER TABLE clientes.Clientes RENAME TO Otra");
    Tecla(Lista("LVClientes"), Qt::Key_Down);
    EXPECT_EQ(Texto("txtNombre") + Texto("txtTel2"), u"Betoa");
    mundo.datos.Filas("ALTER TABLE clientes.Otra RENAME TO Clientes");
    mundo.preguntas.Espera(u"Está seguro de querer modificar los datos del cliente seleccionado?"_qs, No, Si);
    mundo.preguntas.EsperaFalla(u"El registro ya no existe."_qs);
    Clic("cmdGuardar");
    EXPECT_EQ(mundo.datos.Tabla("SELECT nombre, tel2 FROM clientes.Clientes"), u"Ana|a; Beto|b");
}

TEST_F(Proveedores, AFailedReadIsTold) {
    Abrir("INSERT INTO proveedores.Proveedores(codigo, nombre) VALUES ('1','Uno')");
    mundo.datos.Filas("ALTER TABLE proveedores.Proveedores RENAME TO Otra");
    mundo.frmBases().datProveedores.Invalidar();
    mundo.preguntas.EsperaFalla(
        u"No se pudo leer la base de datos: no such table: proveedores.Proveedores."_qs);
    Clic("cmdActualizar");
}

class PruebaUsuarios : public ConVentana<FrmUsuarios> {
  protected:
    PruebaUsuarios() {
        mundo.frmBases().AbrirUsuarios();
        ventana = std::make_unique<FrmUsuarios>(mundo.servicios());
        MostrarVentana(*ventana);
    }
    void Escribir(const char *nombre, const QString &texto) {
        Campo(nombre)->clear();
        Teclear(Campo(nombre), texto);
    }
    void Elegir(const QString &categoria) { C<QComboBox>("cboxCategoria")->setCurrentText(categoria); }
    void Guardar() { Clic("cmdUsuGuardar"); }
    void Avisa(const QString &texto) {
        mundo.preguntas.EsperaMensaje(texto);
        Guardar();
        EXPECT_TRUE(mundo.preguntas.Terminado()) << texto.toStdString();
    }
    void AgregarAna() {
        Clic("cmdUsuNuevo");
        Escribir("txtUsuNombre", u"Ana"_qs);
        Elegir(u"Administrador"_qs);
        Escribir("txtUsuClave", u"secreta"_qs);
        Escribir("txtUsuConfirma", u"secreta"_qs);
        Guardar();
    }
    void EsperaModificar() {
        mundo.preguntas.Espera(u"Está seguro de querer modificar el usuario seleccionado?"_qs, Si, Si);
    }
    QString Guardados() {
        return mundo.datos.Tabla("SELECT codigo, articulo, precio, cantidad FROM Usuarios ORDER BY id");
    }
};

TEST_F(PruebaUsuarios, ANewUserIsAskedForEverythingInTurn) {
    EXPECT_FALSE(Habilitado("txtUsuNombre"));
    Tecla(ventana.get(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(ConFoco(), u"txtUsuNombre");
    EXPECT_TRUE(Habilitado("txtUsuConfirma"));
    Avisa(u"Debe llenar el campo \"Nombre\""_qs);
    Escribir("txtUsuNombre", u"Ana"_qs);
    Avisa(u"Debe llenar el campo \"Clave\""_qs);
    Escribir("txtUsuClave", u"secreta"_qs);
    Avisa(u"Debe llenar el campo \"Confirmación\""_qs);
    Escribir("txtUsuConfirma", u"otra"_qs);
    Avisa(u"El campo \"Clave\" y el campo \"Confirmación\" deben ser iguales"_qs);
    EXPECT_EQ(ConFoco(), u"txtUsuClave");
    Escribir("txtUsuConfirma", u"secreta"_qs);
    Avisa(u"Debe seleccionar una Categoría."_qs);
    Elegir(u"Operador"_qs);
    Guardar();
    EXPECT_EQ(Guardados(), u"Ana|secreta|t917|1");
    EXPECT_EQ(Lista("LVUsuarios")->Lista()->Celda(0, 1), u"Operador");
}

TEST_F(PruebaUsuarios, TheMarkStandsForThePasswordUntilItIsTypedOver) {
    AgregarAna();
    EXPECT_EQ(Texto("txtUsuClave"), u"Velbrina");
    EXPECT_FALSE(Habilitado("txtUsuConfirma"));
    Escribir("txtUsuNombre", u"Eva"_qs);
    EsperaModificar();
    Guardar();
    EXPECT_EQ(Guardados(), u"Eva|secreta|k917|1");

    Campo("txtUsuClave")->clear();
    EXPECT_FALSE(Habilitado("txtUsuConfirma"));
    Avisa(u"Debe llenar el campo \"Clave\""_qs);
    Teclear(Campo("txtUsuClave"), u"n"_qs);
    EXPECT_TRUE(Habilitado("txtUsuConfirma"));
    EXPECT_EQ(Entrar(), u"txtUsuConfirma");
    Teclas(u"n"_qs);
    EsperaModificar();
    Entrar();
    EXPECT_EQ(Guardados(), u"Eva|n|k917|1");
    EXPECT_FALSE(Habilitado("txtUsuConfirma"));
}

TEST_F(PruebaUsuarios, NamesMayRepeatAndTheLastOneCanGo) {
    AgregarAna();
    AgregarAna();
    EXPECT_EQ(Guardados(), u"Ana|secreta|k917|1; Ana|secreta|k917|2");
    for (int i = 0; i < 2; ++i) {
        mundo.preguntas.Espera(u"Está seguro de querer eliminar el registro seleccionado?"_qs, Si, Si);
        Clic("cmdUsuEliminar");
    }
    EXPECT_EQ(Guardados(), QString());
    EXPECT_FALSE(Habilitado("txtUsuNombre"));
    EXPECT_EQ(C<QComboBox>("cboxCategoria")->currentText(), u"Categoría");
}

TEST_F(PruebaUsuarios, ATableEmptiedBehindTheWindowIsSeenOnRefreshing) {
    AgregarAna();
    mundo.frmBases().datUsuarios.MoveFirst();
    mundo.frmBases().datUsuarios.Delete();
    EsperaModificar();
    mundo.preguntas.EsperaFalla(u"El registro ya no existe."_qs);
    Guardar();
    Clic("cmdUsuActualizar");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Habilitado("txtUsuNombre"); }));
}

} // namespace
} // namespace tarvo
