// One action, all or nothing, as the cursors and the files show it.
#include "store/errordatos.h"
#include "store/transaccion.h"
#include "testkit/datosprueba.h"

namespace tarvo {
namespace {

class PruebaTransaccion : public testing::Test {
  protected:
    PruebaTransaccion() {
        datos.Ejecutar("INSERT INTO Articulos(nombre, stock) VALUES('a', '10'), ('b', '20')");
        datos.Abrir();
    }
    void Escribir() {
        b.datVentas.AddNew();
        b.camVentTotal = u"$ 1,00"_qs;
        b.datVentas.Refresh();
        b.datArticulos.MoveFirst();
        b.camArtStock = u"9"_qs;
        b.datArticulos.MoveNext();
        b.datArticulos.Delete();
    }
    std::string Consta() {
        std::string texto;
        for (const auto &fila : datos.Filas("SELECT (SELECT group_concat(total) FROM Ventas), "
                                            "(SELECT group_concat(stock) FROM Articulos)"))
            texto += (fila[0] + u'|' + fila[1]).toStdString();
        return texto;
    }
    std::string EnMemoria() {
        std::string texto = std::to_string(b.datVentas.RecordCount()) + "|";
        Recorrer(b.datArticulos, [&] {
            texto += b.camArtStock.Texto().toStdString() + ",";
            return false;
        });
        return texto;
    }

    DatosPrueba datos;
    FrmBases &b = datos.Bases();
};

TEST_F(PruebaTransaccion, ConfirmedWritesStayAndOthersGo) {
    EXPECT_EQ(EnMemoria(), "0|10,20,");
    {
        Transaccion transaccion(b);
        Escribir();
        EXPECT_EQ(EnMemoria(), "1|9,") << "a transaction must see its own writes";
    }
    EXPECT_EQ(Consta(), "|10,20");
    EXPECT_EQ(EnMemoria(), "0|10,20,");
    Transaccion transaccion(b);
    Escribir();
    transaccion.Confirmar();
    EXPECT_EQ(Consta(), "$ 1,00|9");
    EXPECT_EQ(EnMemoria(), "1|9,");
    EXPECT_EQ(b.datVentas.UltimoId(), u"1");
    EXPECT_THROW(transaccion.Confirmar(), ErrorDatos);
}

TEST_F(PruebaTransaccion, ARollbackDropsPendingEditsToo) {
    {
        Transaccion transaccion(b);
        b.camArtStock = u"1"_qs;
        b.datClientes.AddNew();
        b.camCliNombre = u"x"_qs;
    }
    EXPECT_EQ(b.camArtStock.Texto(), u"10");
    EXPECT_FALSE(b.datClientes.HayFila());
    b.Cerrar();
    EXPECT_EQ(Consta(), "|10,20");
}

TEST_F(PruebaTransaccion, TransactionsDoNotNestAndNeedOpenFiles) {
    {
        Transaccion transaccion(b);
        EXPECT_THROW(Transaccion otra(b), ErrorDatos);
        b.camArtStock = u"1"_qs; // a pending edit belongs to the action
        transaccion.Confirmar();
    }
    EXPECT_EQ(Consta(), "|1,20");
    b.Cerrar();
    EXPECT_THROW(Transaccion otra(b), ErrorDatos);
}

TEST_F(PruebaTransaccion, AFailedWriteTakesBackTheWholeActionAndClosesItForMore) {
    datos.Cerrar();
    datos.Ejecutar("CREATE TRIGGER articulos.malo BEFORE UPDATE ON Articulos WHEN new.stock='malo' "
                   "BEGIN SELECT RAISE(ABORT, 'no'); END;");
    datos.Abrir();
    Transaccion transaccion(b);
    Escribir();
    b.datArticulos.MoveFirst();
    b.camArtStock = u"malo"_qs;
    EXPECT_THROW(b.datArticulos.Refresh(), ErrorDatos);
    EXPECT_EQ(EnMemoria(), "0|10,20,");
    b.datArticulos.MoveFirst();
    b.camArtStock = u"5"_qs;
    EXPECT_THROW(b.datArticulos.Refresh(), ErrorDatos);
    EXPECT_THROW(transaccion.Confirmar(), ErrorDatos);
    EXPECT_EQ(Consta(), "|10,20");
    b.datArticulos.MoveFirst();
    b.camArtStock = u"5"_qs;
    b.datArticulos.Refresh();
    EXPECT_EQ(Consta(), "|5,20");
}

} // namespace
} // namespace tarvo
