// Texts in the messages of a test that fails.
#pragma once

#include <QString>

#include <ostream>

inline void PrintTo(const QString &texto, std::ostream *salida) {
    *salida << '"' << texto.toStdString() << '"';
}
