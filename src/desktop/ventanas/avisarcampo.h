// What a field says of a key or a text that it doesn't take as it came.
#pragma once

class QString;
class QWidget;

namespace tarvo {

// Beeps, and shows a tooltip below the field once the focus is where it goes: its move would hide it.
void AvisarCampo(QWidget *campo, const QString &texto);

} // namespace tarvo
