// The invoice designer by mouse, keys and commands.
#include "documents/archivofactura.h"
#include "documents/ventanas/frmfactura.h"
#include "documents/ventanas/frmfacturaadmin.h"
#include "documents/ventanas/frmfacturaetiqueta.h"
#include "documents/ventanas/lienzo.h"
#include "testkit/archivos.h"
#include "testkit/conventana.h"

namespace tarvo {
namespace {

const QString kNoFormato = u"No se reconoce el formato del archivo."_qs;

class DisenadorPrueba : public ConVentana<FrmFactura> {
  protected:
    DisenadorPrueba() {
        mundo.ajustes.setValue("ImpTick", u"Tickets"_qs);
        Abrir();
    }
    void Abrir() {
        ventana = std::make_unique<FrmFactura>(mundo.servicios(), Facturas());
        MostrarVentana(*ventana);
    }
    QString Facturas() const { return carpeta.filePath(u"facturas"_qs); }
    QLabel *Pieza(const char *nombre) { return C<QLabel>(nombre); }
    QString Posicion() { return Texto("lblPosicion"); }
    void Ctrl(Qt::Key tecla) { Tecla(ventana.get(), tecla, Qt::ControlModifier); }

    // Takes the piece in its middle and lets it go with the cursor at this point of the canvas.
    void Arrastrar(QLabel *pieza, const QPoint &hasta) {
        QTest::mousePress(pieza, Qt::LeftButton, {}, pieza->rect().center());
        Mover(pieza, hasta);
        QTest::mouseRelease(pieza, Qt::LeftButton, {}, pieza->mapFrom(pieza->parentWidget(), hasta));
    }
    static void Mover(QLabel *pieza, const QPoint &hasta) {
        const QPoint local = pieza->mapFrom(pieza->parentWidget(), hasta);
        QMouseEvent evento(QEvent::MouseMove, local, pieza->parentWidget()->mapToGlobal(hasta), Qt::NoButton,
                           Qt::LeftButton, {});
        QApplication::sendEvent(pieza, &evento);
    }
    void EsperaArchivo(PedidoRuta::Para para, const QString &titulo, const QString &contestar) {
        mundo.preguntas.EsperaRuta({para, titulo, u"Facturas Velbrina|*.kzd"_qs, Facturas()}, contestar);
    }
    void AbrirArchivo(const QString &contestar) {
        EsperaArchivo(PedidoRuta::Para::Abrir, u"Abrir factura..."_qs, contestar);
        Clic("cmdAbrir");
    }
    void GuardarArchivo(const QString &contestar) {
        EsperaArchivo(PedidoRuta::Para::Guardar, u"Guardar factura..."_qs, contestar);
        Clic("cmdGuardar");
    }
    QString Ruta() { return mundo.datos.Tabla("SELECT rutafactura FROM main.Factura"); }
    // Runs `hacer` on the modal dialog that the button opens.
    template <typename Dialogo, typename Hacer> void EnDialogo(const char *boton, const Hacer &hacer) {
        QTimer::singleShot(0, ventana.get(), [hacer] {
            auto *dialogo = qobject_cast<Dialogo *>(QApplication::activeModalWidget());
            ASSERT_NE(dialogo, nullptr);
            hacer(*dialogo);
            if (dialogo->isVisible())
                Tecla(dialogo, Qt::Key_Escape);
        });
        Clic(boton);
        MostrarVentana(*ventana);
    }

    QTemporaryDir carpeta;
};

TEST_F(DisenadorPrueba, ShowsTheDefaultLayout) {

    EXPECT_EQ(ventana->windowTitle(), u"Velbrina Tarvo 2.9 - Diseñador de facturas");
    EXPECT_EQ(mundo.impresoras.actual, u"Tickets");
    EXPECT_EQ(Pieza("lblCliNombre")->geometry(), QRect(256, 48, 243, 16));
    EXPECT_EQ(Texto("lblCliNombre"), u"Nombre Cliente");
    EXPECT_EQ(Pieza("lblDetCodigo")->palette().color(QPalette::Window), QColor(0, 192, 0));
    EXPECT_EQ(Pieza("imgLogo")->geometry(), QRect(16, 16, 160, 90));
    EXPECT_FALSE(Se("lblPers(29)"));
    EXPECT_EQ(Pieza("lblPers(29)")->geometry(), QRect(48, 304, 75, 16));
    EXPECT_EQ(C("picFactura")->size(), QSize(695, 417));
}

// The corner follows the cursor without an offset; the piece may leave the canvas until it is let go.
TEST_F(DisenadorPrueba, DragsByTheMouseAndClampsAtTheDrop) {
    QLabel *nombre = Pieza("lblCliNombre");
    Arrastrar(nombre, {100, 200});
    EXPECT_EQ(nombre->pos(), QPoint(100, 200));
    EXPECT_EQ(Posicion(), u"Nombre Cliente · 26,5 mm · 52,9 mm");
    QTest::mousePress(nombre, Qt::LeftButton);
    Mover(nombre, {-50, 1000});
    Tecla(nombre, Qt::Key_Delete); // no key comes between
    Tecla(nombre, Qt::Key_Escape);
    EXPECT_TRUE(ventana->isVisible());
    Ctrl(Qt::Key_Z);
    EXPECT_EQ(nombre->pos(), QPoint(-50, 1000));
    QTest::mouseRelease(nombre, Qt::LeftButton);
    EXPECT_EQ(nombre->pos(), QPoint(0, (6260 - 240) / 15));
    Arrastrar(Pieza("imgLogo"), {5000, -3});
    EXPECT_EQ(Pieza("imgLogo")->pos(), QPoint(535, 0)); // (10430 - 2400) / 15 = 535.3
    QTest::mousePress(nombre, Qt::RightButton);
    Mover(nombre, {10, 10});
    EXPECT_EQ(nombre->pos(), QPoint(0, 401));
}

// Where only a part of the sheet is seen, it moves below a piece that is held at the border.
TEST_F(DisenadorPrueba, TheSheetMovesBelowAHeldPieceAndThePieceStaysAtTheCursor) {
    ventana->resize(500, 300);
    QLabel *nombre = Pieza("lblCliCodigo");
    QWidget *lienzo = C("picFactura");
    const QPoint antes = lienzo->mapToGlobal(QPoint(0, 0));
    QTest::mousePress(nombre, Qt::LeftButton);
    const QPoint cursor(C("areaHoja")->width() - 30, 60);
    Mover(nombre, cursor);
    const QPoint fijo = lienzo->mapToGlobal(cursor);
    EXPECT_TRUE(QTest::qWaitFor([&] { return lienzo->mapToGlobal(QPoint(0, 0)).x() < antes.x() - 50; }));
    EXPECT_EQ(nombre->pos(), lienzo->mapFromGlobal(fijo));
    QTest::mouseRelease(nombre, Qt::LeftButton);
    EXPECT_EQ(nombre->pos(), lienzo->mapFromGlobal(fijo));
}

TEST_F(DisenadorPrueba, KeysMoveHideUndoAndWalk) {
    QLabel *codigo = Pieza("lblCliCodigo");
    codigo->setFocus();
    Tecla(codigo, Qt::Key_Right);
    Tecla(codigo, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(codigo->pos(), QPoint(257, 34));
    for (int i = 0; i < 5; ++i)
        Tecla(codigo, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(codigo->pos(), QPoint(257, 0));
    for (int i = 0; i < 10; ++i)
        Ctrl(Qt::Key_Z);
    EXPECT_EQ(codigo->pos(), QPoint(256, 24));
    Ctrl(Qt::Key_Y);
    EXPECT_EQ(codigo->pos(), QPoint(257, 24));

    const QString pregunta = u"Desea ocultar el campo seleccionado?"_qs;
    for (const Respuesta respuesta : {No, Si}) {
        mundo.preguntas.Espera(pregunta, No, respuesta);
        Tecla(codigo, Qt::Key_Delete);
        EXPECT_EQ(codigo->isVisible(), respuesta == No);
    }
    EXPECT_EQ(ConFoco(), u"lblCliNombre");
    EXPECT_EQ(Posicion(), u"Nombre Cliente · 67,7 mm · 12,7 mm");
    Ctrl(Qt::Key_Z);
    EXPECT_TRUE(codigo->isVisible());
    for (const char *nombre : {"lblCliIdFiscal", "lblCliCFinal", "lblNComprobante"})
        EXPECT_EQ(Pulsa(Qt::Key_Tab), QString::fromUtf8(nombre));
}

TEST_F(DisenadorPrueba, DoubleClickAsksByTheKindOfPiece) {
    mundo.preguntas.Espera(u"Desea ocultar el logotipo de la empresa?"_qs, No, Si);
    QTest::mouseDClick(Pieza("imgLogo"), Qt::LeftButton);
    EXPECT_FALSE(Se("imgLogo"));
    EnDialogo<FrmFacturaEtiqueta>("cmdInsEtiqueta", [](FrmFacturaEtiqueta &dialogo) {
        Control<QLineEdit>(dialogo, "txtTexto")->setText(u"Hola"_qs);
        Pulsar(Control<QWidget>(dialogo, "cmdAgregarEtiqueta"));
    });
    mundo.preguntas.Espera(u"Desea eliminar la etiqueta?"_qs, No, Si);
    QTest::mouseDClick(Pieza("lblPers(0)"), Qt::LeftButton);
    EXPECT_FALSE(Se("lblPers(0)"));
    EXPECT_EQ(Texto("lblPers(0)"), u"Hola");
}

TEST_F(DisenadorPrueba, LabelDialogChecksItsFields) {
    const struct {
        const char *texto, *pixeles, *mensaje, *foco;
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
            mundo.preguntas.EsperaMensaje(QString::fromUtf8(caso.mensaje));
        EnDialogo<FrmFacturaEtiqueta>("cmdInsEtiqueta", [&caso](FrmFacturaEtiqueta &dialogo) {
            auto *texto = Control<QLineEdit>(dialogo, "txtTexto");
            EXPECT_EQ(Control<QLineEdit>(dialogo, "txtSize")->text(), u"75");
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
    EXPECT_EQ(segunda->text(), u"b");
    EXPECT_TRUE(segunda->font().strikeOut());
    EXPECT_EQ(ventana->focusWidget()->objectName(), u"lblPers(1)");
    Ctrl(Qt::Key_Z);
    EXPECT_FALSE(segunda->isVisible());
}

TEST_F(DisenadorPrueba, ThirtyLabelsAndNoMore) {
    Disenador disenador(mundo.servicios(), Facturas());
    const EtiquetaPedida pedida{u"x"_qs, u"75"_qs, 2, true, false, false, true};
    for (int i = 0; i < 30; ++i)
        EXPECT_EQ(disenador.AgregarEtiqueta(pedida), Disenador::Pedido::Agregada);
    mundo.preguntas.EsperaMensaje(u"No hay etiquetas disponibles."_qs);
    EXPECT_EQ(disenador.AgregarEtiqueta(pedida), Disenador::Pedido::SinLugar);
    disenador.PonerVisible(pieza::kEtiquetas + 7, false);
    EXPECT_EQ(disenador.AgregarEtiqueta(pedida), Disenador::Pedido::Agregada);
    EXPECT_TRUE(disenador.De(pieza::kEtiquetas + 7).visible);
}

TEST_F(DisenadorPrueba, FieldDialogAppliesAtOnceAndIsOneStep) {
    EnDialogo<FrmFacturaAdmin>("cmdAdminCampos", [this](FrmFacturaAdmin &dialogo) {
        Control<QAbstractButton>(dialogo, "chkLogo")->click();
        EXPECT_FALSE(Se("imgLogo"));
        Tecla(Control<QWidget>(dialogo, "lstCampos"), Qt::Key_Space);
        EXPECT_FALSE(Se("lblCliCodigo"));
        Tecla(Control<QWidget>(dialogo, "lstCampos"), Qt::Key_Return); // presses no button
        EXPECT_FALSE(Se("lblCliCodigo"));
        Pulsar(Control<QWidget>(dialogo, "cmdSelInvertir"));
        EXPECT_TRUE(Se("lblCliCodigo") && !Se("lblTotalDesc"));
        Pulsar(Control<QWidget>(dialogo, "cmdSelTodo"));
        Pulsar(Control<QWidget>(dialogo, "cmdSelInvertir"));
        EXPECT_FALSE(Se("lblCliCodigo"));
    });
    Ctrl(Qt::Key_Z);
    for (const char *nombre : {"imgLogo", "lblCliCodigo", "lblTotalDesc"})
        EXPECT_TRUE(Se(nombre)) << nombre;
}

TEST_F(DisenadorPrueba, SavesOpensAndRemembersThePath) {
    Arrastrar(Pieza("lblTotal"), {10, 20});
    GuardarArchivo({});
    EXPECT_EQ(Ruta(), QString());
    const QString ruta = Facturas() + u"/mía.kzd"_qs;
    GuardarArchivo(ruta);
    EXPECT_EQ(Ruta(), ruta);
    GuardarArchivo(Facturas() + u"/no/hay.kzd"_qs); // ends without a word
    EXPECT_TRUE(Posicion().startsWith(u"No se guardó: "_qs)) << Posicion().toStdString();
    for (const QString &negada : {Facturas(), mundo.datos.Carpeta() + u"/ventas.mdb"_qs}) {
        mundo.preguntas.EsperaFalla(
            u"Asegúrese de que el archivo no está abierto ni protegido contra escritura.\n"
            "No es posible continuar."_qs);
        GuardarArchivo(negada);
    }
    EXPECT_EQ(Ruta(), ruta);

    Abrir();
    EXPECT_EQ(Pieza("lblTotal")->pos(), QPoint(10, 20));
    Arrastrar(Pieza("lblTotal"), {50, 60});
    AbrirArchivo({});
    AbrirArchivo(ruta);
    EXPECT_EQ(Pieza("lblTotal")->pos(), QPoint(10, 20));
    Ctrl(Qt::Key_Z);
    EXPECT_EQ(Pieza("lblTotal")->pos(), QPoint(50, 60));
}

// The dialog's bare name asks; No begins again, and what that leaves is written twice.
TEST_F(DisenadorPrueba, ABareNameThatExistsIsAskedFor) {
    const QString antes = QDir::currentPath();
    QDir::setCurrent(carpeta.path());
    QFile(u"a.kzd"_qs).open(QIODevice::WriteOnly);
    const QString pregunta = u"\"a.kzd\" ya existe.\n\nDesea reemplazarlo?"_qs;
    EsperaArchivo(PedidoRuta::Para::Guardar, u"Guardar factura..."_qs, u"a.kzd"_qs);
    mundo.preguntas.Espera(pregunta, No, No);
    GuardarArchivo({});
    EXPECT_EQ(QFileInfo(u"a.kzd"_qs).size(), 0);
    mundo.preguntas.Espera(pregunta, No, Si);
    GuardarArchivo(u"a.kzd"_qs);
    EXPECT_GT(QFileInfo(u"a.kzd"_qs).size(), 1000);
    QDir::setCurrent(antes);
}

TEST_F(DisenadorPrueba, ADamagedFileShowsWhatWasReadAndKeepsThePath) {
    const QString malo = carpeta.filePath(u"malo.kzd"_qs);
    Escribir(malo, " V,,,,0,1e30,-1e30,1,150,300,x");
    mundo.preguntas.EsperaMensaje(kNoFormato);
    AbrirArchivo(malo);
    EXPECT_FALSE(Se("lblCliCodigo"));
    EXPECT_EQ(Pieza("lblCliCodigo")->pos(), QPoint((10430 - 1245 + 7) / 15, 0)); // reachable, at the border
    EXPECT_EQ(Pieza("lblCliNombre")->pos(), QPoint(10, 20));
    EXPECT_EQ(Ruta(), QString());
    ventana.reset();
    mundo.datos.Cerrar();

    mundo.datos.Ejecutar("UPDATE main.Factura SET rutafactura='" + malo.toStdString() +
                         "'"); // at opening nothing of it stays
    mundo.preguntas.EsperaFalla(u"No se pudo abrir la factura \"%1\".\n%2"_qs.arg(malo, kNoFormato));
    Abrir();
    EXPECT_TRUE(Se("lblCliCodigo"));
    EXPECT_EQ(Pieza("lblCliNombre")->pos(), QPoint(256, 48));
}

TEST_F(DisenadorPrueba, PicksLogoAndBackground) {
    const QString buena = carpeta.filePath(u"logo.bmp"_qs);
    QImage imagen(40, 30, QImage::Format_RGB32);
    imagen.fill(Qt::red);
    ASSERT_TRUE(imagen.save(buena));
    const auto espera = [this](const char *boton, const char *titulo, const QString &ruta) {
        mundo.preguntas.EsperaRuta({PedidoRuta::Para::Abrir,
                                    QString::fromUtf8(titulo),
                                    u"Todas las imágenes|*.jpg;*.jpeg;*.bmp;*.gif"_qs,
                                    {}},
                                   ruta);
        Clic(boton);
    };
    constexpr const char *kLogo = "Seleccione una imagen (160 x 90) pixels";
    mundo.preguntas.EsperaFalla(u"La imagen seleccionada no es válida."_qs);
    espera("cmdSelImagen", kLogo, carpeta.path());
    espera("cmdSelImagen", kLogo, {});
    EXPECT_EQ(Pieza("imgLogo")->size(), QSize(160, 90));
    espera("cmdSelImagen", kLogo, buena);
    EXPECT_EQ(Pieza("imgLogo")->geometry(), QRect(16, 16, 40, 30));
    const QString grande = carpeta.filePath(u"grande.bmp"_qs);
    QImage(800, 30, QImage::Format_RGB32).save(grande);
    espera("cmdSelImagen", kLogo, grande);
    EXPECT_EQ(Pieza("imgLogo")->geometry(), QRect(16, 16, 800, 30)) << "where the paper has it";
    espera("cmdSelImagen", kLogo, buena);
    espera("cmdSelFondo", "Seleccione una imagen de fondo para prueba...", buena);
    EXPECT_EQ(C("picFactura")->grab().toImage().pixelColor(5, 5), QColor(Qt::red));

    // A layout that is read brings its picture but no path: saved again it has none.
    const QString ruta = Facturas() + u"/con.kzd"_qs;
    GuardarArchivo(ruta);
    const QString otra = Facturas() + u"/sin.kzd"_qs;
    Abrir();
    EXPECT_EQ(Pieza("imgLogo")->size(), QSize(40, 30));
    GuardarArchivo(otra);
    DisenoFactura diseno;
    EXPECT_EQ(CargarDiseno(ruta, diseno), buena);
    EXPECT_EQ(CargarDiseno(otra, diseno), QString());
}

TEST_F(DisenadorPrueba, PrintsATestPage) {
    Clic("cmdImprimir");
    EXPECT_FALSE(mundo.impresoras.Papel().isEmpty());
    mundo.impresoras.fallar = true;
    mundo.preguntas.EsperaFalla(u"No se pudo imprimir la prueba. No hay impresora."_qs);
    Clic("cmdImprimir");
    mundo.impresoras.nombres.clear();
    Abrir();
    mundo.preguntas.EsperaMensaje(u"No es posible imprimir la factura. No hay impresoras instaladas."_qs);
    Clic("cmdImprimir");
}

} // namespace
} // namespace tarvo
