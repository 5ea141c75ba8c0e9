#include "desktop/ventanas/girador.h"
#include "testkit/manos.h"

#include <QLineEdit>

#include <gtest/gtest.h>

namespace tarvo {
namespace {

struct GiradorPrueba : testing::Test {
    QWidget ventana;
    QLineEdit campo{&ventana};
    QLineEdit otro{&ventana};
    Girador girador{&ventana};

    GiradorPrueba() {
        girador.Acompanar(&campo, 1, 30);
        girador.setGeometry(100, 0, 16, 20);
        otro.move(0, 50);
        MostrarVentana(ventana);
    }
};

TEST_F(GiradorPrueba, CountsUnlessTheNumberIsJustAtItsLimit) {
    struct Caso {
        const char *antes, *arriba, *abajo;
        int posicion;
    };
    for (const Caso &caso : {Caso{"7", "8", "6", -7},
                             {"29", "30", "28", -29},
                             {"30", "30", "29", -30},
                             {"45", "46", "44", -30},
                             {"1", "2", "1", -1},
                             {"", "1", "", -1},
                             {"10,5", "11", "9", -10}}) {
        for (const bool arriba : {true, false}) {
            campo.setText(QString::fromUtf8(caso.antes));
            EXPECT_EQ(girador.value(), caso.posicion);
            EXPECT_EQ(campo.text(), QString::fromUtf8(caso.antes)) << "typed text isn't written over";
            QTest::mouseClick(&girador, Qt::LeftButton, {}, QPoint(8, arriba ? 3 : 17));
            EXPECT_EQ(campo.text(), QString::fromUtf8(arriba ? caso.arriba : caso.abajo)) << caso.antes;
        }
    }
    girador.setValue(-12);
    EXPECT_EQ(campo.text(), u"12");
}

TEST_F(GiradorPrueba, FollowsTheFieldsStateAndIsWheeledOnlyWhileItIsEdited) {
    campo.setText(u"7"_qs);
    otro.setFocus();
    Rueda(&girador);
    EXPECT_EQ(campo.text(), u"7");
    campo.setFocus();
    Rueda(&girador);
    EXPECT_EQ(campo.text(), u"6");
    campo.setEnabled(false);
    EXPECT_FALSE(girador.isEnabled());
    campo.setEnabled(true);
    EXPECT_TRUE(girador.isEnabled());
}

} // namespace
} // namespace tarvo
