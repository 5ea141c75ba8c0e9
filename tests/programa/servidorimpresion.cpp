#include "programa/servidorimpresion.h"

#include "programa/pantalla.h"

#include <QDir>
#include <QFile>
#include <QtCore/qtestsupport_core.h>

namespace tarvo {

namespace {

constexpr const char *kArchivos = R"(ServerRoot %1/raiz
RequestRoot %1/cola
TempDir %1/cola
CacheDir %1/cache
StateDir %1/estado
AccessLog %1/acceso.log
ErrorLog %1/errores.log
PageLog %1/paginas.log
FileDevice Yes
Sandboxing relaxed
)";
constexpr const char *kServidor = R"(Listen %1/cups.sock
Browsing No
DefaultAuthType None
<Location />
Allow all
</Location>
<Policy default>
<Limit All>
</Limit>
</Policy>
)";
constexpr const char *kControlador = "/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd";

void Escribir(const QString &ruta, const QString &texto) {
    QFile archivo(ruta);
    if (archivo.open(QIODevice::WriteOnly))
        archivo.write(texto.toUtf8());
}

// The driver of the CUPS PDF printer, made to leave PDF as it is: the text of PostScript can't be read back.
bool EscribirControlador(const QString &ruta) {
    QFile original(QString::fromLatin1(kControlador));
    if (!original.open(QIODevice::ReadOnly))
        return false;
    Escribir(ruta, QString::fromUtf8(original.readAll()) +
                       u"*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"\n"_qs);
    return true;
}

bool Responde() {
    return Ejecutar(u"lpstat"_qs, {u"-r"_qs}, true).contains("is running");
}

} // namespace

ServidorImpresion::ServidorImpresion() {
    qputenv("CUPS_SERVER", Ruta("cups.sock").toUtf8());
    Configurar();
    cupsd_.setStandardErrorFile(QProcess::nullDevice());
    cupsd_.start(u"/usr/sbin/cupsd"_qs,
                 {u"-f"_qs, u"-c"_qs, Ruta("raiz/cupsd.conf"), u"-s"_qs, Ruta("raiz/cups-files.conf")});
    constexpr int kArranque = 5000;
    anda_ = cupsd_.waitForStarted() && QTest::qWaitFor(Responde, kArranque) && Instalar();
}

ServidorImpresion::~ServidorImpresion() {
    qunsetenv("CUPS_SERVER");
    cupsd_.terminate();
    if (!cupsd_.waitForFinished(kEspera))
        cupsd_.kill();
}

void ServidorImpresion::Configurar() const {
    // The filters run as another user.
    QFile::setPermissions(raiz_.path(), QFile::Permissions(0x7755));
    for (const char *carpeta : {"raiz", "cola", "cache", "estado", "papel"})
        QDir(raiz_.path()).mkdir(QLatin1String(carpeta));
    Escribir(Ruta("raiz/cups-files.conf"), QString::fromLatin1(kArchivos).arg(raiz_.path()));
    Escribir(Ruta("raiz/cupsd.conf"), QString::fromLatin1(kServidor).arg(raiz_.path()));
}

bool ServidorImpresion::Instalar() const {
    if (!EscribirControlador(Ruta("controlador.ppd")))
        return false;
    const QString nombre = u"Mostrador"_qs;
    Ejecutar(u"lpadmin"_qs,
             {u"-p"_qs, nombre, u"-E"_qs, u"-P"_qs, Ruta("controlador.ppd"), u"-v"_qs,
              u"file:"_qs + Ruta("papel/hoja.pdf")},
             true);
    Ejecutar(u"lpadmin"_qs, {u"-d"_qs, nombre}, true);
    return Ejecutar(u"lpstat"_qs, {u"-d"_qs}, true).contains("Mostrador");
}

QString ServidorImpresion::Texto() const {
    Esperar("the end of the printed paper", [this] {
        QFile papel(Ruta("papel/hoja.pdf"));
        return papel.open(QIODevice::ReadOnly) && papel.readAll().trimmed().endsWith("%%EOF");
    });
    return QString::fromUtf8(Ejecutar(u"pdftotext"_qs, {u"-layout"_qs, Ruta("papel/hoja.pdf"), u"-"_qs}));
}

} // namespace tarvo
