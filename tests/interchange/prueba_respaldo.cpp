// Backup, emptying and restore on a disk that works; and what they do with files that don't.
#include "tiendacambio.h"

#include "testkit/archivos.h"

#include <QFileInfo>
#include <QProcess>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tarvo {
namespace {

constexpr const char *kViejas = "viejo viejo viejo viejo viejo";
constexpr const char *kNuevas = "nuevo nuevo nuevo nuevo nuevo";

class PruebaRespaldo : public testing::Test {
  protected:
    void Respalda(const Elegidas &respaldar, const Elegidas &vaciar = kNinguna) {
        EXPECT_EQ(Respaldar(bases, {tienda.Ruta("copia"), respaldar, vaciar}, avance, vaciadas),
                  Resultado::Completo);
    }
    Resultado Recupera(const Elegidas &recuperar) {
        return Recuperar(bases, {tienda.Ruta("respaldo"), recuperar}, avance);
    }
    void AbreCompleta() {
        const ResultadoApertura abiertas = AbrirBases(bases);
        EXPECT_EQ(abiertas.estado, EstadoApertura::Completa) << abiertas.motivo.toStdString();
        EXPECT_EQ(QDir(tienda.Ruta("Datos")).entryList({u"nuevos*"_qs}), QStringList());
        bases.Cerrar();
    }

    TiendaCambio tienda;
    FrmBases bases{tienda.Ruta("Datos"), Moneda()};
    AvancePrueba avance;
    Elegidas vaciadas{};
};

TEST_F(PruebaRespaldo, CopiesWhatIsTickedAndEmptiesFromTheTemplates) {
    AbrirBases(bases); // as in the running program
    bases.datVentas.AddNew();
    bases.camVentNumComp = u"zz: an edit that the closing commits"_qs;
    bases.datVentas.Refresh();
    Respalda({true, true, true, true, false}, {true, true, false, false, false});
    EXPECT_EQ(tienda.Marcas("copia"), "viejo zz: an edit that the closing commits viejo viejo falta");
    EXPECT_EQ(tienda.Marcas("Datos"), " - viejo viejo viejo") << "config goes back to its template's rows";
    EXPECT_EQ(avance.avanzados, 5);
    EXPECT_FALSE(bases.datVentas.Abierto());
    AbreCompleta();
}

TEST_F(PruebaRespaldo, TwoInOneSecondCollide) {
    Respalda(kTodas);
    EXPECT_EQ(TextoDe([&] { Respalda(kTodas); }), "No se pudo crear la carpeta \"copia\": ya existe.");
}

TEST_F(PruebaRespaldo, RestoresTheChosenFilesInItsOwnOrder) {
    TiendaCambio::Sql(tienda.Ruta("respaldo/ventas.mdb"), "CREATE INDEX otro ON Ventas(fecha)"); // is taken
    EXPECT_EQ(Recupera({true, true, false, true, true}), Resultado::Completo);
    EXPECT_EQ(avance.archivos.join(u' '), u"config.mdb ventas.mdb proveedores.mdb "
                                          "clientes.mdb"_qs);
    EXPECT_EQ(tienda.Marcas("Datos"), "nuevo nuevo viejo nuevo nuevo");
    AbreCompleta();
}

TEST_F(PruebaRespaldo, AFileThatWentAwayIsPassedOver) {
    avance.antes = [this] {
        QFile::remove(tienda.Ruta("respaldo/ventas.mdb"));
        return true;
    };
    EXPECT_EQ(Recupera(kTodas), Resultado::Completo);
    EXPECT_EQ(tienda.Marcas("Datos"), "nuevo viejo nuevo nuevo nuevo");
}

// A copy-journal beside a live file is of its old content.
TEST_F(PruebaRespaldo, AJournalIsNotPlayedBackIntoARestoredFile) {
    Escribir(tienda.Ruta("Datos/ventas.mdb-journal"), QByteArray(4096, 'x'));
    EXPECT_EQ(Recupera(kTodas), Resultado::Completo);
    EXPECT_FALSE(QFileInfo::exists(tienda.Ruta("Datos/ventas.mdb-journal")));
    EXPECT_EQ(tienda.Marcas("Datos"), kNuevas);
}

// Until it is finished the live files are a mixture.
TEST_F(PruebaRespaldo, ACutReplacementIsFinishedBeforeABackup) {
    QString dicho;
    bases.AlAbrirse([&](const ResultadoApertura &resultado) { dicho = resultado.motivo; });
    QDir(tienda.Carpeta()).mkdir(u"Datos/nuevos"_qs);
    QFile::copy(tienda.Ruta("respaldo/ventas.mdb"), tienda.Ruta("Datos/nuevos/ventas.mdb"));
    QDir(tienda.Carpeta()).mkpath(u"Datos/ventas.mdb-journal/lleno"_qs); // can't be taken away
    const std::string motivo = TextoDe([&] { Respalda(kTodas); });
    EXPECT_EQ(tienda.Marcas("copia"), "falta falta falta falta falta");
    EXPECT_EQ(TextoDe([&] { AbrirBases(bases); }), motivo);
    EXPECT_EQ(dicho.toStdString(), motivo);
    QDir(tienda.Ruta("Datos/ventas.mdb-journal")).removeRecursively();
    QDir(tienda.Ruta("copia")).removeRecursively();
    Respalda(kTodas);
    EXPECT_EQ(tienda.Marcas("copia"), "viejo nuevo viejo viejo viejo");
}

TEST_F(PruebaRespaldo, EndsBetweenFilesWhenAskedTo) {
    int archivos = 0;
    avance.antes = [&] { return ++archivos < 3; };
    EXPECT_EQ(Respaldar(bases, {tienda.Ruta("copia"), kTodas, {true, false, false, false, false}}, avance,
                        vaciadas),
              Resultado::Interrumpido);
    EXPECT_EQ(tienda.Marcas("copia"), "viejo viejo falta falta falta");
    archivos = 0;
    EXPECT_EQ(Recupera(kTodas), Resultado::Interrumpido);
    EXPECT_EQ(tienda.Marcas("Datos"), " viejo viejo viejo viejo");
    AbreCompleta();
}

// --- files that are no good: told by name, and nothing is changed

TEST_F(PruebaRespaldo, ABackupThatIsNoneOfOursIsRefused) {
    const QString clientes = tienda.Ruta("respaldo/clientes.mdb");
    const std::pair<const char *, std::function<void()>> casos[] = {
        {"falta la columna fax de Clientes.",
         [&] { TiendaCambio::Sql(clientes, "ALTER TABLE Clientes DROP fax"); }},
        {"falta la tabla Clientes.", [&] { TiendaCambio::Sql(clientes, "DROP TABLE Clientes"); }},
        {"no es una base de datos.",
         [&] { Escribir(tienda.Ruta("respaldo/clientes.mdb"), QByteArray(9000, 'x')); }},
        {"falta la tabla Clientes.", [&] { Escribir(tienda.Ruta("respaldo/clientes.mdb"), {}); }},
        {"el texto del archivo no está en UTF-8.",
         [&] { TiendaCambio::Sql(clientes, "PRAGMA encoding='UTF-16le'; CREATE TABLE x(y)"); }},
    };
    for (const auto &[motivo, estropear] : casos) {
        estropear();
        EXPECT_EQ(TextoDe([&] { Recupera(kTodas); }),
                  std::string("El archivo \"clientes.mdb\" no sirve: ") + motivo);
        EXPECT_EQ(tienda.Marcas("Datos"), kViejas);
        AbreCompleta();
    }
}

TEST_F(PruebaRespaldo, ADamagedFileIsNeitherBackedUpNorRestored) {
    for (const char *relativa : {"Datos/ventas.mdb", "respaldo/ventas.mdb"}) {
        std::string filas = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<5000) "
                            "INSERT INTO Ventas(numcomp) SELECT 'viejo' FROM n";
        TiendaCambio::Sql(tienda.Ruta(relativa), filas);
        QFile archivo(tienda.Ruta(relativa));
        ASSERT_TRUE(archivo.open(QIODevice::ReadWrite));
        archivo.seek(3 * 4096);
        archivo.write(QByteArray(4096, 'x'));
    }
    EXPECT_EQ(TextoDe([&] { Recupera(kTodas); }), "El archivo \"ventas.mdb\" no sirve: está dañado.");
    EXPECT_EQ(TextoDe([&] { Respalda(kTodas, kTodas); }), "El archivo \"ventas.mdb\" no sirve: está dañado.");
    EXPECT_EQ(QFileInfo(tienda.Ruta("Datos/ventas.mdb")).size(),
              QFileInfo(tienda.Ruta("copia/ventas.mdb")).size())
        << "a file whose copy did not pass is not emptied";
}

TEST_F(PruebaRespaldo, ATemplateThatIsNoGoodEmptiesNothing) {
    const char *const casos[][2] = {
        {"falta", "No se pudo leer \"ventas.mdb\": no se encuentra la ruta o el archivo."},
        {"otra", "El archivo \"ventas.mdb\" no sirve: falta la tabla Ventas."},
    };
    for (const auto &[que, mensaje] : casos) {
        QFile::remove(tienda.Ruta("Datos/vacio/ventas.mdb"));
        if (std::string_view(que) == "otra")
            QFile::copy(tienda.Ruta("Datos/vacio/clientes.mdb"), tienda.Ruta("Datos/vacio/ventas.mdb"));
        EXPECT_EQ(TextoDe([&] { Respalda(kTodas, {false, true, false, false, false}); }), mensaje);
        EXPECT_EQ(tienda.Marcas("Datos"), kViejas);
        EXPECT_EQ(tienda.Marcas("copia"), "viejo viejo falta falta falta") << "what was copied stays";
        QDir(tienda.Ruta("copia")).removeRecursively();
    }
}

TEST_F(PruebaRespaldo, FilesThatOthersHoldOrTookAwayAreTold) {
    {
        QProcess otro;
        otro.start(QStringLiteral(TARVO_EMISOR), {u"retener"_qs, tienda.Ruta("Datos")});
        otro.write("\n");
        ASSERT_TRUE(otro.waitForReadyRead(30'000));
        EXPECT_EQ(TextoDe([&] { Respalda(kTodas); }), "Otro programa está usando \"config.mdb\".");
        EXPECT_EQ(TextoDe([&] { Recupera(kTodas); }), "Otro programa está usando \"config.mdb\".");
        otro.closeWriteChannel();
        ASSERT_TRUE(otro.waitForFinished(30'000));
    }
    QDir(tienda.Ruta("copia")).removeRecursively();
    QFile::remove(tienda.Ruta("Datos/articulos.mdb"));
    EXPECT_EQ(TextoDe([&] { Respalda(kTodas); }), "No se encuentra el archivo \"articulos.mdb\".");
    EXPECT_EQ(tienda.Marcas("copia"), "viejo viejo falta falta falta");
    EXPECT_EQ(Recupera(kTodas), Resultado::Completo) << "a restore brings back what is gone";
    EXPECT_EQ(tienda.Marcas("Datos"), kNuevas);
    {
        const int otro = ::open(QFile::encodeName(tienda.Ruta("Datos")).constData(), O_RDONLY);
        ASSERT_EQ(::flock(otro, LOCK_EX), 0);
        EXPECT_EQ(TextoDe([&] { Recupera(kTodas); }), "Otro programa está trabajando con los datos.");
        EXPECT_EQ(AbrirBases(bases).estado, EstadoApertura::Bloqueada);
        ::close(otro);
    }
}

TEST_F(PruebaRespaldo, ATargetThatGoesAwayIsToldAndNothingMoreIsEmptied) {
    avance.antes = [this] {
        return !QFile::exists(tienda.Ruta("copia/config.mdb")) ||
               QDir(tienda.Ruta("copia")).removeRecursively();
    };
    EXPECT_EQ(TextoDe([&] { Respalda(kTodas, kTodas); }),
              "La carpeta \"copia\" ya no está: la copia de \"ventas.mdb\" no se pudo hacer.");
    EXPECT_EQ(tienda.Marcas("Datos"), " viejo viejo viejo viejo");
    EXPECT_EQ(vaciadas, (Elegidas{true, false, false, false, false}));
}

TEST_F(PruebaRespaldo, TargetsThatCanNotBeMadeAreTold) {
    const QString larga = tienda.Carpeta() + u"/a"_qs.repeated(2100) + u'/';
    const char *const kNoHay = "No se pudo crear la carpeta \"x\": no se encuentra la ruta o el archivo.";
    Escribir(tienda.Ruta("archivo"), {});
    const std::pair<QString, const char *> casos[] = {
        {tienda.Ruta("no hay/x"), kNoHay},
        {tienda.Ruta("archivo/x"), "No se pudo crear la carpeta \"x\": la ruta no es una carpeta."},
        {larga + u'x', "No se pudo crear la carpeta \"x\": el nombre es demasiado largo."},
    };
    for (const auto &[destino, mensaje] : casos)
        EXPECT_EQ(TextoDe([&] { Respaldar(bases, {destino, kTodas, {}}, avance, vaciadas); }), mensaje);
    const QString rara = tienda.Ruta("año \"nuevo\" 'x'");
    EXPECT_EQ(Respaldar(bases, {rara, kTodas, {}}, avance, vaciadas), Resultado::Completo);
    EXPECT_EQ(tienda.Marcas("año \"nuevo\" 'x'"), kViejas);
}

} // namespace
} // namespace tarvo
