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

void PonerRotulos(DisenoFactura &diseno) {
    constexpr Rotulo rotulos[] = {
        {"LA ESQUINA DE ÑANDÚ", 3840, 60, true},
        {"Cliente", 2940, 720, false},
        {"Código", 3060, 360, false},
        {"Id. Fiscal", 2640, 1080, false},
        {"CF", 5430, 1080, false},
        {"Nº", 8160, 240, false},
        {"Código", 240, 1680, true},
        {"Artículo", 1500, 1680, true},
        {"P. Unit.", 6285, 1680, true},
        {"Cantidad", 7725, 1680, true},
        {"Subtotal", 9180, 1680, true},
        {"Subtotal", 7560, 4560, false},
        {"IVA", 7560, 4845, false},
        {"Percepción", 7560, 5130, false},
        {"Total", 7560, 5415, false},
        {"A pagar", 7560, 5700, true},
        {"Descuento", 4740, 5700, false},
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
