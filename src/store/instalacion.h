// The folder of the data: where it lies, and how it comes to be on a first start.
#pragma once

#include "store/moneda.h"

#include <QSettings>
#include <QString>

namespace tarvo {

// The folder `Datos` to work on: the one beside the program when it exists or can be made there, else the one
// of the per-user data folder. Makes it, with its templates in `vacio`, when there is none: whole or not at
// all, and never inside a folder that exists. Throws ErrorDatos(kAccesoRuta) when neither place can be
// written.
QString PrepararDatos(const QString &carpetaPrograma, const QString &carpetaUsuario);

// Separator and symbol: the settings "sDecimal" and "sCurrency" when they are set, else the locale of the
// process, else (the C locale tells nothing) "," and "$".
Moneda LeerRegional(const QSettings &ajustes);

} // namespace tarvo
