#include "tienda/tienda.h"

#include "store/errordatos.h"
#include "store/instalacion.h"
#include "tienda/catalogo.h"
#include "tienda/facturamuestra.h"
#include "tienda/insercion.h"
#include "tienda/movimientos.h"
#include "tienda/personas.h"

#include <QDir>

namespace tarvo {

namespace {

constexpr int kProveedores = 24;
constexpr int kVendedores = 5;

// One of the five files, filled in one transaction. A shop that is not whole is thrown away, so nothing is
// synced.
class Archivo {
  public:
    Archivo(const QString &carpeta, const char *nombre)
        : base_(QDir(carpeta).filePath(QLatin1String(nombre)).toStdString(), SQLite::OPEN_READWRITE) {
        base_.exec("PRAGMA journal_mode = MEMORY; PRAGMA synchronous = OFF; BEGIN");
    }
    SQLite::Database &operator*() { return base_; }
    void Guardar() { base_.exec("COMMIT"); }

  private:
    SQLite::Database base_;
};

// A plain number: no symbol, and no zeros behind the separator.
std::string NumeroSimple(std::int64_t centimos, const Moneda &moneda) {
    std::string texto;
    moneda.AgregarFormato(texto, static_cast<double>(centimos) / 100.0, false);
    if (centimos % 100 == 0)
        texto.resize(texto.size() - 3);
    else if (centimos % 10 == 0)
        texto.pop_back();
    return texto;
}

void LlenarConfig(const QString &carpeta, const QString &rutaFactura) {
    Archivo archivo(carpeta, "config.mdb");
    (*archivo).exec("DELETE FROM Iva; DELETE FROM Categorias; DELETE FROM Vendedores;"
                    "UPDATE Impuesto SET utilizar = 'Si', nombre = 'Percepción', porcentaje = '3',"
                    " sobreiva = 'Si', existeifiscal = 'Si';"
                    "UPDATE Factura SET cantlineas = '14';"
                    "UPDATE Ticket SET linea1 = 'LA ESQUINA DE ÑANDÚ', negrita1 = 'S',"
                    " linea2 = 'Almacén y librería', negrita2 = 'S', linea3 = 'Calle Mayor, 12 - Logroño',"
                    " negrita3 = 'N', linea4 = 'Tel. 941 000 000', negrita4 = 'N',"
                    " linea5 = 'Gracias por su compra', negrita5 = 'N'");
    SQLite::Statement factura(*archivo, "UPDATE Factura SET rutafactura = ?");
    factura.bind(1, rutaFactura.toStdString());
    factura.exec();
    Insercion iva(*archivo, "Iva", {"id", "codigo", "tipo", "porcentaje"});
    Insercion categorias(*archivo, "Categorias", {"id", "codigo", "categoria"});
    Insercion vendedores(*archivo, "Vendedores",
                         {"id", "codigo", "nombre", "documento", "direccion", "telefono", "mail", "otros"});
    std::string id;
    std::string nombre;
    std::string porcentaje;
    int numero = 0;
    for (const TipoIva &tipo : TiposIva()) {
        id = std::to_string(++numero);
        nombre = tipo.tipo;
        porcentaje = std::to_string(tipo.porcentaje);
        iva.Fila({&id, &id, &nombre, &porcentaje});
    }
    numero = 0;
    for (const Familia &familia : Familias()) {
        id = std::to_string(++numero);
        nombre = familia.categoria;
        categorias.Fila({&id, &id, &nombre});
    }
    Sorteo sorteo(31);
    const std::string nada;
    for (int i = 0; i < kVendedores; ++i) {
        const Persona v = HacerVendedor(i, sorteo);
        vendedores.Fila(
            {&v.codigo, &v.codigo, &v.nombre, &v.documento, &v.domicilio, &v.telefono, &v.correo, &nada});
    }
    archivo.Guardar();
}

void LlenarClientes(const QString &carpeta, int clientes) {
    Archivo archivo(carpeta, "clientes.mdb");
    Insercion tabla(*archivo, "Clientes",
                    {"codigo", "nombre", "nfiscal", "ifiscal", "documento", "domicilio", "poblacion",
                     "cpostal", "provincia", "tel1", "tel2", "fax", "mail", "webpage"});
    Sorteo sorteo(32);
    const std::string nada;
    for (int i = 0; i < clientes; ++i) {
        const Persona c = HacerCliente(i, sorteo);
        tabla.Fila({&c.codigo, &c.nombre, &c.nombreFiscal, &c.idFiscal, &c.documento, &c.domicilio,
                    &c.poblacion, &c.codigoPostal, &c.provincia, &c.telefono, &c.movil, &nada, &c.correo,
                    &c.web});
    }
    archivo.Guardar();
}

void LlenarProveedores(const QString &carpeta) {
    Archivo archivo(carpeta, "proveedores.mdb");
    Insercion tabla(*archivo, "Proveedores",
                    {"codigo", "nombre", "nfiscal", "ifiscal", "telefono", "fax", "direccion", "email"});
    Sorteo sorteo(33);
    const std::string nada;
    for (int i = 0; i < kProveedores; ++i) {
        const Persona p = HacerProveedor(i, sorteo);
        tabla.Fila({&p.codigo, &p.nombre, &p.nombreFiscal, &p.idFiscal, &p.telefono, &nada, &p.domicilio,
                    &p.correo});
    }
    archivo.Guardar();
}

std::vector<PrecioMuestra> LlenarArticulos(const QString &carpeta, int articulos, const Moneda &moneda) {
    Archivo archivo(carpeta, "articulos.mdb");
    Insercion tabla(*archivo, "Articulos",
                    {"codigo", "codbarras1", "nombre", "descripcion", "unidad", "idcategoria1", "idtipoiva",
                     "idproveedores", "pcompra", "subtotal", "stock", "stockmin"});
    Sorteo sorteo(34);
    std::vector<PrecioMuestra> precios;
    precios.reserve(static_cast<std::size_t>(articulos));
    for (int i = 0; i < articulos; ++i) {
        const ArticuloMuestra a = HacerArticulo(i, kProveedores, sorteo);
        const std::string categoria = std::to_string(a.categoria + 1);
        const std::string tipoIva = std::to_string(a.tipoIva + 1);
        const std::string proveedor = std::to_string(a.proveedor + 1);
        const std::string compra = NumeroSimple(a.compraCentimos, moneda);
        const std::string precio = NumeroSimple(a.precioCentimos, moneda);
        const std::string stock = std::to_string(a.stock);
        const std::string minimo = std::to_string(a.stockMinimo);
        tabla.Fila({&a.codigo, &a.codigoBarras, &a.nombre, &a.descripcion, &a.unidad, &categoria, &tipoIva,
                    &proveedor, &compra, &precio, &stock, &minimo});
        precios.push_back({a.precioCentimos, TiposIva()[static_cast<std::size_t>(a.tipoIva)].porcentaje});
    }
    archivo.Guardar();
    return precios;
}

void LlenarVentas(const QString &carpeta, const std::vector<PrecioMuestra> &precios,
                  const MedidaTienda &medida, QDate hasta, const Moneda &moneda) {
    Archivo archivo(carpeta, "ventas.mdb");
    Insercion tabla(*archivo, "Ventas",
                    {"fecha", "hora", "idcliente", "idoperador", "numcomp", "tipo", "descripcion", "subtotal",
                     "iva", "total"});
    Movimientos movimientos(precios, medida.clientes, kVendedores, medida.ventas, hasta, moneda);
    for (int i = 0; i < medida.ventas; ++i) {
        const Movimiento &m = movimientos.Hacer(i);
        tabla.Fila({&m.fecha, &m.hora, &m.idCliente, &m.idOperador, &m.numComp, &m.tipo, &m.descripcion,
                    &m.subtotal, &m.iva, &m.total});
    }
    archivo.Guardar();
}

} // namespace

QString HacerTienda(const QString &carpeta, const MedidaTienda &medida, QDate hasta, const Moneda &moneda) {
    if (QDir(carpeta).exists(QStringLiteral("Datos")))
        throw ErrorDatos(errores::kAccesoRuta,
                         QStringLiteral("Ya hay una carpeta Datos en %1.").arg(carpeta));
    QString datos = PrepararDatos(carpeta, carpeta);
    try {
        LlenarConfig(datos, HacerFacturaMuestra(QDir(carpeta).filePath(QStringLiteral("facturas"))));
        LlenarClientes(datos, medida.clientes);
        LlenarProveedores(datos);
        LlenarVentas(datos, LlenarArticulos(datos, medida.articulos, moneda), medida, hasta, moneda);
    } catch (...) {
        QDir(datos).removeRecursively();
        throw;
    }
    return datos;
}

} // namespace tarvo
