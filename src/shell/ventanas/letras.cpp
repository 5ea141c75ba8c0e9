#include "shell/ventanas/letras.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>

namespace tarvo {

namespace {

bool Usable(const QWidget *control) {
    return control != nullptr && control->isVisible() && control->isEnabled();
}

// What the letter would work: buttons, and the fields of labels that can be seen.
QList<QWidget *> ConLetra(const QWidget &raiz, const QKeySequence &letra) {
    QList<QWidget *> hallados;
    for (auto *boton : raiz.findChildren<QAbstractButton *>()) {
        if (Usable(boton) && boton->shortcut() == letra)
            hallados += boton;
    }
    for (const auto *rotulo : raiz.findChildren<QLabel *>()) {
        if (rotulo->isVisible() && Usable(rotulo->buddy()) && QKeySequence::mnemonic(rotulo->text()) == letra)
            hallados += rotulo->buddy();
    }
    return hallados;
}

QList<QAction *> ConLetra(QList<QAction *> entradas, const QKeySequence &letra) {
    entradas.removeIf(
        [&](const QAction *entrada) { return QKeySequence::mnemonic(entrada->text()) != letra; });
    return entradas;
}

} // namespace

bool PulsarLetra(const QWidget &raiz, const QKeySequence &letra) {
    const QList<QWidget *> hallados = ConLetra(raiz, letra);
    if (hallados.size() != 1)
        return false;
    QWidget *const control = hallados.constFirst();
    auto *const boton = qobject_cast<QAbstractButton *>(control);
    if (boton == nullptr || boton->shortcut() != letra)
        control->setFocus(Qt::ShortcutFocusReason);
    if (boton != nullptr)
        boton->click();
    return true;
}

// The toolkit has no call for it: the menu bar watches its window for these two events.
void EntrarAlMenu(QMenuBar &menu) {
    QKeyEvent baja(QEvent::ShortcutOverride, Qt::Key_Alt, Qt::NoModifier); // adds its own modifier
    QCoreApplication::sendEvent(menu.window(), &baja);
    QKeyEvent sube(QEvent::KeyRelease, Qt::Key_Alt, Qt::NoModifier);
    QCoreApplication::sendEvent(menu.window(), &sube);
}

bool PasarDeMenu(QMenuBar &menu, const QObject *recibe, const QKeyEvent &tecla) {
    QAction *const actual = menu.activeAction();
    const QKeySequence letra(QKeyCombination(Qt::AltModifier, static_cast<Qt::Key>(tecla.key())));
    const bool enMenu = actual != nullptr && recibe == actual->menu();
    if ((tecla.modifiers() & ~Qt::AltModifier) != 0 ||
        (recibe != &menu && (!enMenu || !ConLetra(actual->menu()->actions(), letra).isEmpty())))
        return false;
    const QList<QAction *> todas = ConLetra(menu.actions(), letra);
    if (todas.size() < 2)
        return false;
    menu.setActiveAction(todas.at((todas.indexOf(actual) + 1) % todas.size()));
    return true;
}

} // namespace tarvo
