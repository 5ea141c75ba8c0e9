#include "shell/ventanas/barraestado.h"

#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/etiquetaelidida.h"
#include "shell/ventanas/etiquetaenlace.h"

namespace tarvo {

BarraEstado::BarraEstado(QWidget *padre)
    : QStatusBar(padre), fabricante(new EtiquetaEnlace(this)), separador(new EtiquetaElidida(this)) {
    setSizeGripEnabled(false);
    fabricante->setObjectName(QStringLiteral("fabricante"));
    fabricante->setText(QStringLiteral("Velbrina Software"));
    fabricante->setToolTip(QStringLiteral("Sitio web de Velbrina Software"));
    fabricante->PonerColores(colores::kTextoTenue, colores::kTitulo);
    connect(fabricante, &EtiquetaEnlace::Activada, this, &BarraEstado::FabricantePulsado);
    addWidget(fabricante);
    constexpr int kMargen = 8;
    separador->setObjectName(QStringLiteral("separador"));
    separador->setTextFormat(Qt::PlainText);
    separador->setContentsMargins(kMargen, 0, kMargen, 0);
    addWidget(separador);
    mayusculas = Panel("mayusculas", QStringLiteral("MAYÚS"), QStringLiteral("Mayúsculas"));
    numerico = Panel("numerico", QStringLiteral("NÚM"), QStringLiteral("Teclado numérico"));
    fecha = Panel("fecha", QStringLiteral("00/00/0000"), QStringLiteral("Fecha actual"));
}

QLabel *BarraEstado::Panel(const char *nombre, const QString &texto, const QString &ayuda) {
    auto *panel = new QLabel(texto, this);
    panel->setObjectName(QLatin1String(nombre));
    panel->setToolTip(ayuda);
    panel->setAlignment(Qt::AlignCenter);
    addWidget(panel, 1);
    return panel;
}

void BarraEstado::PermitirFoco(bool posible) {
    fabricante->setFocusPolicy(posible ? Qt::TabFocus : Qt::NoFocus);
}

void BarraEstado::PonerTexto(const QString &texto) {
    separador->setText(texto);
}

void BarraEstado::PonerAncho(int pixeles) {
    separador->PonerAncho(pixeles);
}

void BarraEstado::PonerTeclado(const EstadoTeclado &estado) {
    mayusculas->setEnabled(estado.mayusculas);
    numerico->setEnabled(estado.numerico);
}

void BarraEstado::PonerFecha(const QString &texto) {
    fecha->setText(texto);
}

} // namespace tarvo
