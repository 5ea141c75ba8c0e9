// What every bench needs: the table of figures, each with its peer or limit and their ratio; times and
// memory; and the engine's own C interface as the peer, on the same files with the same settings.
#pragma once

#include <QDir>
#include <QString>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <malloc.h>
#include <sqlite3.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace comparacion {

// A table of comparisons; the program's result is Resultado().
class Tabla {
  public:
    Tabla() { std::printf("%-52s %10s %10s\n", "", "ours", "peer"); }

    void Linea(const char *nombre, double medida, double par, const char *unidad, double limite) {
        const double razon = medida / par;
        const bool bien = razon <= limite;
        excesos_ += bien ? 0 : 1;
        std::printf("%-52s %10.3f %10.3f %-3s  ratio %6.3f  limit %5.2f  %s\n", nombre, medida, par, unidad,
                    razon, limite, bien ? "ok" : "OVER");
        std::fflush(stdout);
    }
    // A figure without a peer.
    void Dato(const char *nombre, double medida, const char *unidad) {
        std::printf("%-52s %10.3f %10s %s\n", nombre, medida, "", unidad);
        std::fflush(stdout);
    }
    int Resultado() const { return excesos_ == 0 ? 0 : 1; }

  private:
    int excesos_ = 0;
};

inline double Milisegundos(const std::function<void()> &accion) {
    const auto inicio = std::chrono::steady_clock::now();
    accion();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - inicio).count();
}

inline double Percentil(std::vector<double> valores, int porCiento) {
    std::sort(valores.begin(), valores.end());
    const std::size_t lugar = valores.size() * static_cast<std::size_t>(porCiento) / 100;
    return valores[std::min(lugar, valores.size() - 1)];
}

// The best of several runs: what other programs of the machine take away is no part of the comparison.
inline double Mejor(const std::vector<double> &valores) {
    return *std::min_element(valores.begin(), valores.end());
}

inline double Mejor(int veces, const std::function<double()> &medida) {
    std::vector<double> valores(static_cast<std::size_t>(veces));
    std::generate(valores.begin(), valores.end(), medida);
    return Mejor(valores);
}

inline double MejorTiempo(int veces, const std::function<void()> &accion) {
    return Mejor(veces, [&] { return Milisegundos(accion); });
}

// Resident memory of a process in MB.
inline double MemoriaDe(const std::string &proceso) {
    std::ifstream estado("/proc/" + proceso + "/statm");
    double total = 0;
    double residente = 0;
    estado >> total >> residente;
    return residente * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

// The same of this one, without what has been freed.
inline double Memoria() {
    malloc_trim(0);
    return MemoriaDe("self");
}

enum class Lectura { Textos, TextosYLongitudes };

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
    // Runs a prepared statement with these texts.
    static void Ejecutar(sqlite3_stmt *sentencia, const std::vector<std::string> &valores) {
        for (std::size_t i = 0; i < valores.size(); ++i)
            sqlite3_bind_text(sentencia, static_cast<int>(i) + 1, valores[i].c_str(), -1, SQLITE_STATIC);
        Exigir(sqlite3_step(sentencia));
        sqlite3_reset(sentencia);
    }
    // Steps over all rows, asking for the text of each column, and for its length where the comparison says
    // so: that costs the peer a good third more. Returns how many texts are not empty.
    std::size_t Recorrer(const char *sql, Lectura lectura) {
        sqlite3_stmt *sentencia = Preparar(sql);
        const int columnas = sqlite3_column_count(sentencia);
        std::size_t llenas = 0;
        while (sqlite3_step(sentencia) == SQLITE_ROW)
            for (int i = 0; i < columnas; ++i) {
                const unsigned char *texto = sqlite3_column_text(sentencia, i);
                const bool llena = lectura == Lectura::TextosYLongitudes
                                       ? sqlite3_column_bytes(sentencia, i) > 0
                                       : texto != nullptr && *texto != 0;
                llenas += llena ? 1U : 0U;
            }
        sqlite3_reset(sentencia);
        return llenas;
    }
    static void Exigir(int codigo) {
        if (codigo == SQLITE_OK || codigo == SQLITE_DONE)
            return;
        std::fprintf(stderr, "sqlite: %s\n", sqlite3_errstr(codigo));
        std::exit(2);
    }

  private:
    static std::string Ruta(const QString &carpeta, const char *nombre) {
        return QDir(carpeta).filePath(QString::fromUtf8(nombre) + QLatin1String(".mdb")).toStdString();
    }
    sqlite3 *base_ = nullptr;
    std::vector<sqlite3_stmt *> sentencias_;
};

// Counts what the connections commit that are opened while it lives.
class CuentaCommits {
  public:
    CuentaCommits() { sqlite3_auto_extension(reinterpret_cast<void (*)()>(Enganchar)); }
    ~CuentaCommits() { sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(Enganchar)); }
    CuentaCommits(const CuentaCommits &) = delete;
    CuentaCommits &operator=(const CuentaCommits &) = delete;

    // The number of commits that `accion` makes.
    static int De(const std::function<void()> &accion) {
        const int antes = commits_;
        accion();
        return commits_ - antes;
    }

  private:
    static int Enganchar(sqlite3 *base, char **, const void *) {
        sqlite3_commit_hook(base, Contar, nullptr);
        return SQLITE_OK;
    }
    static int Contar(void *) {
        ++commits_;
        return 0;
    }
    static inline int commits_ = 0;
};

} // namespace comparacion
