// The first start, the place of the data, separator and symbol, and compaction.
#include "store/archivosprueba.h"
#include "store/errordatos.h"
#include "store/instalacion.h"
#include "store/plantillas.h"
#include "testkit/datosprueba.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

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
    EXPECT_TRUE(QDir(programa.filePath(QStringLiteral("Datos"))).isEmpty())
        << "one that exists is never filled";
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
    const QStringList ajenas{QStringLiteral("Datos.backup"), QStringLiteral("Datos.enlace"),
                             QStringLiteral("Datos.oculto"), QStringLiteral("Datos.textos")};
    for (const QString &nombre : ajenas + QStringList{QStringLiteral("Datos.aB3xYz")}) {
        const QString resto = carpeta.filePath(nombre);
        ASSERT_TRUE(QDir().mkpath(resto + QStringLiteral("/vacio")));
        CrearPlantillas(resto + QStringLiteral("/vacio"));
        QFile::copy(resto + QStringLiteral("/vacio/config.mdb"), resto + QStringLiteral("/config.mdb"));
        Escribir(resto + QStringLiteral("/qt_temp.Ab12cd"), "SQLite format 3");
        Escribir(resto + QStringLiteral("/vacio/ventas.mdb-journal"), "");
    }
    Escribir(carpeta.filePath(QStringLiteral("Datos.backup/ventas.mdb")), "ventas de un año");
    QFile::link(QStringLiteral("no hay"), carpeta.filePath(QStringLiteral("Datos.enlace/ventas.mdb")));
    const QString oculto = carpeta.filePath(QStringLiteral("Datos.oculto/ventas.mdb"));
    Escribir(oculto, "no se puede leer");
    QFile::setPermissions(oculto, {});
    Escribir(carpeta.filePath(QStringLiteral("Datos.textos/vacio/cartas.txt")), "mías");
    PrepararDatos(programa.path(), programa.path());
    EXPECT_EQ(carpeta.entryList(QDir::Dirs | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("Datos")} + ajenas);
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
