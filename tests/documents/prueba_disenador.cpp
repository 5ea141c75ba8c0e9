// The invoice designer by mouse, keys and commands.
#include "documents/archivofactura.h"
#include "documents/ventanas/frmfactura.h"
#include "documents/ventanas/frmfacturaadmin.h"
#include "documents/ventanas/frmfacturaetiqueta.h"
#include "documents/ventanas/lienzo.h"
#include "testkit/mundoprueba.h"

#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

using namespace tarvo;

namespace {

const QString kFacturas = QStringLiteral("Facturas Velbrina|*.kzd");
const QString kImagenes = QStringLiteral("Todas las imágenes|*.jpg;*.jpeg;*.bmp;*.gif");
const QString kNoFormato = QStringLiteral("No se reconoce el formato del archivo.");

class DisenadorPrueba : public testing::Test {
  protected:
    FrmFactura &Abrir() {
        frmFactura = std::make_unique<FrmFactura>(mundo.servicios(), Facturas());
        MostrarVentana(*frmFactura);
        return *frmFactura;
    }
    QString Facturas() const { return carpeta.filePath(QStringLiteral("facturas")); }
    QLabel *Pieza(const char *nombre) { return Control<QLabel>(*frmFactura, nombre); }
    QString Posicion() { return Control<QLabel>(*frmFactura, "lblPosicion")->text(); }

    // Takes the piece in its middle and lets it go with the cursor at this point of the canvas.
    void Arrastrar(QLabel *pieza, const QPoint &hasta) {
        const QPoint medio = pieza->rect().center();
        QTest::mousePress(pieza, Qt::LeftButton, {}, medio);
        Mover(pieza, hasta);
        QTest::mouseRelease(pieza, Qt::LeftButton, {}, pieza->mapFrom(pieza->parentWidget(), hasta));
    }
    static void Mover(QLabel *pieza, const QPoint &hasta) {
        const QPoint local = pieza->mapFrom(pieza->parentWidget(), hasta);
        QMouseEvent evento(QEvent::MouseMove, local, pieza->parentWidget()->mapToGlobal(hasta), Qt::NoButton,
                           Qt::LeftButton, {});
        QApplication::sendEvent(pieza, &evento);
    }
    void EsperaArchivo(PedidoRuta::Para para, const char *titulo, const QString &contestar) {
        mundo.preguntas.EsperaRuta({para, QString::fromUtf8(titulo), kFacturas, Facturas()}, contestar);
    }
    void EsperaAbrir(const QString &contestar) {
        EsperaArchivo(PedidoRuta::Para::Abrir, "Abrir factura...", contestar);
        Pulsar(Control<QWidget>(*frmFactura, "cmdAbrir"));
    }
    void EsperaGuardar(const QString &contestar) {
        EsperaArchivo(PedidoRuta::Para::Guardar, "Guardar factura...", contestar);
        Pulsar(Control<QWidget>(*frmFactura, "cmdGuardar"));
    }
    QString Ruta() {
        mundo.frmBases().datFactura.MoveFirst();
        return mundo.frmBases().camFacRutaFactura.Texto();
    }
    void PonerRuta(const QString &ruta) {
        mundo.datos.Ejecutar(
            QStringLiteral("UPDATE main.Factura SET rutafactura='%1'").arg(ruta).toUtf8().constData());
    }
    // Runs `hacer` on the modal dialog that `abrir` opens.
    template <typename Dialogo, typename Hacer> void EnDialogo(const char *boton, const Hacer &hacer) {
        QTimer::singleShot(0, frmFactura.get(), [hacer] {
            auto *dialogo = qobject_cast<Dialogo *>(QApplication::activeModalWidget());
            ASSERT_NE(dialogo, nullptr);
            hacer(*dialogo);
            if (dialogo->isVisible())
                Tecla(dialogo, Qt::Key_Escape);
        });
        Pulsar(Control<QWidget>(*frmFactura, boton));
        MostrarVentana(*frmFactura);
    }

    MundoPrueba mundo;
    QTemporaryDir carpeta;
    std::unique_ptr<FrmFactura> frmFactura;
};

} // namespace

TEST_F(DisenadorPrueba, ShowsTheDefaultLayout) {
    mundo.ajustes.setValue("ImpTick", QStringLiteral("Tickets"));
    Abrir();
    EXPECT_EQ(frmFactura->windowTitle(), QStringLiteral("Velbrina Tarvo 2.9 - Diseñador de facturas"));
    EXPECT_EQ(mundo.impresoras.actual, QStringLiteral("Tickets"));
    EXPECT_EQ(Pieza("lblCliNombre")->geometry(), QRect(256, 48, 243, 16));
    EXPECT_EQ(Pieza("lblCliNombre")->text(), QStringLiteral("Nombre Cliente"));
    EXPECT_EQ(Pieza("lblDetCodigo")->palette().color(QPalette::Window), QColor(0, 192, 0));
    EXPECT_EQ(Pieza("imgLogo")->geometry(), QRect(16, 16, 160, 90));
    EXPECT_FALSE(Pieza("lblPers(29)")->isVisible());
    EXPECT_EQ(Pieza("lblPers(29)")->geometry(), QRect(48, 304, 75, 16));
    EXPECT_EQ(Control<QWidget>(*frmFactura, "picFactura")->size(), QSize(695, 417));
}

// The corner follows the cursor without an offset; the piece may leave the canvas until it is let go.
TEST_F(DisenadorPrueba, DragsByTheMouseAndClampsAtTheDrop) {
    Abrir();
    QLabel *nombre = Pieza("lblCliNombre");
    Arrastrar(nombre, {100, 200});
    EXPECT_EQ(nombre->pos(), QPoint(100, 200));
    EXPECT_EQ(Posicion(), QStringLiteral("Nombre Cliente · 26,5 mm · 52,9 mm"));
    QTest::mousePress(nombre, Qt::LeftButton);
    Mover(nombre, {-50, 1000});
    EXPECT_EQ(nombre->pos(), QPoint(-50, 1000));
    QTest::mouseRelease(nombre, Qt::LeftButton);
    EXPECT_EQ(nombre->pos(), QPoint(0, (6260 - 240) / 15));
    Arrastrar(Pieza("imgLogo"), {5000, -3});
    EXPECT_EQ(Pieza("imgLogo")->pos(), QPoint(535, 0)); // (10430 - 2400) / 15 = 535.3
    QTest::mousePress(nombre, Qt::RightButton);
    Mover(nombre, {10, 10});
    EXPECT_EQ(nombre->pos(), QPoint(0, 401));
}

TEST_F(DisenadorPrueba, KeysMoveHideUndoAndWalk) {
    Abrir();
    QLabel *codigo = Pieza("lblCliCodigo");
    codigo->setFocus();
    Tecla(codigo, Qt::Key_Right);
    Tecla(codigo, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(codigo->pos(), QPoint(257, 34));
    for (int i = 0; i < 5; ++i)
        Tecla(codigo, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(codigo->pos(), QPoint(257, 0));
    for (int i = 0; i < 10; ++i)
        Tecla(frmFactura.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(codigo->pos(), QPoint(256, 24));
    Tecla(frmFactura.get(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(codigo->pos(), QPoint(257, 24));

    const QString pregunta = QStringLiteral("Desea ocultar el campo seleccionado?");
    for (const Respuesta respuesta : {Respuesta::No, Respuesta::Si}) {
        mundo.preguntas.Espera(pregunta, Respuesta::No, respuesta);
        Tecla(codigo, Qt::Key_Delete);
        EXPECT_EQ(codigo->isVisible(), respuesta == Respuesta::No);
    }
    EXPECT_EQ(ConFoco(), QStringLiteral("lblCliNombre"));
    EXPECT_EQ(Posicion(), QStringLiteral("Nombre Cliente · 67,7 mm · 12,7 mm"));
    Tecla(frmFactura.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(codigo->isVisible());
    for (const char *nombre : {"lblCliIdFiscal", "lblCliCFinal", "lblNComprobante"}) {
        Tecla(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(ConFoco(), QString::fromUtf8(nombre));
    }
}

TEST_F(DisenadorPrueba, DoubleClickAsksByTheKindOfPiece) {
    Abrir();
    mundo.preguntas.Espera(QStringLiteral("Desea ocultar el logotipo de la empresa?"), Respuesta::No,
                           Respuesta::Si);
    QTest::mouseDClick(Pieza("imgLogo"), Qt::LeftButton);
    EXPECT_FALSE(Pieza("imgLogo")->isVisible());
    EnDialogo<FrmFacturaEtiqueta>("cmdInsEtiqueta", [](FrmFacturaEtiqueta &dialogo) {
        Control<QLineEdit>(dialogo, "txtTexto")->setText(QStringLiteral("Hola"));
        Pulsar(Control<QWidget>(dialogo, "cmdAgregarEtiqueta"));
    });
    mundo.preguntas.Espera(QStringLiteral("Desea eliminar la etiqueta?"), Respuesta::No, Respuesta::Si);
    QTest::mouseDClick(Pieza("lblPers(0)"), Qt::LeftButton);
    EXPECT_FALSE(Pieza("lblPers(0)")->isVisible());
    EXPECT_EQ(Pieza("lblPers(0)")->text(), QStringLiteral("Hola"));
}

TEST_F(DisenadorPrueba, LabelDialogChecksItsFields) {
    Abrir();
    const struct {
        const char *texto;
        const char *pixeles;
        const char *mensaje;
        const char *foco;
    } casos[] = {
        {"  ", "75", "Debe ingresar el contenido de la etiqueta.", "txtTexto"},
        {"", "5", "Debe ingresar el contenido de la etiqueta.", "txtTexto"},
        {"a", "601", "El tamaño máximo de la etiqueta es de 600 pixels.", "txtSize"},
        {"a", "9", "El tañamo mínimo de la etiqueta es de 10 pixels.", "txtSize"},
        {"a", "", "El tañamo mínimo de la etiqueta es de 10 pixels.", "txtSize"},
        {"a", "10", nullptr, nullptr},
        {"b", "600", nullptr, nullptr},
    };
    for (const auto &caso : casos) {
        if (caso.mensaje != nullptr)
            mundo.preguntas.EsperaMensaje(QString::fromUtf8(caso.mensaje), Icono::Informacion);
        EnDialogo<FrmFacturaEtiqueta>("cmdInsEtiqueta", [&caso](FrmFacturaEtiqueta &dialogo) {
            auto *texto = Control<QLineEdit>(dialogo, "txtTexto");
            EXPECT_EQ(Control<QLineEdit>(dialogo, "txtSize")->text(), QStringLiteral("75"));
            texto->setText(QString::fromUtf8(caso.texto));
            Control<QLineEdit>(dialogo, "txtSize")->setText(QString::fromUtf8(caso.pixeles));
            Pulsar(Control<QWidget>(dialogo, "optDer"));
            Control<QAbstractButton>(dialogo, "chkTachado")->click();
            EXPECT_TRUE(texto->font().strikeOut());
            EXPECT_TRUE(texto->alignment().testFlag(Qt::AlignRight));
            Pulsar(Control<QWidget>(dialogo, "cmdAgregarEtiqueta"));
            EXPECT_EQ(dialogo.isVisible(), caso.mensaje != nullptr);
            if (caso.foco != nullptr) {
                EXPECT_EQ(dialogo.focusWidget()->objectName(), QString::fromUtf8(caso.foco));
            }
        });
    }
    const QLabel *segunda = Pieza("lblPers(1)");
    EXPECT_EQ(segunda->geometry(), QRect(16, 176, 600, 16));
    EXPECT_EQ(segunda->text(), QStringLiteral("b"));
    EXPECT_TRUE(segunda->font().strikeOut());
    EXPECT_EQ(frmFactura->focusWidget()->objectName(), QStringLiteral("lblPers(1)"));
    Tecla(frmFactura.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(segunda->isVisible());
}

TEST_F(DisenadorPrueba, ThirtyLabelsAndNoMore) {
    Disenador disenador(mundo.servicios(), Facturas());
    const EtiquetaPedida pedida{QStringLiteral("x"), QStringLiteral("75"), 2, true, false, false, true};
    for (int i = 0; i < 30; ++i)
        EXPECT_EQ(disenador.AgregarEtiqueta(pedida), Disenador::Pedido::Agregada);
    mundo.preguntas.EsperaMensaje(QStringLiteral("No hay etiquetas disponibles."), Icono::Informacion);
    EXPECT_EQ(disenador.AgregarEtiqueta(pedida), Disenador::Pedido::SinLugar);
    disenador.PonerVisible(pieza::kEtiquetas + 7, false);
    EXPECT_EQ(disenador.AgregarEtiqueta(pedida), Disenador::Pedido::Agregada);
    EXPECT_TRUE(disenador.De(pieza::kEtiquetas + 7).visible);
}

TEST_F(DisenadorPrueba, FieldDialogAppliesAtOnceAndIsOneStep) {
    Abrir();
    EnDialogo<FrmFacturaAdmin>("cmdAdminCampos", [this](FrmFacturaAdmin &dialogo) {
        Control<QAbstractButton>(dialogo, "chkLogo")->click();
        EXPECT_FALSE(Pieza("imgLogo")->isVisible());
        Tecla(Control<QWidget>(dialogo, "lstCampos"), Qt::Key_Space);
        EXPECT_FALSE(Pieza("lblCliCodigo")->isVisible());
        Pulsar(Control<QWidget>(dialogo, "cmdSelInvertir"));
        EXPECT_TRUE(Pieza("lblCliCodigo")->isVisible());
        EXPECT_FALSE(Pieza("lblTotalDesc")->isVisible());
        Pulsar(Control<QWidget>(dialogo, "cmdSelTodo"));
        Pulsar(Control<QWidget>(dialogo, "cmdSelInvertir"));
        EXPECT_FALSE(Pieza("lblCliCodigo")->isVisible());
    });
    Tecla(frmFactura.get(), Qt::Key_Z, Qt::ControlModifier);
    for (const char *nombre : {"imgLogo", "lblCliCodigo", "lblTotalDesc"})
        EXPECT_TRUE(Pieza(nombre)->isVisible()) << nombre;
}

TEST_F(DisenadorPrueba, SavesOpensAndRemembersThePath) {
    Abrir();
    Arrastrar(Pieza("lblTotal"), {10, 20});
    EsperaGuardar({});
    EXPECT_EQ(Ruta(), QString());
    const QString ruta = Facturas() + QStringLiteral("/mía.kzd");
    EsperaGuardar(ruta);
    EXPECT_EQ(Ruta(), ruta);
    EsperaGuardar(Facturas() + QStringLiteral("/no/hay.kzd")); // ends without a word
    EXPECT_TRUE(Posicion().startsWith(QStringLiteral("No se guardó: "))) << Posicion().toStdString();
    mundo.preguntas.EsperaMensaje(
        QStringLiteral("Asegúrese de que el archivo no está abierto ni protegido contra escritura.\n"
                       "No es posible continuar."),
        Icono::Critico);
    EsperaGuardar(Facturas());
    EXPECT_EQ(Ruta(), ruta);

    Abrir();
    EXPECT_EQ(Pieza("lblTotal")->pos(), QPoint(10, 20));
    Arrastrar(Pieza("lblTotal"), {50, 60});
    EsperaAbrir({});
    EsperaAbrir(ruta);
    EXPECT_EQ(Pieza("lblTotal")->pos(), QPoint(10, 20));
    Tecla(frmFactura.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Pieza("lblTotal")->pos(), QPoint(50, 60));
}

// The dialog's bare name asks; No begins again, and what that leaves is written twice.
TEST_F(DisenadorPrueba, ABareNameThatExistsIsAskedFor) {
    const QString antes = QDir::currentPath();
    QDir::setCurrent(carpeta.path());
    QFile(QStringLiteral("a.kzd")).open(QIODevice::WriteOnly);
    Abrir();
    const QString pregunta = QStringLiteral("\"a.kzd\" ya existe.\n\nDesea reemplazarlo?");
    EsperaArchivo(PedidoRuta::Para::Guardar, "Guardar factura...", QStringLiteral("a.kzd"));
    mundo.preguntas.Espera(pregunta, Respuesta::No, Respuesta::No);
    EsperaGuardar({});
    EXPECT_EQ(QFileInfo(QStringLiteral("a.kzd")).size(), 0);
    mundo.preguntas.Espera(pregunta, Respuesta::No, Respuesta::Si);
    EsperaGuardar(QStringLiteral("a.kzd"));
    EXPECT_GT(QFileInfo(QStringLiteral("a.kzd")).size(), 1000);
    QDir::setCurrent(antes);
}

TEST_F(DisenadorPrueba, ADamagedFileShowsWhatWasReadAndKeepsThePath) {
    const QString malo = carpeta.filePath(QStringLiteral("malo.kzd"));
    QFile archivo(malo);
    ASSERT_TRUE(archivo.open(QIODevice::WriteOnly));
    archivo.write(" V,,,,0,1e30,-1e30,1,150,300,x");
    archivo.close();
    Abrir();
    mundo.preguntas.EsperaMensaje(kNoFormato, Icono::Informacion);
    EsperaAbrir(malo);
    EXPECT_FALSE(Pieza("lblCliCodigo")->isVisible());
    EXPECT_EQ(Pieza("lblCliCodigo")->pos(), QPoint((10430 - 1245 + 7) / 15, 0)); // reachable, at the border
    EXPECT_EQ(Pieza("lblCliNombre")->pos(), QPoint(10, 20));
    EXPECT_EQ(Ruta(), QString());
    frmFactura.reset();
    mundo.datos.Cerrar();

    PonerRuta(malo); // at opening nothing of it stays
    mundo.preguntas.EsperaMensaje(
        QStringLiteral("No se pudo abrir la factura \"%1\".\n%2").arg(malo, kNoFormato), Icono::Critico);
    Abrir();
    EXPECT_TRUE(Pieza("lblCliCodigo")->isVisible());
    EXPECT_EQ(Pieza("lblCliNombre")->pos(), QPoint(256, 48));
}

TEST_F(DisenadorPrueba, PicksLogoAndBackground) {
    const QString buena = carpeta.filePath(QStringLiteral("logo.bmp"));
    QImage imagen(40, 30, QImage::Format_RGB32);
    imagen.fill(Qt::red);
    ASSERT_TRUE(imagen.save(buena));
    const auto espera = [this](const char *boton, const char *titulo, const QString &ruta) {
        mundo.preguntas.EsperaRuta({PedidoRuta::Para::Abrir, QString::fromUtf8(titulo), kImagenes, {}}, ruta);
        Pulsar(Control<QWidget>(*frmFactura, boton));
    };
    Abrir();
    constexpr const char *kLogo = "Seleccione una imagen (160 x 90) pixels";
    mundo.preguntas.EsperaMensaje(QStringLiteral("La imagen seleccionada no es válida."), Icono::Critico);
    espera("cmdSelImagen", kLogo, carpeta.path());
    espera("cmdSelImagen", kLogo, {});
    EXPECT_EQ(Pieza("imgLogo")->size(), QSize(160, 90));
    espera("cmdSelImagen", kLogo, buena);
    EXPECT_EQ(Pieza("imgLogo")->geometry(), QRect(16, 16, 40, 30));
    espera("cmdSelFondo", "Seleccione una imagen de fondo para prueba...", buena);
    EXPECT_EQ(Control<QWidget>(*frmFactura, "picFactura")->grab().toImage().pixelColor(5, 5),
              QColor(Qt::red));

    // A layout that is read brings its picture but no path: saved again it has none.
    const QString ruta = Facturas() + QStringLiteral("/con.kzd");
    EsperaGuardar(ruta);
    const QString otra = Facturas() + QStringLiteral("/sin.kzd");
    Abrir();
    EXPECT_EQ(Pieza("imgLogo")->size(), QSize(40, 30));
    EsperaGuardar(otra);
    DisenoFactura diseno;
    EXPECT_EQ(CargarDiseno(ruta, diseno), buena);
    EXPECT_EQ(CargarDiseno(otra, diseno), QString());
}

TEST_F(DisenadorPrueba, PrintsATestPage) {
    Abrir();
    Pulsar(Control<QWidget>(*frmFactura, "cmdImprimir"));
    ASSERT_EQ(mundo.impresoras.documentos.size(), 1U);
    EXPECT_TRUE(mundo.impresoras.documentos[0]->Terminado());
    mundo.impresoras.fallar = true;
    mundo.preguntas.EsperaMensaje(QStringLiteral("No se pudo imprimir la prueba. No hay impresora."),
                                  Icono::Critico);
    Pulsar(Control<QWidget>(*frmFactura, "cmdImprimir"));
    mundo.impresoras.nombres.clear();
    Abrir();
    mundo.preguntas.EsperaMensaje(
        QStringLiteral("No es posible imprimir la factura. No hay impresoras instaladas."),
        Icono::Informacion);
    Pulsar(Control<QWidget>(*frmFactura, "cmdImprimir"));
}
