#include "interchange/respaldologica.h"

#include "desktop/preguntas.h"
#include "desktop/reloj.h"
#include "interchange/avance.h"
#include "interchange/reemplazo.h"
#include "interchange/respaldo.h"
#include "store/store.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <exception>

namespace tarvo {

namespace {

bool Ninguna(const Elegidas &elegidas) {
    return std::ranges::none_of(elegidas, [](bool elegida) { return elegida; });
}

QString ConBarra(const QString &ruta) {
    return ruta.isEmpty() || ruta.endsWith(QLatin1Char('/')) ? ruta : ruta + QLatin1Char('/');
}

// What an operation that did not come to its end has emptied; nothing when there is none.
QString AvisoVaciadas(const Elegidas &vaciadas) {
    QStringList nombres;
    for (std::size_t i = 0; i < kBases; ++i)
        if (vaciadas[i])
            nombres << BasesRespaldo()[i].nombre;
    return nombres.isEmpty() ? QString()
                             : QStringLiteral("\nYa se vaciaron, con su copia en el respaldo: %1.")
                                   .arg(nombres.join(QStringLiteral(", ")));
}

} // namespace

QString RespaldoLogica::RutaInicial() const {
    const QDir programa(QFileInfo(servicios_.frmBases.CarpetaDatos()).path());
    const QString ruta = programa.filePath(QStringLiteral("Respaldo"));
    return QFileInfo(ruta).isDir() ? ConBarra(ruta) : QString();
}

QString RespaldoLogica::ElegirCarpeta(const QString &titulo) {
    const QString escritorio = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    return ConBarra(servicios_.preguntas.ElegirRuta(
        {.para = PedidoRuta::Para::Carpeta,
         .titulo = titulo,
         .filtro = QString(),
         .carpeta = QFileInfo(escritorio).isDir() ? escritorio : QDir::homePath()}));
}

QString RespaldoLogica::ElegirCarpetaRespaldo() {
    return ElegirCarpeta(QStringLiteral("Seleccione la carpeta donde se guardará el respaldo"));
}

QString RespaldoLogica::ElegirCarpetaRecuperacion() {
    return ElegirCarpeta(QStringLiteral("Seleccione la carpeta donde se encuentran los respaldos"));
}

// Where there is no folder of templates nothing is said: the backup itself will tell.
bool RespaldoLogica::PuedeVaciar(std::size_t base) {
    const BaseRespaldo &una = BasesRespaldo()[base];
    const QDir vacio(QDir(servicios_.frmBases.CarpetaDatos()).filePath(QStringLiteral("vacio")));
    if (!vacio.exists())
        return true;
    if (!QFileInfo(vacio.filePath(una.archivo)).isFile()) {
        servicios_.preguntas.Mostrar(
            QStringLiteral("No se puede vaciar la base de datos de %1.\r\nNo se encuentra el archivo.")
                .arg(una.nombre),
            Icono::Critico);
        return false;
    }
    servicios_.preguntas.Informar(QStringLiteral(
        "Tenga en cuenta que después de realizar el respaldo de datos, se eliminarán todos los "
        "registros de las bases de datos marcadas para vaciar."));
    return true;
}

bool RespaldoLogica::PuedeRespaldar(const QString &ruta, const Elegidas &respaldar) {
    if (Ninguna(respaldar)) {
        servicios_.preguntas.Informar(
            QStringLiteral("Debe seleccionar al menos una base de datos a respaldar."));
        return false;
    }
    if (QFileInfo(ruta).isAbsolute())
        return true;
    servicios_.preguntas.Mostrar(QStringLiteral("No se encuentra la ruta \"%1\".").arg(ruta.left(80)),
                                 Icono::Critico);
    return false;
}

template <typename Operacion>
Desenlace RespaldoLogica::Ejecutar(Operacion operacion, const QString &completo,
                                   const QString &interrumpido) {
    cerradas_ = true;
    try {
        if (operacion() == Resultado::Completo)
            return {Fin::Completo, completo};
        return {Fin::Interrumpido, interrumpido};
    } catch (const std::exception &error) {
        return {Fin::Fallido, QString::fromUtf8(error.what())};
    }
}

Desenlace RespaldoLogica::Respaldar(const QString &ruta, const Elegidas &respaldar, const Elegidas &vaciar,
                                    Avance &avance) {
    const QString destino = ConBarra(ruta) + NombreRespaldo(servicios_.reloj.Ahora());
    Elegidas vaciadas{};
    Desenlace desenlace = Ejecutar(
        [&] {
            return tarvo::Respaldar(servicios_.frmBases, {destino, respaldar, vaciar}, avance, vaciadas);
        },
        QStringLiteral("El respaldo se realizó con éxito."),
        QStringLiteral("El respaldo se interrumpió: no se copiaron todos los archivos."));
    if (desenlace.fin != Fin::Completo)
        desenlace.texto += AvisoVaciadas(vaciadas);
    return desenlace;
}

QStringList RespaldoLogica::Respaldos(const QString &ruta) const {
    if (ruta.isEmpty())
        return {};
    return QDir(ruta).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

Elegidas RespaldoLogica::Recuperables(const QString &carpeta) const {
    Elegidas hay{};
    for (std::size_t i = 0; i < kBases; ++i)
        hay[i] = QFileInfo(QDir(carpeta).filePath(BasesRespaldo()[i].archivo)).isFile();
    return hay;
}

bool RespaldoLogica::PuedeRecuperar(bool hayRespaldos, const Elegidas &recuperar) {
    Preguntas &preguntas = servicios_.preguntas;
    if (!hayRespaldos) {
        preguntas.Informar(QStringLiteral("No hay respaldos en la carpeta seleccionada."));
        return false;
    }
    if (Ninguna(recuperar)) {
        preguntas.Informar(QStringLiteral("Debe seleccionar al menos una base de datos a recuperar."));
        return false;
    }
    return preguntas.Confirma(QStringLiteral("Al recuperar los datos anteriores se sobreescribirán los "
                                             "actuales.\r\nDesea continuar?"),
                              Respuesta::No);
}

Desenlace RespaldoLogica::Recuperar(const QString &carpeta, const Elegidas &recuperar, Avance &avance) {
    return Ejecutar(
        [&] {
            return tarvo::Recuperar(servicios_.frmBases, {carpeta, recuperar}, avance);
        },
        QStringLiteral("Los datos se han restaurado correctamente."),
        QStringLiteral("La recuperación se interrumpió: los datos no han cambiado."));
}

void RespaldoLogica::Reabrir() {
    if (!cerradas_)
        return;
    try {
        const ResultadoApertura abiertas = AbrirBases(servicios_.frmBases);
        cerradas_ = abiertas.estado == EstadoApertura::Bloqueada;
        if (abiertas.estado != EstadoApertura::Completa)
            servicios_.preguntas.Mostrar(QStringLiteral("No se pudieron abrir los datos. %1 %2")
                                             .arg(abiertas.archivo, abiertas.motivo),
                                         Icono::Critico);
    } catch (const std::exception &error) {
        servicios_.preguntas.Mostrar(
            QStringLiteral("No se pudieron abrir los datos. %1").arg(QString::fromUtf8(error.what())),
            Icono::Critico);
    }
}

} // namespace tarvo
