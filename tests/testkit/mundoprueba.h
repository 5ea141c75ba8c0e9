// Everything that a window is given, as a test wants it, and the operator's hands: keys and clicks on
// controls that are found by their names.
#pragma once

#include "desktop/servicios.h"
#include "testkit/datosprueba.h"
#include "testkit/dobles.h"
#include "testkit/impresorasprueba.h"
#include "testkit/manos.h"
#include "testkit/preguntasguion.h"

#include <QSettings>

namespace tarvo {

// Data are put in with `datos.Ejecutar` before the first call of servicios(), which opens them.
struct MundoPrueba {
    DatosPrueba datos;
    PreguntasGuion preguntas;
    RelojFijo reloj;
    ImpresorasPrueba impresoras;
    EscritorioPrueba escritorio;
    QSettings ajustes{datos.Carpeta() + u"/ajustes.ini"_qs, QSettings::IniFormat};

    FrmBases &frmBases() { return datos.Abrir(); }
    Servicios servicios() { return Con(frmBases()); }
    // The same with other data, or with these as they are: closed, or open in part.
    Servicios Con(FrmBases &bases) { return {bases, preguntas, reloj, impresoras, ajustes, escritorio}; }
};

} // namespace tarvo
