#include "shell/ajustesprincipal.h"
#include "shell/apertura.h"
#include "shell/avisofallas.h"
#include "shell/medidas.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <stdexcept>

namespace tarvo {
namespace {

TEST(Medidas, WindowSizeFollowsTheScreenWidth) {
    const std::pair<int, TamanoInicial> casos[] = {{640, {std::nullopt, true}},
                                                   {639, {std::nullopt, false}},
                                                   {800, {MedidaVentana{9600, 7200}, true}},
                                                   {801, {std::nullopt, false}},
                                                   {1023, {std::nullopt, false}},
                                                   {1024, {MedidaVentana{12000, 9000}, false}},
                                                   {1280, {MedidaVentana{12000, 9000}, false}},
                                                   {3840, {MedidaVentana{12000, 9000}, false}}};
    for (const auto &[pixeles, esperado] : casos)
        EXPECT_EQ(TamanoPorPantalla(ATwips(pixeles)), esperado) << pixeles;
}

class AjustesTest : public ::testing::Test {
  protected:
    QTemporaryDir carpeta;
    QSettings guardados{carpeta.filePath(u"a.ini"_qs), QSettings::IniFormat};
    AjustesPrincipal ajustes{guardados};
};

TEST_F(AjustesTest, BarsAreShownUnlessTheSettingSaysFalse) {
    EXPECT_TRUE(ajustes.BarHer());
    EXPECT_TRUE(ajustes.BarEst());
    ajustes.PonerBarHer(false);
    EXPECT_FALSE(ajustes.BarHer());
    EXPECT_TRUE(ajustes.BarEst());
    EXPECT_EQ(guardados.value(u"BarHer"_qs).toString(), u"False");
    ajustes.PonerBarHer(true);
    EXPECT_EQ(guardados.value(u"BarHer"_qs).toString(), u"True");
    guardados.setValue(u"BarEst"_qs, u"basura"_qs);
    EXPECT_TRUE(ajustes.BarEst());
}

TEST_F(AjustesTest, WhatIsNotStoredOfTheWindowIsItsCurrentState) {
    const Geometria actual{kVentanaMaximizada, 15, 30, 12000, 9000};
    EXPECT_EQ(ajustes.PantComp(actual), actual);
    const Geometria antes{kVentanaNormal, 150, -300, 11000, 8000};
    ajustes.PonerPantComp(antes);
    EXPECT_EQ(ajustes.PantComp(actual), antes);
    guardados.setValue(u"PantCompW"_qs, u"ancho"_qs);
    EXPECT_EQ(ajustes.PantComp(actual).ancho, actual.ancho);
}

TEST(Apertura, OnlyAPartialOpeningGivesAHint) {
    EXPECT_TRUE(AvisoApertura({}).isEmpty());
    EXPECT_EQ(AvisoApertura({EstadoApertura::Parcial, u"clientes.mdb"_qs, u"está dañado."_qs}),
              u"No se pudo abrir clientes.mdb: está dañado."_qs);
    EXPECT_EQ(AvisoApertura({EstadoApertura::Parcial, {}, u"el disco está lleno."_qs}),
              u"No se pudieron abrir los datos: el disco está lleno."_qs);
}

TEST(Apertura, DataThatLieElsewhereAreTold) {
    const QTemporaryDir programa;
    const QTemporaryDir medio;
    const QString propia = programa.filePath(u"Datos"_qs);
    QDir().mkdir(propia);
    EXPECT_TRUE(AvisoLugar(propia, programa.path() + u"/."_qs).isEmpty());
    const QString lejos = u"Datos en "_qs + QFileInfo(medio.path()).canonicalFilePath();
    EXPECT_EQ(AvisoLugar(medio.path(), programa.path()), lejos);
    QDir().rmdir(propia);
    QFile::link(medio.path(), propia);
    EXPECT_EQ(AvisoLugar(propia, programa.path()), lejos);
    EXPECT_EQ(UnirAvisos({QString(), lejos, u"x"_qs}), lejos + u"   x"_qs);
}

// Each message sets off another exception, as a window that can't be painted would.
class PreguntasQueFallan final : public Preguntas {
  public:
    AvisoFallas aviso{*this};
    QStringList mostrados;

    Respuesta Preguntar(const QString &, Respuesta preseleccionada) override { return preseleccionada; }
    void Mostrar(const QString &texto, Icono icono) override {
        EXPECT_EQ(icono, Icono::Critico);
        mostrados += texto;
        aviso.Proteger([]() -> bool { throw std::runtime_error("otra vez"); });
    }
    QString ElegirRuta(const PedidoRuta &) override { return {}; }
};

TEST(AvisoFallas, TellsAnExceptionOnceAndGoesOn) {
    PreguntasQueFallan preguntas;
    EXPECT_FALSE(preguntas.aviso.Proteger([] { return false; }));
    EXPECT_TRUE(preguntas.mostrados.isEmpty());
    for (int vez = 1; vez <= 2; ++vez) {
        EXPECT_TRUE(preguntas.aviso.Proteger([]() -> bool { throw std::runtime_error("disco lleno, ñ"); }));
        EXPECT_EQ(preguntas.mostrados.size(), vez);
    }
    EXPECT_EQ(preguntas.mostrados.front(), u"No se pudo completar la operación: disco lleno, ñ"_qs);
    EXPECT_TRUE(preguntas.aviso.Proteger([]() -> bool { throw 3; }));
    EXPECT_EQ(preguntas.mostrados.size(), 3);
}

} // namespace
} // namespace tarvo
