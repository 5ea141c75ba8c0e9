// The operator's hands: a shown window, keys and clicks on controls that are found by their names. The usual
// controls come with it.
#pragma once

#include "testkit/imprimir.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace tarvo {

// The control of that objectName below `raiz`; throws when there is none, which fails the test.
template <typename T> T *Control(const QWidget &raiz, const char *nombre) {
    T *control = raiz.findChild<T *>(QString::fromUtf8(nombre));
    if (control == nullptr)
        throw std::runtime_error(std::string("no control ") + nombre);
    return control;
}

// Shows the window and waits until it has the keyboard.
inline void MostrarVentana(QWidget &ventana) {
    ventana.show();
    ventana.activateWindow();
    if (!QTest::qWaitForWindowActive(&ventana))
        throw std::runtime_error("the window did not become active");
}

// Types into the control; it gets the focus first, as by a click.
inline void Teclear(QWidget *control, const QString &texto) {
    control->setFocus(Qt::OtherFocusReason);
    for (const QChar letra : texto) {
        if (letra.unicode() < 0x80)
            QTest::keyClick(control, letra.toLatin1());
        else // an accented letter has no key of its own
            QTest::sendKeyEvent(QTest::Click, control, Qt::Key_unknown, QString(letra), Qt::NoModifier);
    }
}

inline void Tecla(QWidget *control, Qt::Key tecla, Qt::KeyboardModifiers modificadores = Qt::NoModifier) {
    QTest::keyClick(control, tecla, modificadores);
}

inline void Pulsar(QWidget *control) {
    QTest::mouseClick(control, Qt::LeftButton);
}

// Turns the wheel over the control one step down, as the window system does.
inline void Rueda(QWidget *control) {
    const QPointF centro = QRectF(control->rect()).center();
    QWheelEvent rueda(centro, control->mapToGlobal(centro), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&rueda);
    qApp->notify(control, &rueda);
}

// Name of the control that has the focus; empty when none has it.
inline QString ConFoco() {
    const QWidget *const control = QApplication::focusWidget();
    return control == nullptr ? QString() : control->objectName();
}

} // namespace tarvo
