#include "documents/ventanas/piezalienzo.h"

#include <QMouseEvent>

namespace tarvo {

namespace {

QPoint Direccion(int tecla) {
    switch (tecla) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

} // namespace

PiezaLienzo::PiezaLienzo(int numero, QWidget *lienzo) : QLabel(lienzo), numero_(numero) {
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::SizeAllCursor);
    setAutoFillBackground(true);
}

void PiezaLienzo::mousePressEvent(QMouseEvent *evento) {
    if (evento->button() != Qt::LeftButton)
        return;
    raise();
    tomada_ = true;
}

void PiezaLienzo::mouseMoveEvent(QMouseEvent *evento) {
    if (tomada_)
        emit Arrastrada(evento->globalPosition());
}

void PiezaLienzo::mouseReleaseEvent(QMouseEvent *evento) {
    if (evento->button() != Qt::LeftButton || !tomada_)
        return;
    tomada_ = false;
    emit Soltada();
}

void PiezaLienzo::mouseDoubleClickEvent(QMouseEvent *evento) {
    if (evento->button() == Qt::LeftButton)
        emit DobleClic();
}

void PiezaLienzo::keyPressEvent(QKeyEvent *evento) {
    const QPoint direccion = Direccion(evento->key());
    if (!direccion.isNull())
        emit Empujada(direccion * (evento->modifiers().testFlag(Qt::ControlModifier) ? 10 : 1));
    else if (evento->key() == Qt::Key_Delete)
        emit Suprimida();
    else
        QLabel::keyPressEvent(evento);
}

void PiezaLienzo::focusInEvent(QFocusEvent *evento) {
    QLabel::focusInEvent(evento);
    emit Enfocada(true);
}

void PiezaLienzo::focusOutEvent(QFocusEvent *evento) {
    QLabel::focusOutEvent(evento);
    emit Enfocada(false);
}

} // namespace tarvo
