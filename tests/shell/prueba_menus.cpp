// Menu and toolbar of the main window: what they hold, how they look, what they tell.
#include "mundoprincipal.h"

#include "shell/ventanas/acciones.h"
#include "shell/ventanas/traduccionteclas.h"

#include <QLibraryInfo>
#include <QMenuBar>
#include <QToolButton>

namespace tarvo {
namespace {

class MenusTest : public MundoPrincipal {};

// One of each kind: with a key, with one that is only told, checkable, in a menu of its own, without a key.
TEST_F(MenusTest, MenuHoldsItsEntriesWithTheirShortcuts) {
    const std::tuple<const char *, const char *, const char *, bool> esperadas[] = {
        {"exportar", "&Exportar", "Ctrl+F6", false},          {"salir", "&Salir\tAlt+F4", "Alt+F4", false},
        {"BarHer", "Barra de &herramientas", "Ctrl+H", true}, {"devcliente", "Por Cliente", "", false},
        {"calculadora", "&Calculadora", "F5", true},          {"acercade", "A&cerca de...", "", false}};
    Abrir();
    QStringList titulos, claves;
    for (const QAction *menu : C<QMenuBar>("mnuBarra")->actions())
        titulos += menu->text();
    EXPECT_EQ(titulos.join(u' '), u"&Archivo &Ver &Ventas &Clientes A&rtículos &Herramientas A&yuda");
    for (const QAction *accion : C("mnuBarra")->findChildren<QAction *>()) {
        if (accion->menu() == nullptr && !accion->isSeparator())
            claves += accion->objectName();
    }
    EXPECT_EQ(claves.join(u' '),
              u"exportar salir BarHer BarEst ventas devcontado devcliente stats clientes estado articulos "
              "proveedores opciones factura pantcomp respaldar calculadora ayudapdf acercade"_qs);
    for (const auto &[clave, texto, atajo, marcable] : esperadas) {
        const QAction *accion = DeMenu(clave);
        EXPECT_EQ(accion->text(), QString::fromUtf8(texto));
        EXPECT_EQ(accion->shortcut().toString(QKeySequence::PortableText), QLatin1String(atajo));
        EXPECT_EQ(accion->isCheckable(), marcable) << clave;
    }
}

TEST(Acciones, ChangedShortcutShowsInMenuAndTooltip) {
    QMenuBar menu;
    QToolBar barra;
    Acciones acciones(menu, barra);
    acciones.PonerAtajo(Entrada::Salir, QKeySequence(Qt::CTRL | Qt::Key_Q));
    EXPECT_EQ(acciones.DeMenu(Entrada::Salir)->text(), u"&Salir\tCtrl+Q");
    EXPECT_EQ(acciones.DeBarra(Entrada::Salir)->toolTip(), u"Salir (Ctrl+Q)");
    acciones.PonerAtajo(Entrada::Ventas, {});
    EXPECT_TRUE(acciones.DeMenu(Entrada::Ventas)->shortcut().isEmpty());
    EXPECT_EQ(acciones.DeBarra(Entrada::Ventas)->toolTip(), u"Ventas");
}

TEST(TraduccionTeclas, KeysKeepTheirNamesInTheToolkitsSpanish) {
    const QKeySequence exportar(Qt::CTRL | Qt::Key_F6);
    QTranslator espanol;
    ASSERT_TRUE(espanol.load(u"qtbase_es"_qs, QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
    QCoreApplication::installTranslator(&espanol);
    EXPECT_NE(exportar.toString(QKeySequence::NativeText), u"Ctrl+F6");
    TraduccionTeclas teclas;
    QCoreApplication::installTranslator(&teclas);
    EXPECT_EQ(exportar.toString(QKeySequence::NativeText), u"Ctrl+F6");
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Cancelar");
    QCoreApplication::removeTranslator(&teclas);
    QCoreApplication::removeTranslator(&espanol);
}

// The help text of an entry under the mouse shows in the hint panel, odd spelling and all, and goes again.
TEST_F(MenusTest, HintPanelShowsTheHelpOfAnEntry) {
    Abrir();
    Pide(Qt::Key_F2);
    EXPECT_EQ(TextoEstado(), u"Pulse Enter");
    DeMenu("exportar")->showStatusText(ventana.get());
    EXPECT_EQ(TextoEstado(), u"Exporta los datos seleccioandos a un archivo externo");
    DeMenu("salir")->showStatusText(ventana.get());
    EXPECT_EQ(TextoEstado(), u"Pulse Enter");
}

TEST_F(MenusTest, ToolbarShowsWholeCaptionsInOneRow) {
    Abrir();
    const auto *barra = C<QToolBar>("tbrPrincipal");
    for (const QAction *accion : barra->actions()) {
        const auto *boton =
            qobject_cast<QToolButton *>(barra->widgetForAction(const_cast<QAction *>(accion)));
        if (boton == nullptr)
            continue;
        SCOPED_TRACE(accion->objectName().toStdString());
        EXPECT_TRUE(boton->isVisible());
        EXPECT_GE(boton->width(), boton->fontMetrics().horizontalAdvance(accion->text()));
        EXPECT_LE(boton->geometry().right(), barra->width());
        const bool llano = accion->objectName() == u"ayuda"_qs || accion->objectName() == u"salir"_qs;
        EXPECT_EQ(accion->isCheckable(), !llano);
    }
    EXPECT_EQ(DeBarra("estado")->toolTip(), u"Estado de cuenta (F7)");
    ventana->resize(640, 480);
    QCoreApplication::processEvents();
    for (QAction *accion : barra->actions()) // none behind the arrow of what has no room
        EXPECT_EQ(barra->widgetForAction(accion)->isVisible(), accion->isVisible());
    EXPECT_EQ(barra->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    ventana->resize(790, 600);
    EXPECT_TRUE(!DeBarra("salir")->isVisible() && DeBarra("ayuda")->isVisible());
    ventana->resize(730, 600);
    EXPECT_FALSE(DeBarra("ayuda")->isVisible());
    const QList<QAction *> botones = barra->actions();
    EXPECT_FALSE(botones.at(botones.indexOf(DeBarra("ayuda")) - 1)->isVisible()) << "their separator";
    ventana->resize(800, 600);
    EXPECT_TRUE(DeBarra("salir")->isVisible() && DeBarra("ayuda")->isVisible());
}

TEST_F(MenusTest, EntriesWithoutAWindowAreDisabledInMenuAndToolbar) {
    composicion = Composicion{};
    Abrir();
    ventana->PonerExportable(true);
    for (const char *clave :
         {"ventas", "stats", "opciones", "factura", "respaldar", "calculadora", "devcliente", "exportar"})
        EXPECT_FALSE(DeMenu(clave)->isEnabled()) << clave;
    for (const char *clave : {"ventas", "estadisticas", "config", "respaldar", "calculadora"})
        EXPECT_FALSE(DeBarra(clave)->isEnabled()) << clave;
    for (const char *clave : {"salir", "BarHer", "pantcomp", "ayudapdf", "acercade"})
        EXPECT_TRUE(DeMenu(clave)->isEnabled()) << clave;
}

} // namespace
} // namespace tarvo
