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
    struct Caso {
        int pixeles;
        TamanoInicial esperado;
    };
    const Caso casos[] = {
        {640, {std::nullopt, true}},          {639, {std::nullopt, false}},
        {800, {Tamano{9600, 7200}, true}},    {801, {std::nullopt, false}},
        {1023, {std::nullopt, false}},        {1024, {Tamano{12000, 9000}, false}},
        {1280, {Tamano{12000, 9000}, false}}, {3840, {Tamano{12000, 9000}, false}},
    };
    for (const Caso &caso : casos)
        EXPECT_EQ(TamanoPorPantalla(ATwips(caso.pixeles)), caso.esperado) << caso.pixeles;
}

class AjustesTest : public ::testing::Test {
  protected:
    QTemporaryDir carpeta;
    QSettings guardados{carpeta.filePath(QStringLiteral("a.ini")), QSettings::IniFormat};
    AjustesPrincipal ajustes{guardados};
};

TEST_F(AjustesTest, BarsAreShownUnlessTheSettingSaysFalse) {
    EXPECT_TRUE(ajustes.BarHer());
    EXPECT_TRUE(ajustes.BarEst());
    ajustes.PonerBarHer(false);
    EXPECT_FALSE(ajustes.BarHer());
    EXPECT_TRUE(ajustes.BarEst());
    EXPECT_EQ(guardados.value(QStringLiteral("BarHer")).toString(), QStringLiteral("False"));
    ajustes.PonerBarHer(true);
    EXPECT_EQ(guardados.value(QStringLiteral("BarHer")).toString(), QStringLiteral("True"));
    guardados.setValue(QStringLiteral("BarEst"), QStringLiteral("basura"));
    EXPECT_TRUE(ajustes.BarEst());
}

TEST_F(AjustesTest, WhatIsNotStoredOfTheWindowIsItsCurrentState) {
    const Geometria actual{kVentanaMaximizada, 15, 30, 12000, 9000};
    EXPECT_EQ(ajustes.PantComp(actual), actual);
    const Geometria antes{kVentanaNormal, 150, -300, 11000, 8000};
    ajustes.PonerPantComp(antes);
    EXPECT_EQ(ajustes.PantComp(actual), antes);
    guardados.setValue(QStringLiteral("PantCompW"), QStringLiteral("ancho"));
    EXPECT_EQ(ajustes.PantComp(actual).ancho, actual.ancho);
}

TEST(Apertura, OnlyAPartialOpeningGivesAHint) {
    EXPECT_TRUE(AvisoApertura({}).isEmpty());
    EXPECT_EQ(AvisoApertura(
                  {EstadoApertura::Parcial, QStringLiteral("clientes.mdb"), QStringLiteral("está dañado.")}),
              QStringLiteral("No se pudo abrir clientes.mdb: está dañado."));
    EXPECT_EQ(AvisoApertura({EstadoApertura::Parcial, {}, QStringLiteral("el disco está lleno.")}),
              QStringLiteral("No se pudieron abrir los datos: el disco está lleno."));
}

TEST(Apertura, DataThatLieElsewhereAreTold) {
    const QTemporaryDir programa;
    const QTemporaryDir medio;
    const QString propia = programa.filePath(QStringLiteral("Datos"));
    QDir().mkdir(propia);
    EXPECT_TRUE(AvisoLugar(propia, programa.path() + QStringLiteral("/.")).isEmpty());
    const QString lejos = QStringLiteral("Datos en ") + QFileInfo(medio.path()).canonicalFilePath();
    EXPECT_EQ(AvisoLugar(medio.path(), programa.path()), lejos);
    QDir().rmdir(propia);
    QFile::link(medio.path(), propia);
    EXPECT_EQ(AvisoLugar(propia, programa.path()), lejos);
    EXPECT_EQ(UnirAvisos({QString(), lejos, QStringLiteral("x")}), lejos + QStringLiteral("   x"));
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
    EXPECT_EQ(preguntas.mostrados.front(),
              QStringLiteral("No se pudo completar la operación: disco lleno, ñ"));
    EXPECT_TRUE(preguntas.aviso.Proteger([]() -> bool { throw 3; }));
    EXPECT_EQ(preguntas.mostrados.size(), 3);
}

} // namespace
} // namespace tarvo
