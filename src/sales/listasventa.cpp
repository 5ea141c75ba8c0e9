#include "sales/listasventa.h"

#include "desktop/rellenolista.h"
#include "store/errordatos.h"
#include "store/store.h"

#include <unordered_map>

namespace tarvo {

namespace {

// Text of the IVA column by the id of the IVA type.
using TextosIva = std::unordered_map<std::string, std::string>;

TextosIva LeerTextosIva(FrmBases &bases) {
    TextosIva textos;
    if (bases.datIVA.RecordCount() == 0)
        return textos;
    bases.datIVA.Cargar({&bases.camIVAId, &bases.camIVAPorcentaje});
    const ColumnaTexto &ids = bases.camIVAId.Columna();
    const ColumnaTexto &porcentajes = bases.camIVAPorcentaje.Columna();
    for (std::int64_t i = 0; i < ids.Filas(); ++i)
        textos.try_emplace(std::string(ids.Celda(i)), std::string(porcentajes.Celda(i)) + "%");
    return textos;
}

ColumnaTexto ColumnaIva(const ColumnaTexto &tipos, const TextosIva &textos) {
    ColumnaTexto salida;
    salida.Reservar(tipos.Filas());
    std::string clave;
    auto hallado = textos.end();
    for (std::int64_t i = 0; i < tipos.Filas(); ++i) {
        const std::string_view tipo = tipos.Celda(i);
        // Neighbours mostly share their type, so the last hit is looked at first.
        if (hallado == textos.end() || hallado->first != tipo) {
            clave.assign(tipo);
            hallado = textos.find(clave);
        }
        salida.Agregar(hallado == textos.end() ? std::string_view() : hallado->second);
    }
    return salida;
}

ColumnaTexto ColumnaPrecio(const ColumnaTexto &subtotales, const Moneda &moneda) {
    ColumnaTexto salida;
    salida.Reservar(subtotales.Filas());
    std::string precio;
    for (std::int64_t i = 0; i < subtotales.Filas(); ++i) {
        precio.clear();
        moneda.AgregarFormato(precio, subtotales.Celda(i), true);
        salida.Agregar(precio);
    }
    return salida;
}

std::vector<Tono> TonosStock(const ColumnaTexto &stock) {
    std::vector<Tono> tonos(static_cast<std::size_t>(stock.Filas()));
    for (std::size_t i = 0; i < tonos.size(); ++i)
        tonos[i] = TonoStock(Moneda::NumeroGuardado(stock.Celda(static_cast<std::int64_t>(i))));
    return tonos;
}

void LlenarArticulos(FrmBases &bases, ListaTexto &articulos) {
    bases.datArticulos.Cargar({&bases.camArtId, &bases.camArtCodigo, &bases.camArtCodBarras1,
                               &bases.camArtNombre, &bases.camArtIdTipoIVA, &bases.camArtSubtotal,
                               &bases.camArtStock});
    const ColumnaTexto &tipos = bases.camArtIdTipoIVA.Columna();
    const ColumnaTexto &stock = bases.camArtStock.Columna();
    std::vector<ColumnaTexto> celdas{bases.camArtCodigo.Columna(),
                                     bases.camArtCodBarras1.Columna(),
                                     bases.camArtNombre.Columna(),
                                     stock,
                                     ColumnaPrecio(bases.camArtSubtotal.Columna(), bases.moneda()),
                                     ColumnaIva(tipos, LeerTextosIva(bases)),
                                     bases.camArtId.Columna(),
                                     tipos};
    articulos.Asignar({std::move(celdas), {{articulo::Stock, TonosStock(stock)}}});
}

QString EntradaVendedor(const FrmBases &bases) {
    return bases.camVenCodigo.Texto() + QStringLiteral(" - ") + bases.camVenNombre.Texto();
}

} // namespace

std::vector<ColumnaLista> ColumnasArticulos() {
    return {
        {.titulo = QStringLiteral("Código"), .ancho = 800, .legibles = 7},
        {.titulo = QStringLiteral("Cód. Barras"), .ancho = 1180, .legibles = 13, .cedeA = articulo::Nombre},
        {QStringLiteral("Artículo"), 1700},
        {QStringLiteral("Stock"), 600, true},
        {QStringLiteral("P. Unitario"), 945, true},
        {QStringLiteral("IVA"), 560, true},
        {QStringLiteral("id"), 0, false, true},
        {QStringLiteral("TipoIVA"), 0, false, true}};
}

std::vector<ColumnaLista> ColumnasDetalle() {
    return {{.titulo = QStringLiteral("Código"), .ancho = 860, .legibles = 7},
            {QStringLiteral("Artículo"), 2200},
            {QStringLiteral("P. Unitario"), 1045, true},
            {QStringLiteral("Cantidad"), 945, true},
            {QStringLiteral("Subtotal"), 1045, true},
            {QStringLiteral("idArticulo"), 0, false, true},
            {QStringLiteral("IVA"), 0, true, true}};
}

std::vector<ModoBusqueda> ModosArticulos() {
    return {{QStringLiteral("barras"), QStringLiteral("Código de barras"), QStringLiteral("Código de barras"),
             articulo::CodBarras},
            {QStringLiteral("codigo"), QStringLiteral("Buscar por código"),
             QStringLiteral("Buscar por código"), articulo::Codigo},
            // The mode searches the barcodes too and not the names: operators rely on it.
            {QStringLiteral("articulo"), QStringLiteral("Buscar por artículo"),
             QStringLiteral("Buscar por artículo"), articulo::CodBarras}};
}

void CargarArticulos(FrmBases &frmBases, ListaTexto &articulos) {
    LlenarOVaciar(frmBases.datArticulos, articulos, [&] { LlenarArticulos(frmBases, articulos); });
}

QString SinVendedor() {
    return QStringLiteral("> Seleccione un vendedor <");
}

QStringList CargarVendedores(FrmBases &frmBases) {
    QStringList entradas{SinVendedor()};
    try {
        Recorrer(frmBases.datVendedores, [&] {
            entradas += EntradaVendedor(frmBases);
            return false;
        });
    } catch (const ErrorDatos &) {
        // The combo offers what could be read.
    }
    return entradas;
}

QString IdVendedor(FrmBases &frmBases, const QString &texto) {
    const bool hallado = Recorrer(frmBases.datVendedores, [&] { return EntradaVendedor(frmBases) == texto; });
    return hallado ? frmBases.camVenId.Texto() : QString();
}

Tono TonoStock(double stock) {
    if (stock == 0)
        return Tono::Verde;
    return stock < 0 ? Tono::Rojo : Tono::Normal;
}

} // namespace tarvo
