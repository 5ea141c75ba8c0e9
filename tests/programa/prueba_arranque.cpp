// The first start in a folder, and a second process on the same files.
#include "programa/mundoprograma.h"

#include <QDir>

using namespace tarvo;

class Arranque : public MundoPrograma {};

TEST_F(Arranque, FirstStartMakesTheDataAndASecondProcessIsRefused) {
    ProgramaEnPantalla primero(carpeta_);
    primero.EsperarPrincipal();
    const QStringList archivos = {QStringLiteral("articulos.mdb"), QStringLiteral("clientes.mdb"),
                                  QStringLiteral("config.mdb"), QStringLiteral("proveedores.mdb"),
                                  QStringLiteral("ventas.mdb")};
    const QStringList mascara = {QStringLiteral("*.mdb")};
    EXPECT_EQ(QDir(carpeta_.Ruta("Datos")).entryList(mascara, QDir::Files, QDir::Name), archivos);
    EXPECT_EQ(QDir(carpeta_.Ruta("Datos/vacio")).entryList(mascara, QDir::Files, QDir::Name), archivos);

    ProgramaEnPantalla segundo(carpeta_);
    segundo.EsperarCuadro();
    EXPECT_FALSE(segundo.HayVentanaPrincipal());
    segundo.Teclas({QStringLiteral("Return")});
    EXPECT_EQ(segundo.CodigoSalida(), 1);

    ProgramaEnPantalla directo(carpeta_, kDirecto);
    directo.EsperarCuadro();
    directo.Teclas({QStringLiteral("Return")});
    EXPECT_EQ(directo.CodigoSalida(), 1);

    primero.EsperarVuelta();
    primero.Teclas({QStringLiteral("alt+F4")});
    EXPECT_EQ(primero.CodigoSalida(), 0);
    EXPECT_EQ(carpeta_.Valor("config.mdb", "SELECT count(*) FROM Ticket"), "1");
}
