// The issue: what reaches the store, what is refused, what a failing disk or printer leaves behind.
#include "tiendaprueba.h"

#include "masterdata/selectorclientes.h"
#include "sales/emision.h"

namespace tarvo {
namespace {

const QString kConfirma = QStringLiteral("Confirma la emisión de la factura?");
const QString kTicket = QStringLiteral("Desea imprimir el ticket?");
const QString kExito = QStringLiteral("La venta se realizó con exito.");

using Filas = std::vector<std::vector<QString>>;

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
        venta->PonerNumComp(QStringLiteral("0001-00000077"));
        venta->PonerVendedor(QStringLiteral("V2 - Beto"));
    }
    ResultadoEmision EmitirVenta() { return Emitir(mundo.servicios(), *venta, QStringLiteral("Tickets")); }
    void EsperaEmision(Respuesta ticket) {
        mundo.preguntas.Espera(kConfirma, Respuesta::Si, Respuesta::Si);
        mundo.preguntas.Espera(kTicket, Respuesta::Si, ticket);
        mundo.preguntas.EsperaMensaje(kExito, Icono::Informacion);
    }
    Filas Ventas() {
        return mundo.datos.Filas("SELECT fecha,hora,idcliente,idoperador,COALESCE(idusuario,''),numcomp,tipo,"
                                 "descripcion,subtotal,iva,total FROM ventas.Ventas ORDER BY id");
    }
    Filas Stock() { return mundo.datos.Filas("SELECT stock FROM articulos.Articulos ORDER BY id"); }

    MundoPrueba mundo;
    std::unique_ptr<Venta> venta;
    ListaTexto clientes{ColumnasClientes()};
};

Filas Columna(std::initializer_list<const char *> celdas) {
    Filas filas;
    for (const char *celda : celdas)
        filas.push_back({QString::fromUtf8(celda)});
    return filas;
}

TEST_F(Emision, ACashSaleWritesOneRowAndTheStock) {
    Abrir();
    venta->PonerDescuento(QStringLiteral("10"));
    EsperaEmision(Respuesta::No);
    EXPECT_EQ(EmitirVenta(), ResultadoEmision::Emitida);
    const std::vector<QString> fila{QStringLiteral("22/11/2026"),
                                    QStringLiteral("10:42"),
                                    QStringLiteral("0"),
                                    QStringLiteral("2"),
                                    QString(),
                                    QStringLiteral("0001-00000077"),
                                    QStringLiteral("Contado"),
                                    QStringLiteral("Factura contado"),
                                    QStringLiteral("$ 437,50"),
                                    QStringLiteral("$ 87,75"),
                                    QStringLiteral("$ 472,73")};
    EXPECT_EQ(Ventas(), Filas{fila});
    EXPECT_EQ(Stock(), Columna({"6", "-2", "3"}));
    EXPECT_TRUE(mundo.impresoras.documentos.empty());
}

TEST_F(Emision, ACreditSaleCarriesItsCustomerAndAnEmptyNumber) {
    Abrir();
    venta->ElegirCliente(clientes, 1);
    venta->PonerPago(Pago::Credito);
    venta->PonerNumComp({});
    EsperaEmision(Respuesta::No);
    EXPECT_EQ(EmitirVenta(), ResultadoEmision::Emitida);
    const Filas filas = Ventas();
    ASSERT_EQ(filas.size(), 1u);
    EXPECT_EQ(filas[0][2], QStringLiteral("2"));
    EXPECT_EQ(filas[0][5], QString());
    EXPECT_EQ(filas[0][6], QStringLiteral("Credito"));
    EXPECT_EQ(filas[0][7], QStringLiteral("Factura crédito"));
}

TEST_F(Emision, ANoLeavesEverything) {
    Abrir();
    mundo.preguntas.Espera(kConfirma, Respuesta::Si, Respuesta::No);
    EXPECT_EQ(EmitirVenta(), ResultadoEmision::NoConfirmada);
    EXPECT_EQ(venta->Detalle().Filas(), 2);
    EXPECT_TRUE(Ventas().empty());
}

// The working stock is written and not a difference; a line whose article has gone writes nothing; a seller
// that was renamed behind the window is left empty.
TEST_F(Emision, WhatChangedBehindTheWindow) {
    Abrir();
    FrmBases &bases = mundo.frmBases();
    bases.datArticulos.MoveFirst();
    bases.camArtStock = QStringLiteral("500");
    bases.datArticulos.MoveNext();
    bases.datArticulos.Delete();
    venta->PonerVendedor(QStringLiteral("V9 - Nadie"));
    EsperaEmision(Respuesta::No);
    EXPECT_EQ(EmitirVenta(), ResultadoEmision::Emitida);
    EXPECT_EQ(Stock(), Columna({"6", "3"}));
    EXPECT_EQ(Ventas()[0][3], QString());
}

// Wherever the disk refuses, nothing of the sale is in the files, and the same sale can be issued afterwards,
// once.
TEST_F(Emision, ARefusedWriteTakesTheWholeSaleBack) {
    const char *const negativas[] = {
        "CREATE TRIGGER ventas.negar BEFORE INSERT ON Ventas WHEN NEW.numcomp='malo' "
        "BEGIN SELECT RAISE(FAIL,'sin lugar'); END",
        "CREATE TRIGGER articulos.negar BEFORE UPDATE ON Articulos WHEN NEW.id=2 AND NEW.stock='-2' "
        "BEGIN SELECT RAISE(FAIL,'sin lugar'); END",
    };
    for (const char *negativa : negativas) {
        MundoPrueba otro;
        otro.datos.Ejecutar(kTienda);
        otro.datos.Ejecutar(negativa);
        Venta v(otro.frmBases());
        v.CargarArticulos();
        v.Agregar(0, 4);
        v.Agregar(1, 3);
        v.PonerNumComp(QStringLiteral("malo"));
        v.PonerVendedor(QStringLiteral("V1 - Ana"));
        otro.preguntas.Espera(kConfirma, Respuesta::Si, Respuesta::Si);
        otro.preguntas.EsperaMensaje(QStringLiteral("No se pudo escribir en la base de datos: sin lugar.\n\n"
                                                    "La venta sigue en pantalla, sin cambios."),
                                     Icono::Critico);
        EXPECT_EQ(Emitir(otro.servicios(), v, {}), ResultadoEmision::NoGuardada);
        EXPECT_TRUE(otro.datos.Filas("SELECT id FROM ventas.Ventas").empty());
        const char *const leerStock = "SELECT stock FROM articulos.Articulos ORDER BY id";
        EXPECT_EQ(otro.datos.Filas(leerStock), Columna({"10", "1", "3"}));
        EXPECT_EQ(v.Detalle().Filas(), 2);

        v.PonerNumComp(QStringLiteral("bueno"));
        v.Agregar(1, 1); // the trigger lets another stock pass
        otro.preguntas.Espera(kConfirma, Respuesta::Si, Respuesta::Si);
        otro.preguntas.Espera(kTicket, Respuesta::Si, Respuesta::No);
        otro.preguntas.EsperaMensaje(kExito, Icono::Informacion);
        EXPECT_EQ(Emitir(otro.servicios(), v, {}), ResultadoEmision::Emitida);
        EXPECT_EQ(otro.datos.Filas("SELECT numcomp FROM ventas.Ventas"), Columna({"bueno"}));
        EXPECT_EQ(otro.datos.Filas(leerStock), Columna({"6", "-3", "3"}));
    }
}

TEST_F(Emision, ClosedTablesAreToldAndNothingIsWritten) {
    mundo.datos.Ejecutar("DROP TABLE ventas.Ventas");
    mundo.datos.Bases().Abrir();
    Abrir();
    mundo.preguntas.Espera(kConfirma, Respuesta::Si, Respuesta::Si);
    mundo.preguntas.EsperaMensaje(
        QStringLiteral("La tabla Ventas no está abierta.\n\nLa venta sigue en pantalla, sin cambios."),
        Icono::Critico);
    EXPECT_EQ(EmitirVenta(), ResultadoEmision::NoGuardada);
    EXPECT_EQ(Stock(), Columna({"10", "1", "3"}));
}

// --- the ticket

TEST_F(Emision, TheTicketIsAskedWithEverythingOnScreen) {
    CobrarImpuesto(mundo.datos, "Si", "No");
    Abrir();
    venta->ElegirCliente(clientes, 0);
    venta->PonerPago(Pago::Credito);
    venta->PonerDescuento(QStringLiteral("10"));
    const Comprobante ticket = HacerComprobante(*venta);
    const std::pair<QString, const char *> textos[] = {
        {ticket.fecha, "22/11/2026"},
        {ticket.hora, "10:42"},
        {ticket.tipo, "Factura crédito"},
        {ticket.numero, "0001-00000077"},
        {ticket.cliente, "Ñandú S.A."},
        {ticket.idFiscal, "30-71234567-1"},
        {ticket.subtotal, "$ 437,50"},
        {ticket.iva, "$ 87,75"},
        {ticket.nombreImpuesto, "Percepción"},
        {ticket.impuesto, "$ 15,76"},
        {ticket.total, "$ 541,01"},
        {ticket.descuento, "10 %"},
        {ticket.totalConDescuento, "$ 486,91"},
        {ticket.vendedor, "V2 - Beto"},
        {ticket.codigoCliente, "C1"},
        {ticket.lineas.at(1).codigo, "A2"},
    };
    for (const auto &[texto, esperado] : textos)
        EXPECT_EQ(texto, QString::fromUtf8(esperado));
    ASSERT_EQ(ticket.lineas.size(), 2u);
    EXPECT_FALSE(ticket.consumidorFinal);
    EXPECT_EQ(ticket.lineas[1].nombre, QStringLiteral("Azúcar"));
    EXPECT_EQ(ticket.lineas[1].cantidad, QStringLiteral("3"));
    EXPECT_EQ(ticket.lineas[1].precioUnitario, QStringLiteral("$ 12,50"));
    EXPECT_EQ(ticket.lineas[1].subtotal, QStringLiteral("$ 37,50"));
}

TEST_F(Emision, ACustomTaxWithoutANamePrintsAllTheSame) {
    CobrarImpuesto(mundo.datos, "Si", "No");
    mundo.datos.Ejecutar("UPDATE main.Impuesto SET nombre=' '");
    Abrir();
    const Comprobante ticket = HacerComprobante(*venta);
    EXPECT_EQ(ticket.nombreImpuesto, QStringLiteral("Impuesto"));
    EXPECT_TRUE(ticket.consumidorFinal);
}

TEST_F(Emision, TheTicketPrintsAfterTheRowIsSafe) {
    Abrir();
    EsperaEmision(Respuesta::Si);
    EXPECT_EQ(EmitirVenta(), ResultadoEmision::Emitida);
    EXPECT_EQ(mundo.impresoras.actual, QStringLiteral("Tickets"));
    ASSERT_EQ(mundo.impresoras.documentos.size(), 1u);
    EXPECT_TRUE(mundo.impresoras.documentos[0]->Terminado());
    EXPECT_TRUE(mundo.impresoras.documentos[0]
                    ->Lineas()
                    .join(QLatin1Char('\n'))
                    .contains(QStringLiteral("Yerba mate")));

    mundo.impresoras.fallar = true;
    mundo.preguntas.Espera(kConfirma, Respuesta::Si, Respuesta::Si);
    mundo.preguntas.Espera(kTicket, Respuesta::Si, Respuesta::Si);
    mundo.preguntas.EsperaMensaje(
        QStringLiteral("No se pudo imprimir el ticket. No hay impresora.\n\nLa venta quedó guardada."),
        Icono::Critico);
    mundo.preguntas.EsperaMensaje(kExito, Icono::Informacion);
    EXPECT_EQ(EmitirVenta(), ResultadoEmision::Emitida);
    EXPECT_EQ(Ventas().size(), 2u);
}

} // namespace
} // namespace tarvo
