#include "config/reglaslistas.h"

#include "store/store.h"

namespace tarvo {

namespace {

const QString kCodigoRepetido = QStringLiteral("El código ingresado ya existe en la base de datos.");

QString NoSePuedeBorrar(const QString &motivo) {
    return QStringLiteral("No se puede borrar.\n") + motivo;
}

// What the three panels have in common.
ReglasDetalle ReglasDePanel(Cursor &cursor, Campo &id) {
    ReglasDetalle reglas{.cursor = cursor, .id = id};
    reglas.rellenarAlGuardar = true;
    reglas.enfocarAlLlenar = true;
    return reglas;
}

ColumnaDetalle ColumnaId(Campo &id) {
    return {{.titulo = QStringLiteral("id"), .oculta = true}, &id};
}

} // namespace

ReglasDetalle ReglasIva(FrmBases &b) {
    ReglasDetalle reglas = ReglasDePanel(b.datIVA, b.camIVAId);
    reglas.campos = {
        {.control = "txtIVACodigo", .campo = &b.camIVACodigo, .requerido = QStringLiteral("Código")},
        {.control = "txtIVATipo", .campo = &b.camIVATipo, .requerido = QStringLiteral("Tipo de IVA")},
        {.control = "txtIVAPorcentaje", .campo = &b.camIVAPorcentaje, .inicial = QStringLiteral("0")},
    };
    reglas.columnas = {
        {{.titulo = QStringLiteral("Código"), .ancho = 1200}, &b.camIVACodigo},
        {{.titulo = QStringLiteral("Tipo"), .ancho = kAnchoIva.ancho}, &b.camIVATipo},
        {{.titulo = QStringLiteral("Porcentaje"), .ancho = 1200, .derecha = true}, &b.camIVAPorcentaje},
        ColumnaId(b.camIVAId),
    };
    reglas.duplicados = {
        {0, 0, kCodigoRepetido},
        {1, 1, QStringLiteral("El tipo de iva ingresado ya existe en la base de datos.")},
    };
    reglas.preguntaModificar =
        QStringLiteral("Está seguro de querer modificar los datos del Tipo de IVA seleccionado?");
    reglas.preguntaEliminar = QStringLiteral("Está seguro de querer eliminar el Tipo de IVA seleccionado?");
    reglas.avisoUltimaFila = NoSePuedeBorrar(QStringLiteral("Debe existir al menos un tipo de IVA."));
    return reglas;
}

ReglasDetalle ReglasCategorias(FrmBases &b) {
    ReglasDetalle reglas = ReglasDePanel(b.datCategorias, b.camCatId);
    reglas.campos = {
        {.control = "txtCatCodigo", .campo = &b.camCatCodigo, .requerido = QStringLiteral("Código")},
        {.control = "txtCatCategoria", .campo = &b.camCatCategoria, .requerido = QStringLiteral("Categoría")},
    };
    reglas.columnas = {
        {{.titulo = QStringLiteral("Código"), .ancho = 1200}, &b.camCatCodigo},
        {{.titulo = QStringLiteral("Categoría"), .ancho = kAnchoCategorias.ancho}, &b.camCatCategoria},
        ColumnaId(b.camCatId),
    };
    reglas.duplicados = {{0, 0, kCodigoRepetido}}; // two categories may share a name
    reglas.preguntaModificar =
        QStringLiteral("Está seguro de querer modificar los datos de la categoría seleccionada?");
    reglas.preguntaEliminar = QStringLiteral("Está seguro de querer eliminar la categoría seleccionada?");
    reglas.avisoUltimaFila = NoSePuedeBorrar(QStringLiteral("Debe existir al menos una categoría."));
    return reglas;
}

ReglasDetalle ReglasVendedores(FrmBases &b) {
    ReglasDetalle reglas = ReglasDePanel(b.datVendedores, b.camVenId);
    reglas.campos = {
        {.control = "txtVenCodigo", .campo = &b.camVenCodigo, .requerido = QStringLiteral("Código")},
        {.control = "txtVenNombre", .campo = &b.camVenNombre, .requerido = QStringLiteral("Nombre")},
        {.control = "txtVenDocumento", .campo = &b.camVenDocumento},
        {.control = "txtVenDireccion", .campo = &b.camVenDireccion},
        {.control = "txtVenTelefono", .campo = &b.camVenTelefono},
        {.control = "txtVenEmail", .campo = &b.camVenMail},
        {.control = "txtVenOtros", .campo = &b.camVenOtros},
    };
    reglas.columnas = {
        {{.titulo = QStringLiteral("Código"), .ancho = 1200}, &b.camVenCodigo},
        {{.titulo = QStringLiteral("Nombre"), .ancho = kAnchoVendedores.ancho}, &b.camVenNombre},
        {{.titulo = QStringLiteral("Documento"), .ancho = 1600}, &b.camVenDocumento},
        {{.titulo = QStringLiteral("Teléfono"), .ancho = 1600}, &b.camVenTelefono},
        ColumnaId(b.camVenId),
    };
    reglas.duplicados = {
        {0, 0, kCodigoRepetido},
        {1, 1, QStringLiteral("El nombre ingresado ya existe en la base de datos.")},
    };
    reglas.preguntaModificar =
        QStringLiteral("Está seguro de querer modificar los datos del vendedor seleccionado?");
    reglas.preguntaEliminar = QStringLiteral("Está seguro de querer eliminar el vendedor seleccionado?");
    reglas.avisoUltimaFila = NoSePuedeBorrar(QStringLiteral("Debe existir al menos un vendedor."));
    return reglas;
}

} // namespace tarvo
