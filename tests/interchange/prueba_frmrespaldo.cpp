// The backup window by keys and clicks, over folders of its own.
#include "interchange/ventanas/frmrespaldo.h"

#include "testkit/conventana.h"
#include "tiendacambio.h"

#include <QProgressBar>
#include <QStandardPaths>

namespace tarvo {
namespace {

const QString kAviso =
    u"Tenga en cuenta que después de realizar el respaldo de datos, se eliminarán todos los registros de las "
    "bases de datos marcadas para vaciar."_qs;

class VentanaRespaldo : public ConVentana<FrmRespaldo> {
  protected:
    VentanaRespaldo() { mundo.reloj.Poner(QDateTime({2026, 11, 23}, {9, 5, 7})); }
    ~VentanaRespaldo() override { ventana.reset(); } // before the data that it opens again

    void Abrir(bool conRespaldo = true) {
        if (conRespaldo)
            QDir(tienda.Carpeta()).mkdir(u"Respaldo"_qs);
        ASSERT_EQ(AbrirBases(bases).estado, EstadoApertura::Completa);
        ventana = std::make_unique<FrmRespaldo>(mundo.Con(bases));
        MostrarVentana(*ventana);
    }
    void Guardado(const char *nombre) { // a backup that was made earlier
        QDir(tienda.Carpeta()).mkdir(u"Respaldo"_qs);
        QDir(tienda.Carpeta()).rename(u"respaldo"_qs, u"Respaldo/"_qs + QString::fromUtf8(nombre));
    }
    QCheckBox *Casilla(const char *arreglo, std::size_t i) {
        return C<QCheckBox>(qPrintable(u"%1(%2)"_qs.arg(QLatin1String(arreglo)).arg(i)));
    }
    ListaTexto &Respaldos() { return *Lista("lstRecuperar")->Lista(); }
    void Mensaje(const QString &texto) { mundo.preguntas.EsperaMensaje(texto); }
    void Falla(const QString &texto) { mundo.preguntas.EsperaFalla(texto); }
    void EsperaSeguir(Respuesta respuesta) {
        mundo.preguntas.Espera(u"Al recuperar los datos anteriores se sobreescribirán los actuales.\r\nDesea "
                               "continuar?"_qs,
                               No, respuesta);
    }
    // The five boxes: "X" ticked, "o" not, "." disabled, "!" disabled and ticked all the same.
    std::string Casillas(const char *arreglo) {
        std::string estado;
        for (std::size_t i = 0; i < kBases; ++i) {
            const QCheckBox *una = Casilla(arreglo, i);
            estado += una->isEnabled() ? (una->isChecked() ? 'X' : 'o') : (una->isChecked() ? '!' : '.');
        }
        return estado;
    }

    TiendaCambio tienda;
    FrmBases bases{tienda.Ruta("Datos"), Moneda()};
};

TEST_F(VentanaRespaldo, StartsOnTheFolderBesideTheDataWhenThereIsOne) {
    Abrir(false);
    EXPECT_EQ(Texto("txtRuta") + Texto("txtRutaRecuperar"), QString());
    Abrir();
    EXPECT_EQ(Texto("txtRuta"), tienda.Ruta("Respaldo/"));
    EXPECT_EQ(Texto("txtRutaRecuperar"), tienda.Ruta("Respaldo/"));
    EXPECT_EQ(ventana->windowTitle(), u"Respaldo de información");
    EXPECT_EQ(Casillas("chkRespaldar") + Casillas("chkVaciar") + Casillas("chkRecuperar"), "XXXXXooooo.....");
}

TEST_F(VentanaRespaldo, TheArrowsChangeThePanelAndEscapeCloses) {
    Abrir();
    C<QPushButton>("cmdRespaldar")->setFocus();
    Tecla(C("cmdRespaldar"), Qt::Key_Down);
    EXPECT_TRUE(Se("frRecuperar") && Se("shRecuperar"));
    EXPECT_EQ(ConFoco(), u"cmdRecuperar");
    Tecla(C("cmdRecuperar"), Qt::Key_Up);
    EXPECT_TRUE(Se("frRespaldar") && !Se("shRecuperar"));
    EXPECT_EQ(ConFoco(), u"cmdRespaldar");
    Tecla(C("cmdRespaldar"), Qt::Key_Escape);
    EXPECT_FALSE(ventana->isVisible());
}

TEST_F(VentanaRespaldo, ADatabaseIsEmptiedOnlyWhenItIsCopiedAndHasItsTemplate) {
    Abrir();
    Mensaje(kAviso);
    Casilla("chkVaciar", 1)->click();
    Casilla("chkRespaldar", 1)->click();
    EXPECT_EQ(Casillas("chkVaciar"), "o.ooo");
    Casilla("chkRespaldar", 1)->click();
    EXPECT_EQ(Casillas("chkVaciar"), "ooooo");
    const char *const nombres[] = {"configuración", "ventas", "artículos", "clientes", "proveedores"};
    for (std::size_t i = 0; i < kBases; ++i) {
        QFile::remove(tienda.Ruta("Datos/vacio/") + BasesRespaldo()[i].archivo);
        Falla(u"No se puede vaciar la base de datos de %1.\r\nNo se encuentra el archivo."_qs.arg(
            QString::fromUtf8(nombres[i])));
        Casilla("chkVaciar", i)->click();
    }
    EXPECT_EQ(Casillas("chkVaciar"), "ooooo");
    QDir(tienda.Ruta("Datos")).rmdir(u"vacio"_qs);
    Casilla("chkVaciar", 0)->click();
    EXPECT_EQ(Casillas("chkVaciar"), "Xoooo") << "without the folder nothing is said";
}

TEST_F(VentanaRespaldo, BacksUpEmptiesAndGoesOn) {
    Abrir();
    Mensaje(kAviso);
    Casilla("chkVaciar", 1)->click();
    Casilla("chkRespaldar", 4)->click();
    Mensaje(u"El respaldo se realizó con éxito."_qs);
    C<QPushButton>("cmdIniciar")->setFocus();
    Tecla(C("cmdIniciar"), Qt::Key_Return);
    EXPECT_EQ(tienda.Marcas("Respaldo/2026 11 23-09 05 07"), "viejo viejo viejo viejo falta");
    EXPECT_EQ(bases.datVentas.RecordCount(), 0);
    EXPECT_EQ(bases.datArticulos.RecordCount(), 1) << "the data are open again";
    EXPECT_EQ(Casillas("chkVaciar"), "oooo.");
    EXPECT_EQ(C<QProgressBar>("PB1")->maximum(), 5);
    EXPECT_EQ(C<QProgressBar>("PB1")->value(), 5);
    EXPECT_TRUE(Se("PB1"));
    EXPECT_FALSE(Habilitado("cmdIniciar"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Habilitado("cmdIniciar"); }));
    EXPECT_FALSE(Se("PB1"));
    for (std::size_t i = 0; i < 4; ++i)
        Casilla("chkRespaldar", i)->setChecked(false);
    Mensaje(u"Debe seleccionar al menos una base de datos a respaldar."_qs);
    EXPECT_EQ(Clic("cmdIniciar"), u"chkRespaldar(0)");
}

TEST_F(VentanaRespaldo, AFailureLeavesTheDataClosedUntilTheWindowEnds) {
    Abrir();
    QDir(tienda.Carpeta()).mkdir(u"otra"_qs);
    Campo("txtRuta")->setText(tienda.Ruta("otra"));
    QFile::rename(tienda.Ruta("Datos/vacio"), tienda.Ruta("vacio"));
    Casilla("chkVaciar", 1)->click();
    Falla(u"No se pudo leer \"ventas.mdb\": no se encuentra la ruta o el archivo."_qs);
    Clic("cmdIniciar");
    EXPECT_EQ(tienda.Marcas("otra/2026 11 23-09 05 07"), "viejo viejo falta falta falta");
    EXPECT_FALSE(bases.datVentas.Abierto());
    EXPECT_FALSE(Habilitado("cmdIniciar"));
    ventana->close();
    EXPECT_EQ(bases.datVentas.RecordCount(), 1);
    Abrir();
    Falla(u"No se encuentra la ruta \"\"."_qs);
    Campo("txtRuta")->clear();
    Clic("cmdIniciar");
    EXPECT_TRUE(Habilitado("cmdIniciar"));
    EXPECT_TRUE(bases.datVentas.Abierto());
}

TEST_F(VentanaRespaldo, RestoresWhatIsTickedOfTheBackupThatIsChosen) {
    Guardado("2026 11 20-10 00 00");
    QDir(tienda.Ruta("Respaldo")).mkdir(u"2026 11 21-10 00 00"_qs);
    QFile::copy(tienda.Ruta("Datos/vacio/ventas.mdb"),
                tienda.Ruta("Respaldo/2026 11 21-10 00 00/ventas.mdb"));
    Abrir();
    Clic("cmdRecuperar");
    ASSERT_EQ(Respaldos().Filas(), 2);
    EXPECT_EQ(Respaldos().Celda(0, 0), u"2026 11 20-10 00 00");
    EXPECT_EQ(Casillas("chkRecuperar"), "ooooo");
    Mensaje(u"Debe seleccionar al menos una base de datos a recuperar."_qs);
    Clic("cmdIniciarRecuperar");
    Casilla("chkRecuperar", 1)->click();
    Casilla("chkRecuperar", 3)->click();
    Tecla(Lista("lstRecuperar"), Qt::Key_Down);
    EXPECT_EQ(Casillas("chkRecuperar"), ".X...") << "what that backup lacks is unticked";
    Tecla(Lista("lstRecuperar"), Qt::Key_Up);
    EXPECT_EQ(Casillas("chkRecuperar"), "oXooo");
    EsperaSeguir(No);
    Clic("cmdIniciarRecuperar");
    EXPECT_TRUE(bases.datVentas.Abierto());
    EsperaSeguir(Si);
    Mensaje(u"Los datos se han restaurado correctamente."_qs);
    Clic("cmdIniciarRecuperar");
    bases.datVentas.MoveFirst();
    EXPECT_EQ(bases.camVentNumComp.Texto(), u"nuevo");
    EXPECT_EQ(C<QProgressBar>("PB2")->value(), 5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Habilitado("cmdIniciarRecuperar"); }));
    bases.Cerrar();
    EXPECT_EQ(tienda.Marcas("Datos"), "viejo nuevo viejo viejo viejo");
}

TEST_F(VentanaRespaldo, AFolderThatIsPickedFillsTheList) {
    Guardado("2026 11 20-10 00 00");
    Abrir();
    Clic("cmdRecuperar");
    const QString escritorio = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    PedidoRuta pedido{.para = PedidoRuta::Para::Carpeta,
                      .titulo = u"Seleccione la carpeta donde se encuentran los respaldos"_qs,
                      .filtro = QString(),
                      .carpeta = QDir(escritorio).exists() ? escritorio : QDir::homePath()};
    mundo.preguntas.EsperaRuta(pedido, QString());
    Clic("cmdExaminarRecuperar");
    EXPECT_EQ(Respaldos().Filas(), 1);
    mundo.preguntas.EsperaRuta(pedido, tienda.Ruta("Datos/vacio"));
    Clic("cmdExaminarRecuperar");
    EXPECT_EQ(Texto("txtRutaRecuperar"), tienda.Ruta("Datos/vacio/"));
    EXPECT_EQ(Respaldos().Filas(), 0);
    EXPECT_EQ(Casillas("chkRecuperar"), ".....");
    Mensaje(u"No hay respaldos en la carpeta seleccionada."_qs);
    Clic("cmdIniciarRecuperar");
    pedido.titulo = u"Seleccione la carpeta donde se guardará el respaldo"_qs;
    mundo.preguntas.EsperaRuta(pedido, tienda.Ruta("Datos"));
    Clic("cmdRespaldar");
    Clic("cmdExaminar");
    EXPECT_EQ(Texto("txtRuta"), tienda.Ruta("Datos/"));
}

// Keys that arrive while files are copied start nothing; Escape ends the work behind a whole file.
TEST_F(VentanaRespaldo, LeavingWaitsForAWholeFile) {
    Abrir();
    QTimer::singleShot(0, ventana.get(), [this] {
        EXPECT_FALSE(Habilitado("cmdIniciar"));
        QTest::keyClick(ventana.get(), Qt::Key_Down);
        QTest::mouseClick(C("cmdRecuperar"), Qt::LeftButton);
        ventana->close();
        EXPECT_TRUE(ventana->isVisible());
        QTest::keyClick(ventana.get(), Qt::Key_Escape);
    });
    Mensaje(u"El respaldo se interrumpió: no se copiaron todos los archivos."_qs);
    C<QPushButton>("cmdIniciar")->click();
    EXPECT_FALSE(ventana->isVisible());
    EXPECT_TRUE(C("shRespaldar")->isVisibleTo(ventana.get()));
    EXPECT_EQ(bases.datVentas.RecordCount(), 1);
}

} // namespace
} // namespace tarvo
