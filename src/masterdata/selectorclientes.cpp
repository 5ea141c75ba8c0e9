#include "masterdata/selectorclientes.h"

#include "desktop/rellenolista.h"
#include "store/store.h"

namespace tarvo {

namespace {

std::vector<ModoBusqueda> Modos(const QString &tituloFiscal) {
    return {{QStringLiteral("codigo"), QStringLiteral("Buscar por Código"),
             QStringLiteral("Buscar por código"), cliente::Codigo},
            {QStringLiteral("nombre"), QStringLiteral("Buscar por Nombre"),
             QStringLiteral("Buscar por nombre"), cliente::Nombre},
            {QStringLiteral("telefono"), QStringLiteral("Buscar por Teléfono"),
             QStringLiteral("Buscar por teléfono"), cliente::Telefono},
            {QStringLiteral("ruc"), QStringLiteral("Buscar por I. Fiscal"), tituloFiscal, cliente::IFiscal}};
}

} // namespace

std::vector<ColumnaLista> ColumnasClientes() {
    return {{QStringLiteral("Código"), 600},
            {QStringLiteral("Nombre"), 1100},
            {QStringLiteral("Teléfono"), 700},
            {QStringLiteral("I. Fiscal"), 700},
            {QStringLiteral("id"), 0, false, true}};
}

void CargarClientes(FrmBases &frmBases, ListaTexto &clientes) {
    LlenarOVaciar(frmBases.datClientes, clientes, [&] {
        frmBases.datClientes.Cargar({&frmBases.camCliId, &frmBases.camCliCodigo, &frmBases.camCliNombre,
                                     &frmBases.camCliTel1, &frmBases.camCliIFiscal});
        clientes.Asignar(
            {{frmBases.camCliCodigo.Columna(), frmBases.camCliNombre.Columna(), frmBases.camCliTel1.Columna(),
              frmBases.camCliIFiscal.Columna(), frmBases.camCliId.Columna()}});
    });
}

ReglasSelector SelectorDeVentas() {
    return {.modos = Modos(QStringLiteral("Buscar por i.fiscal")), .alta = true, .volverAlInicio = true};
}

ReglasSelector SelectorDeCuentas() {
    ReglasSelector reglas{.modos = Modos(QStringLiteral("Buscar por i. fiscal")), .enfocarLista = true};
    // The list has no address: this mode, which the menu doesn't offer, reads the telephone.
    reglas.modos.push_back(
        {QStringLiteral("direccion"), QString(), QStringLiteral("Buscar por dirección"), cliente::Telefono});
    return reglas;
}

} // namespace tarvo
