#include "store/instalacion.h"

#include "store/errordatos.h"
#include "store/plantillas.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

namespace tarvo {

namespace {

// The data as they are on a first start: `vacio` with the templates, and the five files as copies of them.
void Llenar(const QString &carpeta) {
    const QDir destino(carpeta);
    const QString vacio = destino.filePath(QStringLiteral("vacio"));
    if (!destino.mkdir(QStringLiteral("vacio")))
        throw ErrorDatos(errores::kAccesoRuta,
                         QStringLiteral("No se pudo crear la carpeta '%1'.").arg(vacio));
    CrearPlantillas(vacio);
    for (const QFileInfo &plantilla : QDir(vacio).entryInfoList({QStringLiteral("*.mdb")}, QDir::Files)) {
        const QString copia = destino.filePath(plantilla.fileName());
        if (!QFile::copy(plantilla.filePath(), copia))
            throw ErrorDatos(errores::kAccesoRuta, QStringLiteral("No se pudo escribir en '%1'.").arg(copia));
        Sincronizar(copia);
    }
    Sincronizar(vacio);
    Sincronizar(carpeta);
}

// One first start at a time in a folder: another one waits for its end. The lock goes with the process.
class Turno {
  public:
    explicit Turno(const QString &carpeta)
        : carpeta_(::open(QFile::encodeName(carpeta).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
          solo_(carpeta_ >= 0 && ::flock(carpeta_, LOCK_EX) == 0) {}
    ~Turno() {
        if (carpeta_ >= 0)
            ::close(carpeta_);
    }
    Turno(const Turno &) = delete;
    Turno &operator=(const Turno &) = delete;
    // False where the system can't lock a folder.
    bool Solo() const { return solo_; }

  private:
    int carpeta_;
    bool solo_;
};

// Nothing when the file can't be read.
std::optional<QByteArray> Contenido(const QString &ruta) {
    QFile archivo(ruta);
    if (!archivo.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray bytes = archivo.readAll();
    return archivo.error() == QFileDevice::NoError ? std::optional(std::move(bytes)) : std::nullopt;
}

bool EsPrincipio(const QFileInfo &archivo, const QFileInfo &plantilla) {
    if (archivo.size() > plantilla.size())
        return false;
    const std::optional<QByteArray> parte = Contenido(archivo.filePath());
    const std::optional<QByteArray> todo = Contenido(plantilla.filePath());
    return parte && todo && todo->startsWith(*parte);
}

// The journal of a template that was being made is a header at most, since there was nothing to bring back.
// It begins with its mark or, before that is written, with zeros.
bool EsDiarioVacio(const QFileInfo &archivo) {
    constexpr qint64 kCabecera = 512;
    if (archivo.size() > kCabecera)
        return false;
    const std::optional<QByteArray> bytes = Contenido(archivo.filePath());
    return bytes && (bytes->isEmpty() || bytes->startsWith(QByteArray(8, '\0')) ||
                     bytes->startsWith(QByteArrayLiteral("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7")));
}

// One of the templates, a copy of it or one that was being made, as far as it was written?
bool EsDePlantilla(const QFileInfo &archivo, const QFileInfoList &plantillas) {
    if (!archivo.isFile() || archivo.isSymLink())
        return false;
    const QString nombre = archivo.fileName();
    const bool copiandose = nombre.startsWith(QLatin1String("qt_temp."));
    return std::any_of(plantillas.begin(), plantillas.end(), [&](const QFileInfo &plantilla) {
        if (nombre == plantilla.fileName() + QLatin1String("-journal"))
            return EsDiarioVacio(archivo);
        return (copiandose || nombre == plantilla.fileName()) && EsPrincipio(archivo, plantilla);
    });
}

// Is this what a first start has left half done: nothing but templates and copies of them, whole or in part?
// A folder of the operator whose name happens to look the same is none, and neither is one that can't be
// read.
bool EsResto(const QDir &carpeta, const QFileInfoList &plantillas) {
    if (!carpeta.isReadable())
        return false;
    const QDir::Filters todo = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    const QFileInfoList entradas = carpeta.entryInfoList(todo);
    return std::all_of(entradas.begin(), entradas.end(), [&plantillas](const QFileInfo &entrada) {
        if (!entrada.isDir())
            return EsDePlantilla(entrada, plantillas);
        return entrada.fileName() == QLatin1String("vacio") && !entrada.isSymLink() &&
               EsResto(QDir(entrada.filePath()), plantillas);
    });
}

// `vacio`: the folder of the templates, to compare with.
void QuitarRestos(const QString &carpeta, const QString &vacio) {
    const QFileInfoList plantillas = QDir(vacio).entryInfoList({QStringLiteral("*.mdb")}, QDir::Files);
    const QFileInfoList restos =
        QDir(carpeta).entryInfoList({QStringLiteral("Datos.??????")}, QDir::Dirs | QDir::NoSymLinks);
    for (const QFileInfo &resto : restos) {
        QDir carpetaResto(resto.filePath());
        if (EsResto(carpetaResto, plantillas))
            carpetaResto.removeRecursively();
    }
}

// Makes `Datos` in a folder that has none: the last step gives the finished folder its name.
void Crear(const QString &carpeta, const QString &datos) {
    const Turno turno(carpeta);
    if (QFileInfo::exists(datos)) // another first start made it meanwhile
        return;
    QTemporaryDir temporal(QDir(carpeta).filePath(QStringLiteral("Datos.XXXXXX")));
    if (!temporal.isValid())
        throw ErrorDatos(errores::kAccesoRuta, QStringLiteral("No se pudo escribir en '%1'.").arg(carpeta));
    Llenar(temporal.path());
    QFile::setPermissions(temporal.path(), QFileInfo(carpeta).permissions());
    if (std::rename(QFile::encodeName(temporal.path()).constData(), QFile::encodeName(datos).constData()) ==
        0) {
        temporal.setAutoRemove(false);
        Sincronizar(carpeta);
        if (turno.Solo())
            QuitarRestos(carpeta, QDir(datos).filePath(QStringLiteral("vacio")));
    } else if (!QFileInfo::exists(datos)) {
        throw ErrorDatos(errores::kAccesoRuta,
                         QStringLiteral("No se pudo crear la carpeta '%1'.").arg(datos));
    }
}

// Is there a folder of that name, or a link to one? Throws when the link leads nowhere.
bool Hay(const QString &datos) {
    const QFileInfo info(datos);
    if (info.exists())
        return true;
    if (!info.isSymLink())
        return false;
    throw ErrorDatos(errores::kRutaNoEncontrada,
                     QStringLiteral("Los datos no están: '%1' es un enlace a '%2', que no se encuentra.\n\n"
                                    "Conecte el medio que los contiene y vuelva a iniciar el programa.")
                         .arg(datos, info.symLinkTarget()));
}

QString TextoAjuste(const QSettings &ajustes, const QString &clave) {
    const QVariant valor = ajustes.value(clave);
    // An unquoted comma in the settings file reads as a list of two empty texts.
    return valor.typeId() == QMetaType::QStringList ? valor.toStringList().join(u',') : valor.toString();
}

bool EsSeparador(const QString &texto) {
    return texto == QLatin1String(",") || texto == QLatin1String(".");
}

} // namespace

QString PrepararDatos(const QString &carpetaPrograma, const QString &carpetaUsuario) {
    const QString nombre = QStringLiteral("Datos");
    QString propia = QDir(carpetaPrograma).filePath(nombre);
    QString deUsuario = QDir(carpetaUsuario).filePath(nombre);
    if (Hay(propia))
        return propia;
    if (Hay(deUsuario))
        return deUsuario;
    try {
        Crear(carpetaPrograma, propia);
        return propia;
    } catch (const ErrorDatos &) {
        // The folder of the program can't be written; the one of the user takes its place.
    }
    QDir().mkpath(carpetaUsuario);
    Crear(carpetaUsuario, deUsuario);
    return deUsuario;
}

Moneda LeerRegional(const QSettings &ajustes) {
    const QLocale sistema = QLocale::system();
    const bool conocido = sistema.language() != QLocale::C;
    QString decimal = TextoAjuste(ajustes, QStringLiteral("sDecimal"));
    QString simbolo = TextoAjuste(ajustes, QStringLiteral("sCurrency"));
    if (!EsSeparador(decimal) && conocido)
        decimal = sistema.decimalPoint();
    if (!EsSeparador(decimal))
        decimal = QStringLiteral(",");
    if (simbolo.isEmpty() && conocido)
        simbolo = sistema.currencySymbol();
    if (simbolo.isEmpty())
        simbolo = QStringLiteral("$");
    return Moneda(decimal, simbolo);
}

} // namespace tarvo
