// Opening: every way in which one of the five files can be unfit, and that such an opening leaves no trace.
#include "store/plantillas.h"
#include "testkit/archivos.h"
#include "testkit/datosprueba.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QDateTime>

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

// %1 is the last table of the file.
void Sql(const QString &ruta, const char *sql, const Archivo &archivo) {
    SQLite::Database(ruta.toStdString(), SQLite::OPEN_READWRITE)
        .exec(QString::fromLatin1(sql).arg(QLatin1String(archivo.tabla)).toStdString());
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
    {"an id that no new row gets",
     [](const QString &r, const Archivo &a) {
         Sql(r,
             "PRAGMA writable_schema=1; UPDATE sqlite_master SET sql=replace(sql, 'AUTOINCREMENT', '') || ' "
             "WITHOUT ROWID' WHERE name='%1'",
             a);
     },
     "no tiene el contador id.", true},
    {"text in another encoding",
     [](const QString &r, const Archivo &a) {
         Escribir(r, {});
         Sql(r, "PRAGMA encoding='UTF-16le'; CREATE TABLE %1(x)", a);
     },
     "no está en UTF-8."},
    {"table missing", [](const QString &r, const Archivo &a) { Sql(r, "DROP TABLE %1", a); },
     "falta la tabla ", true},
    {"column missing",
     [](const QString &r, const Archivo &a) {
         Sql(r, "CREATE TABLE t(id INTEGER PRIMARY KEY); DROP TABLE %1; ALTER TABLE t RENAME TO %1", a);
     },
     "falta la columna ", true},
    {"a view instead of the table",
     [](const QString &r, const Archivo &a) {
         Sql(r, "ALTER TABLE %1 RENAME TO t; CREATE VIEW %1 AS SELECT * FROM t", a);
     },
     "falta la tabla ", true},
    {"an id that is no counter",
     [](const QString &r, const Archivo &a) {
         Sql(r, "ALTER TABLE %1 RENAME TO t; CREATE TABLE %1 AS SELECT * FROM t", a);
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
    QFile::remove(QDir(datos.Carpeta()).filePath(u"ventas.mdb"_qs));
    EXPECT_EQ(datos.Bases().Abrir().estado, EstadoApertura::Parcial);
    EXPECT_EQ(segunda.Abrir().estado, EstadoApertura::Bloqueada)
        << "a partial opening must hold what it opened";
}

TEST(Apertura, WhatDidOpenWorksAndTheRestIsClosed) {
    DatosPrueba datos;
    QFile::remove(QDir(datos.Carpeta()).filePath(u"articulos.mdb"_qs));
    FrmBases &b = datos.Bases();
    b.Abrir();
    b.datClientes.AddNew();
    b.camCliNombre = u"x"_qs;
    b.datClientes.Refresh();
    EXPECT_EQ(b.datClientes.RecordCount(), 1);
    EXPECT_EQ(b.datArticulos.RecordCount(), 0);
    EXPECT_THROW(b.datVentas.AddNew(), ErrorDatos);
}

TEST(Apertura, AFolderWithOddLettersInItsNameWorks) {
    QTemporaryDir base;
    const QString carpeta = base.filePath(u"Año 100% ?x=1#&;ñ"_qs);
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
    const QString ruta = QDir(datos.Carpeta()).filePath(u"ventas.mdb"_qs);
    const QByteArray sano = Leer(ruta);
    Escribir(ruta, QByteArray(sano).replace(5 * 4096, 3 * 4096, QByteArray(3 * 4096, '\x07')));
    QStringList avisos;
    FrmBases &b = datos.Bases();
    b.AlDanarse([&](const QString &nombre, const QString &motivo) { avisos << nombre + u' ' + motivo; });
    datos.Abrir();
    EXPECT_THROW(b.datVentas.RecordCount(), ErrorDatos);
    EXPECT_THROW(b.camVentTotal.Texto(), ErrorDatos);
    EXPECT_EQ(avisos, QStringList{u"ventas.mdb está dañado."_qs});

    b.datVentas.AddNew();
    b.camVentTotal = u"$ 1,00"_qs;
    EXPECT_EQ(TextoDe([&] { b.datVentas.MoveNext(); }), "No se pudo escribir en ventas.mdb: está dañado.");
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
    FrmBases &b = datos.Abrir();
    for (int vez = 0; vez < 3; ++vez) {
        EXPECT_EQ(b.datArticulos.RecordCount(), 2 + vez);
        b.datArticulos.Index(u"primarykey"_qs);
        b.datArticulos.AddNew();
        b.datArticulos.MoveNext();
        b.datClientes.AddNew(); // half done: gone with the closing
        b.Cerrar();
        EXPECT_EQ(b.camArtNombre.Columna().Filas(), 0);
        ASSERT_EQ(b.Abrir().estado, EstadoApertura::Completa);
        EXPECT_EQ(b.camArtNombre.Texto(), u"a");
        EXPECT_TRUE(b.datArticulos.UltimoId().isEmpty());
        EXPECT_FALSE(b.datClientes.HayFila());
        EXPECT_THROW(b.datArticulos.Seek(u"="_qs, u"1"_qs), ErrorDatos);
    }
}

TEST(Usuarios, TheTableIsMadeAndOpenedOnDemand) {
    DatosPrueba datos;
    FrmBases &b = datos.Bases();
    EXPECT_THROW(b.AbrirUsuarios(), ErrorDatos);
    datos.Abrir();
    EXPECT_THROW(datos.Filas("SELECT * FROM Usuarios"), SQLite::Exception);
    for (int vez = 1; vez <= 2; ++vez) {
        EXPECT_FALSE(b.datUsuarios.Abierto());
        b.AbrirUsuarios();
        b.datUsuarios.AddNew();
        b.camUsuCodigo = u"Ana"_qs;
        b.datUsuarios.Refresh();
        b.AbrirUsuarios(); // open already: nothing changes
        EXPECT_EQ(b.datUsuarios.UltimoId(), QString::number(vez));
        datos.Cerrar();
        datos.Abrir();
    }
    EXPECT_EQ(datos.Tabla("SELECT id, codigo, articulo, precio, cantidad FROM Usuarios"),
              u"1|Ana|||; 2|Ana|||");
}

} // namespace
} // namespace tarvo
