// Fields that take some characters only, such as the digits.
#pragma once

#include <QString>

class QLineEdit;

namespace tarvo {

// From now on the keys of other characters than `permitidos` do nothing in the field. Text that comes in by
// another way (pasted, dropped, composed) and holds any other is refused whole, with the system's beep and a
// tooltip that says why. What stands in the field already may be anything and stays, as does what the program
// puts there.
void SoloCaracteres(QLineEdit *campo, const QString &permitidos);

} // namespace tarvo
