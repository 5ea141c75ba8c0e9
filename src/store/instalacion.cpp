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
#include <sys/file.h>
#include <unistd.h>

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

QByteArray Contenido(const QString &ruta) {
    QFile archivo(ruta);
    return archivo.open(QIODevice::ReadOnly) ? archivo.readAll() : QByteArray();
}

// Is this what a first start has left half done: nothing but templates and copies of them, whole or in part?
// A folder of the operator whose name happens to look the same is none.
bool EsResto(const QDir &carpeta) {
    const QDir::Filters todo = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    const QFileInfoList entradas = carpeta.entryInfoList(todo);
    return std::all_of(entradas.begin(), entradas.end(), [&carpeta](const QFileInfo &entrada) {
        const QString nombre = entrada.fileName();
        if (entrada.isDir())
            return nombre == QLatin1String("vacio");
        return nombre.startsWith(QLatin1String("qt_temp.")) || // a copy that was being made
               Contenido(carpeta.filePath(QStringLiteral("vacio/") + nombre))
                   .startsWith(Contenido(entrada.filePath()));
    });
}

void QuitarRestos(const QString &carpeta) {
    const QFileInfoList restos =
        QDir(carpeta).entryInfoList({QStringLiteral("Datos.??????")}, QDir::Dirs | QDir::NoSymLinks);
    for (const QFileInfo &resto : restos) {
        QDir carpetaResto(resto.filePath());
        if (EsResto(carpetaResto))
            carpetaResto.removeRecursively();
    }
}

// Makes `Datos` in a folder that has none: the last step gives the finished folder its name.
void Crear(const QString &carpeta, const QString &datos) {
    const Turno turno(carpeta);
    if (QFileInfo::exists(datos)) // another first start made it meanwhile
        return;
    if (turno.Solo())
        QuitarRestos(carpeta);
    QTemporaryDir temporal(QDir(carpeta).filePath(QStringLiteral("Datos.XXXXXX")));
    if (!temporal.isValid())
        throw ErrorDatos(errores::kAccesoRuta, QStringLiteral("No se pudo escribir en '%1'.").arg(carpeta));
    Llenar(temporal.path());
    QFile::setPermissions(temporal.path(), QFileInfo(carpeta).permissions());
    if (std::rename(QFile::encodeName(temporal.path()).constData(), QFile::encodeName(datos).constData()) ==
        0) {
        temporal.setAutoRemove(false);
        Sincronizar(carpeta);
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
