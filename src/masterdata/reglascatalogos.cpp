#include "masterdata/reglascatalogos.h"

#include "store/store.h"

namespace tarvo {

namespace {

ColumnaDetalle Columna(const char *titulo, int ancho, Campo &campo) {
    return {{.titulo = QString::fromUtf8(titulo), .ancho = ancho, .oculta = ancho == 0}, &campo};
}

CampoDetalle Requerido(const char *control, Campo &campo, const char *nombre) {
    return {.control = control, .campo = &campo, .requerido = QString::fromUtf8(nombre)};
}

CampoDetalle Libre(const char *control, Campo &campo) {
    return {.control = control, .campo = &campo};
}

} // namespace

std::vector<CampoDetalle> CamposClientes(FrmBases &bases) {
    return {Requerido("txtCodigo", bases.camCliCodigo, "Código"),
            Requerido("txtNombre", bases.camCliNombre, "Nombre"),
            Libre("txtNFiscal", bases.camCliNFiscal),
            Libre("txtIFiscal", bases.camCliIFiscal),
            Libre("txtDocumento", bases.camCliDocumento),
            Libre("txtDomicilio", bases.camCliDomicilio),
            Libre("txtPoblacion", bases.camCliPoblacion),
            Libre("txtCPostal", bases.camCliCPostal),
            Libre("txtProvincia", bases.camCliProvincia),
            Libre("txtTel1", bases.camCliTel1),
            Libre("txtTel2", bases.camCliTel2),
            Libre("txtFax", bases.camCliFax),
            Libre("txtMail", bases.camCliMail),
            Libre("txtWebPage", bases.camCliWebPage)};
}

ReglasDetalle ReglasClientes(FrmBases &bases) {
    return {
        .cursor = bases.datClientes,
        .id = bases.camCliId,
        .campos = CamposClientes(bases),
        .columnas = {Columna("Código", 1940, bases.camCliCodigo), Columna("Nombre", 4145, bases.camCliNombre),
                     Columna("Nombre Fiscal", 4145, bases.camCliNFiscal),
                     Columna("Id. Fiscal", 2646, bases.camCliIFiscal),
                     Columna("Teléfono 1", 2258, bases.camCliTel1), Columna("id", 0, bases.camCliId)},
        .columnasBusqueda = {0, 1, 2, 3, 4},
        .preguntaModificar =
            QStringLiteral("Está seguro de querer modificar los datos del cliente seleccionado?"),
        .preguntaEliminar =
            QStringLiteral("Está seguro de querer eliminar los datos del cliente seleccionado?"),
        .preguntaCerrar = QStringLiteral("Desea cerrar el programa sin completar el ingreso del cliente?"),
        .enfocarTrasModificar = true,
        .eliminarApagaExportar = true,
    };
}

ReglasDetalle ReglasProveedores(FrmBases &bases) {
    return {
        .cursor = bases.datProveedores,
        .id = bases.camProId,
        .campos = {Requerido("txtCodigo", bases.camProCodigo, "Código"),
                   Requerido("txtNombre", bases.camProNombre, "Nombre"),
                   Libre("txtNFiscal", bases.camProNFiscal), Libre("txtIFiscal", bases.camProIFiscal),
                   Libre("txtTelefono", bases.camProTelefono), Libre("txtFax", bases.camProFax),
                   Libre("txtDireccion", bases.camProDireccion), Libre("txtEmail", bases.camProEmail)},
        .columnas = {Columna("Código", 1940, bases.camProCodigo), Columna("Nombre", 4145, bases.camProNombre),
                     Columna("Nombre Fiscal", 4145, bases.camProNFiscal),
                     Columna("Id. Fiscal", 2646, bases.camProIFiscal),
                     Columna("Teléfono", 2258, bases.camProTelefono), Columna("id", 0, bases.camProId)},
        .columnasBusqueda = {0, 1, 2, 3, 4},
        .indice = QStringLiteral("primarykey "), // with the blank
        .preguntaModificar =
            QStringLiteral("Está seguro de querer modificar los datos del proveedor seleccionado?"),
        .preguntaEliminar =
            QStringLiteral("Está seguro de querer eliminar los datos del proveedor seleccionado?"),
        .preguntaCerrar = QStringLiteral("Desea cerrar el programa sin completar el ingreso del proveedor?"),
        .enfocarTrasModificar = true,
        .callarErrores = false,
    };
}

} // namespace tarvo
