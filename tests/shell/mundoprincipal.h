// The main window over modules that are made for the test.
#pragma once

#include "desktop/ventanas/kitmenu.h"
#include "desktop/ventanas/ventanamodulo.h"
#include "shell/ventanas/composicion.h"
#include "shell/ventanas/frmprincipal.h"
#include "testkit/conventana.h"

#include <QVBoxLayout>

namespace tarvo {

// A module with one field; `Entrada` starts an entry in it.
class ModuloFalso : public VentanaModulo {
    Q_OBJECT
  public:
    ModuloFalso(Modulo modulo, Anfitrion &anfitrion, Preguntas &preguntas, QWidget *padre)
        : VentanaModulo(padre), preguntas_(preguntas) {
        setObjectName(u"frm_"_qs + DatosDe(DatosDe(modulo).entrada).clave.toString());
        auto *campo = new QLineEdit(this);
        campo->setObjectName(u"txtCampo"_qs);
        (new QVBoxLayout(this))->addWidget(campo);
        campo->setFocus();
        anfitrion.PonerExportable(true);
        anfitrion.Sugerencia(u"Pulse Enter"_qs);
    }
    bool EntradaEnCurso() const override { return entrada; }
    bool PermiteCerrarPrograma() override { return !entrada || preguntas_.Confirma(u"Cerrar?"_qs, No); }
    std::optional<Exportable> ParaExportar() const override { return Exportable{nullptr, objectName()}; }
    bool entrada = false;

  private:
    Preguntas &preguntas_;
};

class MundoPrincipal : public ConVentana<FrmPrincipal> {
  protected:
    Composicion composicion = Completa();
    QStringList hechos;

    ~MundoPrincipal() override { ventana.reset(); } // before what it is composed of
    void Abrir() {
        ventana = std::make_unique<FrmPrincipal>(mundo.servicios(), composicion, mundo.datos.Carpeta());
        ventana->Presentar(19200);
        ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
    }
    // A key of the window, whatever has the focus.
    void Pide(Qt::Key tecla, Qt::KeyboardModifiers modificadores = Qt::NoModifier) {
        Tecla(ventana.get(), tecla, modificadores);
    }
    QAction *DeMenu(const char *clave) { return AccionDe(C("mnuBarra"), QLatin1String(clave)); }
    QAction *DeBarra(const char *clave) { return AccionDe(C("tbrPrincipal"), QLatin1String(clave)); }
    QWidget *Boton(const char *clave) { return C<QToolBar>("tbrPrincipal")->widgetForAction(DeBarra(clave)); }
    ModuloFalso *Modulo_() { return ventana->findChild<ModuloFalso *>(); }
    // Key of the open module, as its window's name tells; empty when none is open.
    QString Abierta() { return Modulo_() == nullptr ? QString() : Modulo_()->objectName().mid(4); }
    // Keys of the pressed buttons, in the order of the toolbar.
    QString Presionados() {
        QStringList claves;
        for (const QAction *accion : C("tbrPrincipal")->actions()) {
            if (accion->isChecked())
                claves += accion->objectName();
        }
        return claves.join(u' ');
    }
    QString TextoEstado() { return Texto("separador"); }

  private:
    Composicion Completa() {
        Composicion todas;
        for (const Modulo modulo : kModulos) {
            todas.modulos[modulo] = [this, modulo](Anfitrion &principal, QWidget *padre) {
                return new ModuloFalso(modulo, principal, mundo.preguntas, padre);
            };
        }
        todas.opciones = [this](bool disenador, QWidget *) {
            hechos += disenador ? u"diseñador"_qs : u"opciones"_qs;
        };
        todas.respaldo = [this](QWidget *) { hechos += u"respaldo"_qs; };
        todas.calculadora = [](QWidget *padre) {
            auto *calculadora = new QWidget(padre, Qt::Tool);
            calculadora->setObjectName(u"frmCalc"_qs);
            return calculadora;
        };
        todas.devContado = [this](VentanaModulo &) { hechos += u"contado"_qs; };
        todas.devCliente = [this](VentanaModulo &) { hechos += u"por cliente"_qs; };
        todas.exportar = [this](const Exportable &lista) { hechos += lista.nombre; };
        return todas;
    }
};

} // namespace tarvo
