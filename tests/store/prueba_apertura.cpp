// Opening: every way in which one of the five files can be unfit, and that such an opening leaves no trace.
#include "store/errordatos.h"
#include "store/instalacion.h"
#include "store/plantillas.h"
#include "testkit/datosprueba.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <functional>
#include <map>

namespace tarvo {
namespace {

struct Archivo {
    const char *nombre;
    const char *tabla; // its last table
    int abiertas;      // tables that stay open when that table fails
    int antes;         // tables that stay open when the whole file fails
};

constexpr Archivo kArchivos[] = {
    {"config.mdb", "Ticket", 6, 0},           {"clientes.mdb", "Clientes", 7, 7},
    {"proveedores.mdb", "Proveedores", 8, 8}, {"articulos.mdb", "Articulos", 9, 9},
    {"ventas.mdb", "Ventas", 10, 10},
};

std::map<QString, QByteArray> Contenido(const QString &carpeta) {
    std::map<QString, QByteArray> contenido;
    for (const QFileInfo &info : QDir(carpeta).entryInfoList(QDir::Files | QDir::Hidden)) {
        QFile archivo(info.filePath());
        EXPECT_TRUE(archivo.open(QIODevice::ReadOnly));
        contenido[info.fileName()] = archivo.readAll();
    }
    return contenido;
}

int Abiertas(const FrmBases &b) {
    int abiertas = 0;
    for (const Cursor *cursor :
         {&b.datIVA, &b.datImpuesto, &b.datFactura, &b.datCategorias, &b.datCategorias2, &b.datVendedores,
          &b.datTicket, &b.datClientes, &b.datProveedores, &b.datArticulos, &b.datVentas}) {
        if (!cursor->Abierto())
            break;
        ++abiertas;
    }
    return abiertas;
}

void Escribir(const QString &ruta, const QByteArray &bytes) {
    QFile archivo(ruta);
    ASSERT_TRUE(archivo.open(QIODevice::WriteOnly | QIODevice::Truncate));
    archivo.write(bytes);
}

void Sql(const QString &ruta, const std::string &sql) {
    SQLite::Database(ruta.toStdString(), SQLite::OPEN_READWRITE).exec(sql);
}

void Recortar(const QString &ruta, qint64 bytes) {
    QFile archivo(ruta);
    ASSERT_TRUE(archivo.resize(archivo.size() - bytes));
}

struct Dano {
    const char *nombre;
    std::function<void(const QString &ruta, const Archivo &archivo)> hacer;
    const char *motivo;
    bool soloTabla = false; // the file itself is sound
};

const Dano kDanos[] = {
    {"missing", [](const QString &r, const Archivo &) { QFile::remove(r); }, "no existe."},
    {"a folder", [](const QString &r, const Archivo &) { QFile::remove(r), QDir().mkdir(r); },
     "no es un archivo."},
    {"zero bytes", [](const QString &r, const Archivo &) { Escribir(r, {}); }, "está vacío."},
    {"garbage", [](const QString &r, const Archivo &) { Escribir(r, QByteArray(5000, 'x')); },
     "no es una base de datos."},
    {"short garbage", [](const QString &r, const Archivo &) { Escribir(r, "MZ"); },
     "no es una base de datos."},
    {"truncated by a page", [](const QString &r, const Archivo &) { Recortar(r, 4096); }, "está dañado."},
    {"truncated by a byte", [](const QString &r, const Archivo &) { Recortar(r, 1); }, "está cortado."},
    {"table missing",
     [](const QString &r, const Archivo &a) { Sql(r, std::string("DROP TABLE ") + a.tabla); },
     "falta la tabla ", true},
    {"column missing",
     [](const QString &r, const Archivo &a) {
         const std::string tabla = a.tabla;
         Sql(r, "CREATE TABLE t(id INTEGER PRIMARY KEY); DROP TABLE " + tabla + "; ALTER TABLE t RENAME TO " +
                    tabla);
     },
     "falta la columna ", true},
    {"a view instead of the table",
     [](const QString &r, const Archivo &a) {
         const std::string tabla = a.tabla;
         Sql(r, "ALTER TABLE " + tabla + " RENAME TO t; CREATE VIEW " + tabla + " AS SELECT * FROM t");
     },
     "falta la tabla ", true},
    {"an id that is no counter",
     [](const QString &r, const Archivo &a) {
         const std::string tabla = a.tabla;
         Sql(r, "ALTER TABLE " + tabla + " RENAME TO t; CREATE TABLE " + tabla + " AS SELECT * FROM t");
     },
     "no tiene el contador id.", true},
};

TEST(Apertura, AnUnfitFileEndsItThereAndLeavesNoTrace) {
    for (const Archivo &archivo : kArchivos) {
        for (const Dano &dano : kDanos) {
            SCOPED_TRACE(std::string(archivo.nombre) + ": " + dano.nombre);
            DatosPrueba datos;
            dano.hacer(QDir(datos.Carpeta()).filePath(QString::fromUtf8(archivo.nombre)), archivo);
            const auto antes = Contenido(datos.Carpeta());
            const ResultadoApertura resultado = datos.Bases().Abrir();
            EXPECT_EQ(resultado.estado, EstadoApertura::Parcial);
            EXPECT_EQ(resultado.archivo, QString::fromUtf8(archivo.nombre));
            EXPECT_TRUE(resultado.motivo.contains(QString::fromUtf8(dano.motivo)))
                << resultado.motivo.toStdString();
            EXPECT_EQ(Abiertas(datos.Bases()), dano.soloTabla ? archivo.abiertas : archivo.antes);
            datos.Cerrar();
            EXPECT_EQ(Contenido(datos.Carpeta()), antes);
        }
    }
}

TEST(Apertura, AFileHeldByAnotherConnectionIsTold) {
    for (const Archivo &archivo : kArchivos) {
        for (const char *modo :
             {"BEGIN EXCLUSIVE", "BEGIN IMMEDIATE", "BEGIN; SELECT count(*) FROM sqlite_schema"}) {
            SCOPED_TRACE(std::string(archivo.nombre) + ": " + modo);
            DatosPrueba datos;
            const QString ruta = QDir(datos.Carpeta()).filePath(QString::fromUtf8(archivo.nombre));
            SQLite::Database otra(ruta.toStdString(), SQLite::OPEN_READWRITE);
            otra.exec(modo);
            EXPECT_EQ(datos.Bases().Abrir().estado, EstadoApertura::Bloqueada);
            EXPECT_EQ(Abiertas(datos.Bases()), 0);
            otra.exec("ROLLBACK");
            EXPECT_EQ(datos.Bases().Abrir().estado, EstadoApertura::Completa) << "the first try left a lock";
        }
    }
}

TEST(Apertura, OpenFilesAreHeldEvenBeforeTheFirstWrite) {
    DatosPrueba datos;
    datos.Abrir();
    FrmBases segunda(datos.Carpeta(), Moneda());
    EXPECT_EQ(segunda.Abrir().estado, EstadoApertura::Bloqueada);
    datos.Cerrar();
    QFile::remove(QDir(datos.Carpeta()).filePath(QStringLiteral("ventas.mdb")));
    EXPECT_EQ(datos.Bases().Abrir().estado, EstadoApertura::Parcial);
    EXPECT_EQ(segunda.Abrir().estado, EstadoApertura::Bloqueada)
        << "a partial opening must hold what it opened";
}

TEST(Apertura, WhatDidOpenWorksAndTheRestIsClosed) {
    DatosPrueba datos;
    QFile::remove(QDir(datos.Carpeta()).filePath(QStringLiteral("articulos.mdb")));
    FrmBases &b = datos.Bases();
    b.Abrir();
    b.datClientes.AddNew();
    b.camCliNombre = QStringLiteral("x");
    b.datClientes.Refresh();
    EXPECT_EQ(b.datClientes.RecordCount(), 1);
    EXPECT_EQ(b.datArticulos.RecordCount(), 0);
    EXPECT_THROW(b.datVentas.AddNew(), ErrorDatos);
}

TEST(Apertura, AFolderWithOddLettersInItsNameWorks) {
    QTemporaryDir base;
    const QString carpeta = base.filePath(QStringLiteral("Año 100% ?x=1#&;ñ"));
    ASSERT_TRUE(QDir().mkpath(carpeta));
    CrearPlantillas(carpeta);
    FrmBases bases(carpeta, Moneda());
    EXPECT_EQ(bases.Abrir().estado, EstadoApertura::Completa);
    EXPECT_EQ(bases.datIVA.RecordCount(), 4);
}

TEST(Apertura, ADamagedFileIsToldOnceAndTakesNoWrites) {
    DatosPrueba datos;
    datos.Ejecutar("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<3000) "
                   "INSERT INTO Ventas(total) SELECT '$ '||i FROM n");
    const QString ruta = QDir(datos.Carpeta()).filePath(QStringLiteral("ventas.mdb"));
    QFile archivo(ruta);
    ASSERT_TRUE(archivo.open(QIODevice::ReadWrite));
    const QByteArray sano = archivo.readAll();
    archivo.seek(5 * 4096);
    archivo.write(QByteArray(3 * 4096, '\x07'));
    archivo.close();
    QStringList avisos;
    FrmBases &b = datos.Bases();
    b.AlDanarse([&](const QString &nombre, const QString &motivo) { avisos << nombre + u' ' + motivo; });
    datos.Abrir();
    EXPECT_THROW(b.datVentas.RecordCount(), ErrorDatos);
    EXPECT_THROW(b.camVentTotal.Texto(), ErrorDatos);
    EXPECT_EQ(avisos, QStringList{QStringLiteral("ventas.mdb está dañado.")});

    b.datVentas.AddNew();
    b.camVentTotal = QStringLiteral("$ 1,00");
    try {
        b.datVentas.MoveNext();
        FAIL();
    } catch (const ErrorDatos &error) {
        EXPECT_EQ(error.Descripcion(), QStringLiteral("No se pudo escribir en ventas.mdb: está dañado."));
    }
    b.datClientes.AddNew();
    b.datClientes.Refresh();
    EXPECT_EQ(b.datClientes.RecordCount(), 1) << "the other files go on";
    datos.Cerrar();
    Escribir(ruta, sano);
    datos.Abrir();
    EXPECT_EQ(b.datVentas.RecordCount(), 3000);
}

TEST(Apertura, AnotherOpeningInTheSameRunStartsFresh) {
    DatosPrueba datos;
    datos.Ejecutar("INSERT INTO Articulos(nombre) VALUES('a'), ('b')");
    DatosPrueba otros;
    otros.Ejecutar("INSERT INTO Articulos(nombre) VALUES('x')");
    FrmBases &b = datos.Abrir();
    for (int vez = 0; vez < 3; ++vez) {
        EXPECT_EQ(b.datArticulos.RecordCount(), 2 + vez);
        b.datArticulos.Index(QStringLiteral("primarykey"));
        b.datArticulos.AddNew();
        b.datArticulos.MoveNext();
        b.datClientes.AddNew(); // half done: gone with the closing
        b.Cerrar();
        EXPECT_EQ(b.camArtNombre.Columna().Filas(), 0);
        ASSERT_EQ(b.Abrir().estado, EstadoApertura::Completa);
        EXPECT_EQ(b.camArtNombre.Texto(), QStringLiteral("a"));
        EXPECT_TRUE(b.datArticulos.UltimoId().isEmpty());
        EXPECT_FALSE(b.datClientes.HayFila());
        EXPECT_THROW(b.datArticulos.Seek(QStringLiteral("="), QStringLiteral("1")), ErrorDatos);
    }
    b.Cerrar();
    b.PonerCarpetaDatos(otros.Carpeta());
    ASSERT_EQ(b.Abrir().estado, EstadoApertura::Completa);
    EXPECT_EQ(b.camArtNombre.Texto(), QStringLiteral("x"));
}

TEST(Usuarios, TheTableIsMadeAndOpenedOnDemand) {
    DatosPrueba datos;
    FrmBases &b = datos.Bases();
    EXPECT_THROW(b.AbrirUsuarios(), ErrorDatos);
    datos.Abrir();
    EXPECT_FALSE(b.datUsuarios.Abierto());
    EXPECT_THROW(datos.Filas("SELECT * FROM Usuarios"), SQLite::Exception);
    for (int vez = 1; vez <= 2; ++vez) {
        b.AbrirUsuarios();
        b.datUsuarios.AddNew();
        b.camUsuCodigo = QStringLiteral("Ana");
        b.camUsuPrecio = QStringLiteral("k917");
        b.datUsuarios.Refresh();
        b.AbrirUsuarios(); // open already: nothing changes
        EXPECT_EQ(b.datUsuarios.RecordCount(), vez);
        EXPECT_EQ(b.datUsuarios.UltimoId(), QString::number(vez));
        datos.Cerrar();
        EXPECT_FALSE(b.datUsuarios.Abierto());
        datos.Abrir();
    }
    EXPECT_EQ(
        datos.Filas("SELECT id, codigo, articulo, precio, cantidad FROM Usuarios")[0],
        (std::vector<QString>{QStringLiteral("1"), QStringLiteral("Ana"), {}, QStringLiteral("k917"), {}}));
}

TEST(Instalacion, TheFirstStartMakesDataThatOpen) {
    QTemporaryDir programa;
    const QString datos = PrepararDatos(programa.path(), programa.filePath(QStringLiteral("usuario")));
    EXPECT_EQ(datos, programa.filePath(QStringLiteral("Datos")));
    EXPECT_EQ(QDir(programa.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("Datos")});
    EXPECT_EQ(Contenido(datos), Contenido(datos + QStringLiteral("/vacio")));
    EXPECT_EQ(Contenido(datos).size(), 5U);
    FrmBases b(datos, Moneda());
    ASSERT_EQ(b.Abrir().estado, EstadoApertura::Completa);
    EXPECT_EQ(b.datIVA.RecordCount(), 4);
    EXPECT_EQ(b.camIVAPorcentaje.Texto(), QStringLiteral("21"));
    for (Cursor *cursor : {&b.datImpuesto, &b.datFactura, &b.datTicket, &b.datCategorias, &b.datVendedores})
        EXPECT_EQ(cursor->RecordCount(), 1) << cursor->Tabla();
    for (Cursor *cursor :
         {&b.datCategorias2, &b.datClientes, &b.datProveedores, &b.datArticulos, &b.datVentas})
        EXPECT_EQ(cursor->RecordCount(), 0) << cursor->Tabla();
    EXPECT_EQ(b.camTicN5.Texto(), QStringLiteral("N"));
    EXPECT_EQ(b.camImpExisteIFiscal.Texto(), QStringLiteral("No"));
}

TEST(Instalacion, AFolderThatExistsIsNeverFilled) {
    QTemporaryDir programa;
    QDir(programa.path()).mkdir(QStringLiteral("Datos"));
    const QString datos = PrepararDatos(programa.path(), programa.filePath(QStringLiteral("usuario")));
    EXPECT_TRUE(QDir(datos).isEmpty());
    FrmBases b(datos, Moneda());
    EXPECT_EQ(b.Abrir().archivo, QStringLiteral("config.mdb"));
    EXPECT_TRUE(QDir(datos).isEmpty());
}

TEST(Instalacion, TheUsersFolderTakesThePlaceOfOneThatCannotBeWritten) {
    QTemporaryDir usuario;
    const QString sinPermiso = QStringLiteral("/proc/tarvo");
    const QString carpeta = usuario.filePath(QStringLiteral("a/b"));
    const QString datos = PrepararDatos(sinPermiso, carpeta);
    EXPECT_EQ(datos, carpeta + QStringLiteral("/Datos"));
    Escribir(datos + QStringLiteral("/ventas.mdb"), "mio");
    // From then on they stay there, also when the folder of the program can be written.
    QTemporaryDir programa;
    EXPECT_EQ(PrepararDatos(programa.path(), carpeta), datos);
    EXPECT_TRUE(QDir(programa.path()).isEmpty());
    EXPECT_EQ(Contenido(datos)[QStringLiteral("ventas.mdb")], "mio");
    // A folder beside the program comes first.
    QDir(programa.path()).mkdir(QStringLiteral("Datos"));
    EXPECT_EQ(PrepararDatos(programa.path(), carpeta), programa.filePath(QStringLiteral("Datos")));
    EXPECT_THROW(PrepararDatos(sinPermiso, sinPermiso), ErrorDatos);
}

TEST(Instalacion, ALinkIsFollowedAndOneThatLeadsNowhereIsTold) {
    QTemporaryDir medio;
    QTemporaryDir programa;
    QTemporaryDir usuario;
    const QString enlace = programa.filePath(QStringLiteral("Datos"));
    const QString tienda = medio.filePath(QStringLiteral("tienda"));
    const QString otra = PrepararDatos(QStringLiteral("/proc/tarvo"), usuario.path());
    QFile::link(tienda, enlace);
    try {
        PrepararDatos(programa.path(), usuario.path());
        FAIL() << "began another shop";
    } catch (const ErrorDatos &error) {
        EXPECT_EQ(error.Numero(), errores::kRutaNoEncontrada);
        EXPECT_TRUE(error.Descripcion().contains(tienda)) << error.Descripcion().toStdString();
    }
    QDir().mkdir(tienda);
    EXPECT_EQ(PrepararDatos(programa.path(), usuario.path()), enlace);
    EXPECT_TRUE(QDir(tienda).isEmpty());
    QFile::remove(enlace);
    QDir(otra).removeRecursively();
    QFile::link(usuario.filePath(QStringLiteral("no")), otra);
    EXPECT_THROW(PrepararDatos(programa.path(), usuario.path()), ErrorDatos);
    EXPECT_TRUE(QDir(programa.path()).isEmpty());
}

TEST(Instalacion, OnlyWhatAFirstStartLeftHalfDoneIsRemoved) {
    QTemporaryDir programa;
    const QDir carpeta(programa.path());
    for (const char *nombre : {"Datos.aB3xYz", "Datos.backup"}) {
        const QString resto = carpeta.filePath(QString::fromUtf8(nombre));
        ASSERT_TRUE(QDir().mkpath(resto + QStringLiteral("/vacio")));
        CrearPlantillas(resto + QStringLiteral("/vacio"));
        QFile::copy(resto + QStringLiteral("/vacio/config.mdb"), resto + QStringLiteral("/config.mdb"));
        Escribir(resto + QStringLiteral("/qt_temp.Ab12cd"), "medio");
    }
    Escribir(carpeta.filePath(QStringLiteral("Datos.backup/ventas.mdb")), "ventas de un año");
    PrepararDatos(programa.path(), programa.path());
    EXPECT_EQ(carpeta.entryList(QDir::Dirs | QDir::NoDotAndDotDot),
              QStringList({QStringLiteral("Datos"), QStringLiteral("Datos.backup")}));
}

TEST(Regional, SettingsComeBeforeTheLocaleOfTheSystem) {
    QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath(QStringLiteral("a.ini"));
    struct {
        const char *ini;
        const char *decimal, *simbolo; // null: whatever the system says
    } const casos[] = {
        {"sDecimal=.\nsCurrency=Bs\n", ".", "Bs"},
        {"sDecimal=\",\"\nsCurrency=\"€\"\n", ",", "€"},
        {"sDecimal=,\n", ",", nullptr},
        {"sCurrency=Gs\n", nullptr, "Gs"},
        {"sDecimal=x\n", nullptr, nullptr},
    };
    for (const auto &caso : casos) {
        Escribir(ruta, QByteArray("[General]\n") + caso.ini);
        const Moneda moneda = LeerRegional(QSettings(ruta, QSettings::IniFormat));
        if (caso.decimal != nullptr) {
            EXPECT_EQ(moneda.sDecimal().toStdString(), caso.decimal) << caso.ini;
        }
        if (caso.simbolo != nullptr) {
            EXPECT_EQ(moneda.sCurrency().toStdString(), caso.simbolo) << caso.ini;
        }
        EXPECT_TRUE(moneda.sDecimal() == QLatin1String(",") || moneda.sDecimal() == QLatin1String("."))
            << caso.ini;
        EXPECT_FALSE(moneda.sCurrency().isEmpty()) << caso.ini;
    }
}

TEST(Compactacion, ShrinksTheFileAndKeepsItsRows) {
    DatosPrueba datos;
    datos.Ejecutar("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<3000) "
                   "INSERT INTO Ventas(total) SELECT '$ '||i FROM n; DELETE FROM Ventas WHERE id>2");
    const QString origen = QDir(datos.Carpeta()).filePath(QStringLiteral("ventas.mdb"));
    const QString temporal = QDir(datos.Carpeta()).filePath(QStringLiteral("temporal.mdb"));
    Escribir(temporal, "resto");
    const qint64 antes = QFileInfo(origen).size();
    FrmBases::CompactarBase(origen, temporal);
    EXPECT_LT(QFileInfo(origen).size(), antes);
    EXPECT_FALSE(QFile::exists(temporal));
    FrmBases &b = datos.Abrir();
    EXPECT_EQ(b.datVentas.RecordCount(), 2);
    b.datVentas.AddNew();
    b.datVentas.Refresh();
    EXPECT_EQ(b.datVentas.UltimoId(), QStringLiteral("3001")) << "the counter must go on where it was";
}

TEST(Compactacion, TellsAMissingFileAndLeavesADamagedOne) {
    QTemporaryDir carpeta;
    const QString origen = carpeta.filePath(QStringLiteral("no.mdb"));
    const QString temporal = carpeta.filePath(QStringLiteral("t.mdb"));
    try {
        FrmBases::CompactarBase(origen, temporal);
        FAIL();
    } catch (const ErrorDatos &error) {
        EXPECT_EQ(error.Numero(), errores::kBaseNoEncontrada);
        EXPECT_EQ(error.Descripcion(),
                  QStringLiteral("No se pudo encontrar la base de datos '%1'.").arg(origen));
    }
    Escribir(origen, QByteArray(5000, 'x'));
    EXPECT_THROW(FrmBases::CompactarBase(origen, temporal), ErrorDatos);
    EXPECT_EQ(QFileInfo(origen).size(), 5000);
}

} // namespace
} // namespace tarvo
