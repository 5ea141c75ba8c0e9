#include "mundoprincipal.h"

#include "shell/apertura.h"
#include "shell/ventanas/barraestado.h"

#include <QMenuBar>

namespace tarvo {
namespace {

// The help file is looked for where the test's data lie.
class PrincipalTest : public MundoPrincipal {};

class PrincipalAbierta : public PrincipalTest {
  protected:
    void SetUp() override { Abrir(); }
};

TEST_F(PrincipalAbierta, FirstStartShowsBothBarsAndTheyFlipAndStayFlipped) {
    EXPECT_TRUE(Se("CoolBar1") && DeMenu("BarHer")->isChecked());
    EXPECT_TRUE(Se("SB1") && DeMenu("BarEst")->isChecked());
    EXPECT_FALSE(DeMenu("pantcomp")->isChecked() || DeMenu("exportar")->isEnabled());
    EXPECT_EQ(ventana->size(), QSize(800, 600));
    Pide(Qt::Key_H, Qt::ControlModifier);
    DeMenu("BarEst")->trigger();
    for (int vez = 0; vez < 2; ++vez) {
        EXPECT_FALSE(Se("CoolBar1") || DeMenu("BarHer")->isChecked());
        EXPECT_FALSE(Se("SB1") || DeMenu("BarEst")->isChecked());
        Abrir();
    }
    Pide(Qt::Key_H, Qt::ControlModifier);
    EXPECT_TRUE(Se("CoolBar1"));
}

TEST_F(PrincipalAbierta, KeysAndClicksOpenAndCloseModules) {
    const std::tuple<Qt::Key, const char *, const char *> casos[] = {
        {Qt::Key_F8, "ventas", "ventas"},           {Qt::Key_F7, "estado", "estado"},
        {Qt::Key_F12, "stats", "estadisticas"},     {Qt::Key_F2, "articulos", "articulos"},
        {Qt::Key_F3, "proveedores", "proveedores"}, {Qt::Key_F4, "clientes", "clientes"}};
    for (const auto &[tecla, menu, boton] : casos) {
        SCOPED_TRACE(menu);
        Pide(tecla);
        EXPECT_EQ(Abierta(), QLatin1String(menu));
        EXPECT_EQ(Presionados(), QLatin1String(boton));
        EXPECT_TRUE(DeMenu(menu)->isChecked());
        EXPECT_EQ(ConFoco(), u"txtCampo");
        Pulsa(tecla); // from inside the module
        EXPECT_EQ(Abierta(), QString());
        EXPECT_FALSE(DeMenu(menu)->isChecked());
        Pulsar(Boton(boton));
        EXPECT_EQ(Abierta(), QLatin1String(menu));
        EXPECT_EQ(Presionados(), QLatin1String(boton));
    }
    DeMenu("ventas")->trigger();
    EXPECT_EQ(Abierta(), u"ventas");
    DeMenu("ventas")->trigger();
    EXPECT_EQ(Presionados(), QString());
}

TEST_F(PrincipalAbierta, RefusedSwitchPressesTheButtonBackOneTickLater) {
    Pide(Qt::Key_F8);
    Modulo_()->entrada = true;
    mundo.preguntas.Espera(u"Confirma que desea salir sin completar la venta?"_qs, No, No);
    Pulsar(Boton("ventas"));
    EXPECT_EQ(Presionados(), QString());
    QTRY_COMPARE(Presionados(), u"ventas"_qs);
    EXPECT_EQ(Abierta(), u"ventas");
}

TEST_F(PrincipalAbierta, EntriesRunTheirDialogsAndReturns) {
    Pulsar(Boton("config"));
    DeMenu("factura")->trigger();
    Pide(Qt::Key_F6);
    DeMenu("devcontado")->trigger();
    DeMenu("devcliente")->trigger();
    EXPECT_EQ(hechos.join(u' '), u"opciones diseñador respaldo contado por cliente"_qs);
    EXPECT_EQ(Presionados(), u"estado");
}

TEST_F(PrincipalTest, StartWindowOpensModulesByItsButtons) {
    composicion.modulos.erase(Modulo::Stats);
    Abrir();
    const auto *inicio = C("inicio");
    const QList<QPushButton *> botones = inicio->findChildren<QPushButton *>();
    ASSERT_EQ(botones.size(), 6);
    EXPECT_EQ(botones[0]->accessibleName(), u"Ventas (F8)");
    EXPECT_FALSE(botones[2]->isEnabled()) << "there are no statistics";
    EXPECT_TRUE(botones[0]->hasFocus());
    Tecla(botones[0], Qt::Key_Return);
    EXPECT_EQ(Abierta(), u"ventas");
    EXPECT_EQ(Presionados(), u"ventas");
    EXPECT_FALSE(inicio->isVisible());
    Pide(Qt::Key_F8);
    EXPECT_TRUE(botones[0]->hasFocus());
    Tecla(botones[0], Qt::Key_Down);
    EXPECT_TRUE(botones[3]->hasFocus());
    for (int i = 0; i < 3; ++i)
        Pulsa(Qt::Key_Tab);
    EXPECT_EQ(ConFoco(), u"fabricante");
    Entrar();
    EXPECT_EQ(mundo.escritorio.direcciones.size(), 1);
}

TEST_F(PrincipalAbierta, LettersOfTheModuleWinOverTheMenus) {
    Pide(Qt::Key_F8);
    auto *campo = C<QLineEdit>("txtCampo");
    auto *boton = new QPushButton(u"&Cancelar"_qs, Modulo_());
    auto *rotulo = new QLabel(u"&Hora"_qs, Modulo_());
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
    const auto *menu = C<QMenuBar>("mnuBarra");
    Tecla(campo, Qt::Key_F10);
    Pulsa(Qt::Key_C);
    ASSERT_NE(menu->activeAction(), nullptr);
    EXPECT_EQ(menu->activeAction()->text(), u"&Clientes");
    EXPECT_EQ(pulsado.size(), 3);
    for (const QString &texto : {u"&Ver"_qs, u"&Ventas"_qs}) { // two of one letter
        Tecla(menu->activeAction()->menu(), Qt::Key_V);
        EXPECT_EQ(menu->activeAction()->text(), texto);
    }
}

TEST_F(PrincipalAbierta, CalculatorTogglesAndResetsItsEntryWhenClosed) {
    Pide(Qt::Key_F8);
    Pulsar(Boton("calculadora"));
    EXPECT_EQ(Presionados(), u"ventas calculadora");
    C("frmCalc")->close();
    QTRY_COMPARE(Presionados(), u"ventas"_qs);
    EXPECT_FALSE(DeMenu("calculadora")->isChecked());
    DeMenu("calculadora")->trigger();
    DeMenu("calculadora")->trigger();
    DeMenu("calculadora")->trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Presionados(), u"ventas calculadora"); // the one closed before does not reset it
}

TEST_F(PrincipalAbierta, FullScreenGivesTheWindowBackAsItWas) {
    ventana->move(40, 50);
    ventana->resize(810, 610);
    Pide(Qt::Key_F11);
    EXPECT_TRUE(ventana->isFullScreen() && DeMenu("pantcomp")->isChecked());
    EXPECT_EQ(mundo.ajustes.value(u"PantCompWS"_qs).toInt(), 0);
    EXPECT_EQ(mundo.ajustes.value(u"PantCompW"_qs).toInt(), 810 * 15);
    EXPECT_EQ(mundo.ajustes.value(u"PantCompY"_qs).toInt(), 50 * 15);
    Pide(Qt::Key_F11);
    EXPECT_FALSE(ventana->isFullScreen() || DeMenu("pantcomp")->isChecked());
    EXPECT_EQ(ventana->pos(), QPoint(40, 50));
    EXPECT_EQ(ventana->size(), QSize(810, 610));
    for (int vez = 0; vez < 4; ++vez)
        Pide(Qt::Key_F11);
    EXPECT_EQ(ventana->pos(), QPoint(40, 50));

    ventana->showMaximized();
    Pide(Qt::Key_F11);
    EXPECT_EQ(mundo.ajustes.value(u"PantCompWS"_qs).toInt(), 2);
    Pide(Qt::Key_F11);
    EXPECT_TRUE(ventana->isMaximized() && !ventana->isFullScreen());
}

TEST_F(PrincipalTest, ClosingAsksTheModuleAndThenClosesTheData) {
    mundo.datos.Ejecutar("INSERT INTO clientes.Clientes (codigo) VALUES ('1')");
    Abrir();
    Pide(Qt::Key_F4);
    Modulo_()->entrada = true;
    mundo.preguntas.Espera(u"Cerrar?"_qs, No, No);
    DeMenu("salir")->trigger();
    EXPECT_TRUE(ventana->isVisible());
    EXPECT_EQ(mundo.datos.Bases().datClientes.RecordCount(), 1);
    mundo.preguntas.Espera(u"Cerrar?"_qs, No, Si);
    Pulsar(Boton("salir"));
    EXPECT_FALSE(ventana->isVisible());
    EXPECT_EQ(Abierta(), QString());
    EXPECT_EQ(mundo.datos.Bases().datClientes.RecordCount(), 0);
}

TEST_F(PrincipalAbierta, NoticeOfThePartialOpeningComesBackBehindHints) {
    ventana->PonerAviso(u"clientes.mdb: está dañado"_qs);
    EXPECT_EQ(TextoEstado(), u"clientes.mdb: está dañado");
    Pide(Qt::Key_F2);
    EXPECT_EQ(TextoEstado(), u"Pulse Enter");
    Pide(Qt::Key_F2);
    EXPECT_EQ(TextoEstado(), u"clientes.mdb: está dañado");
}

// The program's own windows, after an opening that failed at its first file.
TEST_F(PrincipalTest, ModulesOpenEmptyOnClosedData) {
    composicion = Componer(mundo.servicios());
    mundo.datos.Cerrar();
    ventana =
        std::make_unique<FrmPrincipal>(mundo.Con(mundo.datos.Bases()), composicion, mundo.datos.Carpeta());
    ventana->Presentar(19200);
    ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
    for (const Qt::Key tecla : {Qt::Key_F8, Qt::Key_F2, Qt::Key_F3, Qt::Key_F4}) {
        Pide(tecla);
        const auto *modulo = ventana->findChild<VentanaModulo *>();
        ASSERT_NE(modulo, nullptr);
        EXPECT_FALSE(modulo->EntradaEnCurso());
        EXPECT_TRUE(modulo->isAncestorOf(QApplication::focusWidget()) ||
                    QApplication::focusWidget() == modulo);
        // No module makes the window grow, nor needs more room than a small screen has.
        EXPECT_EQ(ventana->size(), QSize(800, 600));
        EXPECT_LE(modulo->minimumSizeHint().width(), 800) << modulo->objectName().toStdString();
    }
}

TEST_F(PrincipalAbierta, StatusBarTellsMakerAndDate) {
    EXPECT_EQ(Texto("fecha"), u"22/11/2026");
    EXPECT_EQ(C<QLabel>("mayusculas")->toolTip(), u"Mayúsculas");
    EXPECT_EQ(Texto("numerico"), u"NÚM");
    auto *barra = C<BarraEstado>("SB1");
    barra->PonerTeclado({true, false});
    EXPECT_TRUE(Habilitado("mayusculas") && !Habilitado("numerico"));
    // A hint of any length leaves the other panels their place.
    const int antes = C<QLabel>("fecha")->x();
    ventana->Sugerencia(QString(500, u'x'));
    QCoreApplication::processEvents();
    EXPECT_EQ(C<QLabel>("fecha")->x(), antes);
    EXPECT_EQ(ventana->width(), 800);
    Pulsar(C<QLabel>("fabricante"));
    EXPECT_EQ(mundo.escritorio.direcciones, QList{QUrl(u"https://www.velbrina.example/"_qs)});
}

TEST_F(PrincipalAbierta, HelpOpensTheFileBesideTheProgram) {
    const QString ruta = mundo.datos.Carpeta() + u"/tarvo27me.pdf"_qs;
    mundo.preguntas.EsperaMensaje(u"No se encontró el archivo de ayuda \"%1\"."_qs.arg(ruta));
    Pide(Qt::Key_F1);
    QFile archivo(ruta);
    ASSERT_TRUE(archivo.open(QIODevice::WriteOnly));
    DeMenu("ayudapdf")->trigger();
    EXPECT_EQ(mundo.escritorio.archivos, QStringList{ruta});
    // Installed by a package it lies in share.
    QDir(mundo.datos.Carpeta()).mkpath(u"share/tarvo"_qs);
    const QString instalada = mundo.datos.Carpeta() + u"/share/tarvo/tarvo27me.pdf"_qs;
    ASSERT_TRUE(archivo.copy(instalada));
    EXPECT_EQ(RutaAyuda(mundo.datos.Carpeta() + u"/bin"_qs), instalada);

    Pulsar(Boton("ayuda"));
    QPointer<QWidget> menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    for (const char *ayuda : {"Ayuda", "Ayuda en el sitio web del programa"}) {
        Tecla(menu, Qt::Key_Down);
        EXPECT_EQ(TextoEstado(), QString::fromUtf8(ayuda));
    }
    AccionDe(menu, u"popayuda"_qs)->trigger();
    AccionDe(menu, u"popayudaweb"_qs)->trigger();
    menu->close();
    EXPECT_EQ(TextoEstado(), QString());
    EXPECT_EQ(mundo.escritorio.archivos.size(), 2);
    EXPECT_EQ(mundo.escritorio.direcciones.size(), 1);
}

} // namespace
} // namespace tarvo
