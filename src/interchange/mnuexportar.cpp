#include "interchange/mnuexportar.h"

#include "desktop/preguntas.h"
#include "interchange/archivos.h"
#include "interchange/exportacion.h"
#include "interchange/tablaexportacion.h"
#include "store/store.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>

namespace tarvo {

namespace {

QString NoEsPosible() {
    return QStringLiteral(
        "No es posible continuar.\nAsegúrese de que el archivo no está abierto ni protegido "
        "contra escritura.");
}

// Until a name is picked that is free or may be replaced; empty when the operator cancels.
QString ElegirArchivo(Preguntas &preguntas) {
    const PedidoRuta pedido{
        .para = PedidoRuta::Para::Guardar,
        .titulo = QStringLiteral("Exportar..."),
        .filtro = QStringLiteral("Hoja de Microsoft Excel|*.xls|Archivo de texto separado por comas|*.txt"),
        .carpeta = QString()};
    while (true) {
        QString ruta = preguntas.ElegirRuta(pedido);
        if (!QFileInfo(ruta).isFile() ||
            preguntas.Confirma(QStringLiteral("\"%1\" ya existe.\nDesea reemplazarlo?").arg(ruta),
                               Respuesta::No))
            return ruta;
    }
}

// It can be renamed, and is: to its name with "vsw" behind it, and back.
bool SeRenombra(const QString &ruta) {
    const QByteArray nombre = QFile::encodeName(ruta);
    const QByteArray otro = nombre + "vsw";
    return !QFileInfo::exists(ruta + QStringLiteral("vsw")) &&
           std::rename(nombre.constData(), otro.constData()) == 0 &&
           std::rename(otro.constData(), nombre.constData()) == 0;
}

// A file that is not there is no obstacle. One without any permission to write is protected from the
// administrator too.
bool SePuedeReemplazar(const QString &ruta) {
    const QFileInfo archivo(ruta);
    if (!archivo.exists())
        return true;
    constexpr auto kEscritura = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    return archivo.isFile() && archivo.isWritable() && (archivo.permissions() & kEscritura) != 0 &&
           !EnUso(ruta) && SeRenombra(ruta);
}

// Has the disk begin with each piece at once, so that there is less to wait for at the end.
class ArchivoNuevo final : public QSaveFile {
  public:
    using QSaveFile::QSaveFile;

  protected:
    qint64 writeData(const char *datos, qint64 bytes) override {
        const qint64 escritos = QSaveFile::writeData(datos, bytes);
        AnunciarEscritura(handle());
        return escritos;
    }
};

template <typename Escritor> void Guardar(Preguntas &preguntas, const QString &ruta, Escritor escribir) {
    ArchivoNuevo archivo(ruta);
    if (!archivo.open(QIODevice::WriteOnly)) {
        preguntas.Mostrar(NoEsPosible(), Icono::Critico);
        return;
    }
    escribir(archivo);
    const bool escrito = archivo.flush();
    const bool lleno = archivo.error() == QFileDevice::ResourceError;
    if (!escrito)
        archivo.cancelWriting(); // the commit forgets what the flush could not write
    if (!archivo.commit())
        preguntas.Mostrar(QStringLiteral("No se pudo escribir \"%1\": %2.")
                              .arg(QFileInfo(ruta).fileName(), MotivoSistema(lleno ? ENOSPC : EIO)),
                          Icono::Critico);
}

} // namespace

void mnuExportar(Preguntas &preguntas, const FrmBases &bases, const Exportable &lo) {
    const QString ruta = ElegirArchivo(preguntas);
    if (ruta.isEmpty())
        return;
    if (bases.EsDeLosDatos(ruta) || !SePuedeReemplazar(ruta)) {
        preguntas.Mostrar(NoEsPosible(), Icono::Critico);
        return;
    }
    const TablaExportacion *const tabla = TablaDe(lo.nombre);
    const QString terminacion = ruta.right(3);
    if (tabla != nullptr && terminacion == QLatin1String("xls"))
        Guardar(preguntas, ruta, [&](QIODevice &salida) { EscribirHoja(salida, *tabla, lo); });
    else if (tabla != nullptr && terminacion == QLatin1String("txt"))
        Guardar(preguntas, ruta, [&](QIODevice &salida) { EscribirTexto(salida, *tabla, *lo.lista); });
    else
        QFile::remove(ruta); // the operator has let it go, and no other takes its place
}

} // namespace tarvo
