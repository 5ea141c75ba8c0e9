// The services that windows and rules are given, built once by the program (shell/ventanas/programa.h).
#pragma once

class QSettings;

namespace tarvo {

class Anfitrion;
class Escritorio;
class FrmBases;
class Impresoras;
class Preguntas;
class Reloj;

struct Servicios {
    FrmBases &frmBases;
    Preguntas &preguntas;
    Reloj &reloj;
    Impresoras &impresoras;
    QSettings &ajustes;
    Escritorio &escritorio;
};

} // namespace tarvo
