// The underlined letters of what is on screen, where the menu bar has the same ones.
#pragma once

class QKeyEvent;
class QKeySequence;
class QMenuBar;
class QObject;
class QWidget;

namespace tarvo {

// Works the one usable control below `raiz` that carries this letter, as its own shortcut would: a button is
// pressed, a label hands the focus to its field. False when none or more than one carries it.
bool PulsarLetra(const QWidget &raiz, const QKeySequence &letra);

// The menu bar takes the keyboard, as after Alt alone: a letter then opens its menu.
void EntrarAlMenu(QMenuBar &menu);

// The key came to `recibe`. A letter that several menus of the bar underline opens the next one of them, from
// the bar and from a menu that has no such entry; the toolkit finds none then. False: it is no such letter.
bool PasarDeMenu(QMenuBar &menu, const QObject *recibe, const QKeyEvent &tecla);

} // namespace tarvo
