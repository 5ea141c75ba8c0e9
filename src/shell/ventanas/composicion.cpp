#include "shell/ventanas/composicion.h"

#include "config/ventanas/frmconfig.h"
#include "desktop/preguntas.h"
#include "masterdata/ventanas/frmarticulos.h"
#include "masterdata/ventanas/frmclientes.h"
#include "masterdata/ventanas/frmproveedores.h"
#include "sales/ventanas/frmventas.h"

namespace tarvo {

namespace {

template <typename Ventana> Composicion::FabricaModulo Fabrica(const Servicios &servicios) {
    return [servicios](Anfitrion &anfitrion, QWidget *padre) {
        return new Ventana(servicios, anfitrion, padre);
    };
}

} // namespace

Composicion Componer(const Servicios &servicios) {
    Composicion composicion;
    composicion.modulos = {
        {Modulo::Ventas, Fabrica<FrmVentas>(servicios)},
        {Modulo::Articulos, Fabrica<FrmArticulos>(servicios)},
        {Modulo::Clientes, Fabrica<FrmClientes>(servicios)},
        {Modulo::Proveedores, Fabrica<FrmProveedores>(servicios)},
    };
    composicion.opciones = [servicios](bool abrirDisenador, QWidget *padre) {
        FrmConfig(servicios, abrirDisenador, padre).exec();
    };
    composicion.exportar = [servicios](VentanaModulo &) {
        servicios.preguntas.Informar(QStringLiteral("La exportación no está disponible en esta versión."));
    };
    return composicion;
}

} // namespace tarvo
