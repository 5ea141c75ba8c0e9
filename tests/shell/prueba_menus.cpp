// Menu and toolbar of the main window: what they hold, how they look, what they tell.
#include "mundoprincipal.h"

#include "shell/ventanas/acciones.h"
#include "shell/ventanas/traduccionteclas.h"

#include <QLibraryInfo>
#include <QMenuBar>
#include <QToolButton>

#include <gtest/gtest.h>

namespace tarvo {
namespace {

class MenusTest : public MundoPrincipal {};

struct EntradaEsperada {
    const char *clave;
    const char *texto;
    const char *atajo;
    bool marcable;
};

TEST_F(MenusTest, MenuHoldsItsEntriesWithTheirShortcuts) {
    const EntradaEsperada esperadas[] = {
        {"exportar", "&Exportar", "Ctrl+F6", false},
        {"salir", "&Salir\tAlt+F4", "Alt+F4", false},
        {"BarHer", "Barra de &herramientas", "Ctrl+H", true},
        {"BarEst", "Barra de &estado", "Ctrl+E", true},
        {"ventas", "&Ventas", "F8", true},
        {"devcontado", "Contado", "", false},
        {"devcliente", "Por Cliente", "", false},
        {"stats", "&Estadísticas", "F12", true},
        {"clientes", "&Clientes", "F4", true},
        {"estado", "&Estados de cuenta", "F7", true},
        {"articulos", "&Artículos", "F2", true},
        {"proveedores", "&Proveedores", "F3", true},
        {"opciones", "&Opciones", "F9", false},
        {"factura", "&Diseñador de facturas", "", false},
        {"pantcomp", "&Pantalla completa", "F11", true},
        {"respaldar", "&Respaldar", "F6", false},
        {"calculadora", "&Calculadora", "F5", true},
        {"ayudapdf", "&Ayuda", "F1", false},
        {"acercade", "A&cerca de...", "", false},
    };
    Abrir();
    QStringList titulos;
    for (const QAction *menu : Control<QMenuBar>(*frm, "mnuBarra")->actions())
        titulos += menu->text();
    EXPECT_EQ(titulos.join(QLatin1Char(' ')),
              QStringLiteral("&Archivo &Ver &Ventas &Clientes A&rtículos &Herramientas A&yuda"));
    QStringList claves;
    for (const QAction *accion : Control<QMenuBar>(*frm, "mnuBarra")->findChildren<QAction *>()) {
        if (accion->menu() == nullptr && !accion->isSeparator())
            claves += accion->objectName();
    }
    EXPECT_EQ(claves.size(), qsizetype(std::size(esperadas)));
    for (const EntradaEsperada &esperada : esperadas) {
        SCOPED_TRACE(esperada.clave);
        const QAction *accion = DeMenu(esperada.clave);
        ASSERT_NE(accion, nullptr);
        EXPECT_EQ(accion->text(), QString::fromUtf8(esperada.texto));
        EXPECT_EQ(accion->shortcut().toString(QKeySequence::PortableText), QLatin1String(esperada.atajo));
        EXPECT_EQ(accion->isCheckable(), esperada.marcable);
    }
}

TEST(Acciones, ChangedShortcutShowsInMenuAndTooltip) {
    QMenuBar menu;
    QToolBar barra;
    Acciones acciones(menu, barra);
    acciones.PonerAtajo(Entrada::Salir, QKeySequence(Qt::CTRL | Qt::Key_Q));
    EXPECT_EQ(acciones.DeMenu(Entrada::Salir)->text(), QStringLiteral("&Salir\tCtrl+Q"));
    EXPECT_EQ(acciones.DeBarra(Entrada::Salir)->toolTip(), QStringLiteral("Salir (Ctrl+Q)"));
    acciones.PonerAtajo(Entrada::Ventas, {});
    EXPECT_TRUE(acciones.DeMenu(Entrada::Ventas)->shortcut().isEmpty());
    EXPECT_EQ(acciones.DeBarra(Entrada::Ventas)->toolTip(), QStringLiteral("Ventas"));
}

TEST(TraduccionTeclas, KeysKeepTheirNamesInTheToolkitsSpanish) {
    const QKeySequence exportar(Qt::CTRL | Qt::Key_F6);
    QTranslator espanol;
    ASSERT_TRUE(
        espanol.load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
    QCoreApplication::installTranslator(&espanol);
    EXPECT_NE(exportar.toString(QKeySequence::NativeText), QStringLiteral("Ctrl+F6"));
    TraduccionTeclas teclas;
    QCoreApplication::installTranslator(&teclas);
    EXPECT_EQ(exportar.toString(QKeySequence::NativeText), QStringLiteral("Ctrl+F6"));
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Cancelar"));
    QCoreApplication::removeTranslator(&teclas);
    QCoreApplication::removeTranslator(&espanol);
}

// The help text of an entry under the mouse shows in the hint panel, odd spelling and all, and goes again.
TEST_F(MenusTest, HintPanelShowsTheHelpOfAnEntry) {
    Abrir();
    Tecla(frm.get(), Qt::Key_F2);
    EXPECT_EQ(TextoEstado(), QStringLiteral("Pulse Enter"));
    DeMenu("exportar")->showStatusText(frm.get());
    EXPECT_EQ(TextoEstado(), QStringLiteral("Exporta los datos seleccioandos a un archivo externo"));
    DeMenu("salir")->showStatusText(frm.get());
    EXPECT_EQ(TextoEstado(), QStringLiteral("Pulse Enter"));
}

TEST_F(MenusTest, ToolbarShowsWholeCaptionsInOneRow) {
    Abrir();
    const auto *barra = Control<QToolBar>(*frm, "tbrPrincipal");
    for (const QAction *accion : barra->actions()) {
        const auto *boton =
            qobject_cast<QToolButton *>(barra->widgetForAction(const_cast<QAction *>(accion)));
        if (boton == nullptr)
            continue;
        SCOPED_TRACE(accion->objectName().toStdString());
        EXPECT_TRUE(boton->isVisible());
        EXPECT_GE(boton->width(), boton->fontMetrics().horizontalAdvance(accion->text()));
        EXPECT_LE(boton->geometry().right(), barra->width());
        const bool llano = accion->objectName() == QStringLiteral("ayuda") ||
                           accion->objectName() == QStringLiteral("salir");
        EXPECT_EQ(accion->isCheckable(), !llano);
    }
    EXPECT_EQ(DeBarra("estado")->toolTip(), QStringLiteral("Estado de cuenta (F7)"));
    frm->resize(640, 480);
    QCoreApplication::processEvents();
    for (QAction *accion : barra->actions()) // none behind the arrow of what has no room
        EXPECT_EQ(barra->widgetForAction(accion)->isVisible(), accion->isVisible());
    EXPECT_EQ(barra->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    frm->resize(790, 600);
    EXPECT_FALSE(DeBarra("salir")->isVisible());
    EXPECT_TRUE(DeBarra("ayuda")->isVisible());
    frm->resize(730, 600);
    EXPECT_FALSE(DeBarra("ayuda")->isVisible());
    const QList<QAction *> botones = barra->actions();
    EXPECT_FALSE(botones.at(botones.indexOf(DeBarra("ayuda")) - 1)->isVisible()) << "their separator";
    frm->resize(800, 600);
    EXPECT_TRUE(DeBarra("salir")->isVisible() && DeBarra("ayuda")->isVisible());
}

TEST_F(MenusTest, EntriesWithoutAWindowAreDisabledInMenuAndToolbar) {
    composicion = Composicion{};
    Abrir();
    for (const char *clave : {"ventas", "stats", "clientes", "estado", "articulos", "proveedores", "opciones",
                              "factura", "respaldar", "calculadora", "devcontado", "devcliente"})
        EXPECT_FALSE(DeMenu(clave)->isEnabled()) << clave;
    for (const char *clave : {"ventas", "estadisticas", "clientes", "estado", "articulos", "proveedores",
                              "config", "respaldar", "calculadora"})
        EXPECT_FALSE(DeBarra(clave)->isEnabled()) << clave;
    for (const char *clave : {"salir", "BarHer", "pantcomp", "ayudapdf", "acercade"})
        EXPECT_TRUE(DeMenu(clave)->isEnabled()) << clave;
    frm->PonerExportable(true);
    EXPECT_FALSE(DeMenu("exportar")->isEnabled());
}

} // namespace
} // namespace tarvo
