#include "documents/disenofactura.h"

namespace tarvo {

namespace {

const std::array<DatosCampo, kCamposFactura> &Campos() {
    static const std::array<DatosCampo, kCamposFactura> campos{{
        {"lblCliCodigo", QStringLiteral("Código Cliente"), 3840, 360, 1245, {255, 192, 192}},
        {"lblCliNombre", QStringLiteral("Nombre Cliente"), 3840, 720, 3645, {255, 192, 192}},
        {"lblCliIdFiscal", QStringLiteral("Id. Fiscal"), 3840, 1080, 1605, {255, 192, 192}},
        {"lblCliCFinal", QStringLiteral("C. Final"), 5640, 1080, 645, {255, 192, 192}},
        {"lblNComprobante", QStringLiteral("Nº Comprobante"), 8520, 240, 1605, {255, 128, 128}},
        {"lblTipoComprobante", QStringLiteral("Tipo Comprobante"), 8520, 600, 1605, {255, 128, 128}},
        {"lblFecha", QStringLiteral("Fecha"), 9000, 960, 1125, {128, 128, 255}},
        {"lblHora", QStringLiteral("Hora"), 9000, 1320, 1125, {128, 128, 255}},
        {"lblDetCodigo", QStringLiteral("Código Art."), 240, 1800, 1005, {0, 192, 0}},
        {"lblDetArticulo", QStringLiteral("Artículo"), 1500, 1800, 4305, {0, 192, 0}},
        {"lblDetPUnitario", QStringLiteral("P. Unitario"), 6120, 1800, 1125, {0, 192, 0}},
        {"lblDetCantidad", QStringLiteral("Cantidad"), 7560, 1800, 1125, {0, 192, 0}},
        {"lblDetSubtotal", QStringLiteral("Subtotal"), 9015, 1800, 1125, {0, 192, 0}},
        {"lblVendedor", QStringLiteral("Vendedor"), 240, 5700, 1605, {128, 255, 128}},
        {"lblDescuento", QStringLiteral("Descuento"), 5880, 5700, 1605, {192, 224, 255}},
        {"lblSubtotal", QStringLiteral("Subtotal"), 8760, 4560, 1365, {128, 192, 255}},
        {"lblImpuesto1", QStringLiteral("Impuesto 1"), 8760, 4845, 1365, {128, 192, 255}},
        {"lblImpuesto2", QStringLiteral("Impuesto 2"), 8760, 5130, 1365, {128, 192, 255}},
        {"lblTotal", QStringLiteral("Total"), 8760, 5415, 1365, {128, 192, 255}},
        {"lblTotalDesc", QStringLiteral("Total c/descuento"), 8760, 5700, 1365, {128, 192, 255}},
    }};
    return campos;
}

constexpr float kMargenLienzo = 240;

} // namespace

const DatosCampo &DatosDe(std::size_t campo) {
    return Campos().at(campo);
}

const DatosCampo &DatosDe(CampoFactura campo) {
    return DatosDe(static_cast<std::size_t>(campo));
}

DisenoFactura::DisenoFactura() : logo{true, kMargenLienzo, kMargenLienzo} {
    for (std::size_t i = 0; i < campos.size(); ++i)
        campos[i] = {true, static_cast<float>(DatosDe(i).left), static_cast<float>(DatosDe(i).top)};
    for (std::size_t i = 0; i < etiquetas.size(); ++i) {
        EtiquetaLibre &etiqueta = etiquetas[i];
        etiqueta.visible = false;
        const std::size_t columna = i / 10;
        etiqueta.left = kMargenLienzo + 240.0F * static_cast<float>(columna);
        etiqueta.top = 2400.0F + 240.0F * static_cast<float>(i % 10);
        etiqueta.ancho = 1125;
        etiqueta.texto = QStringLiteral("Pers");
    }
}

} // namespace tarvo
