// The folder of the data: where it lies, and how it comes to be on a first start.
#pragma once

#include "store/moneda.h"

#include <QSettings>
#include <QString>

namespace tarvo {

// The folder `Datos` to work on: the one beside the program when there is one, else the one of the per-user
// data folder when there is one; a symbolic link counts as one. Only when there is none it is made, with its
// templates in `vacio`, beside the program or else in the folder of the user: whole or not at all, and never
// inside a folder that exists. What a first start left that was cut short is removed. Throws ErrorDatos:
// kRutaNoEncontrada when it is a link that leads nowhere (its medium is not there), kAccesoRuta when neither
// place can be written.
QString PrepararDatos(const QString &carpetaPrograma, const QString &carpetaUsuario);

// Separator and symbol: the settings "sDecimal" and "sCurrency" when they are set, else the locale of the
// process, else (the C locale tells nothing) "," and "$".
Moneda LeerRegional(const QSettings &ajustes);

} // namespace tarvo
