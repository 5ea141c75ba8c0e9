// The sample shop itself: what the other tests and the benches stand on.
#include "tienda/catalogo.h"
#include "tienda/movimientos.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

using namespace tarvo;

TEST(Tienda, CheckDigitOfEan13) {
    EXPECT_EQ(DigitoControl("400638133393"), '1');
    EXPECT_EQ(DigitoControl("779000100001"), '9');
    EXPECT_EQ(DigitoControl("000000000000"), '0');
}

TEST(Tienda, NoTwoArticlesShareCodeBarcodeOrName) {
    constexpr int kCantidad = 110000; // more than the combinations of one family
    std::set<std::string> codigos;
    std::set<std::string> barras;
    std::set<std::string> nombres;
    Sorteo sorteo;
    for (int i = 0; i < kCantidad; ++i) {
        const ArticuloMuestra articulo = HacerArticulo(i, 3, sorteo);
        codigos.insert(articulo.codigo);
        barras.insert(articulo.codigoBarras);
        nombres.insert(articulo.nombre);
        ASSERT_EQ(articulo.codigoBarras.size(), 13u);
        ASSERT_GT(articulo.compraCentimos, 0);
    }
    EXPECT_EQ(codigos.size(), std::size_t{kCantidad});
    EXPECT_EQ(barras.size(), std::size_t{kCantidad});
    EXPECT_EQ(nombres.size(), std::size_t{kCantidad});
}

TEST(Tienda, EveryReturnHasItsMarkedSaleAndAllKindsOccur) {
    const std::vector<PrecioMuestra> precios = {{1000, 21}, {333, 10}};
    const Moneda moneda;
    constexpr int kCantidad = 3000;
    Movimientos movimientos(precios, 10, 2, kCantidad, QDate(2026, 11, 22), moneda);
    std::map<std::string, int> tipos;
    std::multiset<std::string> marcadas;
    std::string fecha;
    for (int i = 0; i < kCantidad; ++i) {
        const Movimiento &m = movimientos.Hacer(i);
        ++tipos[m.tipo];
        fecha = m.fecha;
        if (m.descripcion.ends_with(" (D)"))
            marcadas.insert(m.fecha + " - " + m.hora + m.total);
        if (m.tipo != "DevContado" && m.tipo != "NotaCredito")
            continue;
        const auto momento = m.descripcion.substr(m.descripcion.find('(') + 1, 18);
        const auto venta = marcadas.find(momento + m.total);
        ASSERT_NE(venta, marcadas.end()) << m.descripcion;
        marcadas.erase(venta);
    }
    EXPECT_EQ(tipos.size(), 5u);
    EXPECT_TRUE(marcadas.empty());
    EXPECT_EQ(fecha, "22/11/2026");
}
