// The program's own windows behind the entries of the main window.
#include "mundoprincipal.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

class ComposicionTest : public MundoPrincipal {};

TEST_F(ComposicionTest, ExportIsOfferedWhileAListWithRowsIsOnScreen) {
    mundo.datos.Ejecutar("INSERT INTO clientes.Clientes (codigo, nombre) VALUES ('1', 'Ana')");
    composicion = Componer(mundo.servicios());
    Abrir();
    EXPECT_FALSE(DeMenu("exportar")->isEnabled());
    Tecla(frm.get(), Qt::Key_F3);
    EXPECT_FALSE(DeMenu("exportar")->isEnabled()) << "there is no supplier";
    Tecla(frm.get(), Qt::Key_F4);
    EXPECT_TRUE(DeMenu("exportar")->isEnabled());
    mundo.preguntas.EsperaMensaje(QStringLiteral("La exportación no está disponible en esta versión."),
                                  Icono::Informacion);
    Tecla(frm.get(), Qt::Key_F6, Qt::ControlModifier);
    Tecla(frm.get(), Qt::Key_F3);
    EXPECT_FALSE(DeMenu("exportar")->isEnabled()) << "the customers are closed";
}

} // namespace
} // namespace tarvo
