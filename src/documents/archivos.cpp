#include "documents/archivos.h"

#include "store/errordatos.h"

#include <QFileInfo>
#include <QImageReader>

// Outside of the namespace, as the macro asks: the picture lies in a static library.
static void RegistrarRecursos() {
    Q_INIT_RESOURCE(documentos);
}

namespace tarvo {

namespace {

constexpr qint64 kPixelesMaximos = 50'000'000; // 200 MB as an image

[[noreturn]] void FallarApertura(const QFile &archivo) {
    const QFileInfo info(archivo.fileName());
    if (!QFileInfo(info.absolutePath()).isDir())
        throw ErrorDatos(errores::kRutaNoEncontrada,
                         QStringLiteral("No se ha encontrado la ruta de acceso."));
    if (!info.exists())
        throw ErrorDatos(errores::kArchivoNoEncontrado, QStringLiteral("No se ha encontrado el archivo."));
    throw ErrorDatos(errores::kAccesoRuta, QStringLiteral("Error de acceso a la ruta o al archivo."));
}

} // namespace

std::unique_ptr<QFile> AbrirParaLeer(const QString &ruta) {
    auto archivo = std::make_unique<QFile>(ruta);
    if (!QFileInfo(ruta).isFile() || !archivo->open(QIODevice::ReadOnly))
        FallarApertura(*archivo);
    return archivo;
}

QImage CargarImagen(const QString &ruta) {
    const auto archivo = AbrirParaLeer(ruta);
    QImageReader lector(archivo.get());
    lector.setDecideFormatFromContent(true);
    const QSize tamano = lector.size();
    QImage imagen;
    if (qint64(tamano.width()) * tamano.height() <= kPixelesMaximos)
        imagen = lector.read();
    if (imagen.isNull())
        throw ErrorDatos(errores::kImagenInvalida, QStringLiteral("La imagen no es válida."));
    return imagen;
}

QImage LogoIncorporado() {
    RegistrarRecursos();
    return QImage(QStringLiteral(":/documentos/logo.png"));
}

} // namespace tarvo
