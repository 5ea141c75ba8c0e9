// What a bench that prints its own table needs: a line with the figure, its peer or limit and their ratio,
// and the engine's own C interface as the peer, on the same files with the same settings.
#pragma once

#include <QDir>
#include <QString>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <sqlite3.h>
#include <string>
#include <vector>

namespace comparacion {

// A table of comparisons; the program's result is Resultado().
class Tabla {
  public:
    void Linea(const char *nombre, double medida, double par, const char *unidad, double limite) {
        const double razon = medida / par;
        const bool bien = razon <= limite;
        excesos_ += bien ? 0 : 1;
        std::printf("%-52s %10.3f %10.3f %-3s  ratio %6.3f  limit %5.2f  %s\n", nombre, medida, par, unidad,
                    razon, limite, bien ? "ok" : "OVER");
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
    // Steps over all rows, asking for the text of each column; returns how many bytes they have.
    std::size_t Recorrer(const char *sql) {
        sqlite3_stmt *sentencia = Preparar(sql);
        const int columnas = sqlite3_column_count(sentencia);
        std::size_t bytes = 0;
        while (sqlite3_step(sentencia) == SQLITE_ROW)
            for (int i = 0; i < columnas; ++i)
                bytes += sqlite3_column_text(sentencia, i) == nullptr
                             ? 0U
                             : static_cast<std::size_t>(sqlite3_column_bytes(sentencia, i));
        sqlite3_reset(sentencia);
        return bytes;
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

} // namespace comparacion
