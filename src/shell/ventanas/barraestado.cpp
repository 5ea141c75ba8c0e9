#include "shell/ventanas/barraestado.h"

#include "desktop/ventanas/estilo.h"
#include "shell/ventanas/etiquetaenlace.h"

#include <QPainter>
#include <QStyleOption>

namespace tarvo {

namespace {

constexpr int kMargen = 8;

} // namespace

// The hint panel: it asks for the width it was given and takes less when there is less.
class PanelSugerencia : public QLabel {
  public:
    using QLabel::QLabel;
    void PonerAncho(int pixeles) {
        ancho_ = pixeles;
        updateGeometry();
    }
    QSize sizeHint() const override { return {ancho_, QLabel::sizeHint().height()}; }
    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

  protected:
    void paintEvent(QPaintEvent *) override {
        QPainter pintor(this);
        QStyleOption opcion;
        opcion.initFrom(this);
        style()->drawPrimitive(QStyle::PE_Widget, &opcion, &pintor, this);
        const QRect zona = rect().adjusted(kMargen, 0, -kMargen, 0);
        pintor.drawText(zona, Qt::AlignVCenter | Qt::TextSingleLine,
                        fontMetrics().elidedText(text(), Qt::ElideRight, zona.width()));
    }

  private:
    int ancho_ = 0;
};

BarraEstado::BarraEstado(QWidget *padre)
    : QStatusBar(padre), fabricante(new EtiquetaEnlace(this)), separador(new PanelSugerencia(this)) {
    setSizeGripEnabled(false);
    fabricante->setObjectName(QStringLiteral("fabricante"));
    fabricante->setFocusPolicy(Qt::NoFocus); // the Tab key stays within the module
    fabricante->setText(QStringLiteral("Velbrina Software"));
    fabricante->setToolTip(QStringLiteral("Sitio web de Velbrina Software"));
    fabricante->PonerColores(colores::kTextoTenue, colores::kTitulo);
    connect(fabricante, &EtiquetaEnlace::Activada, this, &BarraEstado::FabricantePulsado);
    addWidget(fabricante);
    separador->setObjectName(QStringLiteral("separador"));
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

void BarraEstado::PonerTexto(const QString &texto) {
    separador->setText(texto);
    separador->setToolTip(texto);
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
