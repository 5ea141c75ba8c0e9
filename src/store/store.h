// The data layer: `frmBases`, one object for the life of the program, with one open cursor per table.
//
// The five files (config, clientes, proveedores, articulos, ventas, each ".mdb") are SQLite files in the
// folder `Datos`. They are opened as one connection, exclusively; docs/datos.md tells the tables and the file
// format. The layer never asks the operator anything: what fails is returned or thrown.
#pragma once

#include "store/cursor.h"
#include "store/moneda.h"

#include <QString>

#include <chrono>
#include <functional>
#include <memory>

namespace tarvo {

class Conexion;

enum class EstadoApertura {
    Completa,
    Bloqueada, // another process holds a file: the program must end
    Parcial,   // a table could not be opened; it and the ones behind it stay closed
};

struct ResultadoApertura {
    EstadoApertura estado = EstadoApertura::Completa;
    // Name of the file that failed, "clientes.mdb"; empty when all opened, and when one of them is busy and
    // the engine doesn't tell which.
    QString archivo;
    QString motivo; // what was wrong with it, in Spanish, to stand behind its name and a colon
};

class FrmBases {
  public:
    // `carpetaDatos` is the folder of the five files; nothing is opened yet.
    FrmBases(QString carpetaDatos, Moneda moneda);
    ~FrmBases();
    FrmBases(const FrmBases &) = delete;
    FrmBases &operator=(const FrmBases &) = delete;

    // Opens all tables in their fixed order; the first failure ends the opening. After Cerrar it can be
    // called again: nothing of the earlier run is left in memory.
    ResultadoApertura Abrir();
    // The same; while a file is busy it tries again for `plazo`, with waits of random length in between, so
    // that of two processes that start at once one gets the files.
    ResultadoApertura AbrirInsistiendo(std::chrono::milliseconds plazo = std::chrono::milliseconds(1500));
    // The files stay closed: tells whoever listens to their opening why.
    void NoAbrir(const QString &motivo);
    // Opens datUsuarios, which no opening of the files does; makes its table in config.mdb when it isn't
    // there. Throws ErrorDatos when the files are closed or the disk refuses.
    void AbrirUsuarios();
    // Commits pending edits (a pending new row is dropped) and closes the cursors and the files.
    void Cerrar();
    // Compacts the file `origen` by way of `temporal`. Throws ErrorDatos: kBaseNoEncontrada with the text
    // "No se pudo encontrar la base de datos '...'." when there is no `origen`, the engine's own error else.
    static void CompactarBase(const QString &origen, const QString &temporal);

    const QString &CarpetaDatos() const { return carpeta_; }
    // `ruta` leads into that folder: no window may write a file of the operator's there.
    bool EsDeLosDatos(const QString &ruta) const;
    // `avisar` is called with what each opening comes to; nothing that was known of the files holds then.
    void AlAbrirse(std::function<void(const ResultadoApertura &)> avisar);
    // `avisar` is called with a file ("articulos.mdb") and a reason when a read finds it damaged; once for
    // each file and opening. Writes to that file are refused from then on.
    void AlDanarse(std::function<void(const QString &archivo, const QString &motivo)> avisar);
    const Moneda &moneda() const { return moneda_; }
    const QString &sDecimal() const { return moneda_.sDecimal(); }
    const QString &sCurrency() const { return moneda_.sCurrency(); }

  private:
    friend class Transaccion;
    friend class DatosPrueba; // tests read the open files through the connection that holds them
    ResultadoApertura AbrirArchivos();
    void AbrirTablas(ResultadoApertura &resultado);

    QString carpeta_;
    Moneda moneda_;
    std::function<void(const ResultadoApertura &)> alAbrirse_;
    std::function<void(const QString &, const QString &)> alDanarse_;
    std::unique_ptr<Conexion> conexion_;

  public:
    // --- cursors, in the order of opening; datUsuarios opens on demand, datPagos never
    Cursor datIVA{"main", "Iva"};
    Cursor datImpuesto{"main", "Impuesto"};
    Cursor datFactura{"main", "Factura"};
    Cursor datCategorias{"main", "Categorias"};
    Cursor datCategorias2{"main", "Categorias2"};
    Cursor datVendedores{"main", "Vendedores"};
    Cursor datTicket{"main", "Ticket"};
    Cursor datClientes{"clientes", "Clientes"};
    Cursor datProveedores{"proveedores", "Proveedores", "primarykey "};
    Cursor datArticulos{"articulos", "Articulos", "primarykey"};
    Cursor datVentas{"ventas", "Ventas"};
    Cursor datUsuarios{"main", "Usuarios"};
    Cursor datPagos{"main", "Pagos"};

    // Iva
    Campo camIVAId{datIVA, "id"};
    Campo camIVACodigo{datIVA, "codigo"};
    Campo camIVATipo{datIVA, "tipo"};
    Campo camIVAPorcentaje{datIVA, "porcentaje"};

    // Impuesto
    Campo camImpId{datImpuesto, "id"};
    Campo camImpUtilizar{datImpuesto, "utilizar"};
    Campo camImpNombre{datImpuesto, "nombre"};
    Campo camImpPorcentaje{datImpuesto, "porcentaje"};
    Campo camImpSobreIVA{datImpuesto, "sobreiva"};
    Campo camImpExisteIFiscal{datImpuesto, "existeifiscal"};

    // Factura
    Campo camFacId{datFactura, "id"};
    Campo camFacCantLineas{datFactura, "cantlineas"};
    Campo camFacRutaFactura{datFactura, "rutafactura"};

    // Categorias
    Campo camCatId{datCategorias, "id"};
    Campo camCatCodigo{datCategorias, "codigo"};
    Campo camCatCategoria{datCategorias, "categoria"};
    // Bound to Categorias by an old quirk; nothing reads them.
    Campo camCat2Id{datCategorias, "id"};
    Campo camCat2Codigo{datCategorias, "codigo"};
    Campo camCat2Categoria{datCategorias, "categoria"};

    // Vendedores
    Campo camVenId{datVendedores, "id"};
    Campo camVenCodigo{datVendedores, "codigo"};
    Campo camVenNombre{datVendedores, "nombre"};
    Campo camVenDocumento{datVendedores, "documento"};
    Campo camVenDireccion{datVendedores, "direccion"};
    Campo camVenTelefono{datVendedores, "telefono"};
    Campo camVenMail{datVendedores, "mail"};
    Campo camVenOtros{datVendedores, "otros"};

    // Ticket
    Campo camTicId{datTicket, "id"};
    Campo camTicLinea1{datTicket, "linea1"};
    Campo camTicLinea2{datTicket, "linea2"};
    Campo camTicLinea3{datTicket, "linea3"};
    Campo camTicLinea4{datTicket, "linea4"};
    Campo camTicLinea5{datTicket, "linea5"};
    Campo camTicN1{datTicket, "negrita1"};
    Campo camTicN2{datTicket, "negrita2"};
    Campo camTicN3{datTicket, "negrita3"};
    Campo camTicN4{datTicket, "negrita4"};
    Campo camTicN5{datTicket, "negrita5"};

    // Clientes
    Campo camCliId{datClientes, "id"};
    Campo camCliCodigo{datClientes, "codigo"};
    Campo camCliNombre{datClientes, "nombre"};
    Campo camCliNFiscal{datClientes, "nfiscal"};
    Campo camCliIFiscal{datClientes, "ifiscal"};
    Campo camCliDocumento{datClientes, "documento"};
    Campo camCliDomicilio{datClientes, "domicilio"};
    Campo camCliPoblacion{datClientes, "poblacion"};
    Campo camCliCPostal{datClientes, "cpostal"};
    Campo camCliProvincia{datClientes, "provincia"};
    Campo camCliTel1{datClientes, "tel1"};
    Campo camCliTel2{datClientes, "tel2"};
    Campo camCliFax{datClientes, "fax"};
    Campo camCliMail{datClientes, "mail"};
    Campo camCliWebPage{datClientes, "webpage"};

    // Proveedores
    Campo camProId{datProveedores, "id"};
    Campo camProCodigo{datProveedores, "codigo"};
    Campo camProNombre{datProveedores, "nombre"};
    Campo camProNFiscal{datProveedores, "nfiscal"};
    Campo camProIFiscal{datProveedores, "ifiscal"};
    Campo camProTelefono{datProveedores, "telefono"};
    Campo camProFax{datProveedores, "fax"};
    Campo camProDireccion{datProveedores, "direccion"};
    Campo camProEmail{datProveedores, "email"};

    // Articulos
    Campo camArtId{datArticulos, "id"};
    Campo camArtCodigo{datArticulos, "codigo"};
    Campo camArtCodBarras1{datArticulos, "codbarras1"};
    Campo camArtCodBarras2{datArticulos, "codbarras2"};
    Campo camArtNombre{datArticulos, "nombre"};
    Campo camArtDescripcion{datArticulos, "descripcion"};
    Campo camArtUnidad{datArticulos, "unidad"};
    Campo camArtIdCategoria1{datArticulos, "idcategoria1"};
    Campo camArtIdCategoria2{datArticulos, "idcategoria2"};
    Campo camArtIdCategoria3{datArticulos, "idcategoria3"};
    Campo camArtIdTipoIVA{datArticulos, "idtipoiva"};
    Campo camArtIdProveedores{datArticulos, "idproveedores"};
    Campo camArtPCompra{datArticulos, "pcompra"};
    Campo camArtSubtotal{datArticulos, "subtotal"};
    Campo camArtStock{datArticulos, "stock"};
    Campo camArtStockMin{datArticulos, "stockmin"};

    // Ventas
    Campo camVentId{datVentas, "id"};
    Campo camVentFecha{datVentas, "fecha"};
    Campo camVentHora{datVentas, "hora"};
    Campo camVentIdCliente{datVentas, "idcliente"};
    Campo camVentIdOperador{datVentas, "idoperador"};
    Campo camVentIdUsuario{datVentas, "idusuario"};
    Campo camVentNumComp{datVentas, "numcomp"};
    Campo camVentTipo{datVentas, "tipo"};
    Campo camVentDescripcion{datVentas, "descripcion"};
    Campo camVentSubtotal{datVentas, "subtotal"};
    Campo camVentIVA{datVentas, "iva"};
    Campo camVentTotal{datVentas, "total"};

    // Usuarios
    Campo camUsuId{datUsuarios, "id"};
    Campo camUsuCodigo{datUsuarios, "codigo"};
    Campo camUsuArticulo{datUsuarios, "articulo"};
    Campo camUsuPrecio{datUsuarios, "precio"};
    Campo camUsuCantidad{datUsuarios, "cantidad"};

    // Pagos
    Campo camPagId{datPagos, "id"};
    Campo camPagCodigo{datPagos, "codigo"};
    Campo camPagForma{datPagos, "forma"};
    Campo camPagPlazos{datPagos, "plazos"};
    Campo camPagDias{datPagos, "dias"};
    Campo camPagPrimerPlazo{datPagos, "primerplazo"};
};

} // namespace tarvo
