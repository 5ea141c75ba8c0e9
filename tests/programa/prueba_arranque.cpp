// The first start in a folder, and a second process on the same files.
#include "programa/programaenpantalla.h"

#include <QDir>

namespace tarvo {
namespace {

class Arranque : public MundoPrograma {};

TEST_F(Arranque, FirstStartMakesTheDataAndASecondProcessIsRefused) {
    ProgramaEnPantalla primero(carpeta_);
    primero.EsperarPrincipal();
    EXPECT_EQ(QDir(carpeta_.Ruta("Datos")).entryList({u"*.mdb"_qs}).size(), 5);

    ProgramaEnPantalla segundo(carpeta_);
    segundo.EsperarCuadro();
    EXPECT_FALSE(segundo.HayVentanaPrincipal());
    segundo.Teclas("Return");
    EXPECT_EQ(segundo.CodigoSalida(), 1);

    ProgramaEnPantalla directo(carpeta_, kDirecto);
    directo.EsperarCuadro();
    directo.Teclas("Return");
    EXPECT_EQ(directo.CodigoSalida(), 1);

    primero.EsperarVuelta();
    primero.Teclas("alt+F4");
    EXPECT_EQ(primero.CodigoSalida(), 0);
    EXPECT_EQ(carpeta_.Valor("config.mdb", "SELECT count(*) FROM Ticket"), "1");
}

TEST_F(Arranque, TheUsersOpenOverTheMainWindow) {
    ProgramaEnPantalla programa(carpeta_, kDirecto + QStringList{u"--usuarios"_qs});
    programa.EsperarCuadro();
    programa.Teclas("Escape");
    programa.EsperarPrincipal();
    programa.Teclas("alt+F4");
    EXPECT_EQ(programa.CodigoSalida(), 0);
}

} // namespace
} // namespace tarvo
