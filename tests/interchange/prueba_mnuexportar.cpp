// The menu entry of the export: the file that is picked, replaced, or left alone.
#include "interchange/mnuexportar.h"
#include "listaexportada.h"
#include "testkit/preguntasguion.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <unistd.h>

namespace tarvo {
namespace {

const QString kNoEsPosible = QStringLiteral(
    "No es posible continuar.\nAsegúrese de que el archivo no está abierto ni protegido contra "
    "escritura.");

class MnuExportar : public testing::Test {
  protected:
    QString Ruta(const char *nombre) const { return carpeta.filePath(QString::fromUtf8(nombre)); }
    void Elige(const QString &ruta) {
        preguntas.EsperaRuta(
            {.para = PedidoRuta::Para::Guardar,
             .titulo = QStringLiteral("Exportar..."),
             .filtro = QStringLiteral("Hoja de Microsoft Excel|*.xls|Archivo de texto separado "
                                      "por comas|*.txt"),
             .carpeta = QString()},
            ruta);
    }
    void Reemplazar(const QString &ruta, Respuesta respuesta) {
        preguntas.Espera(QStringLiteral("\"%1\" ya existe.\nDesea reemplazarlo?").arg(ruta), Respuesta::No,
                         respuesta);
    }
    void Exportar() { mnuExportar(preguntas, {&datos.lista, QStringLiteral("LVClientes")}); }
    static QByteArray Contenido(const QString &ruta) {
        QFile archivo(ruta);
        return archivo.open(QIODevice::ReadOnly) ? archivo.readAll() : QByteArray("no existe");
    }
    static void Escribir(const QString &ruta) {
        QFile archivo(ruta);
        ASSERT_TRUE(archivo.open(QIODevice::WriteOnly));
        archivo.write("antes");
    }
    // An existing file that the operator lets be replaced, and can't be.
    void NoSePuede(const QString &ruta) {
        Elige(ruta);
        Reemplazar(ruta, Respuesta::Si);
        preguntas.EsperaMensaje(kNoEsPosible, Icono::Critico);
        Exportar();
        EXPECT_EQ(Contenido(ruta), "antes");
    }
    QStringList Archivos() const {
        return QDir(carpeta.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    QTemporaryDir carpeta;
    PreguntasGuion preguntas;
    ListaExportada datos{3};
};

TEST_F(MnuExportar, TheEndingPicksTheFormat) {
    for (const char *nombre : {"a.xls", "b.txt", "c.XLS", "d.csv", "e"}) {
        Elige(Ruta(nombre));
        Exportar();
    }
    EXPECT_EQ(Contenido(Ruta("a.xls")), datos.Hoja("LVClientes"));
    EXPECT_EQ(Contenido(Ruta("b.txt")), datos.Texto("LVClientes"));
    EXPECT_EQ(Archivos(), QStringList({QStringLiteral("a.xls"), QStringLiteral("b.txt")}));
    Elige(QString()); // cancelled
    Exportar();
}

TEST_F(MnuExportar, AsksBeforeItReplaces) {
    const QString ruta = Ruta("lista.txt");
    Escribir(ruta);
    Elige(ruta);
    Reemplazar(ruta, Respuesta::No);
    Elige(Ruta("otra.txt"));
    Exportar();
    EXPECT_EQ(Contenido(ruta), "antes");
    Elige(ruta);
    Reemplazar(ruta, Respuesta::Si);
    Exportar();
    EXPECT_EQ(Contenido(ruta), datos.Texto("LVClientes"));
    EXPECT_EQ(Archivos().size(), 2) << "nothing is left of the trial";
    // What was let go is gone, also when the ending picks no format.
    const QString mayusculas = Ruta("LISTA.TXT");
    Escribir(mayusculas);
    Elige(mayusculas);
    Reemplazar(mayusculas, Respuesta::Si);
    Exportar();
    EXPECT_FALSE(QFile::exists(mayusculas));
}

TEST_F(MnuExportar, WhatCanNotBeReplacedStays) {
    const QString ruta = Ruta("lista.xls");
    Escribir(ruta);
    QFile::setPermissions(ruta, QFile::ReadOwner);
    NoSePuede(ruta);
    QFile::setPermissions(ruta, QFile::ReadOwner | QFile::WriteOwner);
    const int otro = ::open(QFile::encodeName(ruta).constData(), O_RDONLY);
    ASSERT_EQ(::flock(otro, LOCK_SH), 0);
    NoSePuede(ruta);
    ::close(otro);
    Escribir(ruta + QStringLiteral("vsw")); // a file of the operator's own
    NoSePuede(ruta);
    for (const QString &nada :
         {Ruta("no hay/lista.xls"), carpeta.path(), Ruta("x").repeated(300) + QStringLiteral(".xls")}) {
        Elige(nada);
        preguntas.EsperaMensaje(kNoEsPosible, Icono::Critico);
        Exportar();
    }
}

TEST_F(MnuExportar, ADiskThatFailsIsToldAndLosesNothing) {
    const QString ruta = Ruta("lista.txt");
    Escribir(ruta);
    rlimit antes{};
    getrlimit(RLIMIT_FSIZE, &antes);
    const rlimit poco{10, antes.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    Elige(ruta);
    Reemplazar(ruta, Respuesta::Si);
    preguntas.EsperaMensaje(QStringLiteral("No se pudo escribir \"lista.txt\": error de entrada o salida."),
                            Icono::Critico);
    setrlimit(RLIMIT_FSIZE, &poco);
    Exportar();
    setrlimit(RLIMIT_FSIZE, &antes);
    EXPECT_EQ(Contenido(ruta), "antes");
    EXPECT_EQ(Archivos(), QStringList(QStringLiteral("lista.txt")));
}

} // namespace
} // namespace tarvo
