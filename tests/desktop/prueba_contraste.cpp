#include "desktop/contraste.h"
#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/listavista.h"
#include "testkit/manos.h"

#include <QFocusFrame>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolBar>

#include <functional>

namespace tarvo {
namespace {

TEST(Contraste, KnowsTheLimitsAndDarkensNoMoreThanItMust) {
    EXPECT_NEAR(Contraste(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(Contraste(QColor(119, 119, 119), Qt::white), 4.48, 0.01);
    EXPECT_EQ(Legible({0, 128, 0}, Qt::white), QColor(0, 128, 0)) << "can be read as it is";
    const QColor rojo = Legible({255, 0, 0}, Qt::white);
    EXPECT_GT(rojo.red(), 220);
    EXPECT_EQ(rojo.green() + rojo.blue(), 0);
}

// The strongest contrast that anything inside of `zona` has with what is behind it.
double ContrasteDeTexto(const QImage &imagen, const QRect &zona, const QColor &fondo) {
    double mayor = 1;
    for (int y = zona.top(); y <= zona.bottom(); ++y)
        for (int x = zona.left(); x <= zona.right(); ++x)
            mayor = std::max(mayor, Contraste(imagen.pixelColor(x, y), fondo));
    return mayor;
}

struct CasoControl {
    const char *nombre;
    std::function<QWidget *(QWidget *)> crear;
    bool habilitado = true;
    bool borde = true;
    const char *propiedad = nullptr;
};

template <typename T> QWidget *Con(QWidget *padre) {
    auto *control = new T(padre);
    control->setText(u"MMMMM"_qs);
    return control;
}

QWidget *Combo(QWidget *padre) {
    auto *control = new QComboBox(padre);
    control->addItem(u"MMMMM"_qs);
    return control;
}

// Rendered in the program's style: what is in the sheet counts, not what somebody believes.
TEST(Contraste, TextsAndBordersOfControlsCanBeTold) {
    constexpr double kContrasteBorde = 3.0;
    for (const auto &[nombre, crear, habilitado, borde, propiedad] :
         {CasoControl{"field", Con<QLineEdit>}, CasoControl{"disabled field", Con<QLineEdit>, false},
          CasoControl{"without data", Con<QLineEdit>, false, true, "sinDatos"},
          CasoControl{"kept", Con<QLineEdit>, true, true, "conservado"}, CasoControl{"combo", Combo},
          CasoControl{"disabled combo", Combo, false}, CasoControl{"button", Con<QPushButton>},
          CasoControl{"disabled button", Con<QPushButton>, false, false},
          CasoControl{"main button", Con<QPushButton>, true, true, "principal"},
          CasoControl{"disabled main button", Con<QPushButton>, false, false, "principal"},
          CasoControl{"caption", Con<QLabel>, true, false, "tenue"},
          CasoControl{"disabled label", Con<QLabel>, false, false},
          CasoControl{"title", Con<QLabel>, true, false, "titulo"}}) {
        SCOPED_TRACE(nombre);
        QWidget ventana;
        ventana.resize(300, 100);
        auto *otro = new QCheckBox(&ventana);
        QWidget *control = crear(&ventana);
        if (propiedad != nullptr)
            Marcar(control, propiedad, true);
        control->setGeometry(20, 20, 250, 60);
        QFont letra = control->font();
        letra.setPointSize(20);
        control->setFont(letra);
        control->setEnabled(habilitado);
        MostrarVentana(ventana);
        otro->setFocus();
        const QImage imagen = ventana.grab().toImage();
        const QColor fondo = imagen.pixelColor(23, 25);
        EXPECT_GE(ContrasteDeTexto(imagen, {26, 26, 236, 48}, fondo), kContrasteTexto);
        if (borde) {
            EXPECT_GE(Contraste(imagen.pixelColor(20, 50), colores::kFondo), kContrasteBorde);
        }
    }
}

TEST(Contraste, EveryToneCanBeReadOnEveryRow) {
    ListaTexto lista{{{u"Texto"_qs, 3000}}};
    const std::initializer_list<Tono> tonos{Tono::Normal, Tono::Verde,   Tono::Rojo,
                                            Tono::Azul,   Tono::Purpura, Tono::Marron};
    for (const Tono tono : tonos)
        lista.PonerTono(lista.AgregarFila({u"MMMMM"_qs}), 0, tono);
    ListaVista vista;
    QFont letra = vista.font();
    letra.setPointSize(20);
    vista.setFont(letra);
    vista.resize(300, 400);
    vista.Mostrar(&lista);
    MostrarVentana(vista);
    for (const bool habilitada : {true, false}) {
        vista.setEnabled(habilitada);
        for (int fila = 0; fila < lista.Filas(); ++fila)
            for (const int elegida : {fila, (fila + 1) % lista.Filas()}) {
                vista.SeleccionarFila(elegida);
                const QRect zona = vista.visualRect(lista.index(fila, 0)).adjusted(1, 1, -4, -1);
                const QImage imagen = vista.viewport()->grab().toImage();
                const QColor fondo = imagen.pixelColor(zona.right() - 5, zona.center().y());
                EXPECT_GE(ContrasteDeTexto(imagen, zona, fondo), kContrasteTexto)
                    << fila << " chosen: " << (elegida == fila) << " enabled: " << habilitada;
                if (elegida == fila) {
                    EXPECT_EQ(fondo, habilitada ? colores::kPresionado : colores::kPresionadoTenue);
                }
            }
    }
    EXPECT_EQ(lista.index(2, 0).data(Qt::ForegroundRole).value<QColor>(), QColor(255, 0, 0))
        << "the list itself keeps the tone";
}

// A ring of the same colour around whatever has the focus, and nothing inside of it.
TEST(Foco, OneMarkForAllControls) {
    QWidget ventana;
    ventana.resize(300, 200);
    std::vector<QWidget *> controles{Con<QLineEdit>(&ventana), Con<QPushButton>(&ventana), Combo(&ventana),
                                     Con<QCheckBox>(&ventana), new ListaVista(&ventana)};
    Marcar(controles[1], "principal", true);
    int y = 10;
    for (QWidget *control : controles) {
        control->setGeometry(20, y, 250, 28);
        y += 36;
    }
    MostrarVentana(ventana);
    for (QWidget *control : controles) {
        control->setFocus();
        const QImage imagen = ventana.grab().toImage();
        for (const QWidget *otro : controles) {
            const QRect sitio = otro->geometry();
            for (const QPoint punto :
                 {QPoint(sitio.left() - 1, sitio.center().y()), QPoint(sitio.right() + 1, sitio.center().y()),
                  QPoint(sitio.center().x(), sitio.top() - 1)})
                EXPECT_EQ(imagen.pixelColor(punto) == colores::kTitulo, otro == control)
                    << otro->metaObject()->className() << " " << (otro == control);
        }
    }
}

// In a tool bar that its button fills, and with the control in what scrolls, where only its part in view has
// it.
TEST(Foco, TheRingIsWhereTheControlIsSeen) {
    QScrollArea area;
    area.resize(200, 100);
    auto *contenido = new QWidget;
    contenido->resize(180, 400);
    QToolBar barra(contenido);
    QWidget *const boton = barra.widgetForAction(barra.addAction(QStringLiteral("N")));
    boton->setFocusPolicy(Qt::TabFocus);
    barra.setGeometry(20, 300, 30, 30);
    area.setWidget(contenido);
    MostrarVentana(area);
    boton->setFocus();
    const auto anillo = [&] { return Control<QFocusFrame>(area, ""); };
    EXPECT_FALSE(anillo()->isVisible()) << "scrolled out of view";
    for (const QSize &tamano : {QSize(200, 100), QSize(200, 150)}) {
        area.resize(tamano);
        area.verticalScrollBar()->setValue(260);
        const QRect sitio(boton->mapTo(&area, QPoint(-2, -2)), boton->size() + QSize(4, 4));
        EXPECT_EQ(anillo()->geometry(), sitio & area.viewport()->geometry());
        qApp->setStyleSheet(qApp->styleSheet() + QLatin1Char(' '));
        EXPECT_TRUE(anillo()->isVisible());
    }
}

} // namespace
} // namespace tarvo
