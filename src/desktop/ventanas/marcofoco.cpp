#include "desktop/ventanas/marcofoco.h"

#include "desktop/ventanas/estilo.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QFocusFrame>
#include <QMenuBar>
#include <QPainter>

namespace tarvo {

namespace {

constexpr int kGrueso = 2; // pixels, outside of the control

// What a scrolling parent lets be seen of what lies in it; empty for a parent that cuts nothing.
bool Recorta(const QWidget *parte) {
    const auto *area = qobject_cast<const QAbstractScrollArea *>(parte->parentWidget());
    return area != nullptr && area->viewport() == parte;
}

QRect EnVentana(const QWidget *parte) {
    return {parte->mapTo(parte->window(), QPoint()), parte->size()};
}

// A window as a whole needs no ring; a menu bar and a list that has opened show what is chosen in them.
bool MarcaLoSuyo(const QWidget &control) {
    return control.isWindow() || control.window()->windowType() == Qt::Popup ||
           qobject_cast<const QMenuBar *>(&control) != nullptr;
}

} // namespace

// A focus frame, so that neither the mouse nor a screen reader meets it.
class Anillo final : public QFocusFrame {
  public:
    using QFocusFrame::QFocusFrame;
    // The whole ring, and what can be seen of it, in the window.
    void Poner(const QRect &entero, const QRect &visto) {
        entero_ = entero.translated(-visto.topLeft());
        setGeometry(visto);
        setVisible(!visto.isEmpty());
        raise();
        update();
    }

  protected:
    void paintEvent(QPaintEvent *) override {
        constexpr double kMitad = kGrueso / 2.0;
        QPainter pintor(this);
        pintor.setRenderHint(QPainter::Antialiasing);
        pintor.setPen(QPen(colores::kTitulo, kGrueso));
        pintor.drawRoundedRect(QRectF(entero_).adjusted(kMitad, kMitad, -kMitad, -kMitad), 4, 4);
    }

  private:
    QRect entero_;
};

void EstiloConMarco::drawPrimitive(PrimitiveElement elemento, const QStyleOption *opcion, QPainter *pintor,
                                   const QWidget *control) const {
    if (elemento != PE_FrameFocusRect)
        QProxyStyle::drawPrimitive(elemento, opcion, pintor, control);
}

// Alt alone leads to the menu bar.
int EstiloConMarco::styleHint(StyleHint cual, const QStyleOption *opcion, const QWidget *control,
                              QStyleHintReturn *respuesta) const {
    return cual == SH_MenuBar_AltKeyNavigation ? 1 : QProxyStyle::styleHint(cual, opcion, control, respuesta);
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
    for (const QPointer<QWidget> &parte : std::as_const(camino_))
        if (parte != nullptr)
            parte->removeEventFilter(this);
    camino_.clear();
    control_ = control == nullptr || MarcaLoSuyo(*control) ? nullptr : control;
    for (QWidget *parte = control_; parte != nullptr;
         parte = parte->isWindow() ? nullptr : parte->parentWidget()) {
        parte->installEventFilter(this);
        camino_.append(parte);
    }
    if (control_ != nullptr && (anillo_ == nullptr || anillo_->parentWidget() != control_->window())) {
        delete anillo_;
        anillo_ = new Anillo(control_->window());
    }
    Colocar();
}

bool MarcoFoco::eventFilter(QObject *objeto, QEvent *evento) {
    switch (evento->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::StyleChange:
        Colocar();
        break;
    case QEvent::ParentChange:
        Seguir(control_);
        break;
    default:
        break;
    }
    return QObject::eventFilter(objeto, evento);
}

void MarcoFoco::Colocar() {
    if (anillo_ == nullptr)
        return;
    if (control_ == nullptr || !control_->isVisible())
        return anillo_->hide();
    const int fuera = control_->property("enMarca").toBool() ? 2 * kGrueso + 1 : kGrueso;
    const QRect entero = EnVentana(control_).adjusted(-fuera, -fuera, fuera, fuera);
    QRect visto = entero;
    for (const QPointer<QWidget> &parte : std::as_const(camino_))
        if (Recorta(parte))
            visto &= EnVentana(parte);
    anillo_->Poner(entero, visto);
}

} // namespace tarvo
