// The commands of the designer that read and write files and print.
#include "documents/archivofactura.h"
#include "documents/archivos.h"
#include "documents/disenador.h"

#include "desktop/almacenar.h"
#include "desktop/reloj.h"
#include "documents/impresoras.h"
#include "documents/superficie.h"
#include "store/errordatos.h"
#include "store/store.h"

#include <QDir>
#include <QFileInfo>

#include <exception>

namespace tarvo {

namespace {

const QString kFiltroFacturas = QStringLiteral("Facturas Velbrina|*.kzd");
const QString kFiltroImagenes = QStringLiteral("Todas las imágenes|*.jpg;*.jpeg;*.bmp;*.gif");

// Empty too when the table can't be read.
QString RutaGuardada(FrmBases &bases) {
    try {
        bases.datFactura.MoveFirst();
        return bases.camFacRutaFactura.Texto();
    } catch (const ErrorDatos &) {
        return {};
    }
}

} // namespace

void Disenador::CargarInicial() {
    const QString ruta = RutaGuardada(servicios_.frmBases);
    if (ruta.isEmpty())
        return;
    nombreDialogo_ = ruta;
    FormularioFactura leido = estado_.formulario;
    try {
        CargarFormulario(ruta, leido);
    } catch (const ErrorDatos &error) {
        servicios_.preguntas.Mostrar(
            QStringLiteral("No se pudo abrir la factura \"%1\".\n%2").arg(ruta, error.Descripcion()),
            Icono::Critico);
        return;
    }
    estado_.formulario = leido;
    emit Cambiado();
}

// A folder that can't be made lets the dialog start where the system likes.
QString Disenador::CarpetaFacturas() const {
    QDir().mkpath(carpetaFacturas_);
    return carpetaFacturas_;
}

// What was read before a failure stays, and can be undone like any step.
void Disenador::Abrir() {
    nombreDialogo_ = servicios_.preguntas.ElegirRuta(
        {PedidoRuta::Para::Abrir, QStringLiteral("Abrir factura..."), kFiltroFacturas, CarpetaFacturas()});
    if (nombreDialogo_.isEmpty())
        return;
    const Estado antes = estado_;
    bool leida = false;
    try {
        CargarFormulario(nombreDialogo_, estado_.formulario);
        leida = true;
    } catch (const ErrorDatos &error) {
        emit Cambiado();
        AvisarLectura(servicios_.preguntas, error);
    }
    Anotar(QStringLiteral("Abrir factura"), antes);
    if (leida)
        GuardarRuta(nombreDialogo_);
}

// The question is put when the dialog gives the bare name of an existing file. It gives full paths, so that
// it seldom is: the file of that name is replaced. Shops work with it as it is.
bool Disenador::AceptaReemplazo() {
    const QFileInfo archivo(nombreDialogo_);
    if (!archivo.isFile() || archivo.fileName() != nombreDialogo_)
        return true;
    return servicios_.preguntas.Confirma(
        QStringLiteral("\"%1\" ya existe.\n\nDesea reemplazarlo?").arg(nombreDialogo_), Respuesta::No);
}

// A name that isn't to be replaced begins the whole save again, and what that one leaves as the name is
// written once more here.
void Disenador::Guardar() {
    nombreDialogo_ =
        servicios_.preguntas.ElegirRuta({PedidoRuta::Para::Guardar, QStringLiteral("Guardar factura..."),
                                         kFiltroFacturas, CarpetaFacturas()});
    if (!nombreDialogo_.isEmpty() && !AceptaReemplazo()) {
        nombreDialogo_.clear();
        Guardar();
    }
    if (!nombreDialogo_.isEmpty())
        Escribir();
}

void Disenador::AvisarSinAcceso() {
    servicios_.preguntas.Mostrar(
        QStringLiteral("Asegúrese de que el archivo no está abierto ni protegido contra escritura.\n"
                       "No es posible continuar."),
        Icono::Critico);
}

void Disenador::Escribir() {
    if (servicios_.frmBases.EsDeLosDatos(nombreDialogo_)) {
        AvisarSinAcceso();
        return;
    }
    try {
        GuardarDiseno(nombreDialogo_, Diseno(), estado_.rutaLogo, servicios_.reloj.Ahora());
    } catch (const ErrorDatos &error) {
        if (error.Numero() == errores::kAccesoRuta)
            AvisarSinAcceso();
        else
            emit NoGuardado(error.Motivo());
        return;
    }
    GuardarRuta(nombreDialogo_);
}

void Disenador::GuardarRuta(const QString &ruta) {
    FrmBases &bases = servicios_.frmBases;
    const auto escribir = [&] {
        bases.datFactura.MoveFirst();
        bases.camFacRutaFactura = ruta;
        bases.datFactura.Refresh();
    };
    Almacenar(bases, servicios_.preguntas, {QStringLiteral("Factura"), ruta}, escribir,
              QStringLiteral("La factura \"%1\" no quedó en uso.").arg(ruta));
}

// Nothing when the operator cancels or picks what is no picture.
std::optional<QImage> Disenador::PedirImagen(const QString &titulo, QString &ruta) {
    ruta = servicios_.preguntas.ElegirRuta({PedidoRuta::Para::Abrir, titulo, kFiltroImagenes, {}});
    if (ruta.isEmpty())
        return std::nullopt;
    try {
        return CargarImagen(ruta);
    } catch (const ErrorDatos &) {
        servicios_.preguntas.Mostrar(QStringLiteral("La imagen seleccionada no es válida."), Icono::Critico);
        return std::nullopt;
    }
}

void Disenador::ElegirLogo() {
    QString ruta;
    const auto imagen = PedirImagen(QStringLiteral("Seleccione una imagen (160 x 90) pixels"), ruta);
    if (!imagen)
        return;
    Hacer(QStringLiteral("Seleccionar imagen"), [&] {
        estado_.formulario.logo = *imagen;
        estado_.formulario.diseno.logo.visible = true;
        estado_.rutaLogo = ruta;
    });
}

void Disenador::ElegirFondo() {
    QString ruta;
    if (const auto imagen =
            PedirImagen(QStringLiteral("Seleccione una imagen de fondo para prueba..."), ruta)) {
        fondo_ = *imagen;
        emit FondoCambiado();
    }
}

void Disenador::Imprimir() {
    if (!hayImpresoras_) {
        servicios_.preguntas.Informar(
            QStringLiteral("No es posible imprimir la factura. No hay impresoras instaladas."));
        return;
    }
    try {
        const auto papel =
            servicios_.impresoras.NuevoDocumento(ClasePapel::Formulario, QStringLiteral("Factura de prueba"));
        ImprimirPruebaFactura(*papel, estado_.formulario);
    } catch (const std::exception &error) {
        servicios_.preguntas.Mostrar(
            QStringLiteral("No se pudo imprimir la prueba. %1").arg(QString::fromUtf8(error.what())),
            Icono::Critico);
    }
}

} // namespace tarvo
