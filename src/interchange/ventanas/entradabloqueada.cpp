#include "interchange/ventanas/entradabloqueada.h"

#include <QApplication>
#include <QKeyEvent>

namespace tarvo {

EntradaBloqueada::EntradaBloqueada() {
    qApp->installEventFilter(this);
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

EntradaBloqueada::~EntradaBloqueada() {
    QApplication::restoreOverrideCursor();
}

bool EntradaBloqueada::eventFilter(QObject *, QEvent *evento) {
    switch (evento->type()) {
    case QEvent::KeyPress:
        salidaPedida_ |= static_cast<QKeyEvent *>(evento)->key() == Qt::Key_Escape;
        return true;
    case QEvent::Close:
        salidaPedida_ = true;
        evento->ignore();
        return true;
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
        return true;
    default:
        return false;
    }
}

} // namespace tarvo
