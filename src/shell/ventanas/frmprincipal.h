// The main window: menu, toolbar, status bar and the area where the module windows lie, one at a time.
//
// It shows and sets what the switching rule (Conmutador) decides, keeps its few settings, and on closing asks
// the open module before it closes the data.
#pragma once

#include "desktop/anfitrion.h"
#include "desktop/servicios.h"
#include "shell/ajustesprincipal.h"
#include "shell/conmutador.h"
#include "shell/ventanas/atajosprincipal.h"
#include "shell/ventanas/pantallacompleta.h"

#include <QMainWindow>
#include <QPointer>

#include <functional>
#include <map>
#include <memory>

class QTimer;

namespace tarvo {

class Acciones;
class AreaModulos;
class PanelInicio;
struct Composicion;
struct TamanoInicial;
namespace Ui {
class FrmPrincipal;
}

class FrmPrincipal : public QMainWindow, public Anfitrion, public TableroModulos {
    Q_OBJECT
  public:
    // `carpetaPrograma` is where the help file lies.
    FrmPrincipal(const Servicios &servicios, const Composicion &composicion, QString carpetaPrograma);
    ~FrmPrincipal() override;

    // Shows the window, as big as the width of the screen (in twips) tells.
    void Presentar(int anchoPantalla);
    // What `separador` shows while nobody else has a hint.
    void PonerAviso(const QString &aviso);

    void PonerExportable(bool posible) override;
    void Sugerencia(const QString &texto) override;

    bool MenuMarcado(Entrada entrada) const override;
    void MarcarMenu(Entrada entrada, bool valor) override;
    bool BotonPresionado(Entrada entrada) const override;
    void PresionarBoton(Entrada entrada, bool valor) override;
    void IniciarTimer1() override;

  protected:
    bool event(QEvent *evento) override;
    bool eventFilter(QObject *objeto, QEvent *evento) override;
    void resizeEvent(QResizeEvent *evento) override;
    void closeEvent(QCloseEvent *evento) override;

  private:
    void ConectarAcciones();
    void CrearAccionAtajos();
    void CrearManejadores();
    void AplicarAjustes();
    void DesactivarSinVentana();
    void m_Menus_Click(Entrada entrada);
    void tbrPrincipal_ButtonClick(Entrada entrada);

    void mnuBarHer();
    void mnuBarEst();
    void mnuPantComp();
    void mnuAyudaPdf();
    void mnuAcercaDe();
    void AyudaWeb();
    void MostrarMenuAyuda();

    void MostrarInicio(bool visible);
    void Abrir(const QUrl &direccion);
    void AjustarAncho();
    void PonerAyudaEntrada(const QString &ayuda);
    void MostrarTextoEstado();
    void ActualizarEstado();
    void CerrarDatos();

    std::unique_ptr<Ui::FrmPrincipal> ui_;
    Servicios servicios_;
    AjustesPrincipal ajustes_;
    QString carpetaPrograma_;
    PantallaCompleta pantalla_;
    std::unique_ptr<Acciones> acciones_;
    PanelInicio *inicio_;
    QPointer<QWidget> foco_; // the last control of the central part that had the focus
    AtajosPrincipal atajos_;
    std::unique_ptr<AreaModulos> area_;
    Conmutador conmutador_;
    QTimer *Timer1;
    std::map<Entrada, std::function<void()>> manejadores_;
    QString aviso_;
    QString sugerencia_;
    QString ayudaEntrada_; // help text of the menu entry under the mouse
};

} // namespace tarvo
