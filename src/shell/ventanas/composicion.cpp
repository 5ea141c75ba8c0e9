#include "shell/ventanas/composicion.h"

#include "accounts/ventanas/frmestados.h"
#include "accounts/ventanas/frmstats.h"
#include "config/ventanas/frmconfig.h"
#include "desktop/ventanas/frmcalc.h"
#include "interchange/mnuexportar.h"
#include "interchange/ventanas/frmrespaldo.h"
#include "masterdata/ventanas/frmarticulos.h"
#include "masterdata/ventanas/frmclientes.h"
#include "masterdata/ventanas/frmproveedores.h"
#include "sales/ultimocomprobante.h"
#include "sales/ventanas/frmventas.h"
#include "store/store.h"

#include <algorithm>

namespace tarvo {

namespace {

template <typename Ventana> Composicion::FabricaModulo Fabrica(const Servicios &servicios) {
    return [servicios](Anfitrion &anfitrion, QWidget *padre) {
        return new Ventana(servicios, anfitrion, padre);
    };
}

} // namespace

bool Composicion::Hay(Entrada entrada) const {
    const auto *const modulo =
        std::ranges::find(kModulos, entrada, [](Modulo cual) { return DatosDe(cual).entrada; });
    if (modulo != kModulos.end())
        return modulos.contains(*modulo);
    switch (entrada) {
    case Entrada::Opciones:
    case Entrada::Factura:
        return opciones != nullptr;
    case Entrada::Respaldar:
        return respaldo != nullptr;
    case Entrada::Calculadora:
        return calculadora != nullptr;
    case Entrada::DevContado:
        return devContado != nullptr;
    case Entrada::DevCliente:
        return devCliente != nullptr;
    case Entrada::Exportar:
        return exportar != nullptr;
    default:
        return true;
    }
}

Composicion Componer(const Servicios &servicios) {
    Composicion composicion;
    const auto ultimo = std::make_shared<UltimoComprobante>(servicios); // until the program ends
    const auto ventas = [servicios, ultimo](Anfitrion &anfitrion, QWidget *padre) {
        return new FrmVentas(servicios, anfitrion, *ultimo, padre);
    };
    composicion.modulos = {
        {Modulo::Ventas, ventas},
        {Modulo::Estados, Fabrica<FrmEstados>(servicios)},
        {Modulo::Articulos, Fabrica<FrmArticulos>(servicios)},
        {Modulo::Clientes, Fabrica<FrmClientes>(servicios)},
        {Modulo::Proveedores, Fabrica<FrmProveedores>(servicios)},
        {Modulo::Stats, Fabrica<FrmStats>(servicios)},
    };
    composicion.opciones = [servicios](bool abrirDisenador, QWidget *padre) {
        FrmConfig(servicios, abrirDisenador, padre).exec();
    };
    composicion.respaldo = [servicios](QWidget *padre) { FrmRespaldo(servicios, padre).exec(); };
    composicion.exportar = [servicios](const Exportable &lo) {
        mnuExportar(servicios.preguntas, servicios.frmBases, lo);
    };
    composicion.devContado = [](VentanaModulo &estados) {
        static_cast<FrmEstados &>(estados).EjecutarContado();
    };
    composicion.devCliente = [](VentanaModulo &estados) {
        static_cast<FrmEstados &>(estados).EjecutarPorCliente();
    };
    composicion.calculadora = [servicios](QWidget *padre) {
        return new FrmCalc(servicios.frmBases.sDecimal(), padre);
    };
    return composicion;
}

} // namespace tarvo
