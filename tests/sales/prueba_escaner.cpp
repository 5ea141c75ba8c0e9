// Scans are found or told in every state of the window: none is lost, none becomes a quantity or a choice.
#include "ventanaprueba.h"

#include "desktop/ventanas/preguntasqt.h"
#include "sales/rachateclas.h"

#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QWindow>

namespace tarvo {
namespace {

const char *const kYerba = "7790001000011";
const char *const kAzucar = "7790001000028";

class Escaner : public VentanaVentas {
  protected:
    // The code and one Enter: the article is found, the next Enter would add it.
    void Escaneado(const char *codigo) {
        Teclas(QLatin1String(codigo));
        Entrar();
    }
    // The article of `fila` is the one that "Agregar" will add, and nothing else has changed.
    void Hallado(int fila, const char *donde) {
        EXPECT_EQ(ConFoco(), u"cmdAgregar") << donde;
        EXPECT_EQ(Lista("LVArticulos")->FilaActual(), fila) << donde;
        EXPECT_EQ(Texto("txtCantidad"), u"1") << donde;
        EXPECT_EQ(Texto("txtNumComp"), u"77") << donde;
        EXPECT_EQ(Texto("txtDescuento"), u"0 %") << donde;
        EXPECT_EQ(C<QComboBox>("cboxVendedores")->currentIndex(), 1) << donde;
    }
};

TEST_F(Escaner, FoundWhateverHasTheFocus) {
    Abrir();
    Escanear(kYerba);
    Campo("txtNumComp")->setText(u"77"_qs);
    C<QComboBox>("cboxVendedores")->setCurrentIndex(1);
    int veces = 0;
    for (const char *control :
         {"txtBuscar", "cmdBuscar", "LVArticulos", "txtCantidad", "cmdAgregar", "LVDetalle", "cmdQuitar",
          "cmdCliente", "chkFinal", "cmdVContado", "cmdVCredito", "txtNumComp", "cboxVendedores",
          "txtDescuento", "cmdEmitir", "cmdNuevo"}) {
        Lista("LVArticulos")->SeleccionarFila(0);
        C(control)->setFocus();
        Escaneado(kAzucar);
        Hallado(1, control);
        Entrar();
        EXPECT_EQ(Linea(1, linea::Cantidad), QString::number(++veces)) << control;
    }
    EXPECT_EQ(Linea(0, linea::Cantidad), u"1");
    // With the search switched off a scan switches it on.
    Accion("buscar")->trigger();
    Lista("LVArticulos")->setFocus();
    Escaneado(kAzucar);
    Hallado(1, "search off");
    // In an open menu what chooses no entry of it closes it.
    QMenuBar barra(ventana.get());
    barra.addAction(QStringLiteral("&Ventas"));
    QMenu menu(&barra);
    const QAction *const salir = menu.addAction(QStringLiteral("&Salir"));
    menu.popup({});
    QTest::keyClick(&menu, '7');
    EXPECT_FALSE(menu.isVisible());
    EXPECT_NE(menu.windowHandle()->handle(), nullptr) << "the next keys are on their way to it";
    EXPECT_EQ(Campo("txtBuscar")->text(), QStringLiteral("7"));
    menu.popup({});
    QTest::keyClick(&menu, 'v');
    EXPECT_EQ(Campo("txtBuscar")->text(), QStringLiteral("7")) << "it leads to another menu";
    menu.popup({});
    QSignalSpy elegida(salir, &QAction::triggered);
    QTest::keyClick(&menu, 's');
    EXPECT_EQ(elegida.size(), 1);
}

TEST_F(Escaner, WhatIsNoQuantityAndNoDiscountIsSearched) {
    Abrir();
    mundo.preguntas.EsperaMensaje(kFinal);
    Campo("txtCantidad")->setFocus();
    Escaneado("27790001000028"); // a 2 typed before the scan: told, not sold
    EXPECT_EQ(ConFoco(), u"LVArticulos");
    Campo("txtCantidad")->setText(u"7790001000028"_qs);
    EXPECT_EQ(Clic("cmdAgregar"), u"cmdAgregar");
    EXPECT_EQ(Texto("txtCantidad"), u"1");
    mundo.preguntas.EsperaMensaje(kFinal);
    Campo("txtCantidad")->setFocus();
    Escaneado("AB12-9X"); // letters that the field doesn't take belong to the code all the same
    EXPECT_EQ(Texto("txtBuscar"), u"AB12-9X");
    EXPECT_EQ(Lineas(), 0);
    Teclear(Campo("txtCantidad"), u"999999"_qs);
    Entrar();
    EXPECT_EQ(Linea(0, linea::Cantidad), u"999999");
    Teclear(Campo("txtNumComp"), u"0001-00000077"_qs);
    Entrar();
    EXPECT_EQ(Texto("txtNumComp"), u"0001-00000077");
}

// After the box of a search that found nothing, and after a panel that was cancelled.
TEST_F(Escaner, TheNextScanAfterABoxOrAPanelIsFound) {
    Abrir();
    for (const char *buscando : {"on", "off"}) {
        mundo.preguntas.EsperaMensaje(kFinal);
        Escaneado("0000000000000");
        EXPECT_EQ(ConFoco(), u"LVArticulos");
        Escanear(kAzucar);
        Clic("cmdCliente");
        Pulsa(Qt::Key_Escape);
        EXPECT_TRUE(QApplication::focusWidget()->isVisible());
        Escanear(kAzucar);
        Accion("buscar")->setChecked(false);
        Clic("cmdCliente");
        EXPECT_EQ(Pulsa(Qt::Key_Escape), u"LVArticulos") << buscando;
    }
    EXPECT_EQ(Linea(0, linea::Cantidad), u"4");
    EXPECT_EQ(Texto("lblCliente"), QString());
}

// Boxes that stay up until their button is pressed, with the operator's hands on them meanwhile.
class Cuadros final : public Preguntas {
  public:
    std::function<void(QDialog &)> manos;
    int abiertos = 0;

    Respuesta Preguntar(const QString &, Respuesta) override { return Abrir() ? Si : No; }
    void Mostrar(const QString &, Icono) override { Abrir(); }
    QString ElegirRuta(const PedidoRuta &) override { return {}; }

  private:
    bool Abrir() {
        ++abiertos;
        QDialog cuadro;
        QPushButton boton(&cuadro);
        boton.setDefault(true);
        QObject::connect(&boton, &QPushButton::clicked, &cuadro, &QDialog::accept);
        QTimer::singleShot(0, &cuadro, [&] {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&cuadro));
            manos(cuadro);
        });
        return cuadro.exec() == QDialog::Accepted;
    }
};

class EscanerConCuadros : public Escaner {
  protected:
    EscanerConCuadros() {
        ventana = std::make_unique<FrmVentas>(Servicios{mundo.frmBases(), cuadros, mundo.reloj,
                                                        mundo.impresoras, mundo.ajustes, mundo.escritorio},
                                              anfitrion, Ultimo(), nullptr);
        MostrarVentana(*ventana);
    }
    ~EscanerConCuadros() override { ventana.reset(); }

    Cuadros cuadros;
};

TEST_F(EscanerConCuadros, AScanIntoABoxAnswersNoQuestionAndIsSearchedBehindIt) {
    // The operator's hands, a while after the scanner.
    const auto enter = [](QDialog &cuadro) {
        QKeyEvent tecla(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_qs);
        tecla.setTimestamp(10'000'000);
        QApplication::sendEvent(&cuadro, &tecla);
    };
    const auto hallado = [this] {
        ventana->activateWindow();
        return ConFoco() == u"cmdAgregar"_qs;
    };
    // Both Enters of two scans, and the next one with one Enter: the box stays, and all three are worked off.
    const auto tres = [&](QDialog &cuadro) {
        Escanear(kAzucar);
        Escanear(kYerba);
        Escaneado(kAzucar);
        EXPECT_TRUE(cuadro.isVisible());
    };
    cuadros.manos = [&](QDialog &cuadro) {
        tres(cuadro);
        enter(cuadro);
    };
    Escaneado("0000000000000");
    EXPECT_TRUE(QTest::qWaitFor(hallado));
    ASSERT_EQ(Lineas(), 2);
    EXPECT_EQ(Linea(0, linea::Nombre), u"Azúcar");
    cuadros.manos = [&](QDialog &cuadro) {
        tres(cuadro);
        cuadro.reject();
    };
    C("txtNumComp")->setFocus();
    Clic("cmdQuitar");
    EXPECT_TRUE(QTest::qWaitFor([&] { return hallado() && Linea(1, linea::Cantidad) == u"2"_qs; }));
    EXPECT_EQ(Linea(0, linea::Cantidad), u"2");
    EXPECT_EQ(cuadros.abiertos, 2);
}

// The main window asks whether to leave the sale.
TEST_F(Escaner, AScanIntoABoxOfAnotherWindowIsSearchedBehindItToo) {
    Abrir();
    QTimer::singleShot(0, ventana.get(), [this] {
        auto *const cuadro = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        cuadro->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == cuadro; }));
        Escanear(kAzucar);
        EXPECT_TRUE(cuadro->isVisible());
        cuadro->reject();
    });
    EXPECT_EQ(PreguntasQt().Preguntar(u"¿Salir?"_qs, Respuesta::No), Respuesta::No);
    ventana->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([this] { return Lineas() == 1; }));
}

// What follows in one burst behind a code that nobody has: its second Enter adds nothing, the next is sold.
TEST_F(EscanerConCuadros, TheBoxOpensWhenTheBurstIsOver) {
    cuadros.manos = [](QDialog &cuadro) { cuadro.accept(); };
    QTimer::singleShot(0, ventana.get(), [this] {
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        Entrar();
        Escanear(kAzucar);
    });
    Escaneado("0000000000000");
    EXPECT_TRUE(QTest::qWaitFor([this] { return Lineas() == 1; }));
    EXPECT_EQ(Linea(0, linea::Nombre), u"Azúcar");
    EXPECT_EQ(cuadros.abiertos, 1);
}

TEST_F(Escaner, AScanPicksNoCustomer) {
    Abrir();
    Clic("cmdCliente");
    Lista("LVClientes")->setFocus();
    mundo.preguntas.EsperaMensaje(kFinal);
    Escaneado(kAzucar);
    EXPECT_TRUE(Se("picClientes"));
    EXPECT_EQ(Texto("txtBuscarClientes"), QLatin1String(kAzucar));
    EXPECT_EQ(Texto("lblCliente"), QString());
    Entrar(); // the operator's, on the list where the search ended
    EXPECT_FALSE(Se("picClientes"));
    EXPECT_NE(Texto("lblCliente"), QString());
}

TEST(RachaTeclas, APauseOrAnotherControlBeginsANewRun) {
    RachaTeclas racha;
    const int uno = 1;
    const int otro = 2;
    EXPECT_TRUE(racha.Agregar(&uno, u"a"_qs, 1000));
    EXPECT_FALSE(racha.Agregar(&uno, u"b"_qs, 1000)); // equal times are two strokes
    EXPECT_FALSE(racha.Agregar(&uno, u"b"_qs, 1050));
    EXPECT_EQ(racha.En(&uno), u"abb");
    EXPECT_TRUE(racha.Agregar(&uno, u"c"_qs, 1551));
    EXPECT_TRUE(racha.Agregar(&otro, u"d"_qs, 1552));
    EXPECT_EQ(racha.En(&uno), QString());
    EXPECT_EQ(racha.En(&otro), u"d");
}

} // namespace
} // namespace tarvo
