#include "tienda/facturamuestra.h"

#include "documents/archivofactura.h"
#include "store/errordatos.h"

#include <QDir>
#include <QImage>
#include <QPainter>

namespace tarvo {

namespace {

struct Rotulo {
    const char *texto;
    int left;
    int top;
    bool negrita;
};

constexpr int kCliente = 4080; // where the customer's fields begin

// Shapes alone: the sample is made without a screen, and so without fonts.
QImage Logo() {
    QImage imagen(160, 90, QImage::Format_RGB32);
    imagen.fill(QColor(10, 36, 106));
    QPainter pintor(&imagen);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(QColor(255, 200, 60));
    pintor.drawEllipse(QPointF(80, 52), 26, 26);
    pintor.setBrush(QColor(195, 237, 255));
    for (const int x : {0, 40, 80, 120})
        pintor.drawEllipse(QRectF(x - 4, 62, 48, 40));
    return imagen;
}

// A label stands 30 twips above the value beside it, whose type is smaller: so they share their base line.
void PonerRotulos(DisenoFactura &diseno) {
    constexpr Rotulo rotulos[] = {
        {"LA ESQUINA DE ÑANDÚ", kCliente, 60, true},
        {"Código", 3240, 330, false},
        {"Cliente", 3120, 690, false},
        {"Id. Fiscal", 2760, 1050, false},
        {"CF", 5760, 1050, false},
        {"Nº", 8160, 210, false},
        {"Código", 240, 1680, true},
        {"Artículo", 1500, 1680, true},
        {"P. Unit.", 6285, 1680, true},
        {"Cantidad", 7725, 1680, true},
        {"Subtotal", 9180, 1680, true},
        {"Subtotal", 7440, 4530, false},
        {"IVA", 7440, 4815, false},
        {"Percepción", 7440, 5100, false},
        {"Total", 7440, 5385, false},
        {"A pagar", 7440, 5670, true},
        {"Descuento", 4440, 5670, false},
        {"Gracias por su compra", 240, 5940, false},
    };
    auto etiqueta = diseno.etiquetas.begin();
    for (const Rotulo &rotulo : rotulos) {
        etiqueta->visible = true;
        etiqueta->left = static_cast<float>(rotulo.left);
        etiqueta->top = static_cast<float>(rotulo.top);
        etiqueta->texto = QString::fromUtf8(rotulo.texto);
        etiqueta->ancho = static_cast<float>(120 * etiqueta->texto.size());
        etiqueta->negrita = rotulo.negrita;
        ++etiqueta;
    }
}

DisenoFactura Diseno() {
    DisenoFactura diseno;
    for (auto campo = static_cast<std::size_t>(CampoFactura::DetCodigo);
         campo <= static_cast<std::size_t>(CampoFactura::DetSubtotal); ++campo)
        diseno.campos[campo].top = 1980;
    constexpr float kCorrida = kCliente - 3840;
    for (auto campo = static_cast<std::size_t>(CampoFactura::CliCodigo);
         campo <= static_cast<std::size_t>(CampoFactura::CliIdFiscal); ++campo)
        diseno.campos[campo].left += kCorrida;
    diseno.campos[static_cast<std::size_t>(CampoFactura::CliCFinal)].left = 6120;
    diseno.campos[static_cast<std::size_t>(CampoFactura::Descuento)].left = 5640;
    PonerRotulos(diseno);
    return diseno;
}

} // namespace

QString HacerFacturaMuestra(const QString &carpeta) {
    const QDir dir(QDir(carpeta).absolutePath());
    const QString logo = dir.filePath(QStringLiteral("logo.bmp"));
    if (!dir.mkpath(QStringLiteral(".")) || !Logo().save(logo))
        throw ErrorDatos(errores::kAccesoRuta, QStringLiteral("No se puede escribir en %1.").arg(carpeta));
    const QString ruta = dir.filePath(QStringLiteral("muestra.kzd"));
    GuardarDiseno(ruta, Diseno(), logo, QDateTime::currentDateTime());
    return ruta;
}

} // namespace tarvo
