// The four nodes of the options tree: key, text, picture and the title of the panel that each one shows.
#pragma once

#include <QString>

#include <array>

namespace tarvo {

struct NodoOpciones {
    QString clave;
    QString texto; // the node of the categories reads "Artículos"
    QString imagen;
    QString panel; // objectName
    QString titulo;
};

inline const std::array<NodoOpciones, 4> &NodosOpciones() {
    static const std::array<NodoOpciones, 4> nodos{{
        {QStringLiteral("Impuestos"), QStringLiteral("Impuestos"), QStringLiteral("carpeta"),
         QStringLiteral("frImpuestos"), QStringLiteral("Configuración de impuestos")},
        {QStringLiteral("Categorías"), QStringLiteral("Artículos"), QStringLiteral("escritorio"),
         QStringLiteral("frCategorias"), QStringLiteral("Configuración de categorías")},
        {QStringLiteral("Vendedores"), QStringLiteral("Vendedores"), QStringLiteral("vendedores"),
         QStringLiteral("frVendedores"), QStringLiteral("Configuración de vendedores")},
        {QStringLiteral("Impresión"), QStringLiteral("Impresión"), QStringLiteral("impresion"),
         QStringLiteral("frImpresion"), QStringLiteral("Configuración de impresión")},
    }};
    return nodos;
}

inline constexpr int kNodoImpresion = 3;

} // namespace tarvo
