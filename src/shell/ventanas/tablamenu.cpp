#include "shell/ventanas/tablamenu.h"

#include "desktop/ventanas/iconos.h"

#include <QAction>
#include <QToolBar>

namespace tarvo {

namespace {

constexpr bool kMarca = true;

QString T(const char *texto) {
    return QString::fromUtf8(texto);
}

EntradaMenu Entrada(const char *clave, const char *texto, const char *atajo, const char *imagen,
                    const char *ayuda, bool marcable = false) {
    return {T(clave), T(texto), T(atajo), T(imagen), T(ayuda), marcable, {}};
}

EntradaMenu Submenu(const char *clave, const char *texto, const char *imagen, QList<EntradaMenu> entradas) {
    return {T(clave), T(texto), {}, T(imagen), {}, false, std::move(entradas)};
}

MenuSuperior MenuVer() {
    return {T("&Ver"),
            {Entrada("BarHer", "Barra de &herramientas", "Ctrl+H", "", "", kMarca),
             Entrada("BarEst", "Barra de &estado", "Ctrl+E", "", "", kMarca)}};
}

MenuSuperior MenuArchivo() {
    return {T("&Archivo"),
            {Entrada("exportar", "&Exportar", "Ctrl+F6", "exportar",
                     "Exporta los datos seleccioandos a un archivo externo"), // spelled so on the screen
             {},
             Entrada("salir", "&Salir", "Alt+F4", "salir", "")}};
}

MenuSuperior MenuVentas() {
    return {T("&Ventas"),
            {Entrada("ventas", "&Ventas", "F8", "ventas", "Muestra/Oculta el formulario de ventas", kMarca),
             Submenu("devoluciones", "&Devoluciones", "devolucion",
                     {Entrada("devcontado", "Contado", "", "contado", ""),
                      Entrada("devcliente", "Por Cliente", "", "cliente", "")}),
             Entrada("stats", "&Estadísticas", "F12", "grafico", "", kMarca)}};
}

MenuSuperior MenuClientes() {
    return {T("&Clientes"),
            {Entrada("clientes", "&Clientes", "F4", "cliente", "Muestra/Oculta el formulario de clientes",
                     kMarca),
             Entrada("estado", "&Estados de cuenta", "F7", "estado", "Estados de cuenta", kMarca)}};
}

MenuSuperior MenuArticulos() {
    return {T("A&rtículos"),
            {Entrada("articulos", "&Artículos", "F2", "articulos",
                     "Muestra/Oculta el formulario de artículos", kMarca),
             Entrada("proveedores", "&Proveedores", "F3", "proveedores",
                     "Muestra/Oculta el formulario de proveedores", kMarca)}};
}

MenuSuperior MenuHerramientas() {
    return {
        T("&Herramientas"),
        {Entrada("opciones", "&Opciones", "F9", "config",
                 "Abre el panel de opciones de configuración de Tarvo"),
         Entrada("factura", "&Diseñador de facturas", "", "factura", "Inicia el diseñador de facturas"),
         Entrada("pantcomp", "&Pantalla completa", "F11", "", "Pantalla completa", kMarca),
         Entrada("respaldar", "&Respaldar", "F6", "respaldar", "Inicia las opciones de respaldo de datos"),
         {},
         Entrada("calculadora", "&Calculadora", "F5", "calc", "Muestra/Oculta la calculadora", kMarca)}};
}

MenuSuperior MenuAyudaPrincipal() {
    return {T("A&yuda"),
            {Entrada("ayudapdf", "&Ayuda", "F1", "pdf", ""),
             {},
             Entrada("acercade", "A&cerca de...", "", "vsw", "Acerca de Velbrina Software")}};
}

BotonBarra Boton(const char *clave, const char *texto, const char *atajo, const char *imagen,
                 bool marcable = true) {
    return {T(clave), T(texto), T("%1 (%2)").arg(T(texto), T(atajo)), T(imagen), marcable};
}

} // namespace

const std::vector<MenuSuperior> &MenuPrincipal() {
    static const std::vector<MenuSuperior> menu{MenuArchivo(),       MenuVer(),       MenuVentas(),
                                                MenuClientes(),      MenuArticulos(), MenuHerramientas(),
                                                MenuAyudaPrincipal()};
    return menu;
}

const QList<EntradaMenu> &MenuAyuda() {
    static const QList<EntradaMenu> menu{
        Entrada("popayuda", "Ayuda", "", "pdf", "Ayuda"),
        {},
        Entrada("popayudaweb", "Ayuda en la Web", "", "web", "Ayuda en el sitio web del programa")};
    return menu;
}

const std::vector<BotonBarra> &BotonesPrincipal() {
    static const std::vector<BotonBarra> botones{
        Boton("ventas", "Ventas", "F8", "ventas"),
        Boton("estado", "Estado de cuenta", "F7", "estado"),
        Boton("estadisticas", "Estadísticas", "F12", "grafico"),
        Boton("articulos", "Artículos", "F2", "articulos"),
        Boton("proveedores", "Proveedores", "F3", "proveedores"),
        Boton("clientes", "Clientes", "F4", "clientes"),
        {},
        Boton("calculadora", "Calculadora", "F5", "calculadora"),
        Boton("config", "Opciones", "F9", "config"),
        Boton("respaldar", "Respaldar", "F6", "respaldo"),
        {},
        Boton("ayuda", "Ayuda", "F1", "ayuda", false),
        Boton("salir", "Salir", "Alt+F4", "salir", false),
    };
    return botones;
}

void LlenarBarra(QToolBar *barra, const std::vector<BotonBarra> &botones) {
    for (const BotonBarra &boton : botones) {
        if (boton.clave.isEmpty()) {
            barra->addSeparator();
            continue;
        }
        auto *accion = new QAction(IconoDe(boton.imagen), boton.texto, barra);
        accion->setObjectName(boton.clave);
        accion->setToolTip(boton.ayuda);
        accion->setCheckable(boton.marcable);
        barra->addAction(accion);
    }
}

} // namespace tarvo
