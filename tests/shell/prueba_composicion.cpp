// The program's own windows behind the entries of the main window.
#include "mundoprincipal.h"

#include <QFile>
#include <QTimer>

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
    const QString ruta = mundo.datos.Carpeta() + QStringLiteral("/clientes.txt");
    mundo.preguntas.EsperaRuta(
        {.para = PedidoRuta::Para::Guardar,
         .titulo = QStringLiteral("Exportar..."),
         .filtro = QStringLiteral("Hoja de Microsoft Excel|*.xls|Archivo de texto separado por comas|*.txt"),
         .carpeta = QString()},
        ruta);
    Tecla(frm.get(), Qt::Key_F6, Qt::ControlModifier);
    QFile archivo(ruta);
    ASSERT_TRUE(archivo.open(QIODevice::ReadOnly));
    EXPECT_EQ(archivo.readAll(), "1,Ana,,,\r\n");
    Tecla(frm.get(), Qt::Key_F3);
    EXPECT_FALSE(DeMenu("exportar")->isEnabled()) << "the customers are closed";
}

TEST_F(ComposicionTest, TheBackupOpensOverTheMainWindowAlone) {
    composicion = Componer(mundo.servicios());
    Abrir();
    Tecla(frm.get(), Qt::Key_F4);
    QString modal;
    QTimer cierre;
    QObject::connect(&cierre, &QTimer::timeout, &cierre, [&] {
        if (QWidget *const ventana = QApplication::activeModalWidget()) {
            modal = ventana->objectName();
            Tecla(ventana, Qt::Key_Escape);
        }
    });
    cierre.start(1);
    mundo.preguntas.Espera(
        QStringLiteral("Al ingresar a las opciones de respaldo se cerrará el formulario de "
                       "clientes.\nDesea continuar?"),
        Respuesta::No, Respuesta::Si);
    Tecla(frm.get(), Qt::Key_F6);
    EXPECT_EQ(modal, QStringLiteral("frmRespaldo"));
    EXPECT_FALSE(DeMenu("clientes")->isChecked());
    EXPECT_FALSE(DeBarra("respaldar")->isChecked());
}

TEST_F(ComposicionTest, TheEntriesOfReturnsOpenTheAccountsAndGoThere) {
    mundo.datos.Ejecutar("INSERT INTO ventas.Ventas(fecha,hora,idcliente,tipo,descripcion,total) VALUES"
                         "('22/11/2026','10:00','0','Contado','Factura contado','$ 5,00')");
    composicion = Componer(mundo.servicios());
    Abrir();
    DeMenu("devcontado")->trigger();
    EXPECT_TRUE(Control<QWidget>(*frm, "cmdContinuarDev")->isVisible());
    EXPECT_TRUE(DeMenu("estado")->isChecked() && DeBarra("estado")->isChecked());
    EXPECT_TRUE(DeMenu("exportar")->isEnabled());
    DeMenu("devcliente")->trigger();
    EXPECT_TRUE(Control<QWidget>(*frm, "picClientes")->isVisible());
    EXPECT_TRUE(DeMenu("estado")->isChecked()) << "open accounts are not closed";
    Tecla(frm.get(), Qt::Key_F7);
    EXPECT_EQ(frm->findChild<QWidget *>(QStringLiteral("frmEstados")), nullptr);
    EXPECT_FALSE(DeMenu("exportar")->isEnabled());
}

} // namespace
} // namespace tarvo
