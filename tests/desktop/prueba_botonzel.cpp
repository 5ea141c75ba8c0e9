#include "desktop/ventanas/botonzel.h"
#include "desktop/ventanas/pintorboton.h"
#include "testkit/manos.h"

#include <QImage>
#include <QPainter>

namespace tarvo {
namespace {

// What the buttons ask of the application.
class Pedidos : public QObject {
  public:
    QStringList hechos;
    Pedidos() { qApp->installEventFilter(this); }

  protected:
    bool eventFilter(QObject *, QEvent *evento) override {
        if (evento->type() != PedidoBoton::Tipo())
            return false;
        hechos += static_cast<PedidoBoton *>(evento)->destino;
        return true;
    }
};

class PruebaBotonZel : public ::testing::Test {
  protected:
    QWidget ventana;
    BotonZel boton{u"Aceptar"_qs, &ventana};
    Pedidos pedidos;
    int clics = 0;

    void SetUp() override {
        ventana.resize(300, 100);
        boton.setObjectName(u"cmdAceptar"_qs);
        boton.setGeometry(20, 20, 120, 30);
        QObject::connect(&boton, &BotonZel::Click, &ventana, [this] { ++clics; });
        MostrarVentana(ventana);
        boton.setFocus();
        Pedidos_(); // what an earlier test left behind
    }
    QStringList Pedidos_() {
        QCoreApplication::sendPostedEvents();
        return std::exchange(pedidos.hechos, {});
    }
};

TEST_F(PruebaBotonZel, ClicksInsideAndNotWhenDraggedOut) {
    QTest::mousePress(&boton, Qt::LeftButton);
    EXPECT_TRUE(boton.isDown());
    QTest::mouseMove(&boton, {200, 60});
    QTest::mouseRelease(&boton, Qt::LeftButton, {}, {200, 60});
    EXPECT_EQ(clics, 0);
    Pedidos_();
    Pulsar(&boton);
    EXPECT_EQ(clics, 1);
    EXPECT_EQ(Pedidos_(), QStringList{u".\\resources\\click.wav"_qs});
    QTest::mouseClick(&boton, Qt::RightButton);
    EXPECT_EQ(clics, 1);
    QTest::mouseClick(&boton, Qt::MiddleButton);
    EXPECT_EQ(clics, 2);
}

TEST_F(PruebaBotonZel, KeysPressOnceUntilTheyGoUp) {
    for (const Qt::Key tecla : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        clics = 0;
        QTest::keyPress(&boton, tecla);
        EXPECT_EQ(clics, 1); // when it goes down
        EXPECT_EQ(boton.isDown(), tecla == Qt::Key_Space);
        QTest::keyPress(&boton, tecla); // held
        EXPECT_EQ(clics, 1);
        QTest::keyRelease(&boton, tecla);
        EXPECT_FALSE(boton.isDown());
        Tecla(&boton, tecla);
        EXPECT_EQ(clics, 2);
    }
    EXPECT_EQ(Pedidos_(), QStringList()); // keys make no sound
    boton.setCheckable(true);
    Tecla(&boton, Qt::Key_Space);
    EXPECT_TRUE(boton.isChecked());
}

TEST_F(PruebaBotonZel, FollowsItsLinkAndSoundsUnderThePointer) {
    boton.setProperty("URL", u"mailto:a@velbrina.example"_qs);
    boton.click();
    EXPECT_EQ(Pedidos_(), QStringList{u"mailto:a@velbrina.example"_qs});
    const QSignalSpy entradas(&boton, &BotonZel::MouseIn);
    const QSignalSpy salidas(&boton, &BotonZel::MouseOut);
    QTest::mouseMove(&boton, {5, 5});
    QTest::mouseMove(&boton, {9, 9});
    EXPECT_EQ(entradas.size(), 1);
    EXPECT_TRUE(salidas.isEmpty());
    EXPECT_EQ(Pedidos_(), QStringList{u".\\resources\\over.wav"_qs});
    QTest::mouseMove(&ventana, {250, 90});
    EXPECT_EQ(salidas.size(), 1);
}

TEST_F(PruebaBotonZel, KeepsOnlyWhatDiffersFromTheDefaults) {
    boton.setText(boton.objectName());
    EXPECT_TRUE(boton.Guardar().isEmpty()) << boton.Guardar().firstKey().toStdString();
    boton.setProperty("XPStyle", true);
    boton.setProperty("BEVEL", 2);
    boton.setText(u"Otro"_qs);
    const QVariantMap bolsa = boton.Guardar();
    EXPECT_EQ(bolsa.keys(), QStringList({u"BEVEL"_qs, u"Caption"_qs, u"XPStyle"_qs}));
    BotonZel otro(&ventana);
    otro.setProperty("BEVELDEPTH", 3);
    otro.Leer(bolsa);
    EXPECT_EQ(otro.Guardar(), bolsa);
    EXPECT_EQ(otro.property("BEVELDEPTH").toInt(), 8);
    EXPECT_EQ(otro.property("ForeColor").toUInt(), coloressistema::kTextoBoton); // the index, not the colour
}

TEST_F(PruebaBotonZel, CutsTheCornersOfItsWindow) {
    boton.setProperty("XPStyle", true);
    const QRegion region = boton.mask();
    for (const QPoint fuera : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(119, 29), QPoint(118, 29)})
        EXPECT_FALSE(region.contains(fuera)) << fuera.x() << ' ' << fuera.y();
    for (const QPoint dentro : {QPoint(2, 0), QPoint(1, 1), QPoint(0, 2), QPoint(117, 29)})
        EXPECT_TRUE(region.contains(dentro)) << dentro.x() << ' ' << dentro.y();
}

// Colours of single rows and columns of the drawn face, at the middle of the other side.
TEST(PintorBoton, DrawsGradientAndFrame) {
    AspectoBoton boton;
    boton.zona = {0, 0, 60, 30};
    boton.fondo = QColor(100, 120, 140);
    boton.borde = Qt::black;
    boton.enfocado = QColor(10, 36, 106);
    boton.bajoRaton = QColor(181, 190, 214);
    const auto pintado = [&boton] {
        QImage imagen(60, 30, QImage::Format_RGB32);
        QPainter pintor(&imagen);
        PintarBoton(pintor, boton);
        return imagen;
    };
    const auto fila = [](const QImage &imagen, int y) { return imagen.pixelColor(30, y); };

    EXPECT_EQ(fila(pintado(), 0), Desplazado(boton.fondo, 48));
    EXPECT_EQ(fila(pintado(), 4), Desplazado(boton.fondo, 24));
    EXPECT_EQ(fila(pintado(), 8), boton.fondo);
    boton.bisel = 2;
    EXPECT_EQ(fila(pintado(), 29), Desplazado(boton.fondo, 48));
    boton.conFoco = true;
    EXPECT_EQ(fila(pintado(), 0), QColor(Qt::black));
    EXPECT_EQ(fila(pintado(), 1), QColor(75, 101, 171));
    EXPECT_EQ(fila(pintado(), 28), QColor(0, 3, 73));
    EXPECT_EQ(pintado().pixelColor(57, 15), QColor(41, 67, 137));
    boton.conRaton = true;
    EXPECT_EQ(fila(pintado(), 2), QColor(Qt::white));
    boton.presionado = true;
    EXPECT_EQ(fila(pintado(), 1), boton.enfocado) << "the frame of the pressed one";
    EXPECT_EQ(fila(pintado(), 27), Desplazado(boton.fondo, -48));
    EXPECT_EQ(fila(pintado(), 2), Desplazado(boton.fondo, 16));
    EXPECT_EQ(pintado().pixelColor(57, 15), Desplazado(boton.fondo, -36));
}

} // namespace
} // namespace tarvo
