// A folder with `Datos`, its templates and a backup. Each file holds one marked row: "viejo" in the live
// ones, "nuevo" in the backup; an emptied file holds none.
#pragma once

#include "interchange/avance.h"
#include "interchange/basesrespaldo.h"
#include "interchange/reemplazo.h"
#include "interchange/respaldo.h"
#include "store/plantillas.h"
#include "store/store.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

namespace tarvo {

inline constexpr Elegidas kTodas{true, true, true, true, true};
inline constexpr Elegidas kNinguna{};

class TiendaCambio {
  public:
    TiendaCambio() { Llenar(base_.path(), Modelo()); }

    QString Ruta(const char *relativa) const { return base_.filePath(QString::fromUtf8(relativa)); }
    QString Carpeta() const { return base_.path(); }

    static void Sql(const QString &archivo, const std::string &sql) {
        SQLite::Database(archivo.toStdString(), SQLite::OPEN_READWRITE).exec(sql);
    }
    // The mark of a file, by the index of its database; "-" when it holds none.
    std::string Marca(const char *carpeta, std::size_t i) const {
        const QString ruta = Ruta(carpeta) + u'/' + BasesRespaldo()[i].archivo;
        if (!QFile::exists(ruta))
            return "falta";
        SQLite::Database archivo(ruta.toStdString(), SQLite::OPEN_READONLY);
        EXPECT_EQ(archivo.execAndGet("PRAGMA integrity_check").getString(), "ok") << ruta.toStdString();
        const auto &[tabla, columna] = kMarcas[i];
        return archivo.execAndGet(std::string("SELECT coalesce(max(") + columna + "), '-') FROM " + tabla)
            .getString();
    }
    // Those of the five files.
    std::string Marcas(const char *carpeta) const {
        std::string marcas;
        for (std::size_t i = 0; i < kBases; ++i)
            marcas += Marca(carpeta, i) + (i + 1 < kBases ? " " : "");
        return marcas;
    }

  private:
    static constexpr std::pair<const char *, const char *> kMarcas[kBases] = {{"Vendedores", "otros"},
                                                                              {"Ventas", "numcomp"},
                                                                              {"Articulos", "descripcion"},
                                                                              {"Clientes", "nombre"},
                                                                              {"Proveedores", "nombre"}};
    // Each folder gets the five files of the folder of the same name in `modelo`.
    static void Llenar(const QString &base, const QString &modelo) {
        for (const char *nombre : {"Datos", "Datos/vacio", "respaldo"}) {
            const QString carpeta = QString::fromLatin1(nombre);
            EXPECT_TRUE(QDir(base).mkdir(carpeta));
            for (const BaseRespaldo &una : BasesRespaldo()) {
                const QString archivo = u'/' + carpeta + u'/' + una.archivo;
                EXPECT_TRUE(QFile::copy(modelo + archivo, base + archivo));
            }
        }
    }
    // Made once for the whole program: making files that are safe on disk is slow.
    static QString Modelo() {
        static const QTemporaryDir modelo;
        static const bool hecho = [] {
            const std::pair<const char *, const char *> carpetas[] = {
                {"Datos", "viejo"}, {"Datos/vacio", ""}, {"respaldo", "nuevo"}};
            for (const auto &[carpeta, marca] : carpetas) {
                const QString ruta = modelo.filePath(QString::fromLatin1(carpeta));
                QDir().mkdir(ruta);
                CrearPlantillas(ruta);
                for (std::size_t i = 0; *marca != '\0' && i < kBases; ++i)
                    Sql(ruta + u'/' + BasesRespaldo()[i].archivo,
                        std::string("INSERT INTO ") + kMarcas[i].first + "(" + kMarcas[i].second +
                            ") VALUES('" + marca + "')");
            }
            return true;
        }();
        EXPECT_TRUE(hecho);
        return modelo.path();
    }
    QTemporaryDir base_;
};

// Records what an operation tells and runs `antes` before each file; ends it when that returns false.
class AvancePrueba final : public Avance {
  public:
    std::function<bool()> antes = [] { return true; };
    QStringList archivos;
    int avanzados = 0;
    bool Sigue() override { return antes(); }
    void Empieza(const QString &archivo, qint64 bytes) override {
        archivos << archivo;
        total_ = bytes;
    }
    void Hecho(qint64 bytes) override { EXPECT_TRUE(bytes >= 0 && bytes <= total_); }
    void Avanza() override { ++avanzados; }

  private:
    qint64 total_ = 0;
};

} // namespace tarvo
