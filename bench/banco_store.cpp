// The data layer against the engine's own C interface, in the same run on the same files: loading, memory,
// the walk, Refresh and Seek by table size, and a sale of ten lines. Each line tells the figure, its peer and
// their ratio; the program fails when a ratio is over its limit.
#include "comparacion.h"
#include "muestra.h"
#include "ventacruda.h"

#include "store/instalacion.h"
#include "store/transaccion.h"

using namespace tarvo;
using namespace comparacion;

namespace {

constexpr int kMillon = 1'000'000;

// --- the sample data

struct Datos {
    QTemporaryDir base;
    QString carpeta;

    Datos(int ventas, int articulos) : carpeta(PrepararDatos(base.path(), base.path())) {
        Cruda cruda(carpeta);
        const std::string n = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<";
        if (ventas > 0)
            cruda.Sql(n + std::to_string(ventas) +
                      ") INSERT INTO Ventas(fecha, hora, idcliente, idoperador, numcomp, tipo, descripcion, "
                      "subtotal, "
                      "iva, total) SELECT printf('%02d/%02d/20%02d', i%28+1, i%12+1, i%20+5), "
                      "printf('%02d:%02d', i%24, i%60), CASE WHEN i%3 THEN '0' ELSE i%5000 END, i%4+1, "
                      "printf('%08d', i), CASE WHEN i%4 THEN 'Contado' ELSE 'Credito' END, "
                      "CASE WHEN i%4 THEN 'Factura contado' ELSE 'Factura crédito' END, "
                      "'$ '||(i%9000)||',50', '$ '||(i%1900)||',22', '$ '||(i%11000)||',72' FROM n");
        cruda.Sql(
            n + std::to_string(articulos) +
            ") INSERT INTO Articulos(codigo, codbarras1, nombre, idtipoiva, subtotal, stock) "
            "SELECT 'A'||i, 7790000000000+i, 'Articulo de muestra '||i, i%4+1, i%900||',5', '100' FROM n");
    }
};

std::vector<const Campo *> CamposVentas(const FrmBases &b) {
    return {&b.camVentId,          &b.camVentFecha,     &b.camVentHora,    &b.camVentIdCliente,
            &b.camVentIdOperador,  &b.camVentIdUsuario, &b.camVentNumComp, &b.camVentTipo,
            &b.camVentDescripcion, &b.camVentSubtotal,  &b.camVentIVA,     &b.camVentTotal};
}

void CargarVentas(FrmBases &b) {
    b.datVentas.Cargar({&b.camVentId, &b.camVentFecha, &b.camVentHora, &b.camVentIdCliente,
                        &b.camVentIdOperador, &b.camVentIdUsuario, &b.camVentNumComp, &b.camVentTipo,
                        &b.camVentDescripcion, &b.camVentSubtotal, &b.camVentIVA, &b.camVentTotal});
}

double MegasDeTexto(FrmBases &b) {
    double bytes = 0;
    for (const Campo *campo : CamposVentas(b)) {
        const ColumnaTexto columna = campo->Columna();
        for (std::int64_t i = 0; i < columna.Filas(); ++i)
            bytes += static_cast<double>(columna.Celda(i).size());
    }
    return bytes / 1e6;
}

// --- the measures

void MedirCarga(Tabla &tabla, const Datos &datos) {
    double cruda = 1e300;
    double propia = 1e300;
    for (int i = 0; i < 3; ++i) {
        {
            Cruda par(datos.carpeta);
            cruda =
                std::min(cruda, Milisegundos([&] { par.Recorrer("SELECT * FROM Ventas", Lectura::Textos); }));
        }
        BasesAbiertas b(datos.carpeta);
        propia = std::min(propia, Milisegundos([&] { CargarVentas(b); }));
    }
    tabla.Linea("load 12 columns, 1,000,000 rows", propia, cruda, "ms", 1.5);
}

void MedirMemoria(Tabla &tabla, const Datos &datos) {
    BasesAbiertas b(datos.carpeta);
    const double antes = Memoria();
    CargarVentas(b);
    const double tomada = Memoria() - antes;
    tabla.Linea("memory of 12 columns, bytes of their text", tomada, MegasDeTexto(b), "MB", 1.6);
}

void MedirPaseo(Tabla &tabla, const Datos &datos) {
    double cruda = 0;
    {
        Cruda par(datos.carpeta);
        cruda = MejorTiempo(3, [&] { par.Recorrer("SELECT numcomp FROM Ventas", Lectura::Textos); });
    }
    BasesAbiertas b(datos.carpeta);
    b.datVentas.Cargar({&b.camVentNumComp});
    bool hallado = false;
    const double propia = MejorTiempo(
        5, [&] { hallado |= Recorrer(b.datVentas, [&] { return b.camVentNumComp.Es("00000000"); }); });
    if (hallado)
        std::exit(2);
    tabla.Linea("walk of 1,000,000 rows comparing one column", propia, cruda, "ms", 0.1);
}

double NanosRefresh(FrmBases &b) {
    constexpr int kVeces = 200'000;
    b.datArticulos.RecordCount();
    return MejorTiempo(5,
                       [&] {
                           for (int i = 0; i < kVeces; ++i)
                               b.datArticulos.Refresh();
                       }) *
           1e6 / kVeces;
}

double NanosSeek(FrmBases &b, int articulos) {
    constexpr int kVeces = 200'000;
    b.datArticulos.Index(QStringLiteral("primarykey"));
    std::vector<QString> ids;
    ids.reserve(64);
    for (int i = 0; i < 64; ++i)
        ids.push_back(QString::number(1 + i * (articulos / 64)));
    return MejorTiempo(
               5,
               [&] {
                   for (int i = 0; i < kVeces; ++i)
                       if (!b.datArticulos.Seek(QStringLiteral("="), ids[static_cast<std::size_t>(i % 64)]))
                           std::exit(2);
               }) *
           1e6 / kVeces;
}

// A new row in a table of which nothing has been read: it must not be read for that either.
double MilisegundosAlta(FrmBases &b) {
    std::vector<double> altas;
    altas.reserve(20);
    for (int i = 0; i < 20; ++i) {
        b.datVentas.Invalidar();
        altas.push_back(Milisegundos([&] {
            b.datVentas.AddNew();
            b.camVentNumComp = QStringLiteral("1");
            b.datVentas.Refresh();
        }));
    }
    return Percentil(altas, 50);
}

void MedirTamano(Tabla &tabla, const Datos &chica, const Datos &grande) {
    BasesAbiertas a(chica.carpeta);
    BasesAbiertas b(grande.carpeta);
    const double alta = MilisegundosAlta(a);
    tabla.Linea("AddNew and Refresh unread, 1,000,000 : 0 rows", MilisegundosAlta(b), alta, "ms", 1.5);
    const double refresco = NanosRefresh(a);
    tabla.Linea("Refresh with nothing changed, 1,000,000 : 1,000", NanosRefresh(b), refresco, "ns", 1.5);
    const double busca = NanosSeek(a, 1000);
    tabla.Linea("Seek, 1,000,000 : 1,000 rows", NanosSeek(b, kMillon), busca, "ns", 1.5);
}

// --- a sale: one new row and ten stocks

void Vender(FrmBases &b, int venta, int articulos) {
    const QString texto = QString::number(venta);
    Transaccion transaccion(b);
    b.datVentas.AddNew();
    b.camVentFecha = QStringLiteral("22/11/2026");
    b.camVentHora = QStringLiteral("10:42");
    b.camVentIdCliente = QStringLiteral("0");
    b.camVentTipo = QStringLiteral("Contado");
    b.camVentDescripcion = QStringLiteral("Factura contado");
    b.camVentSubtotal = texto;
    b.camVentIVA = texto;
    b.camVentTotal = texto;
    b.camVentNumComp = texto;
    b.camVentIdOperador = QStringLiteral("1");
    b.datVentas.Refresh();
    b.datArticulos.Index(QStringLiteral("primarykey"));
    for (int i = 0; i < kLineas; ++i) {
        b.datArticulos.Seek(QStringLiteral("="), QString::number(1 + i * (articulos / kLineas)));
        b.camArtStock = texto;
        b.datArticulos.Refresh();
    }
    transaccion.Confirmar();
}

struct Ventas {
    double propia = 0;
    double cruda = 0;
};

// Rounds of both turn by turn, since the disk changes its mind over time.
Ventas MedirVentas(int articulos) {
    constexpr int kRondas = 12;
    constexpr int kPorRonda = 25;
    const Datos datos(1000, articulos);
    std::vector<double> propias;
    std::vector<double> crudas;
    for (int ronda = 0; ronda < kRondas; ++ronda) {
        {
            VentaCruda cruda(datos.carpeta);
            cruda.Vender(0, articulos / kLineas);
            for (int i = 0; i < kPorRonda; ++i)
                crudas.push_back(Milisegundos([&] { cruda.Vender(i, articulos / kLineas); }));
        }
        BasesAbiertas b(datos.carpeta);
        b.camArtStock.Columna(); // the sale window has its list loaded
        Vender(b, 0, articulos);
        for (int i = 0; i < kPorRonda; ++i)
            propias.push_back(Milisegundos([&] { Vender(b, i, articulos); }));
    }
    return {Percentil(propias, 50), Percentil(crudas, 50)};
}

void ContarConfirmaciones(Tabla &tabla) {
    const Datos datos(1000, 1000);
    const CuentaCommits cuenta;
    BasesAbiertas b(datos.carpeta);
    const int commits = cuenta.De([&] { Vender(b, 1, 1000); });
    tabla.Linea("commits of a sale of ten lines", commits, 1, "", 1.0);
}

void MedirMoneda(Tabla &tabla) {
    constexpr int kVeces = 2'000'000;
    const Moneda moneda;
    const std::string_view textos[] = {"12,5", "1234.567", "0", "99,99"};
    std::string salida;
    const double ms = MejorTiempo(3, [&] {
        for (int i = 0; i < kVeces; ++i) {
            salida.clear();
            moneda.AgregarFormato(salida, textos[i % 4], true);
        }
    });
    tabla.Linea("money text, limit 60 ns", ms * 1e6 / kVeces, 60, "ns", 1.0);
}

} // namespace

int main() {
    Tabla tabla;
    {
        const Datos grande(kMillon, kMillon);
        MedirMemoria(tabla, grande);
        MedirCarga(tabla, grande);
        MedirPaseo(tabla, grande);
        MedirTamano(tabla, Datos(0, 1000), grande);
    }
    ContarConfirmaciones(tabla);
    const Ventas mil = MedirVentas(1000);
    const Ventas cienMil = MedirVentas(100'000);
    tabla.Linea("sale of ten lines, 1,000 articles", mil.propia, mil.cruda, "ms", 1.3);
    tabla.Linea("sale of ten lines, 100,000 articles", cienMil.propia, cienMil.cruda, "ms", 1.3);
    tabla.Linea("sale at 100,000 : 1,000 articles", cienMil.propia, mil.propia, "ms", 1.5);
    MedirMoneda(tabla);
    return tabla.Resultado();
}
