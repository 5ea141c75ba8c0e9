#include "shell/ventanas/etiquetaenlace.h"

#include "desktop/ventanas/ritmoteclas.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace tarvo {

EtiquetaEnlace::EtiquetaEnlace(QWidget *padre) : QLabel(padre) {
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    Pintar(normal_);
}

void EtiquetaEnlace::PonerColores(const QColor &normal, const QColor &encima) {
    normal_ = normal;
    encima_ = encima;
    Pintar(normal_);
}

// The program's style sheet colours labels, so the palette alone would not show.
void EtiquetaEnlace::Pintar(const QColor &color) {
    setStyleSheet(QStringLiteral("color: %1;").arg(color.name()));
}

void EtiquetaEnlace::enterEvent(QEnterEvent *evento) {
    Pintar(encima_);
    QLabel::enterEvent(evento);
}

void EtiquetaEnlace::leaveEvent(QEvent *evento) {
    Pintar(normal_);
    QLabel::leaveEvent(evento);
}

void EtiquetaEnlace::mousePressEvent(QMouseEvent *evento) {
    presionada_ = evento->button() == Qt::LeftButton;
    evento->accept();
}

void EtiquetaEnlace::mouseReleaseEvent(QMouseEvent *evento) {
    const bool activa = presionada_ && rect().contains(evento->position().toPoint());
    presionada_ = false;
    if (activa)
        emit Activada();
}

void EtiquetaEnlace::keyPressEvent(QKeyEvent *evento) {
    const int tecla = evento->key();
    if (EsEntrar(tecla) || tecla == Qt::Key_Space)
        emit Activada();
    else
        QLabel::keyPressEvent(evento);
}

} // namespace tarvo
