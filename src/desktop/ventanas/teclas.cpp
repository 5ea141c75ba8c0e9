#include "desktop/ventanas/teclas.h"

#include <QAbstractButton>
#include <QAction>

namespace tarvo {

// An action and not the button's own shortcut: that one presses it a moment later, when the next key is
// there.
void PonerTecla(QAbstractButton *boton, const QKeySequence &tecla) {
    auto *accion = new QAction(boton);
    accion->setShortcut(tecla);
    accion->setAutoRepeat(false);
    boton->addAction(accion); // so it sleeps while the button is hidden or disabled
    QObject::connect(accion, &QAction::triggered, boton, &QAbstractButton::click);
    const QString texto = boton->toolTip().isEmpty() ? boton->text() : boton->toolTip();
    boton->setToolTip(QStringLiteral("%1 (%2)").arg(QString(texto).remove(QLatin1Char('&')),
                                                    tecla.toString(QKeySequence::NativeText)));
}

} // namespace tarvo
