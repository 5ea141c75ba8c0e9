// The data layer against the engine's own C interface, in the same run on the same files: loading, memory,
// the walk, Refresh and Seek by table size, and a sale of ten lines. Each line tells the figure, its peer and
// their ratio; the program fails when a ratio is over its limit.
#include "store/instalacion.h"
#include "store/store.h"
#include "store/transaccion.h"

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <functional>
#include <malloc.h>
#include <sqlite3.h>
#include <string>
#include <unistd.h>

namespace {

using namespace tarvo;
using Reloj = std::chrono::steady_clock;

constexpr int kMillon = 1'000'000;
constexpr int kLineas = 10;

int excesos = 0;

void Linea(const char *nombre, double medida, double par, const char *unidad, double limite) {
    const double razon = medida / par;
    const bool bien = razon <= limite;
    excesos += bien ? 0 : 1;
    std::printf("%-46s %10.2f %10.2f %-3s  ratio %6.3f  limit %5.2f  %s\n", nombre, medida, par, unidad,
                razon, limite, bien ? "ok" : "OVER");
    std::fflush(stdout);
}

double Milisegundos(const std::function<void()> &accion) {
    const auto inicio = Reloj::now();
    accion();
    return std::chrono::duration<double, std::milli>(Reloj::now() - inicio).count();
}

double Mejor(int veces, const std::function<void()> &accion) {
    double mejor = 1e300;
    for (int i = 0; i < veces; ++i)
        mejor = std::min(mejor, Milisegundos(accion));
    return mejor;
}

double Mediana(std::vector<double> valores) {
    std::nth_element(valores.begin(), valores.begin() + static_cast<long>(valores.size() / 2), valores.end());
    return valores[valores.size() / 2];
}

// --- the engine's C interface, the peer

class Cruda {
  public:
    explicit Cruda(const QString &carpeta) {
        Exigir(sqlite3_open_v2(Ruta(carpeta, "config").c_str(), &base_, SQLITE_OPEN_READWRITE, nullptr));
        for (const char *nombre : {"clientes", "proveedores", "articulos", "ventas"})
            Sql("ATTACH '" + Ruta(carpeta, nombre) + "' AS " + nombre);
        for (const char *nombre : {"main", "clientes", "proveedores", "articulos", "ventas"})
            for (const char *ajuste : {"locking_mode=EXCLUSIVE", "journal_mode=TRUNCATE", "synchronous=FULL"})
                Sql(std::string("PRAGMA ") + nombre + "." + ajuste);
    }
    ~Cruda() {
        for (sqlite3_stmt *sentencia : sentencias_)
            sqlite3_finalize(sentencia);
        sqlite3_close(base_);
    }
    Cruda(const Cruda &) = delete;
    Cruda &operator=(const Cruda &) = delete;

    void Sql(const std::string &sql) { Exigir(sqlite3_exec(base_, sql.c_str(), nullptr, nullptr, nullptr)); }
    sqlite3_stmt *Preparar(const char *sql) {
        sqlite3_stmt *sentencia = nullptr;
        Exigir(sqlite3_prepare_v2(base_, sql, -1, &sentencia, nullptr));
        sentencias_.push_back(sentencia);
        return sentencia;
    }
    // Steps over all rows, asking for the text of each column; returns how many bytes they have.
    std::size_t Recorrer(const char *sql) {
        sqlite3_stmt *sentencia = Preparar(sql);
        const int columnas = sqlite3_column_count(sentencia);
        std::size_t letras = 0;
        while (sqlite3_step(sentencia) == SQLITE_ROW)
            for (int i = 0; i < columnas; ++i)
                letras += sqlite3_column_text(sentencia, i)[0] != 0 ? 1U : 0U;
        sqlite3_reset(sentencia);
        return letras;
    }
    static void Exigir(int codigo) {
        if (codigo != SQLITE_OK && codigo != SQLITE_DONE) {
            std::fprintf(stderr, "sqlite: %s\n", sqlite3_errstr(codigo));
            std::exit(2);
        }
    }

  private:
    static std::string Ruta(const QString &carpeta, const char *nombre) {
        return QDir(carpeta).filePath(QString::fromUtf8(nombre) + QLatin1String(".mdb")).toStdString();
    }
    sqlite3 *base_ = nullptr;
    std::vector<sqlite3_stmt *> sentencias_;
};

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

void Abrir(FrmBases &b) {
    if (b.Abrir().estado != EstadoApertura::Completa)
        std::exit(2);
}

double MemoriaResidente() {
    malloc_trim(0);
    std::ifstream estado("/proc/self/statm");
    double total = 0;
    double residente = 0;
    estado >> total >> residente;
    return residente * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
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

void MedirCarga(const Datos &datos) {
    double cruda = 1e300;
    double propia = 1e300;
    for (int i = 0; i < 3; ++i) {
        {
            Cruda par(datos.carpeta);
            cruda = std::min(cruda, Milisegundos([&] { par.Recorrer("SELECT * FROM Ventas"); }));
        }
        FrmBases b(datos.carpeta, Moneda());
        Abrir(b);
        propia = std::min(propia, Milisegundos([&] { CargarVentas(b); }));
    }
    Linea("load 12 columns, 1,000,000 rows", propia, cruda, "ms", 1.5);
}

void MedirMemoria(const Datos &datos) {
    FrmBases b(datos.carpeta, Moneda());
    Abrir(b);
    const double antes = MemoriaResidente();
    CargarVentas(b);
    const double tomada = MemoriaResidente() - antes;
    Linea("memory of 12 columns, bytes of their text", tomada, MegasDeTexto(b), "MB", 1.6);
}

void MedirPaseo(const Datos &datos) {
    double cruda = 0;
    {
        Cruda par(datos.carpeta);
        cruda = Mejor(3, [&] { par.Recorrer("SELECT numcomp FROM Ventas"); });
    }
    FrmBases b(datos.carpeta, Moneda());
    Abrir(b);
    b.datVentas.Cargar({&b.camVentNumComp});
    bool hallado = false;
    const double propia =
        Mejor(5, [&] { hallado |= Recorrer(b.datVentas, [&] { return b.camVentNumComp.Es("00000000"); }); });
    if (hallado)
        std::exit(2);
    Linea("walk of 1,000,000 rows comparing one column", propia, cruda, "ms", 0.1);
}

double NanosRefresh(FrmBases &b) {
    constexpr int kVeces = 200'000;
    b.datArticulos.RecordCount();
    return Mejor(5,
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
    return Mejor(5,
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
    return Mediana(altas);
}

void MedirTamano(const Datos &chica, const Datos &grande) {
    FrmBases a(chica.carpeta, Moneda());
    FrmBases b(grande.carpeta, Moneda());
    Abrir(a);
    Abrir(b);
    const double alta = MilisegundosAlta(a);
    Linea("AddNew and Refresh unread, 1,000,000 : 0 rows", MilisegundosAlta(b), alta, "ms", 1.5);
    const double refresco = NanosRefresh(a);
    Linea("Refresh with nothing changed, 1,000,000 : 1,000", NanosRefresh(b), refresco, "ns", 1.5);
    const double busca = NanosSeek(a, 1000);
    Linea("Seek, 1,000,000 : 1,000 rows", NanosSeek(b, kMillon), busca, "ns", 1.5);
}

// --- a sale: one new row and ten stocks

long confirmaciones = 0;

int ContarConfirmacion(void *) {
    ++confirmaciones;
    return 0;
}

int Enganchar(sqlite3 *base, char **, const void *) {
    sqlite3_commit_hook(base, ContarConfirmacion, nullptr);
    return SQLITE_OK;
}

struct VentaCruda {
    Cruda &par;
    sqlite3_stmt *alta =
        par.Preparar("INSERT INTO Ventas(fecha, hora, idcliente, tipo, descripcion, subtotal, iva, total) "
                     "VALUES('22/11/2026', '10:42', '0', 'Contado', 'Factura contado', ?, ?, ?)");
    sqlite3_stmt *cambio = par.Preparar("UPDATE Articulos SET stock=? WHERE id=?");

    void Vender(int venta, int articulos) {
        const std::string texto = std::to_string(venta);
        par.Sql("BEGIN");
        for (int i = 1; i <= 3; ++i)
            sqlite3_bind_text(alta, i, texto.c_str(), -1, SQLITE_TRANSIENT);
        Cruda::Exigir(sqlite3_step(alta));
        sqlite3_reset(alta);
        for (int i = 0; i < kLineas; ++i) {
            sqlite3_bind_text(cambio, 1, texto.c_str(), -1, SQLITE_TRANSIENT);
            sqlite3_bind_int(cambio, 2, 1 + i * (articulos / kLineas));
            Cruda::Exigir(sqlite3_step(cambio));
            sqlite3_reset(cambio);
        }
        par.Sql("COMMIT");
    }
};

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
            Cruda par(datos.carpeta);
            VentaCruda cruda{par};
            cruda.Vender(0, articulos);
            for (int i = 0; i < kPorRonda; ++i)
                crudas.push_back(Milisegundos([&] { cruda.Vender(i, articulos); }));
        }
        FrmBases b(datos.carpeta, Moneda());
        Abrir(b);
        b.camArtStock.Columna(); // the sale window has its list loaded
        Vender(b, 0, articulos);
        for (int i = 0; i < kPorRonda; ++i)
            propias.push_back(Milisegundos([&] { Vender(b, i, articulos); }));
    }
    return {Mediana(propias), Mediana(crudas)};
}

void ContarConfirmaciones() {
    const Datos datos(1000, 1000);
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(Enganchar));
    FrmBases b(datos.carpeta, Moneda());
    Abrir(b);
    sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(Enganchar));
    confirmaciones = 0;
    Vender(b, 1, 1000);
    Linea("commits of a sale of ten lines", static_cast<double>(confirmaciones), 1, "", 1.0);
}

void MedirMoneda() {
    constexpr int kVeces = 2'000'000;
    const Moneda moneda;
    const std::string_view textos[] = {"12,5", "1234.567", "0", "99,99"};
    std::string salida;
    const double ms = Mejor(3, [&] {
        for (int i = 0; i < kVeces; ++i) {
            salida.clear();
            moneda.AgregarFormato(salida, textos[i % 4], true);
        }
    });
    Linea("money text, limit 60 ns", ms * 1e6 / kVeces, 60, "ns", 1.0);
}

} // namespace

int main() {
    std::printf("%-46s %10s %10s\n", "", "measured", "peer");
    {
        const Datos grande(kMillon, kMillon);
        MedirMemoria(grande);
        MedirCarga(grande);
        MedirPaseo(grande);
        MedirTamano(Datos(0, 1000), grande);
    }
    ContarConfirmaciones();
    const Ventas mil = MedirVentas(1000);
    const Ventas cienMil = MedirVentas(100'000);
    Linea("sale of ten lines, 1,000 articles", mil.propia, mil.cruda, "ms", 1.3);
    Linea("sale of ten lines, 100,000 articles", cienMil.propia, cienMil.cruda, "ms", 1.3);
    Linea("sale at 100,000 : 1,000 articles", cienMil.propia, mil.propia, "ms", 1.5);
    MedirMoneda();
    return excesos == 0 ? 0 : 1;
}
