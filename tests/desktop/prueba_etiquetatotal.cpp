#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/etiquetatotal.h"
#include "desktop/ventanas/tamano.h"
#include "testkit/manos.h"

#include <QAccessible>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMainWindow>

namespace tarvo {
namespace {

// A column of three tenths of a window of that size, with the total in it.
struct Columna {
    QWidget ventana;
    QLabel *rotulo = new QLabel(u"&Total c/Descuento"_qs, &ventana);
    EtiquetaTotal *total = new EtiquetaTotal(&ventana);

    explicit Columna(QSize medida) {
        auto *fila = new QHBoxLayout(&ventana);
        fila->setContentsMargins(0, 0, 10, 0);
        fila->addWidget(rotulo, 69);
        fila->addWidget(total, 31);
        rotulo->setBuddy(total);
        rotulo->setMinimumWidth(medida.width() * 68 / 100);
        ventana.resize(medida);
        MostrarVentana(ventana);
    }
    // What the total paints in its label.
    QRect Pintado() const {
        const QImage imagen = total->grab().toImage();
        QRect pintado;
        for (int y = 0; y < imagen.height(); ++y)
            for (int x = 0; x < imagen.width(); ++x)
                if (imagen.pixelColor(x, y).lightness() < 128)
                    pintado |= QRect(x, y, 1, 1);
        return pintado;
    }
};

TEST(EtiquetaTotal, FillsItsColumnAndIsNeverCut) {
    for (const auto &[medida, capital] :
         {std::pair(QSize(800, 600), 34), {QSize(1280, 900), 60}, {QSize(1920, 1080), 80}}) {
        SCOPED_TRACE(medida.width());
        Columna c(medida);
        c.total->setText(u"8888,88"_qs);
        const int alto = c.total->height();
        c.total->setText(u"$ 8888,88"_qs);
        const QRect cuatro = c.Pintado();
        EXPECT_NEAR(cuatro.height() / 1.25, capital,
                    capital / 8.0); // the sign and the comma pass the figures
        for (const QString &largo : {u"$ 123456,78"_qs, u"$ -999999999999999,00"_qs}) {
            c.total->setText(largo);
            const QRect pintado = c.Pintado();
            EXPECT_LT(pintado.height(), cuatro.height());
            EXPECT_GT(pintado.width(), c.total->width() * 9 / 10);
            EXPECT_TRUE(c.total->toolTip().isEmpty()) << "cut";
            EXPECT_EQ(c.total->height(), alto) << "what stands below moves";
        }
        EXPECT_EQ(c.ventana.size(), medida);
    }
}

TEST(EtiquetaTotal, IsReadAloudWithItsCaption) {
    Columna c({800, 600});
    c.total->setText(u"$ 2,50"_qs);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(c.total)->text(QAccessible::Name),
              u"Total c/Descuento: $ 2,50");
}

TEST(Tamano, TypeAndSpacingFollowTheWidthOfTheMainWindow) {
    QMainWindow principal;
    auto *centro = new QWidget;
    auto *fila = new QHBoxLayout(centro);
    fila->setContentsMargins(10, 10, 10, 10);
    fila->setSpacing(20);
    principal.setCentralWidget(centro);
    principal.resize(1200, 300);
    MostrarVentana(principal);
    const double letra = QApplication::font().pointSizeF();
    for (int vez = 0; vez < 2; ++vez) {
        principal.resize(Tamano::kAnchoGrande, 300);
        EXPECT_GT(QApplication::font().pointSizeF(), letra * 1.15);
        EXPECT_GT(centro->font().pointSizeF(), letra * 1.15);
        EXPECT_EQ(fila->spacing(), 24);
        QWidget nueva;
        auto *suya = new QHBoxLayout(&nueva);
        suya->setSpacing(20);
        nueva.show();
        EXPECT_EQ(suya->spacing(), 24) << "a window opened meanwhile";
        principal.resize(1200, 300);
        EXPECT_EQ(QApplication::font().pointSizeF(), letra);
        EXPECT_EQ(fila->spacing(), 20);
        EXPECT_EQ(fila->contentsMargins().left(), 10);
    }
}

TEST(Tamano, AirChangesTheVerticalRoomAndTakesNoGapAway) {
    QWidget ventana;
    auto *rejilla = new QGridLayout(&ventana);
    rejilla->setContentsMargins(9, 3, 9, 3);
    rejilla->setHorizontalSpacing(8);
    rejilla->setVerticalSpacing(1);
    for (const auto &[aire, margen, hueco] : {std::tuple{0.4, 1, 1}, {2.0, 6, 2}, {1.0, 3, 1}}) {
        PonerAire({rejilla}, aire);
        EXPECT_EQ(rejilla->contentsMargins(), QMargins(9, margen, 9, margen)) << aire;
        EXPECT_EQ(rejilla->verticalSpacing(), hueco) << aire;
        EXPECT_EQ(rejilla->horizontalSpacing(), 8) << aire;
    }
}

} // namespace
} // namespace tarvo
