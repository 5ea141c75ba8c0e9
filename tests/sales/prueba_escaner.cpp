// Scans are found or told in every state of the window: none is lost, none becomes a quantity or a choice.
#include "ventanaprueba.h"

#include "sales/rachateclas.h"

#include <QDialog>

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
        EXPECT_EQ(ConFoco(), QStringLiteral("cmdAgregar")) << donde;
        EXPECT_EQ(Lista("LVArticulos")->FilaActual(), fila) << donde;
        EXPECT_EQ(Campo("txtCantidad")->text(), QStringLiteral("1")) << donde;
        EXPECT_EQ(Campo("txtNumComp")->text(), QStringLiteral("77")) << donde;
        EXPECT_EQ(Campo("txtDescuento")->text(), QStringLiteral("0 %")) << donde;
        EXPECT_EQ(C<QComboBox>("cboxVendedores")->currentIndex(), 1) << donde;
    }
};

TEST_F(Escaner, FoundWhateverHasTheFocus) {
    Abrir();
    Escanear(kYerba);
    Campo("txtNumComp")->setText(QStringLiteral("77"));
    C<QComboBox>("cboxVendedores")->setCurrentIndex(1);
    int veces = 0;
    for (const char *control :
         {"txtBuscar", "cmdBuscar", "LVArticulos", "txtCantidad", "cmdAgregar", "LVDetalle", "cmdQuitar",
          "cmdCliente", "chkFinal", "cmdVContado", "cmdVCredito", "txtNumComp", "cboxVendedores",
          "txtDescuento", "cmdEmitir", "cmdNuevo"}) {
        Lista("LVArticulos")->SeleccionarFila(0);
        C<QWidget>(control)->setFocus();
        Escaneado(kAzucar);
        Hallado(1, control);
        Entrar();
        EXPECT_EQ(Linea(1, linea::Cantidad), QString::number(++veces)) << control;
    }
    EXPECT_EQ(Linea(0, linea::Cantidad), QStringLiteral("1"));
    // With the search switched off a scan switches it on.
    Control<QAction>(*C<QToolBar>("tbrControles"), "buscar")->trigger();
    Lista("LVArticulos")->setFocus();
    Escaneado(kAzucar);
    Hallado(1, "search off");
}

TEST_F(Escaner, WhatIsNoQuantityAndNoDiscountIsSearched) {
    Abrir();
    mundo.preguntas.EsperaMensaje(kFinal, Icono::Informacion);
    Campo("txtCantidad")->setFocus();
    Escaneado("27790001000028"); // a 2 typed before the scan: told, not sold
    EXPECT_EQ(ConFoco(), QStringLiteral("LVArticulos"));
    Campo("txtCantidad")->setText(QStringLiteral("7790001000028"));
    Clic("cmdAgregar");
    EXPECT_EQ(ConFoco(), QStringLiteral("cmdAgregar"));
    EXPECT_EQ(Campo("txtCantidad")->text(), QStringLiteral("1"));
    mundo.preguntas.EsperaMensaje(kFinal, Icono::Informacion);
    Campo("txtCantidad")->setFocus();
    Escaneado("AB12-9X"); // letters that the field doesn't take belong to the code all the same
    EXPECT_EQ(Campo("txtBuscar")->text(), QStringLiteral("AB12-9X"));
    EXPECT_EQ(Lineas(), 0);
    Teclear(Campo("txtCantidad"), QStringLiteral("999999"));
    Entrar();
    EXPECT_EQ(Linea(0, linea::Cantidad), QStringLiteral("999999"));
    Teclear(Campo("txtNumComp"), QStringLiteral("0001-00000077"));
    Entrar();
    EXPECT_EQ(Campo("txtNumComp")->text(), QStringLiteral("0001-00000077"));
}

// After the box of a search that found nothing, and after a panel that was cancelled.
TEST_F(Escaner, TheNextScanAfterABoxOrAPanelIsFound) {
    Abrir();
    for (const char *buscando : {"on", "off"}) {
        mundo.preguntas.EsperaMensaje(kFinal, Icono::Informacion);
        Escaneado("0000000000000");
        EXPECT_EQ(ConFoco(), QStringLiteral("LVArticulos"));
        Escanear(kAzucar);
        Clic("cmdCliente");
        Tecla(QApplication::focusWidget(), Qt::Key_Escape);
        EXPECT_TRUE(QApplication::focusWidget()->isVisible());
        Escanear(kAzucar);
        Control<QAction>(*C<QToolBar>("tbrControles"), "buscar")->setChecked(false);
        Clic("cmdCliente");
        Tecla(QApplication::focusWidget(), Qt::Key_Escape);
        EXPECT_EQ(ConFoco(), QStringLiteral("LVArticulos")) << buscando;
    }
    EXPECT_EQ(Linea(0, linea::Cantidad), QStringLiteral("4"));
    EXPECT_EQ(Texto("lblCliente"), QString());
}

// Boxes that stay up until their button is pressed, with the operator's hands on them meanwhile.
class Cuadros final : public Preguntas {
  public:
    std::function<void(QDialog &)> manos;
    int abiertos = 0;

    Respuesta Preguntar(const QString &, Respuesta) override {
        return Abrir() ? Respuesta::Si : Respuesta::No;
    }
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

TEST_F(Escaner, AScanIntoABoxAnswersNoQuestionAndIsSearchedBehindIt) {
    Cuadros cuadros;
    ventana = std::make_unique<FrmVentas>(
        Servicios{mundo.frmBases(), cuadros, mundo.reloj, mundo.impresoras, mundo.ajustes, mundo.escritorio},
        anfitrion, Ultimo(), nullptr);
    MostrarVentana(*ventana);
    // The operator's hands, a while after the scanner.
    const auto enter = [](QDialog &cuadro) {
        QKeyEvent tecla(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
        tecla.setTimestamp(10'000'000);
        QApplication::sendEvent(&cuadro, &tecla);
    };
    const auto hallado = [this] {
        ventana->activateWindow();
        return ConFoco() == QStringLiteral("cmdAgregar");
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
    EXPECT_EQ(Linea(0, linea::Nombre), QStringLiteral("Azúcar"));
    cuadros.manos = [&](QDialog &cuadro) {
        tres(cuadro);
        cuadro.reject();
    };
    C<QWidget>("txtNumComp")->setFocus();
    Clic("cmdQuitar");
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return hallado() && Linea(1, linea::Cantidad) == QStringLiteral("2"); }));
    EXPECT_EQ(Linea(0, linea::Cantidad), QStringLiteral("2"));
    EXPECT_EQ(cuadros.abiertos, 2);
}

// What follows in one burst behind a code that nobody has: its second Enter adds nothing, the next is sold.
TEST_F(Escaner, TheBoxOpensWhenTheBurstIsOver) {
    Cuadros cuadros;
    ventana = std::make_unique<FrmVentas>(
        Servicios{mundo.frmBases(), cuadros, mundo.reloj, mundo.impresoras, mundo.ajustes, mundo.escritorio},
        anfitrion, Ultimo(), nullptr);
    MostrarVentana(*ventana);
    cuadros.manos = [](QDialog &cuadro) { cuadro.accept(); };
    QTimer::singleShot(0, ventana.get(), [this] {
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        Entrar();
        Escanear(kAzucar);
    });
    Escaneado("0000000000000");
    EXPECT_TRUE(QTest::qWaitFor([this] { return Lineas() == 1; }));
    EXPECT_EQ(Linea(0, linea::Nombre), QStringLiteral("Azúcar"));
    EXPECT_EQ(cuadros.abiertos, 1);
}

TEST_F(Escaner, AScanPicksNoCustomer) {
    Abrir();
    Clic("cmdCliente");
    Lista("LVClientes")->setFocus();
    mundo.preguntas.EsperaMensaje(kFinal, Icono::Informacion);
    Escaneado(kAzucar);
    EXPECT_TRUE(Se("picClientes"));
    EXPECT_EQ(Campo("txtBuscarClientes")->text(), QLatin1String(kAzucar));
    EXPECT_EQ(Texto("lblCliente"), QString());
    Entrar(); // the operator's, on the list where the search ended
    EXPECT_FALSE(Se("picClientes"));
    EXPECT_NE(Texto("lblCliente"), QString());
}

TEST(RachaTeclas, APauseOrAnotherControlBeginsANewRun) {
    RachaTeclas racha;
    const int uno = 1;
    const int otro = 2;
    EXPECT_TRUE(racha.Agregar(&uno, QStringLiteral("a"), 1000));
    EXPECT_FALSE(racha.Agregar(&uno, QStringLiteral("b"), 1000)); // equal times are two strokes
    EXPECT_FALSE(racha.Agregar(&uno, QStringLiteral("b"), 1050));
    EXPECT_EQ(racha.En(&uno), QStringLiteral("abb"));
    EXPECT_TRUE(racha.Agregar(&uno, QStringLiteral("c"), 1551));
    EXPECT_TRUE(racha.Agregar(&otro, QStringLiteral("d"), 1552));
    EXPECT_EQ(racha.En(&uno), QString());
    EXPECT_EQ(racha.En(&otro), QStringLiteral("d"));
}

} // namespace
} // namespace tarvo
