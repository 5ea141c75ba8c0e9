#include "mundoprincipal.h"

#include "shell/apertura.h"
#include "shell/ventanas/barraestado.h"

#include <QDir>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

#include <gtest/gtest.h>

namespace tarvo {
namespace {

// The help file is looked for where the test's data lie.
class PrincipalTest : public MundoPrincipal {};

TEST_F(PrincipalTest, FirstStartShowsBothBarsAndNoFullScreen) {
    Abrir();
    EXPECT_TRUE(Control<QWidget>(*frm, "CoolBar1")->isVisible());
    EXPECT_TRUE(Control<QWidget>(*frm, "SB1")->isVisible());
    EXPECT_TRUE(DeMenu("BarHer")->isChecked());
    EXPECT_TRUE(DeMenu("BarEst")->isChecked());
    EXPECT_FALSE(DeMenu("pantcomp")->isChecked());
    EXPECT_FALSE(DeMenu("exportar")->isEnabled());
    EXPECT_EQ(frm->size(), QSize(800, 600));
    EXPECT_TRUE(Abierta().isEmpty());
}

TEST_F(PrincipalTest, BarsFlipAndStayFlipped) {
    Abrir();
    Tecla(frm.get(), Qt::Key_H, Qt::ControlModifier);
    DeMenu("BarEst")->trigger();
    EXPECT_FALSE(Control<QWidget>(*frm, "CoolBar1")->isVisible());
    EXPECT_FALSE(Control<QWidget>(*frm, "SB1")->isVisible());
    EXPECT_FALSE(DeMenu("BarHer")->isChecked());
    Abrir();
    EXPECT_FALSE(Control<QWidget>(*frm, "CoolBar1")->isVisible());
    EXPECT_FALSE(DeMenu("BarEst")->isChecked());
    Tecla(frm.get(), Qt::Key_H, Qt::ControlModifier);
    EXPECT_TRUE(Control<QWidget>(*frm, "CoolBar1")->isVisible());
}

TEST_F(PrincipalTest, KeysAndClicksOpenAndCloseModules) {
    struct Caso {
        Qt::Key tecla;
        const char *menu;
        const char *boton;
    };
    const Caso casos[] = {
        {Qt::Key_F8, "ventas", "ventas"},           {Qt::Key_F7, "estado", "estado"},
        {Qt::Key_F12, "stats", "estadisticas"},     {Qt::Key_F2, "articulos", "articulos"},
        {Qt::Key_F3, "proveedores", "proveedores"}, {Qt::Key_F4, "clientes", "clientes"},
    };
    Abrir();
    for (const Caso &caso : casos) {
        SCOPED_TRACE(caso.menu);
        Tecla(frm.get(), caso.tecla);
        EXPECT_EQ(Abierta(), QLatin1String(caso.menu));
        EXPECT_EQ(Presionados(), QLatin1String(caso.boton));
        EXPECT_TRUE(DeMenu(caso.menu)->isChecked());
        EXPECT_EQ(ConFoco(), QStringLiteral("txtCampo"));
        Tecla(QApplication::focusWidget(), caso.tecla); // from inside the module
        EXPECT_EQ(Abierta(), QString());
        EXPECT_FALSE(DeMenu(caso.menu)->isChecked());
        Pulsar(Boton(caso.boton));
        EXPECT_EQ(Abierta(), QLatin1String(caso.menu));
        EXPECT_EQ(Presionados(), QLatin1String(caso.boton));
    }
    DeMenu("ventas")->trigger();
    EXPECT_EQ(Abierta(), QStringLiteral("ventas"));
    DeMenu("ventas")->trigger();
    EXPECT_EQ(Presionados(), QString());
}

TEST_F(PrincipalTest, RefusedSwitchPressesTheButtonBackOneTickLater) {
    Abrir();
    Tecla(frm.get(), Qt::Key_F8);
    Modulo_()->entrada = true;
    mundo.preguntas.Espera(QStringLiteral("Confirma que desea salir sin completar la venta?"), Respuesta::No,
                           Respuesta::No);
    Pulsar(Boton("ventas"));
    EXPECT_EQ(Presionados(), QString());
    QTRY_COMPARE(Presionados(), QStringLiteral("ventas"));
    EXPECT_EQ(Abierta(), QStringLiteral("ventas"));
}

TEST_F(PrincipalTest, EntriesRunTheirDialogsAndReturns) {
    Abrir();
    Pulsar(Boton("config"));
    DeMenu("factura")->trigger();
    Tecla(frm.get(), Qt::Key_F6);
    DeMenu("devcontado")->trigger();
    DeMenu("devcliente")->trigger();
    EXPECT_EQ(hechos.join(QLatin1Char(' ')),
              QStringLiteral("opciones diseñador respaldo contado por cliente"));
    EXPECT_EQ(Presionados(), QStringLiteral("estado"));
}

TEST_F(PrincipalTest, StartWindowOpensModulesByItsButtons) {
    composicion.modulos.erase(Modulo::Stats);
    Abrir();
    const auto *inicio = Control<QWidget>(*frm, "inicio");
    const QList<QPushButton *> botones = inicio->findChildren<QPushButton *>();
    ASSERT_EQ(botones.size(), 6);
    EXPECT_EQ(botones[0]->accessibleName(), QStringLiteral("Ventas (F8)"));
    EXPECT_FALSE(botones[2]->isEnabled()) << "there are no statistics";
    EXPECT_TRUE(botones[0]->hasFocus());
    Tecla(botones[0], Qt::Key_Return);
    EXPECT_EQ(Abierta(), QStringLiteral("ventas"));
    EXPECT_EQ(Presionados(), QStringLiteral("ventas"));
    EXPECT_FALSE(inicio->isVisible());
    Tecla(frm.get(), Qt::Key_F8);
    EXPECT_TRUE(botones[0]->hasFocus());
    Tecla(botones[0], Qt::Key_Down);
    EXPECT_TRUE(botones[3]->hasFocus());
    for (int i = 0; i < 3; ++i)
        Tecla(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(ConFoco(), QStringLiteral("fabricante"));
    Tecla(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(mundo.escritorio.direcciones.size(), 1);
}

TEST_F(PrincipalTest, LettersOfTheModuleWinOverTheMenus) {
    Abrir();
    Tecla(frm.get(), Qt::Key_F8);
    auto *campo = Control<QLineEdit>(*frm, "txtCampo");
    auto *boton = new QPushButton(QStringLiteral("&Cancelar"), Modulo_());
    auto *rotulo = new QLabel(QStringLiteral("&Hora"), Modulo_());
    rotulo->setBuddy(campo);
    for (QWidget *control : {static_cast<QWidget *>(boton), static_cast<QWidget *>(rotulo)})
        control->show();
    QSignalSpy pulsado(boton, &QPushButton::clicked);
    for (int vez = 1; vez <= 3; ++vez) {
        boton->setFocus();
        Tecla(boton, Qt::Key_C, Qt::AltModifier);
        QTRY_COMPARE(pulsado.size(), vez);
        Tecla(boton, Qt::Key_H, Qt::AltModifier);
        EXPECT_TRUE(campo->hasFocus());
    }
    const auto *menu = Control<QMenuBar>(*frm, "mnuBarra");
    Tecla(campo, Qt::Key_F10);
    Tecla(QApplication::focusWidget(), Qt::Key_C);
    ASSERT_NE(menu->activeAction(), nullptr);
    EXPECT_EQ(menu->activeAction()->text(), QStringLiteral("&Clientes"));
    EXPECT_EQ(pulsado.size(), 3);
}

TEST_F(PrincipalTest, CalculatorTogglesAndResetsItsEntryWhenClosed) {
    Abrir();
    Tecla(frm.get(), Qt::Key_F8);
    Pulsar(Boton("calculadora"));
    EXPECT_EQ(Presionados(), QStringLiteral("ventas calculadora"));
    Control<QWidget>(*frm, "frmCalc")->close();
    QTRY_COMPARE(Presionados(), QStringLiteral("ventas"));
    EXPECT_FALSE(DeMenu("calculadora")->isChecked());
    DeMenu("calculadora")->trigger();
    DeMenu("calculadora")->trigger();
    DeMenu("calculadora")->trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Presionados(), QStringLiteral("ventas calculadora")); // the one closed before does not reset it
}

TEST_F(PrincipalTest, ExportFollowsTheOpenModule) {
    Abrir();
    Tecla(frm.get(), Qt::Key_F4);
    EXPECT_TRUE(DeMenu("exportar")->isEnabled());
    Tecla(frm.get(), Qt::Key_F6, Qt::ControlModifier);
    EXPECT_EQ(hechos, QStringList{QStringLiteral("frm_clientes")});
    Tecla(frm.get(), Qt::Key_F4);
    EXPECT_FALSE(DeMenu("exportar")->isEnabled());
    EXPECT_EQ(TextoEstado(), QString());
}

TEST_F(PrincipalTest, FullScreenGivesTheWindowBackAsItWas) {
    Abrir();
    frm->move(40, 50);
    frm->resize(810, 610);
    Tecla(frm.get(), Qt::Key_F11);
    EXPECT_TRUE(frm->isFullScreen() && DeMenu("pantcomp")->isChecked());
    EXPECT_EQ(mundo.ajustes.value(QStringLiteral("PantCompWS")).toInt(), 0);
    EXPECT_EQ(mundo.ajustes.value(QStringLiteral("PantCompW")).toInt(), 810 * 15);
    EXPECT_EQ(mundo.ajustes.value(QStringLiteral("PantCompY")).toInt(), 50 * 15);
    Tecla(frm.get(), Qt::Key_F11);
    EXPECT_FALSE(frm->isFullScreen() || DeMenu("pantcomp")->isChecked());
    EXPECT_EQ(frm->pos(), QPoint(40, 50));
    EXPECT_EQ(frm->size(), QSize(810, 610));
    for (int vez = 0; vez < 4; ++vez)
        Tecla(frm.get(), Qt::Key_F11);
    EXPECT_EQ(frm->pos(), QPoint(40, 50));

    frm->showMaximized();
    Tecla(frm.get(), Qt::Key_F11);
    EXPECT_EQ(mundo.ajustes.value(QStringLiteral("PantCompWS")).toInt(), 2);
    Tecla(frm.get(), Qt::Key_F11);
    EXPECT_TRUE(frm->isMaximized() && !frm->isFullScreen());
}

TEST_F(PrincipalTest, ClosingAsksTheModuleAndThenClosesTheData) {
    mundo.datos.Ejecutar("INSERT INTO clientes.Clientes (codigo) VALUES ('1')");
    Abrir();
    Tecla(frm.get(), Qt::Key_F4);
    Modulo_()->entrada = true;
    mundo.preguntas.Espera(QStringLiteral("Cerrar?"), Respuesta::No, Respuesta::No);
    DeMenu("salir")->trigger();
    EXPECT_TRUE(frm->isVisible());
    EXPECT_EQ(mundo.datos.Bases().datClientes.RecordCount(), 1);
    mundo.preguntas.Espera(QStringLiteral("Cerrar?"), Respuesta::No, Respuesta::Si);
    Pulsar(Boton("salir"));
    EXPECT_FALSE(frm->isVisible());
    EXPECT_EQ(Abierta(), QString());
    EXPECT_EQ(mundo.datos.Bases().datClientes.RecordCount(), 0);
}

TEST_F(PrincipalTest, NoticeOfThePartialOpeningComesBackBehindHints) {
    Abrir();
    frm->PonerAviso(QStringLiteral("clientes.mdb: está dañado"));
    EXPECT_EQ(TextoEstado(), QStringLiteral("clientes.mdb: está dañado"));
    Tecla(frm.get(), Qt::Key_F2);
    EXPECT_EQ(TextoEstado(), QStringLiteral("Pulse Enter"));
    Tecla(frm.get(), Qt::Key_F2);
    EXPECT_EQ(TextoEstado(), QStringLiteral("clientes.mdb: está dañado"));
}

// The program's own windows, after an opening that failed at its first file.
TEST_F(PrincipalTest, ModulesOpenEmptyOnClosedData) {
    composicion = Componer(mundo.servicios());
    mundo.datos.Cerrar();
    frm = std::make_unique<FrmPrincipal>(Servicios{mundo.datos.Bases(), mundo.preguntas, mundo.reloj,
                                                   mundo.impresoras, mundo.ajustes, mundo.escritorio},
                                         composicion, mundo.datos.Carpeta());
    frm->Presentar(19200);
    ASSERT_TRUE(QTest::qWaitForWindowActive(frm.get()));
    for (const Qt::Key tecla : {Qt::Key_F8, Qt::Key_F2, Qt::Key_F3, Qt::Key_F4}) {
        Tecla(frm.get(), tecla);
        const auto *modulo = frm->findChild<VentanaModulo *>();
        ASSERT_NE(modulo, nullptr);
        EXPECT_FALSE(modulo->EntradaEnCurso());
        EXPECT_TRUE(modulo->isAncestorOf(QApplication::focusWidget()) ||
                    QApplication::focusWidget() == modulo);
        // No module makes the window grow, nor needs more room than a small screen has.
        EXPECT_EQ(frm->size(), QSize(800, 600));
        EXPECT_LE(modulo->minimumSizeHint().width(), 800) << modulo->objectName().toStdString();
    }
}

TEST_F(PrincipalTest, StatusBarTellsMakerAndDate) {
    Abrir();
    EXPECT_EQ(Control<QLabel>(*frm, "fecha")->text(), QStringLiteral("22/11/2026"));
    EXPECT_EQ(Control<QLabel>(*frm, "mayusculas")->toolTip(), QStringLiteral("Mayúsculas"));
    EXPECT_EQ(Control<QLabel>(*frm, "numerico")->text(), QStringLiteral("NÚM"));
    auto *barra = Control<BarraEstado>(*frm, "SB1");
    barra->PonerTeclado({true, false});
    EXPECT_TRUE(Control<QLabel>(*frm, "mayusculas")->isEnabled());
    EXPECT_FALSE(Control<QLabel>(*frm, "numerico")->isEnabled());
    // A hint of any length leaves the other panels their place.
    const int antes = Control<QLabel>(*frm, "fecha")->x();
    frm->Sugerencia(QString(500, QLatin1Char('x')));
    QCoreApplication::processEvents();
    EXPECT_EQ(Control<QLabel>(*frm, "fecha")->x(), antes);
    EXPECT_EQ(frm->width(), 800);
    Pulsar(Control<QLabel>(*frm, "fabricante"));
    EXPECT_EQ(mundo.escritorio.direcciones, QList{QUrl(QStringLiteral("https://www.velbrina.example/"))});
}

TEST_F(PrincipalTest, HelpOpensTheFileBesideTheProgram) {
    Abrir();
    const QString ruta = mundo.datos.Carpeta() + QStringLiteral("/tarvo27me.pdf");
    mundo.preguntas.EsperaMensaje(QStringLiteral("No se encontró el archivo de ayuda \"%1\".").arg(ruta),
                                  Icono::Informacion);
    Tecla(frm.get(), Qt::Key_F1);
    QFile archivo(ruta);
    ASSERT_TRUE(archivo.open(QIODevice::WriteOnly));
    DeMenu("ayudapdf")->trigger();
    EXPECT_EQ(mundo.escritorio.archivos, QStringList{ruta});
    // Installed by a package it lies in share.
    QDir(mundo.datos.Carpeta()).mkpath(QStringLiteral("share/tarvo"));
    const QString instalada = mundo.datos.Carpeta() + QStringLiteral("/share/tarvo/tarvo27me.pdf");
    ASSERT_TRUE(archivo.copy(instalada));
    EXPECT_EQ(RutaAyuda(mundo.datos.Carpeta() + QStringLiteral("/bin")), instalada);

    Pulsar(Boton("ayuda"));
    QPointer<QWidget> menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    for (const char *ayuda : {"Ayuda", "Ayuda en el sitio web del programa"}) {
        Tecla(menu, Qt::Key_Down);
        EXPECT_EQ(TextoEstado(), QString::fromUtf8(ayuda));
    }
    AccionDe(menu, QStringLiteral("popayuda"))->trigger();
    AccionDe(menu, QStringLiteral("popayudaweb"))->trigger();
    menu->close();
    EXPECT_EQ(TextoEstado(), QString());
    EXPECT_EQ(mundo.escritorio.archivos.size(), 2);
    EXPECT_EQ(mundo.escritorio.direcciones.size(), 1);
}

} // namespace
} // namespace tarvo
