#include "documents/ventanas/impresorassistema.h"

#include "desktop/reloj.h"
#include "documents/impresorapdf.h"
#include "documents/superficiepintada.h"
#include "store/errordatos.h"

#include <QPrinter>
#include <QPrinterInfo>
#include <QtMath>

#include <algorithm>
#include <utility>

namespace tarvo {

namespace {

constexpr double kMargen = 4; // millimetres, or what the printer can't print on

QString NombrePdf() {
    return QString::fromLatin1(kImpresoraPdf);
}

QString NombreVisible(const QString &dispositivo) {
    return dispositivo == NombrePdf() ? QStringLiteral("PDF (sistema)") : dispositivo;
}

// Device name of an installed printer; throws when it isn't installed any more.
QString Dispositivo(const QString &visible) {
    for (const QString &dispositivo : QPrinterInfo::availablePrinterNames())
        if (NombreVisible(dispositivo) == visible)
            return dispositivo;
    throw ErrorDatos(errores::kImpresora,
                     QStringLiteral("La impresora \"%1\" no está instalada.").arg(visible));
}

// What the printer can't print on, around its own paper.
QMarginsF Minimos(const QPrinter &impresora, QPageLayout::Unit unidad) {
    QPageLayout hoja = impresora.pageLayout();
    hoja.setUnits(unidad);
    return hoja.minimumMargins();
}

// As much of the printer's own paper as it can print on.
void Aprovechar(QPrinter &impresora) {
    const QMarginsF minimos = Minimos(impresora, QPageLayout::Millimeter);
    impresora.setPageMargins({std::max(kMargen, minimos.left()), std::max(kMargen, minimos.top()),
                              std::max(kMargen, minimos.right()), std::max(kMargen, minimos.bottom())},
                             QPageLayout::Millimeter);
}

// The whole sheet, also what the printer can't reach.
Formulario HojaEntera(QPrinter &impresora) {
    constexpr int kTwipsPorPunto = 20;
    const QMarginsF minimos = Minimos(impresora, QPageLayout::Point);
    impresora.setFullPage(true);
    return {qCeil(minimos.left() * kTwipsPorPunto), qCeil(minimos.top() * kTwipsPorPunto)};
}

std::unique_ptr<Superficie> EnSistema(const QString &dispositivo, ClasePapel clase, const QString &titulo) {
    auto impresora = std::make_unique<QPrinter>(QPrinter::HighResolution);
    impresora->setPrinterName(dispositivo);
    impresora->setDocName(titulo);
    impresora->setCreator(QStringLiteral("Tarvo"));
    const auto alTerminar = [&cola = *impresora] {
        if (cola.printerState() == QPrinter::Error)
            throw ErrorDatos(errores::kImpresora, QStringLiteral("La impresora informa un error."));
    };
    if (clase == ClasePapel::Formulario) {
        const Formulario formulario = HojaEntera(*impresora);
        return std::make_unique<SuperficiePintada>(std::move(impresora), formulario, alTerminar);
    }
    Aprovechar(*impresora);
    return std::make_unique<SuperficiePintada>(std::move(impresora), RejillaDe(clase), alTerminar);
}

} // namespace

ImpresorasSistema::ImpresorasSistema(const Reloj &reloj, QString carpetaImpresos)
    : reloj_(reloj),
      carpetaImpresos_(std::move(carpetaImpresos)),
      actual_(NombreVisible(QPrinterInfo::defaultPrinterName())) {
    if (!Nombres().contains(actual_))
        actual_ = NombrePdf();
}

QStringList ImpresorasSistema::Nombres() const {
    QStringList nombres;
    for (const QString &dispositivo : QPrinterInfo::availablePrinterNames())
        nombres << NombreVisible(dispositivo);
    return nombres << NombrePdf();
}

void ImpresorasSistema::HacerActual(const QString &nombre) {
    if (Nombres().contains(nombre))
        actual_ = nombre;
}

std::unique_ptr<Superficie> ImpresorasSistema::NuevoDocumento(ClasePapel clase, const QString &titulo) {
    if (actual_ == NombrePdf())
        return NuevoDocumentoPdf(carpetaImpresos_, clase, titulo, reloj_.Ahora());
    return EnSistema(Dispositivo(actual_), clase, titulo);
}

} // namespace tarvo
