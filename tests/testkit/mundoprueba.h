// Everything that a window is given, as a test wants it, and the operator's hands: keys and clicks on
// controls that are found by their names.
#pragma once

#include "desktop/servicios.h"
#include "testkit/datosprueba.h"
#include "testkit/escritorioprueba.h"
#include "testkit/impresorasprueba.h"
#include "testkit/manos.h"
#include "testkit/preguntasguion.h"
#include "testkit/relojfijo.h"

#include <QSettings>

namespace tarvo {

// Data are put in with `datos.Ejecutar` before the first call of servicios(), which opens them.
struct MundoPrueba {
    DatosPrueba datos;
    PreguntasGuion preguntas;
    RelojFijo reloj;
    ImpresorasPrueba impresoras;
    EscritorioPrueba escritorio;
    QSettings ajustes{datos.Carpeta() + QStringLiteral("/ajustes.ini"), QSettings::IniFormat};

    FrmBases &frmBases() { return datos.Abrir(); }
    Servicios servicios() { return {frmBases(), preguntas, reloj, impresoras, ajustes, escritorio}; }
};

} // namespace tarvo
