// The backup window by keys and clicks, over folders of its own.
#include "interchange/ventanas/frmrespaldo.h"

#include "desktop/ventanas/listavista.h"
#include "testkit/escritorioprueba.h"
#include "testkit/impresorasprueba.h"
#include "testkit/manos.h"
#include "testkit/preguntasguion.h"
#include "testkit/relojfijo.h"
#include "tiendacambio.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>

namespace tarvo {
namespace {

constexpr const char *kSeguir = "Al recuperar los datos anteriores se sobreescribirán los actuales.\r\nDesea "
                                "continuar?";
constexpr const char *kAviso =
    "Tenga en cuenta que después de realizar el respaldo de datos, se eliminarán todos "
    "los registros de las bases de datos marcadas para vaciar.";

class VentanaRespaldo : public testing::Test {
  protected:
    void Abrir(bool conRespaldo = true) {
        if (conRespaldo)
            QDir(tienda.Carpeta()).mkdir(QStringLiteral("Respaldo"));
        ASSERT_EQ(AbrirBases(bases).estado, EstadoApertura::Completa);
        frm = std::make_unique<FrmRespaldo>(
            Servicios{bases, preguntas, reloj, impresoras, ajustes, escritorio});
        MostrarVentana(*frm);
    }
    void Guardado(const char *nombre) { // a backup that was made earlier
        QDir(tienda.Carpeta()).mkdir(QStringLiteral("Respaldo"));
        QDir(tienda.Carpeta())
            .rename(QStringLiteral("respaldo"), QStringLiteral("Respaldo/") + QString::fromUtf8(nombre));
    }
    QCheckBox *Casilla(const char *nombre) { return Control<QCheckBox>(*frm, nombre); }
    QPushButton *Boton(const char *nombre) { return Control<QPushButton>(*frm, nombre); }
    QProgressBar *Barra(const char *nombre) { return Control<QProgressBar>(*frm, nombre); }
    QString Texto(const char *nombre) { return Control<QLineEdit>(*frm, nombre)->text(); }
    ListaTexto &Respaldos() { return *Control<ListaVista>(*frm, "lstRecuperar")->Lista(); }
    void Mensaje(const char *texto, Icono icono = Icono::Informacion) {
        preguntas.EsperaMensaje(QString::fromUtf8(texto), icono);
    }
    // The five boxes: "X" ticked, "o" not, "." disabled, "!" disabled and ticked all the same.
    std::string Casillas(const char *arreglo) {
        std::string estado;
        for (int i = 0; i < kBases; ++i) {
            const QCheckBox *una =
                Casilla(qPrintable(QStringLiteral("%1(%2)").arg(QString::fromLatin1(arreglo)).arg(i)));
            estado += una->isEnabled() ? (una->isChecked() ? 'X' : 'o') : (una->isChecked() ? '!' : '.');
        }
        return estado;
    }

    TiendaCambio tienda;
    PreguntasGuion preguntas;
    RelojFijo reloj{QDateTime({2026, 11, 23}, {9, 5, 7})};
    ImpresorasPrueba impresoras;
    EscritorioPrueba escritorio;
    QSettings ajustes{tienda.Ruta("ajustes.ini"), QSettings::IniFormat};
    FrmBases bases{tienda.Ruta("Datos"), Moneda()};
    std::unique_ptr<FrmRespaldo> frm;
};

TEST_F(VentanaRespaldo, StartsOnTheFolderBesideTheDataWhenThereIsOne) {
    Abrir(false);
    EXPECT_EQ(Texto("txtRuta") + Texto("txtRutaRecuperar"), QString());
    Abrir();
    EXPECT_EQ(Texto("txtRuta"), tienda.Ruta("Respaldo/"));
    EXPECT_EQ(Texto("txtRutaRecuperar"), tienda.Ruta("Respaldo/"));
    EXPECT_EQ(frm->windowTitle(), QStringLiteral("Respaldo de información"));
    EXPECT_EQ(Casillas("chkRespaldar") + Casillas("chkVaciar") + Casillas("chkRecuperar"), "XXXXXooooo.....");
}

TEST_F(VentanaRespaldo, TheArrowsChangeThePanelAndEscapeCloses) {
    Abrir();
    Boton("cmdRespaldar")->setFocus();
    Tecla(Boton("cmdRespaldar"), Qt::Key_Down);
    EXPECT_TRUE(Control<QWidget>(*frm, "frRecuperar")->isVisible());
    EXPECT_TRUE(Control<QWidget>(*frm, "shRecuperar")->isVisible());
    EXPECT_EQ(ConFoco(), QStringLiteral("cmdRecuperar"));
    Tecla(Boton("cmdRecuperar"), Qt::Key_Up);
    EXPECT_TRUE(Control<QWidget>(*frm, "frRespaldar")->isVisible());
    EXPECT_FALSE(Control<QWidget>(*frm, "shRecuperar")->isVisible());
    EXPECT_EQ(ConFoco(), QStringLiteral("cmdRespaldar"));
    Tecla(Boton("cmdRespaldar"), Qt::Key_Escape);
    EXPECT_FALSE(frm->isVisible());
}

TEST_F(VentanaRespaldo, ADatabaseIsEmptiedOnlyWhenItIsCopiedAndHasItsTemplate) {
    Abrir();
    Mensaje(kAviso);
    Casilla("chkVaciar(1)")->click();
    Casilla("chkRespaldar(1)")->click();
    EXPECT_EQ(Casillas("chkVaciar"), "o.ooo");
    Casilla("chkRespaldar(1)")->click();
    EXPECT_EQ(Casillas("chkVaciar"), "ooooo");
    const char *const nombres[] = {"configuración", "ventas", "artículos", "clientes", "proveedores"};
    for (std::size_t i = 0; i < kBases; ++i) {
        QFile::remove(tienda.Ruta("Datos/vacio/") + BasesRespaldo()[i].archivo);
        Mensaje(qPrintable(QStringLiteral(
                               "No se puede vaciar la base de datos de %1.\r\nNo se encuentra el archivo.")
                               .arg(QString::fromUtf8(nombres[i]))),
                Icono::Critico);
        Casilla(qPrintable(QStringLiteral("chkVaciar(%1)").arg(i)))->click();
    }
    EXPECT_EQ(Casillas("chkVaciar"), "ooooo");
    QDir(tienda.Ruta("Datos")).rmdir(QStringLiteral("vacio"));
    Casilla("chkVaciar(0)")->click();
    EXPECT_EQ(Casillas("chkVaciar"), "Xoooo") << "without the folder nothing is said";
}

TEST_F(VentanaRespaldo, BacksUpEmptiesAndGoesOn) {
    Abrir();
    Mensaje(kAviso);
    Casilla("chkVaciar(1)")->click();
    Casilla("chkRespaldar(4)")->click();
    Mensaje("El respaldo se realizó con éxito.");
    Boton("cmdIniciar")->setFocus();
    Tecla(Boton("cmdIniciar"), Qt::Key_Return);
    EXPECT_EQ(tienda.Marcas("Respaldo/2026 11 23-09 05 07"), "viejo viejo viejo viejo falta");
    EXPECT_EQ(bases.datVentas.RecordCount(), 0);
    EXPECT_EQ(bases.datArticulos.RecordCount(), 1) << "the data are open again";
    EXPECT_EQ(Casillas("chkVaciar"), "oooo.");
    EXPECT_EQ(Barra("PB1")->maximum(), 5);
    EXPECT_EQ(Barra("PB1")->value(), 5);
    EXPECT_TRUE(Barra("PB1")->isVisible());
    EXPECT_FALSE(Boton("cmdIniciar")->isEnabled());
    EXPECT_TRUE(QTest::qWaitFor([&] { return Boton("cmdIniciar")->isEnabled(); }));
    EXPECT_FALSE(Barra("PB1")->isVisible());
    for (int i = 0; i < 4; ++i)
        Casilla(qPrintable(QStringLiteral("chkRespaldar(%1)").arg(i)))->setChecked(false);
    Mensaje("Debe seleccionar al menos una base de datos a respaldar.");
    Pulsar(Boton("cmdIniciar"));
    EXPECT_EQ(ConFoco(), QStringLiteral("chkRespaldar(0)"));
}

TEST_F(VentanaRespaldo, AFailureLeavesTheDataClosedUntilTheWindowEnds) {
    Abrir();
    QDir(tienda.Carpeta()).mkdir(QStringLiteral("otra"));
    Control<QLineEdit>(*frm, "txtRuta")->setText(tienda.Ruta("otra"));
    QFile::rename(tienda.Ruta("Datos/vacio"), tienda.Ruta("vacio"));
    Casilla("chkVaciar(1)")->click();
    Mensaje("No se pudo leer \"ventas.mdb\": no se encuentra la ruta o el archivo.", Icono::Critico);
    Pulsar(Boton("cmdIniciar"));
    EXPECT_EQ(tienda.Marcas("otra/2026 11 23-09 05 07"), "viejo viejo falta falta falta");
    EXPECT_FALSE(bases.datVentas.Abierto());
    EXPECT_FALSE(Boton("cmdIniciar")->isEnabled());
    frm->close();
    EXPECT_EQ(bases.datVentas.RecordCount(), 1);
    Abrir();
    Mensaje("No se encuentra la ruta \"\".", Icono::Critico);
    Control<QLineEdit>(*frm, "txtRuta")->clear();
    Pulsar(Boton("cmdIniciar"));
    EXPECT_TRUE(Boton("cmdIniciar")->isEnabled());
    EXPECT_TRUE(bases.datVentas.Abierto());
}

TEST_F(VentanaRespaldo, RestoresWhatIsTickedOfTheBackupThatIsChosen) {
    Guardado("2026 11 20-10 00 00");
    QDir(tienda.Ruta("Respaldo")).mkdir(QStringLiteral("2026 11 21-10 00 00"));
    QFile::copy(tienda.Ruta("Datos/vacio/ventas.mdb"),
                tienda.Ruta("Respaldo/2026 11 21-10 00 00/ventas.mdb"));
    Abrir();
    Pulsar(Boton("cmdRecuperar"));
    ASSERT_EQ(Respaldos().Filas(), 2);
    EXPECT_EQ(Respaldos().Celda(0, 0), QStringLiteral("2026 11 20-10 00 00"));
    EXPECT_EQ(Casillas("chkRecuperar"), "ooooo");
    Mensaje("Debe seleccionar al menos una base de datos a recuperar.");
    Pulsar(Boton("cmdIniciarRecuperar"));
    Casilla("chkRecuperar(1)")->click();
    Casilla("chkRecuperar(3)")->click();
    Tecla(Control<ListaVista>(*frm, "lstRecuperar"), Qt::Key_Down);
    EXPECT_EQ(Casillas("chkRecuperar"), ".X...") << "what that backup lacks is unticked";
    Tecla(Control<ListaVista>(*frm, "lstRecuperar"), Qt::Key_Up);
    EXPECT_EQ(Casillas("chkRecuperar"), "oXooo");
    preguntas.Espera(QString::fromUtf8(kSeguir), Respuesta::No, Respuesta::No);
    Pulsar(Boton("cmdIniciarRecuperar"));
    EXPECT_TRUE(bases.datVentas.Abierto());
    preguntas.Espera(QString::fromUtf8(kSeguir), Respuesta::No, Respuesta::Si);
    Mensaje("Los datos se han restaurado correctamente.");
    Pulsar(Boton("cmdIniciarRecuperar"));
    bases.datVentas.MoveFirst();
    EXPECT_EQ(bases.camVentNumComp.Texto(), QStringLiteral("nuevo"));
    EXPECT_EQ(Barra("PB2")->value(), 5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Boton("cmdIniciarRecuperar")->isEnabled(); }));
    bases.Cerrar();
    EXPECT_EQ(tienda.Marcas("Datos"), "viejo nuevo viejo viejo viejo");
}

TEST_F(VentanaRespaldo, AFolderThatIsPickedFillsTheList) {
    Guardado("2026 11 20-10 00 00");
    Abrir();
    Pulsar(Boton("cmdRecuperar"));
    PedidoRuta pedido{.para = PedidoRuta::Para::Carpeta,
                      .titulo = QStringLiteral("Seleccione la carpeta donde se encuentran los respaldos"),
                      .filtro = QString(),
                      .carpeta = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation)};
    preguntas.EsperaRuta(pedido, QString());
    Pulsar(Boton("cmdExaminarRecuperar"));
    EXPECT_EQ(Respaldos().Filas(), 1);
    preguntas.EsperaRuta(pedido, tienda.Ruta("Datos/vacio"));
    Pulsar(Boton("cmdExaminarRecuperar"));
    EXPECT_EQ(Texto("txtRutaRecuperar"), tienda.Ruta("Datos/vacio/"));
    EXPECT_EQ(Respaldos().Filas(), 0);
    EXPECT_EQ(Casillas("chkRecuperar"), ".....");
    Mensaje("No hay respaldos en la carpeta seleccionada.");
    Pulsar(Boton("cmdIniciarRecuperar"));
    pedido.titulo = QStringLiteral("Seleccione la carpeta donde se guardará el respaldo");
    preguntas.EsperaRuta(pedido, tienda.Ruta("Datos"));
    Pulsar(Boton("cmdRespaldar"));
    Pulsar(Boton("cmdExaminar"));
    EXPECT_EQ(Texto("txtRuta"), tienda.Ruta("Datos/"));
}

// Keys that arrive while files are copied start nothing; Escape ends the work behind a whole file.
TEST_F(VentanaRespaldo, LeavingWaitsForAWholeFile) {
    Abrir();
    QTimer::singleShot(0, frm.get(), [this] {
        EXPECT_FALSE(Boton("cmdIniciar")->isEnabled());
        QTest::keyClick(frm.get(), Qt::Key_Down);
        QTest::mouseClick(Boton("cmdRecuperar"), Qt::LeftButton);
        frm->close();
        EXPECT_TRUE(frm->isVisible());
        QTest::keyClick(frm.get(), Qt::Key_Escape);
    });
    Mensaje("El respaldo se interrumpió: no se copiaron todos los archivos.");
    Boton("cmdIniciar")->click();
    EXPECT_FALSE(frm->isVisible());
    EXPECT_TRUE(Control<QWidget>(*frm, "shRespaldar")->isVisibleTo(frm.get()));
    EXPECT_EQ(bases.datVentas.RecordCount(), 1);
}

} // namespace
} // namespace tarvo
