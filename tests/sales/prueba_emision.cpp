// The issue: what reaches the store, what is refused, what a failing disk or printer leaves behind.
#include "tiendaprueba.h"

#include "masterdata/selectorclientes.h"
#include "sales/emision.h"

namespace tarvo {
namespace {

const QString kConfirma = u"Confirma la emisión de la factura?"_qs;

class Emision : public ::testing::Test {
  protected:
    Emision() { mundo.datos.Ejecutar(kTienda); }

    void Abrir() {
        venta = std::make_unique<Venta>(mundo.frmBases());
        venta->CargarArticulos();
        CargarClientes(mundo.frmBases(), clientes);
        venta->Agregar(0, 4);
        venta->Agregar(1, 3);
        venta->PonerMomento({{2026, 11, 22}, {10, 42}});
        venta->PonerNumComp(u"0001-00000077"_qs);
        venta->PonerVendedor(u"V2 - Beto"_qs);
    }
    ResultadoEmision EmitirVenta() {
        return Emitir(mundo.servicios(), *venta, u"Tickets"_qs, [](const Comprobante &) {});
    }
    void SeEmite(Respuesta ticket = No) {
        EsperaEmision(mundo.preguntas, ticket);
        EXPECT_EQ(EmitirVenta(), ResultadoEmision::Emitida);
    }
    void NoSeGuarda(const QString &motivo) {
        mundo.preguntas.Espera(kConfirma, Si, Si);
        mundo.preguntas.EsperaFalla(motivo + u"\n\nLa venta sigue en pantalla, sin cambios."_qs);
        EXPECT_EQ(EmitirVenta(), ResultadoEmision::NoGuardada);
        EXPECT_EQ(Stock(), u"10; 1; 3");
        EXPECT_EQ(venta->Detalle().Filas(), 2);
    }
    QString Ventas() {
        return mundo.datos.Tabla("SELECT fecha,hora,idcliente,idoperador,COALESCE(idusuario,''),numcomp,tipo,"
                                 "descripcion,subtotal,iva,total FROM ventas.Ventas ORDER BY id");
    }
    QString Stock() { return mundo.datos.Tabla("SELECT stock FROM articulos.Articulos ORDER BY id"); }

    MundoPrueba mundo;
    std::unique_ptr<Venta> venta;
    ListaTexto clientes{ColumnasClientes()};
};

class EmisionAbierta : public Emision {
  protected:
    void SetUp() override { Abrir(); }
};

TEST_F(EmisionAbierta, ACashSaleWritesOneRowAndTheStock) {
    venta->PonerDescuento(u"10"_qs);
    SeEmite();
    EXPECT_EQ(Ventas(),
              u"22/11/2026|10:42|0|2||0001-00000077|Contado|Factura contado|$ 437,50|$ 87,75|$ 472,73");
    EXPECT_EQ(Stock(), u"6; -2; 3");
    EXPECT_TRUE(mundo.impresoras.documentos.empty());
}

TEST_F(EmisionAbierta, ACreditSaleCarriesItsCustomerAndAnEmptyNumber) {
    venta->ElegirCliente(clientes, 1);
    venta->PonerPago(Pago::Credito);
    venta->PonerNumComp({});
    SeEmite();
    EXPECT_EQ(Ventas(), u"22/11/2026|10:42|2|2|||Credito|Factura crédito|$ 437,50|$ 87,75|$ 525,25");
}

TEST_F(EmisionAbierta, ANoLeavesEverything) {
    mundo.preguntas.Espera(kConfirma, Si, No);
    EXPECT_EQ(EmitirVenta(), ResultadoEmision::NoConfirmada);
    EXPECT_EQ(venta->Detalle().Filas(), 2);
    EXPECT_EQ(Ventas(), QString());
}

// The working stock is written and not a difference; a line whose article has gone writes nothing; a seller
// that was renamed behind the window is left empty.
TEST_F(EmisionAbierta, WhatChangedBehindTheWindow) {
    FrmBases &bases = mundo.frmBases();
    bases.datArticulos.MoveFirst();
    bases.camArtStock = u"500"_qs;
    bases.datArticulos.MoveNext();
    bases.datArticulos.Delete();
    venta->PonerVendedor(u"V9 - Nadie"_qs);
    SeEmite();
    EXPECT_EQ(Stock(), u"6; 3");
    EXPECT_EQ(Ventas().section(u'|', 3, 3), QString());
}

// Wherever the disk refuses, nothing of the sale is in the files, and the same sale can be issued afterwards,
// once.
class EmisionNegada : public Emision, public testing::WithParamInterface<const char *> {};

TEST_P(EmisionNegada, TakesTheWholeSaleBack) {
    mundo.datos.Ejecutar(std::string(GetParam()) + "BEGIN SELECT RAISE(FAIL,'sin lugar'); END");
    Abrir();
    venta->PonerNumComp(u"malo"_qs);
    NoSeGuarda(u"No se pudo escribir en la base de datos: sin lugar."_qs);
    EXPECT_EQ(Ventas(), QString());
    venta->PonerNumComp(u"bueno"_qs);
    venta->Agregar(1, 1); // the trigger lets another stock pass
    SeEmite();
    EXPECT_EQ(mundo.datos.Tabla("SELECT numcomp FROM ventas.Ventas"), u"bueno");
    EXPECT_EQ(Stock(), u"6; -3; 3");
}

INSTANTIATE_TEST_SUITE_P(
    Disco, EmisionNegada,
    testing::Values("CREATE TRIGGER ventas.negar BEFORE INSERT ON Ventas WHEN NEW.numcomp='malo' ",
                    "CREATE TRIGGER articulos.negar BEFORE UPDATE ON Articulos WHEN NEW.stock='-2' "),
    [](const auto &caso) { return caso.index == 0 ? "venta" : "stock"; });

TEST_F(Emision, ClosedTablesAreToldAndNothingIsWritten) {
    mundo.datos.Ejecutar("DROP TABLE ventas.Ventas");
    mundo.datos.Bases().Abrir();
    Abrir();
    NoSeGuarda(u"La tabla Ventas no está abierta."_qs);
}

// --- the ticket

TEST_F(Emision, TheTicketIsAskedWithEverythingOnScreen) {
    CobrarImpuesto(mundo.datos, "Si", "No");
    Abrir();
    venta->ElegirCliente(clientes, 0);
    venta->PonerPago(Pago::Credito);
    venta->PonerDescuento(u"10"_qs);
    const Comprobante ticket = HacerComprobante(*venta);
    const QStringList cabeza{ticket.fecha,         ticket.hora,    ticket.tipo,     ticket.numero,
                             ticket.codigoCliente, ticket.cliente, ticket.idFiscal, ticket.vendedor};
    EXPECT_EQ(cabeza.join(u'|'),
              u"22/11/2026|10:42|Factura crédito|0001-00000077|C1|Ñandú S.A.|30-71234567-1|V2 - Beto");
    const QStringList pie{ticket.subtotal, ticket.iva,       ticket.nombreImpuesto,   ticket.impuesto,
                          ticket.total,    ticket.descuento, ticket.totalConDescuento};
    EXPECT_EQ(pie.join(u'|'), u"$ 437,50|$ 87,75|Percepción|$ 15,76|$ 541,01|10 %|$ 486,91");
    EXPECT_FALSE(ticket.consumidorFinal);
    ASSERT_EQ(ticket.lineas.size(), 2u);
    const LineaComprobante &linea = ticket.lineas[1];
    EXPECT_EQ(QStringList({linea.codigo, linea.nombre, linea.cantidad, linea.precioUnitario, linea.subtotal})
                  .join(u'|'),
              u"A2|Azúcar|3|$ 12,50|$ 37,50");
}

TEST_F(Emision, ACustomTaxWithoutANamePrintsAllTheSame) {
    CobrarImpuesto(mundo.datos, "Si", "No");
    mundo.datos.Ejecutar("UPDATE main.Impuesto SET nombre=' '");
    Abrir();
    const Comprobante ticket = HacerComprobante(*venta);
    EXPECT_EQ(ticket.nombreImpuesto, u"Impuesto");
    EXPECT_TRUE(ticket.consumidorFinal);
}

TEST_F(EmisionAbierta, TheTicketPrintsAfterTheRowIsSafe) {
    SeEmite(Si);
    EXPECT_EQ(mundo.impresoras.actual, u"Tickets");
    EXPECT_TRUE(mundo.impresoras.Papel().contains(u"Yerba mate"));

    mundo.impresoras.fallar = true;
    mundo.preguntas.Espera(kConfirma, Si, Si);
    mundo.preguntas.Espera(u"Desea imprimir el ticket?"_qs, Si, Si);
    mundo.preguntas.EsperaFalla(
        u"No se pudo imprimir el ticket. No hay impresora.\n\nLa venta quedó guardada."_qs);
    mundo.preguntas.EsperaMensaje(u"La venta se realizó con exito."_qs);
    EXPECT_EQ(EmitirVenta(), ResultadoEmision::Emitida);
    EXPECT_EQ(mundo.datos.Tabla("SELECT count(*) FROM ventas.Ventas"), u"2");
}

} // namespace
} // namespace tarvo
