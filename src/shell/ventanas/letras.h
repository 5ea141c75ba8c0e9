// The underlined letters of what is on screen, where the menu bar has the same ones.
#pragma once

class QKeySequence;
class QMenuBar;
class QWidget;

namespace tarvo {

// Works the one usable control below `raiz` that carries this letter, as its own shortcut would: a button is
// pressed, a label hands the focus to its field. False when none or more than one carries it.
bool PulsarLetra(const QWidget &raiz, const QKeySequence &letra);

// The menu bar takes the keyboard, as after Alt alone: a letter then opens its menu.
void EntrarAlMenu(QMenuBar &menu);

} // namespace tarvo
