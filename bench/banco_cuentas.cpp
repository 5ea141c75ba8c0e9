// The accounts over 1,000,000 movements: the three lists against what the engine itself needs to read the
// same rows or columns, a receipt against the same in a small shop, and the listing of a long statement. The
// program fails when a ratio is over its limit.
#include "aplicacion.h"
#include "arbolvacio.h"
#include "pintor.h"
#include "servicios.h"

#include "accounts/contenidocuenta.h"
#include "accounts/listadoscuenta.h"
#include "accounts/movimientonuevo.h"
#include "accounts/sumacuenta.h"
#include "desktop/almacenar.h"
#include "desktop/ventanas/listavista.h"

using namespace tarvo;
using namespace comparacion;

namespace {

constexpr int kMuchos = 1'000'000;
constexpr int kPocos = 1'000;
const QString kCliente = QStringLiteral("100"); // some two hundred movements
const QString kMayor = QStringLiteral("7");     // more than ten thousand
constexpr const char *kColumnasEstado = "SELECT fecha, hora, descripcion, numcomp, total, idcliente, tipo "
                                        "FROM ventas.Ventas ORDER BY id";
constexpr const char *kColumnasContado = "SELECT fecha, hora, descripcion, numcomp, total, idcliente "
                                         "FROM ventas.Ventas ORDER BY id";
constexpr const char *kColumnasCaja = "SELECT fecha, hora, descripcion, numcomp, total, tipo "
                                      "FROM ventas.Ventas ORDER BY id";

// A third of the movements without customer; the others are those of one large customer and 4,000 others.
void Repartir(const QString &carpeta) {
    Cruda(carpeta).Sql("UPDATE ventas.Ventas SET idcliente=CASE WHEN id%3=0 THEN '0' WHEN id%64=1 THEN '7' "
                       "ELSE 100+id%4000 END");
}

// One of the three lists in a view, filled and painted as the window does it.
class Cuenta {
  public:
    explicit Cuenta(ListaCuenta cual) : cual_(cual), lista_(ColumnasCuenta(cual)) {
        OrdenInicial(lista_);
        vista_.Mostrar(&lista_);
        Exponer(vista_);
    }
    void Llenar(FrmBases &bases, const QString &cliente = {}, const RangoCaja &rango = {}) {
        lista_.Asignar(cual_ == ListaCuenta::Estado    ? ContenidoEstado(bases, cliente)
                       : cual_ == ListaCuenta::Contado ? ContenidoContado(bases)
                                                       : ContenidoCaja(bases, rango));
        if (CalcularSuma(lista_, cual_, bases.moneda()).sinNumero > 0)
            std::exit(2);
        vista_.SeleccionarFila(lista_.Filas() - 1);
        vista_.grab();
    }
    const ListaTexto &Lista() const { return lista_; }

  private:
    ListaCuenta cual_;
    ListaTexto lista_;
    ListaVista vista_;
};

double Crudo(const QString &carpeta, const char *sql) {
    Cruda cruda(carpeta);
    return MejorTiempo(3, [&] { cruda.Recorrer(sql, Lectura::TextosYLongitudes); });
}

// Returns what the engine needs to find the rows of that customer.
double BancoEstado(Tabla &tabla, const QString &carpeta) {
    const double crudo = Crudo(carpeta, kColumnasEstado);
    const double seleccion = Crudo(carpeta, "SELECT fecha, hora, descripcion, numcomp, total, tipo FROM "
                                            "ventas.Ventas WHERE idcliente='100' ORDER BY id");
    std::vector<double> primeras;
    std::vector<double> repetidas;
    double mayor = 0;
    for (int vuelta = 0; vuelta < 5; ++vuelta) {
        BasesAbiertas bases(carpeta);
        Cuenta cuenta(ListaCuenta::Estado);
        primeras.push_back(Milisegundos([&] { cuenta.Llenar(bases, kCliente); }));
        for (int vez = 0; vez < 5; ++vez)
            repetidas.push_back(Milisegundos([&] { cuenta.Llenar(bases, kCliente); }));
        mayor = Milisegundos([&] { cuenta.Llenar(bases, kMayor); });
        if (vuelta > 0)
            continue;
        CompararListado(tabla, "listing of 10,000 movements / painter alone",
                        ReporteCuenta(cuenta.Lista(), ListaCuenta::Estado, kMayor, {}).listado,
                        cuenta.Lista().Filas());
    }
    tabla.Linea("statement in 1,000,000 rows / unindexed SELECT", Mejor(repetidas), seleccion, "ms", 0.2);
    tabla.Linea("first statement after opening / raw step", Mejor(primeras), crudo, "ms", 1.5);
    tabla.Dato("statement of more than 10,000 movements", mayor, "ms");
    return seleccion;
}

void BancoContado(Tabla &tabla, const QString &carpeta) {
    const double crudo = Crudo(carpeta, kColumnasContado);
    BasesAbiertas bases(carpeta);
    Cuenta cuenta(ListaCuenta::Contado);
    const double primera = Milisegundos([&] { cuenta.Llenar(bases); });
    const double repetida = MejorTiempo(5, [&] { cuenta.Llenar(bases); });
    if (cuenta.Lista().Filas() != kMuchos / 3)
        std::exit(2);
    tabla.Linea("cash list, 333,333 of 1,000,000 rows / raw step", repetida, crudo, "ms", 1.5);
    tabla.Dato("the same, first after opening", primera, "ms");
}

double TextoMostrado(const ListaTexto &lista) {
    double bytes = 0;
    for (int fila = 0; fila < lista.Filas(); ++fila)
        for (int columna = 0; columna < lista.columnCount(); ++columna)
            bytes += static_cast<double>(lista.CeldaUtf8(fila, columna).size());
    return bytes / 1e6;
}

void BancoCaja(Tabla &tabla, const QString &carpeta) {
    const RangoCaja dia{QStringLiteral("2026/11/20"), QStringLiteral("09:00"), QStringLiteral("2026/11/20"),
                        QStringLiteral("20:00")};
    const RangoCaja todo{QStringLiteral("0001/01/01"), QStringLiteral("00:00"), QStringLiteral("9999/12/31"),
                         QStringLiteral("23:59")};
    const double crudoFechas = Crudo(carpeta, "SELECT fecha, hora FROM ventas.Ventas ORDER BY id");
    const double crudo = Crudo(carpeta, kColumnasCaja);
    BasesAbiertas bases(carpeta);
    Cuenta cuenta(ListaCuenta::Caja);
    cuenta.Llenar(bases, {}, dia);
    const double unDia = MejorTiempo(5, [&] { cuenta.Llenar(bases, {}, dia); });
    const double antes = Memoria();
    const double entera = Milisegundos([&] { cuenta.Llenar(bases, {}, todo); });
    const double memoria = Memoria() - antes;
    const double otraVez = MejorTiempo(3, [&] { cuenta.Llenar(bases, {}, todo); });
    if (cuenta.Lista().Filas() != kMuchos)
        std::exit(2);
    tabla.Linea("cash sheet of one day / raw step over date and hour", unDia, crudoFechas, "ms", 0.5);
    tabla.Linea("cash sheet of all 1,000,000 rows / raw step", std::min(entera, otraVez), crudo, "ms", 2);
    tabla.Linea("its memory / the text shown", memoria, TextoMostrado(cuenta.Lista()), "MB", 2);
}

// A receipt of a customer, and his statement built again.
class Cobrador {
  public:
    explicit Cobrador(const QString &carpeta) : puesto_(carpeta), cuenta_(ListaCuenta::Estado) {
        cuenta_.Llenar(puesto_.bases, kCliente);
    }
    double Cobrar(int numero) {
        const QString total = QStringLiteral("$ %1,00").arg(numero);
        return Milisegundos([&] {
            Almacenar(puesto_.bases, puesto_.preguntas, {QStringLiteral("Recibo"), kCliente, total},
                      [&] { EscribirRecibo(puesto_.bases, kCliente, total, QDateTime::currentDateTime()); });
        });
    }
    double Reconstruir() {
        return Milisegundos([&] { cuenta_.Llenar(puesto_.bases, kCliente); });
    }

  private:
    Puesto puesto_;
    Cuenta cuenta_;
};

void BancoRecibo(Tabla &tabla, const QString &grande, const QString &chica, double seleccion) {
    const CuentaCommits cuenta;
    Cobrador muchos(grande);
    Cobrador pocos(chica);
    std::vector<double> conMuchos;
    std::vector<double> conPocos;
    std::vector<double> reconstruir;
    for (int vez = 1; vez <= 60; ++vez) {
        conMuchos.push_back(muchos.Cobrar(vez));
        conPocos.push_back(pocos.Cobrar(vez));
    }
    for (int vez = 61; vez <= 85; ++vez) {
        muchos.Cobrar(vez);
        reconstruir.push_back(muchos.Reconstruir());
    }
    tabla.Linea("receipt, 1,000,000 movements / 1,000", Mejor(conMuchos), Mejor(conPocos), "ms", 1.5);
    tabla.Linea("commits of a receipt / one", CuentaCommits::De([&] { muchos.Cobrar(86); }), 1, "", 1);
    tabla.Linea("statement again after it / unindexed SELECT", Mejor(reconstruir), seleccion, "ms", 0.2);
}

} // namespace

int main(int argc, char **argv) {
    return MedirVentanas(argc, argv, [](Tabla &tabla) {
        const Tienda grande({kPocos, 60, kMuchos}, CarpetaEnMemoria());
        const Tienda chica({kPocos, 60, kPocos}, CarpetaEnMemoria());
        Repartir(grande.carpeta);
        Repartir(chica.carpeta);
        const double seleccion = BancoEstado(tabla, grande.carpeta);
        BancoContado(tabla, grande.carpeta);
        BancoCaja(tabla, grande.carpeta);
        BancoRecibo(tabla, grande.carpeta, chica.carpeta, seleccion);
    });
}
