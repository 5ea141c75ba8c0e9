#include "desktop/ventanas/girador.h"

#include "desktop/ventanas/estilo.h"
#include "store/moneda.h"

#include <QAccessible>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>

namespace tarvo {

namespace {

constexpr double kDemasiado = 1e15; // whole numbers up to here are exact

qint64 NumeroDe(const QString &texto) {
    return qint64(std::min(Moneda::NumeroNeutro(texto), kDemasiado));
}

} // namespace

Girador::Girador(QWidget *padre) : QAbstractSlider(padre) {
    setOrientation(Qt::Vertical);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    setSingleStep(1);
    // A step counts from the number in the field, which may lie where the control can't follow.
    connect(this, &QAbstractSlider::actionTriggered, this, [this](int accion) {
        if (accion == SliderSingleStepSub || accion == SliderSingleStepAdd)
            Paso(accion == SliderSingleStepSub ? 1 : -1);
    });
}

void Girador::Acompanar(QLineEdit *campo, int minimo, int maximo) {
    campo_ = campo;
    setRange(-maximo, -minimo);
    setAccessibleName(QAccessible::queryAccessibleInterface(campo)->text(QAccessible::Name));
    connect(campo, &QLineEdit::textChanged, this, &Girador::Seguir);
    connect(this, &QAbstractSlider::valueChanged, campo,
            [this] { campo_->setText(QString::number(-value())); });
    campo->installEventFilter(this);
    setEnabled(campo->isEnabled());
    Seguir();
}

bool Girador::eventFilter(QObject *, QEvent *evento) {
    if (evento->type() == QEvent::EnabledChange)
        setEnabled(campo_->isEnabled());
    return false;
}

void Girador::Seguir() {
    const QSignalBlocker sinAviso(this); // the limits of the arrows must not be written back over typed text
    setValue(-int(std::min<qint64>(NumeroDe(campo_->text()), -minimum())));
    update();
}

void Girador::Paso(int paso) {
    const qint64 numero = NumeroDe(campo_->text());
    if (paso > 0 ? numero != -minimum() : numero > -maximum())
        campo_->setText(QString::number(numero + paso));
    Seguir();
}

QSize Girador::sizeHint() const {
    return {fontMetrics().height() + 4, 0};
}

void Girador::PintarFlecha(QPainter &pintor, const QRect &zona, bool arriba) {
    const SliderAction accion = arriba ? SliderSingleStepSub : SliderSingleStepAdd;
    if (pulsada_ == accion)
        pintor.fillRect(zona, colores::kPresionado);
    const double mitad = std::min(zona.width(), zona.height()) / 4.0 + 0.5;
    const double alto = arriba ? -mitad / 2 : mitad / 2;
    const QPointF centro = QRectF(zona).center();
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(isEnabled() ? colores::kTitulo : colores::kLineas);
    pintor.drawPolygon(QPolygonF(
        {centro + QPointF(-mitad, -alto), centro + QPointF(mitad, -alto), centro + QPointF(0, alto)}));
}

void Girador::paintEvent(QPaintEvent *) {
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(colores::kLineas);
    pintor.setBrush(Qt::white);
    pintor.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    const QRect dentro = rect().adjusted(1, 1, -1, -1);
    PintarFlecha(pintor, dentro.adjusted(0, 0, 0, -dentro.height() / 2), true);
    PintarFlecha(pintor, dentro.adjusted(0, dentro.height() / 2, 0, 0), false);
}

void Girador::mousePressEvent(QMouseEvent *evento) {
    if (evento->button() != Qt::LeftButton)
        return;
    pulsada_ = evento->position().y() < height() / 2.0 ? SliderSingleStepSub : SliderSingleStepAdd;
    triggerAction(pulsada_);
    setRepeatAction(pulsada_);
    update();
}

void Girador::mouseReleaseEvent(QMouseEvent *) {
    pulsada_ = SliderNoAction;
    setRepeatAction(SliderNoAction);
    update();
}

// Only the number that is being edited is wheeled.
void Girador::wheelEvent(QWheelEvent *evento) {
    evento->ignore();
    if (!campo_->hasFocus())
        return;
    if (evento->angleDelta().y() != 0)
        triggerAction(evento->angleDelta().y() > 0 ? SliderSingleStepSub : SliderSingleStepAdd);
    evento->accept();
}

} // namespace tarvo
