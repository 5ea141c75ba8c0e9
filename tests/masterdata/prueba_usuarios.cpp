#include "masterdata/ventanas/frmusuarios.h"

#include "desktop/ventanas/listavista.h"
#include "testkit/mundoprueba.h"

#include <QComboBox>
#include <QLineEdit>

namespace tarvo {
namespace {

class PruebaUsuarios : public ::testing::Test {
  protected:
    MundoPrueba mundo;
    std::unique_ptr<FrmUsuarios> frm;

    void Abrir() {
        mundo.frmBases().AbrirUsuarios();
        frm = std::make_unique<FrmUsuarios>(mundo.servicios());
        MostrarVentana(*frm);
    }
    QLineEdit *Campo(const char *nombre) { return Control<QLineEdit>(*frm, nombre); }
    void Escribir(const char *nombre, const QString &texto) {
        Campo(nombre)->clear();
        Teclear(Campo(nombre), texto);
    }
    void Elegir(const char *categoria) {
        Control<QComboBox>(*frm, "cboxCategoria")->setCurrentText(QString::fromUtf8(categoria));
    }
    void Guardar() { Pulsar(Control<QWidget>(*frm, "cmdUsuGuardar")); }
    void Avisa(const char *texto) {
        mundo.preguntas.EsperaMensaje(QString::fromUtf8(texto), Icono::Informacion);
        Guardar();
        EXPECT_TRUE(mundo.preguntas.Terminado()) << texto;
    }
    void AgregarAna() {
        Pulsar(Control<QWidget>(*frm, "cmdUsuNuevo"));
        Escribir("txtUsuNombre", QStringLiteral("Ana"));
        Elegir("Administrador");
        Escribir("txtUsuClave", QStringLiteral("secreta"));
        Escribir("txtUsuConfirma", QStringLiteral("secreta"));
        Guardar();
    }
    std::vector<std::vector<QString>> Guardados() {
        return mundo.datos.Filas("SELECT codigo, articulo, precio, cantidad FROM Usuarios ORDER BY id");
    }
};
using Fila = std::vector<QString>;

TEST_F(PruebaUsuarios, ANewUserIsAskedForEverythingInTurn) {
    Abrir();
    EXPECT_FALSE(Campo("txtUsuNombre")->isEnabled());
    Pulsar(Control<QWidget>(*frm, "cmdUsuNuevo"));
    EXPECT_EQ(ConFoco(), QStringLiteral("txtUsuNombre"));
    EXPECT_TRUE(Campo("txtUsuConfirma")->isEnabled());
    Avisa("Debe llenar el campo \"Nombre\"");
    Escribir("txtUsuNombre", QStringLiteral("Ana"));
    Avisa("Debe llenar el campo \"Clave\"");
    Escribir("txtUsuClave", QStringLiteral("secreta"));
    Avisa("Debe llenar el campo \"Confirmación\"");
    Escribir("txtUsuConfirma", QStringLiteral("otra"));
    Avisa("El campo \"Clave\" y el campo \"Confirmación\" deben ser iguales");
    EXPECT_EQ(ConFoco(), QStringLiteral("txtUsuClave"));
    Escribir("txtUsuConfirma", QStringLiteral("secreta"));
    Avisa("Debe seleccionar una Categoría.");
    Elegir("Operador");
    Guardar();
    EXPECT_EQ(Guardados(), std::vector<Fila>{Fila({QStringLiteral("Ana"), QStringLiteral("secreta"),
                                                   QStringLiteral("t917"), QStringLiteral("1")})});
    EXPECT_EQ(Control<ListaVista>(*frm, "LVUsuarios")->Lista()->Celda(0, 1), QStringLiteral("Operador"));
}

TEST_F(PruebaUsuarios, TheMarkStandsForThePasswordUntilItIsTypedOver) {
    Abrir();
    AgregarAna();
    EXPECT_EQ(Campo("txtUsuClave")->text(), QStringLiteral("Velbrina"));
    EXPECT_FALSE(Campo("txtUsuConfirma")->isEnabled());
    const QString pregunta = QStringLiteral("Está seguro de querer modificar el usuario seleccionado?");
    Escribir("txtUsuNombre", QStringLiteral("Eva"));
    mundo.preguntas.Espera(pregunta, Respuesta::Si, Respuesta::Si);
    Guardar();
    EXPECT_EQ(Guardados()[0][1], QStringLiteral("secreta"));

    Campo("txtUsuClave")->clear();
    EXPECT_FALSE(Campo("txtUsuConfirma")->isEnabled());
    Avisa("Debe llenar el campo \"Clave\"");
    Teclear(Campo("txtUsuClave"), QStringLiteral("n"));
    EXPECT_TRUE(Campo("txtUsuConfirma")->isEnabled());
    Tecla(Campo("txtUsuClave"), Qt::Key_Return);
    EXPECT_EQ(ConFoco(), QStringLiteral("txtUsuConfirma"));
    Teclear(Campo("txtUsuConfirma"), QStringLiteral("n"));
    mundo.preguntas.Espera(pregunta, Respuesta::Si, Respuesta::Si);
    Tecla(Campo("txtUsuConfirma"), Qt::Key_Return);
    EXPECT_EQ(Guardados()[0], Fila({QStringLiteral("Eva"), QStringLiteral("n"), QStringLiteral("k917"),
                                    QStringLiteral("1")}));
    EXPECT_FALSE(Campo("txtUsuConfirma")->isEnabled());
}

TEST_F(PruebaUsuarios, NamesMayRepeatAndTheLastOneCanGo) {
    Abrir();
    AgregarAna();
    AgregarAna();
    EXPECT_EQ(Guardados().size(), 2U);
    for (int i = 0; i < 2; ++i) {
        mundo.preguntas.Espera(QStringLiteral("Está seguro de querer eliminar el registro seleccionado?"),
                               Respuesta::Si, Respuesta::Si);
        Pulsar(Control<QWidget>(*frm, "cmdUsuEliminar"));
    }
    EXPECT_TRUE(Guardados().empty());
    EXPECT_FALSE(Campo("txtUsuNombre")->isEnabled());
    EXPECT_EQ(Control<QComboBox>(*frm, "cboxCategoria")->currentText(), QStringLiteral("Categoría"));
}

TEST_F(PruebaUsuarios, ATableEmptiedBehindTheWindowIsSeenOnRefreshing) {
    Abrir();
    AgregarAna();
    mundo.frmBases().datUsuarios.MoveFirst();
    mundo.frmBases().datUsuarios.Delete();
    mundo.preguntas.Espera(QStringLiteral("Está seguro de querer modificar el usuario seleccionado?"),
                           Respuesta::Si, Respuesta::Si);
    mundo.preguntas.EsperaMensaje(QStringLiteral("El registro ya no existe."), Icono::Critico);
    Guardar();
    Pulsar(Control<QWidget>(*frm, "cmdUsuActualizar"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Campo("txtUsuNombre")->isEnabled(); }));
}

} // namespace
} // namespace tarvo
