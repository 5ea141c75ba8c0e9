#include "desktop/ventanas/marcofoco.h"

#include "desktop/ventanas/estilo.h"

#include <QApplication>
#include <QFocusFrame>
#include <QPainter>
#include <QStyleOption>

namespace tarvo {

namespace {

constexpr int kGrueso = 2; // pixels, outside of the control

bool EsMarco(const QWidget *control) {
    return qobject_cast<const QFocusFrame *>(control) != nullptr;
}

} // namespace

void EstiloConMarco::drawPrimitive(PrimitiveElement elemento, const QStyleOption *opcion, QPainter *pintor,
                                   const QWidget *control) const {
    if (elemento != PE_FrameFocusRect)
        QProxyStyle::drawPrimitive(elemento, opcion, pintor, control);
}

void EstiloConMarco::drawControl(ControlElement elemento, const QStyleOption *opcion, QPainter *pintor,
                                 const QWidget *control) const {
    if (elemento != CE_FocusFrame) {
        QProxyStyle::drawControl(elemento, opcion, pintor, control);
        return;
    }
    constexpr double kMitad = kGrueso / 2.0;
    pintor->save();
    pintor->setRenderHint(QPainter::Antialiasing);
    pintor->setPen(QPen(colores::kTitulo, kGrueso));
    pintor->drawRoundedRect(QRectF(opcion->rect).adjusted(kMitad, kMitad, -kMitad, -kMitad), 4, 4);
    pintor->restore();
}

int EstiloConMarco::pixelMetric(PixelMetric medida, const QStyleOption *opcion,
                                const QWidget *control) const {
    if (EsMarco(control) && (medida == PM_FocusFrameHMargin || medida == PM_FocusFrameVMargin))
        return kGrueso;
    return QProxyStyle::pixelMetric(medida, opcion, control);
}

// Above the control, in the window itself: the frame of a group would cut the ring. Alt alone leads to the
// menu bar.
int EstiloConMarco::styleHint(StyleHint cual, const QStyleOption *opcion, const QWidget *control,
                              QStyleHintReturn *respuesta) const {
    if (cual == SH_FocusFrame_AboveWidget || cual == SH_MenuBar_AltKeyNavigation)
        return 1;
    return QProxyStyle::styleHint(cual, opcion, control, respuesta);
}

// The picture of a chosen row stays as dark as those of the others.
QPixmap EstiloConMarco::generatedIconPixmap(QIcon::Mode modo, const QPixmap &imagen,
                                            const QStyleOption *opcion) const {
    return modo == QIcon::Selected ? imagen : QProxyStyle::generatedIconPixmap(modo, imagen, opcion);
}

MarcoFoco::MarcoFoco(QApplication &aplicacion) : QObject(&aplicacion) {
    connect(&aplicacion, &QApplication::focusChanged, this,
            [this](const QWidget *, QWidget *ahora) { Seguir(ahora); });
}

void MarcoFoco::Retomar() {
    Seguir(nullptr);
    Seguir(QApplication::focusWidget());
}

void MarcoFoco::Seguir(QWidget *control) {
    if (marco_ == nullptr && control != nullptr && !control->isWindow())
        marco_ = new QFocusFrame(control);
    if (marco_ != nullptr)
        marco_->setWidget(control);
}

} // namespace tarvo
