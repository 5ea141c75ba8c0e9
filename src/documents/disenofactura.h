// The layout of a shop's invoice: where on the sheet each piece of an invoice goes, which pieces are shown,
// and the free labels that are added.
//
// All positions and widths are twips from the upper left corner of the sheet, 15 to a pixel of the canvas.
// Positions come from a file as they stand there and may lie anywhere. docs/papel.md tells the file.
#pragma once

#include "desktop/twips.h"

#include <QColor>
#include <QString>

#include <array>

namespace tarvo {

inline constexpr int kAnchoLienzo = 10430;
inline constexpr int kAltoLienzo = 6260;
inline constexpr int kAltoCampo = 240; // of fields and labels

// The twenty fixed fields, in the order of the file.
enum class CampoFactura {
    CliCodigo,
    CliNombre,
    CliIdFiscal,
    CliCFinal,
    NComprobante,
    TipoComprobante,
    Fecha,
    Hora,
    DetCodigo,
    DetArticulo,
    DetPUnitario,
    DetCantidad,
    DetSubtotal,
    Vendedor,
    Descuento,
    Subtotal,
    Impuesto1,
    Impuesto2,
    Total,
    TotalDesc,
};
inline constexpr std::size_t kCamposFactura = 20;
inline constexpr std::size_t kEtiquetasFactura = 30;

// What is fixed of a field.
struct DatosCampo {
    const char *control; // "lblCliCodigo"; the drag key is what stands behind "lbl"
    QString rotulo;      // caption on the canvas, sample on the test page, entry of the field list
    int left;
    int top;
    int ancho;
    QColor color;
};
const DatosCampo &DatosDe(CampoFactura campo);
const DatosCampo &DatosDe(std::size_t campo);

// A piece that can be moved and hidden.
struct Pieza {
    bool visible = true;
    float left = 0;
    float top = 0;
    bool operator==(const Pieza &) const = default;
};

// A free label. A hidden one is a free slot that keeps its last values.
struct EtiquetaLibre : Pieza {
    float ancho = 0;
    QString texto;
    int alineacion = 0; // 0 left, 1 right, 2 centred; a file may bring any other number
    bool negrita = false;
    bool cursiva = false;
    bool tachada = false;
    bool subrayada = false;
    bool operator==(const EtiquetaLibre &) const = default;
};

struct DisenoFactura {
    DisenoFactura(); // every field and the logo at their default places, no label shown

    const Pieza &De(CampoFactura campo) const { return campos[static_cast<std::size_t>(campo)]; }
    bool operator==(const DisenoFactura &) const = default;

    std::array<Pieza, kCamposFactura> campos;
    Pieza logo;
    std::array<EtiquetaLibre, kEtiquetasFactura> etiquetas;
};

} // namespace tarvo
