#include "desktop/ventanas/teclasostenida.h"

#include "desktop/escaner.h"

#include <QKeyEvent>

namespace tarvo {

bool TeclaSostenida::eventFilter(QObject *objeto, QEvent *evento) {
    if (!objeto->isWindowType()) // where the keys come from the system
        return false;
    const auto tecla = [evento] { return static_cast<const QKeyEvent *>(evento); };
    switch (evento->type()) {
    case QEvent::ShortcutOverride: // taken, so that it is no shortcut either
    case QEvent::KeyPress:
        if (!Sobra(objeto, *tecla()))
            return false;
        evento->accept();
        return true;
    case QEvent::KeyRelease:
        if (tecla()->key() == tecla_ && !tecla()->isAutoRepeat())
            hasta_ = tecla()->timestamp();
        return false;
    default:
        return false;
    }
}

bool TeclaSostenida::Sobra(QObject *ventana, const QKeyEvent &tecla) {
    const bool sigue = tecla.isAutoRepeat() || tecla.timestamp() == hasta_;
    if (tecla.key() != tecla_ || !sigue || tecla.timestamp() == 0) {
        tecla_ = tecla.key();
        ventana_ = ventana;
        desde_ = tecla.timestamp();
        hasta_ = 0;
        perdida_ = false;
        return false;
    }
    if (tecla.timestamp() - desde_ < kEsperaRepeticion) {
        desde_ = tecla.timestamp(); // of a run of equal figures each begins anew
        return false;
    }
    perdida_ |= ventana != ventana_;
    return perdida_ || !tecla.isAutoRepeat();
}

} // namespace tarvo
