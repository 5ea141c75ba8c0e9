#include "desktop/ventanas/estilo.h"

#include "desktop/ventanas/acceso.h"
#include "desktop/ventanas/iconos.h"
#include "desktop/ventanas/marcofoco.h"
#include "desktop/ventanas/tamano.h"

#include <QApplication>
#include <QFile>
#include <QPalette>
#include <QStyleFactory>
#include <QWidget>

namespace tarvo {

namespace {

QPalette PaletaClara() {
    using namespace colores;
    QPalette paleta(kFondo);
    for (const auto &[papel, color] : std::initializer_list<std::pair<QPalette::ColorRole, QColor>>{
             {QPalette::Window, kFondo},
             {QPalette::WindowText, kTexto},
             {QPalette::Base, Qt::white},
             {QPalette::AlternateBase, kSegundaFila},
             {QPalette::Text, kTexto},
             {QPalette::Button, QColor(249, 250, 253)},
             {QPalette::ButtonText, kTexto},
             {QPalette::BrightText, Qt::white},
             {QPalette::ToolTipBase, Qt::white},
             {QPalette::ToolTipText, kTexto},
             {QPalette::PlaceholderText, kTextoTenue},
             {QPalette::Highlight, kPresionado},
             {QPalette::HighlightedText, kTexto},
             {QPalette::Link, kTitulo},
             {QPalette::LinkVisited, kTitulo},
         })
        paleta.setColor(papel, color);
    for (const QPalette::ColorRole papel :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        paleta.setColor(QPalette::Disabled, papel, kTextoTenue);
    paleta.setColor(QPalette::Disabled, QPalette::Highlight, kPresionadoTenue);
    return paleta;
}

} // namespace

void AplicarEstilo(QApplication &aplicacion) {
    // The first picture asked for registers the resources, the style sheet among them.
    aplicacion.setWindowIcon(IconoDe(QStringLiteral("tarvo")));
    QApplication::setStyle(new EstiloConMarco(QStyleFactory::create(QStringLiteral("Fusion"))));
    QApplication::setPalette(PaletaClara());
    QFile hoja(QStringLiteral(":/estilo.qss"));
    hoja.open(QIODevice::ReadOnly); // compiled in
    const auto *tamano = new Tamano(aplicacion, QString::fromUtf8(hoja.readAll()));
    auto *marco = new MarcoFoco(aplicacion);
    QObject::connect(tamano, &Tamano::Cambiado, marco, &MarcoFoco::Retomar, Qt::QueuedConnection);
    PrepararAcceso();
}

void Marcar(QWidget *control, const char *propiedad, bool si) {
    if (control->property(propiedad).toBool() == si)
        return;
    control->setProperty(propiedad, si);
    control->style()->unpolish(control);
    control->style()->polish(control);
}

} // namespace tarvo
