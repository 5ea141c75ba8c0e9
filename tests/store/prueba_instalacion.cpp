// The first start, the place of the data, separator and symbol, and compaction.
#include "store/instalacion.h"
#include "store/plantillas.h"
#include "testkit/archivos.h"
#include "testkit/datosprueba.h"

namespace tarvo {
namespace {

TEST(Instalacion, TheFirstStartMakesDataThatOpen) {
    QTemporaryDir programa;
    const QString datos = PrepararDatos(programa.path(), programa.filePath(u"usuario"_qs));
    EXPECT_EQ(datos, programa.filePath(u"Datos"_qs));
    EXPECT_EQ(QDir(programa.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{u"Datos"_qs});
    EXPECT_EQ(Contenido(datos), Contenido(datos + u"/vacio"_qs));
    EXPECT_EQ(Contenido(datos).size(), 5U);
    FrmBases b(datos, Moneda());
    ASSERT_EQ(b.Abrir().estado, EstadoApertura::Completa);
    EXPECT_EQ(b.datIVA.RecordCount(), 4);
    EXPECT_EQ(b.camIVAPorcentaje.Texto(), u"21");
    for (Cursor *cursor : {&b.datImpuesto, &b.datFactura, &b.datTicket, &b.datCategorias, &b.datVendedores})
        EXPECT_EQ(cursor->RecordCount(), 1) << cursor->Tabla();
    for (Cursor *cursor :
         {&b.datCategorias2, &b.datClientes, &b.datProveedores, &b.datArticulos, &b.datVentas})
        EXPECT_EQ(cursor->RecordCount(), 0) << cursor->Tabla();
    EXPECT_EQ(b.camTicN5.Texto(), u"N");
    EXPECT_EQ(b.camImpExisteIFiscal.Texto(), u"No");
}

TEST(Instalacion, TheUsersFolderTakesThePlaceOfOneThatCannotBeWritten) {
    QTemporaryDir usuario;
    const QString sinPermiso = u"/proc/tarvo"_qs;
    const QString carpeta = usuario.filePath(u"a/b"_qs);
    const QString datos = PrepararDatos(sinPermiso, carpeta);
    EXPECT_EQ(datos, carpeta + u"/Datos"_qs);
    Escribir(datos + u"/ventas.mdb"_qs, "mio");
    // From then on they stay there, also when the folder of the program can be written.
    QTemporaryDir programa;
    EXPECT_EQ(PrepararDatos(programa.path(), carpeta), datos);
    EXPECT_TRUE(QDir(programa.path()).isEmpty());
    EXPECT_EQ(Contenido(datos)[u"ventas.mdb"_qs], "mio");
    // A folder beside the program comes first.
    QDir(programa.path()).mkdir(u"Datos"_qs);
    EXPECT_EQ(PrepararDatos(programa.path(), carpeta), programa.filePath(u"Datos"_qs));
    EXPECT_TRUE(QDir(programa.filePath(u"Datos"_qs)).isEmpty()) << "one that exists is never filled";
    EXPECT_THROW(PrepararDatos(sinPermiso, sinPermiso), ErrorDatos);
}

TEST(Instalacion, ALinkIsFollowedAndOneThatLeadsNowhereIsTold) {
    QTemporaryDir medio;
    QTemporaryDir programa;
    QTemporaryDir usuario;
    const QString enlace = programa.filePath(u"Datos"_qs);
    const QString tienda = medio.filePath(u"tienda"_qs);
    const QString otra = PrepararDatos(u"/proc/tarvo"_qs, usuario.path());
    QFile::link(tienda, enlace);
    const auto preparar = [&] { PrepararDatos(programa.path(), usuario.path()); };
    EXPECT_EQ(NumeroDe(preparar), errores::kRutaNoEncontrada);
    EXPECT_NE(TextoDe(preparar).find(tienda.toStdString()), std::string::npos) << TextoDe(preparar);
    QDir().mkdir(tienda);
    EXPECT_EQ(PrepararDatos(programa.path(), usuario.path()), enlace);
    EXPECT_TRUE(QDir(tienda).isEmpty());
    QFile::remove(enlace);
    QDir(otra).removeRecursively();
    QFile::link(usuario.filePath(u"no"_qs), otra);
    EXPECT_THROW(PrepararDatos(programa.path(), usuario.path()), ErrorDatos);
    EXPECT_TRUE(QDir(programa.path()).isEmpty());
}

TEST(Instalacion, OnlyWhatAFirstStartLeftHalfDoneIsRemoved) {
    QTemporaryDir programa;
    const QDir carpeta(programa.path());
    const QStringList ajenas{u"Datos.backup"_qs, u"Datos.enlace"_qs, u"Datos.oculto"_qs, u"Datos.textos"_qs};
    for (const QString &nombre : ajenas + QStringList{u"Datos.aB3xYz"_qs}) {
        const QString resto = carpeta.filePath(nombre);
        ASSERT_TRUE(QDir().mkpath(resto + u"/vacio"_qs));
        CrearPlantillas(resto + u"/vacio"_qs);
        QFile::copy(resto + u"/vacio/config.mdb"_qs, resto + u"/config.mdb"_qs);
        Escribir(resto + u"/qt_temp.Ab12cd"_qs, "SQLite format 3");
        Escribir(resto + u"/vacio/ventas.mdb-journal"_qs, "");
    }
    Escribir(carpeta.filePath(u"Datos.backup/ventas.mdb"_qs), "ventas de un año");
    QFile::link(u"no hay"_qs, carpeta.filePath(u"Datos.enlace/ventas.mdb"_qs));
    const QString oculto = carpeta.filePath(u"Datos.oculto/ventas.mdb"_qs);
    Escribir(oculto, "no se puede leer");
    QFile::setPermissions(oculto, {});
    Escribir(carpeta.filePath(u"Datos.textos/vacio/cartas.txt"_qs), "mías");
    PrepararDatos(programa.path(), programa.path());
    EXPECT_EQ(carpeta.entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList{u"Datos"_qs} + ajenas);
}

TEST(Regional, SettingsComeBeforeTheLocaleOfTheSystem) {
    QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath(u"a.ini"_qs);
    const Moneda sistema = LeerRegional(QSettings(ruta, QSettings::IniFormat));
    EXPECT_TRUE(sistema.sDecimal() == u"," || sistema.sDecimal() == u".");
    EXPECT_FALSE(sistema.sCurrency().isEmpty());
    const std::tuple<const char *, QString, QString> casos[] = {
        {"sDecimal=.\nsCurrency=Bs\n", u"."_qs, u"Bs"_qs},
        {"sDecimal=\",\"\nsCurrency=\"€\"\n", u","_qs, u"€"_qs},
        {"sDecimal=,\n", u","_qs, sistema.sCurrency()},
        {"sCurrency=Gs\n", sistema.sDecimal(), u"Gs"_qs},
        {"sDecimal=x\n", sistema.sDecimal(), sistema.sCurrency()}};
    for (const auto &[ini, decimal, simbolo] : casos) {
        Escribir(ruta, QByteArray("[General]\n") + ini);
        const Moneda moneda = LeerRegional(QSettings(ruta, QSettings::IniFormat));
        EXPECT_EQ(moneda.sDecimal() + moneda.sCurrency(), decimal + simbolo) << ini;
    }
}

TEST(Compactacion, ShrinksTheFileAndKeepsItsRows) {
    DatosPrueba datos;
    datos.Ejecutar("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<3000) "
                   "INSERT INTO Ventas(total) SELECT '$ '||i FROM n; DELETE FROM Ventas WHERE id>2");
    const QString origen = QDir(datos.Carpeta()).filePath(u"ventas.mdb"_qs);
    const QString temporal = QDir(datos.Carpeta()).filePath(u"temporal.mdb"_qs);
    Escribir(temporal, "resto");
    const qint64 antes = QFileInfo(origen).size();
    FrmBases::CompactarBase(origen, temporal);
    EXPECT_LT(QFileInfo(origen).size(), antes);
    EXPECT_FALSE(QFile::exists(temporal));
    FrmBases &b = datos.Abrir();
    EXPECT_EQ(b.datVentas.RecordCount(), 2);
    b.datVentas.AddNew();
    b.datVentas.Refresh();
    EXPECT_EQ(b.datVentas.UltimoId(), u"3001") << "the counter must go on where it was";
}

TEST(Compactacion, TellsAMissingFileAndLeavesADamagedOne) {
    QTemporaryDir carpeta;
    const QString origen = carpeta.filePath(u"no.mdb"_qs);
    const QString temporal = carpeta.filePath(u"t.mdb"_qs);
    const auto compactar = [&] { FrmBases::CompactarBase(origen, temporal); };
    EXPECT_EQ(NumeroDe(compactar), errores::kBaseNoEncontrada);
    EXPECT_EQ(TextoDe(compactar), "No se pudo encontrar la base de datos '" + origen.toStdString() + "'.");
    Escribir(origen, QByteArray(5000, 'x'));
    EXPECT_THROW(compactar(), ErrorDatos);
    EXPECT_EQ(QFileInfo(origen).size(), 5000);
}

} // namespace
} // namespace tarvo
