// Text as one byte for each character of the code page Windows-1252, as export and layout files hold it.
#pragma once

#include <QByteArray>
#include <QString>

namespace tarvo {

// A character that the code page lacks becomes "?".
QByteArray AWindows1252(const QString &texto);
QString DeWindows1252(const QByteArray &bytes);

} // namespace tarvo
