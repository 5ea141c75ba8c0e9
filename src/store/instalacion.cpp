#include "store/instalacion.h"

#include "store/errordatos.h"
#include "store/plantillas.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QTemporaryDir>

#include <cstdio>

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

// Makes `Datos` in a folder that has none: the last step gives the finished folder its name.
void Crear(const QString &carpeta, const QString &datos) {
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
    if (QFileInfo::exists(propia))
        return propia;
    try {
        Crear(carpetaPrograma, propia);
        return propia;
    } catch (const ErrorDatos &) {
        // The folder of the program can't be written; the one of the user takes its place.
    }
    if (!QFileInfo::exists(deUsuario)) {
        QDir().mkpath(carpetaUsuario);
        Crear(carpetaUsuario, deUsuario);
    }
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
