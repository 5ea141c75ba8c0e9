// The program from its splash to its end: builds the services, opens the data, shows the main window.
#pragma once

#include "desktop/preguntas.h"
#include "desktop/reloj.h"
#include "desktop/ventanas/escritorioqt.h"

#include <QObject>
#include <QSettings>

#include <memory>

namespace tarvo {

class FrmBases;
class FrmPrincipal;
class FrmSplash;
class PedidosBotones;
class Impresoras;
struct ResultadoApertura;
struct Servicios;

// What the command line asks for.
struct OpcionesInicio {
    bool directo = false;  // straight to the main window, as the setting "Presentacion" = 0 does
    bool usuarios = false; // the window of the users over the main one
};

class Programa : public QObject {
    Q_OBJECT
  public:
    // `carpetaPrograma` holds the executable; `carpetaUsuario` takes the data where that one can't be
    // written, and always those of an installed program.
    Programa(Preguntas &preguntas, QString carpetaPrograma, QString carpetaUsuario);
    ~Programa() override;

    // Runs to the end and returns the exit code: 1 when the data could not be had.
    int Ejecutar(const OpcionesInicio &opciones);

  private:
    void Presentar();
    void Arrancar();
    ResultadoApertura AbrirDatos();
    void MostrarPrincipal();
    void AbrirUsuarios(const Servicios &servicios);
    // What the status bar tells of the data: where they are, what an opening came to, what was found damaged
    // since then.
    void AnotarApertura(const ResultadoApertura &resultado);
    void AnotarDano(const QString &archivo, const QString &motivo);
    void MostrarAvisos();
    void Abandonar(const QString &mensaje, Icono icono);
    void Cerrar();

    Preguntas &preguntas_;
    QString carpetaPrograma_;
    QString carpetaUsuario_;
    OpcionesInicio opciones_;
    QStringList avisosDatos_; // the newest first
    QSettings ajustes_;
    RelojSistema reloj_;
    EscritorioQt escritorio_;
    std::unique_ptr<PedidosBotones> pedidos_;
    std::unique_ptr<FrmBases> frmBases_;
    std::unique_ptr<Impresoras> impresoras_;
    std::unique_ptr<FrmSplash> frmSplash_;
    std::unique_ptr<FrmPrincipal> frmPrincipal_;
};

} // namespace tarvo
