#include "desktop/ventanas/paneles.h"
#include "testkit/manos.h"

#include <QFrame>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

namespace tarvo {
namespace {

TEST(Paneles, AClosedPanelLeavesTheFocusWhereAKeyCanBeUsed) {
    QWidget ventana;
    QLineEdit oculto(&ventana);
    QLineEdit apagado(&ventana);
    QFrame panel(&ventana);
    QLineEdit dentro(&panel);
    QPushButton tras(&ventana);
    QLineEdit destino(&ventana);
    MostrarVentana(ventana);
    oculto.hide();
    apagado.setEnabled(false);
    const auto cerrar = [&](std::initializer_list<QWidget *> destinos) {
        panel.show();
        dentro.setFocus();
        CerrarPanel(panel, destinos);
        EXPECT_FALSE(panel.isVisible());
        return QApplication::focusWidget();
    };
    EXPECT_EQ(cerrar({&oculto, &apagado, &dentro, &destino, &tras}), &destino);
    EXPECT_EQ(cerrar({&oculto}), &tras) << "none that was named: the next one in tab order";
    tras.setEnabled(false);
    EXPECT_EQ(cerrar({}), &destino);
}

} // namespace
} // namespace tarvo
