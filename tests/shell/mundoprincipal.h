// The main window over modules that are made for the test.
#pragma once

#include "desktop/anfitrion.h"
#include "desktop/ventanas/kitmenu.h"
#include "desktop/ventanas/ventanamodulo.h"
#include "shell/ventanas/composicion.h"
#include "shell/ventanas/frmprincipal.h"
#include "testkit/mundoprueba.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QToolBar>
#include <QVBoxLayout>

#include <memory>

namespace tarvo {

// A module with one field; `Entrada` starts an entry in it.
class ModuloFalso : public VentanaModulo {
    Q_OBJECT
  public:
    ModuloFalso(Modulo modulo, Anfitrion &anfitrion, Preguntas &preguntas, QWidget *padre)
        : VentanaModulo(padre), preguntas_(preguntas) {
        setObjectName(QStringLiteral("frm_") + DatosDe(DatosDe(modulo).entrada).clave.toString());
        auto *campo = new QLineEdit(this);
        campo->setObjectName(QStringLiteral("txtCampo"));
        (new QVBoxLayout(this))->addWidget(campo);
        campo->setFocus();
        anfitrion.PonerExportable(true);
        anfitrion.Sugerencia(QStringLiteral("Pulse Enter"));
    }
    bool EntradaEnCurso() const override { return entrada; }
    bool PermiteCerrarPrograma() override {
        return !entrada || preguntas_.Confirma(QStringLiteral("Cerrar?"), Respuesta::No);
    }
    std::optional<Exportable> ParaExportar() const override { return Exportable{nullptr, objectName()}; }
    bool entrada = false;

  private:
    Preguntas &preguntas_;
};

class MundoPrincipal : public ::testing::Test {
  protected:
    MundoPrueba mundo;
    Composicion composicion = Completa();
    std::unique_ptr<FrmPrincipal> frm;
    QStringList hechos;

    void SetUp() override { mundo.ajustes.clear(); }
    void Abrir(int anchoPantalla = 19200) {
        frm = std::make_unique<FrmPrincipal>(mundo.servicios(), composicion, mundo.datos.Carpeta());
        frm->Presentar(anchoPantalla);
        ASSERT_TRUE(QTest::qWaitForWindowActive(frm.get()));
    }

    QAction *DeMenu(const char *clave) {
        return AccionDe(Control<QWidget>(*frm, "mnuBarra"), QLatin1String(clave));
    }
    QAction *DeBarra(const char *clave) {
        return AccionDe(Control<QWidget>(*frm, "tbrPrincipal"), QLatin1String(clave));
    }
    QWidget *Boton(const char *clave) {
        return Control<QToolBar>(*frm, "tbrPrincipal")->widgetForAction(DeBarra(clave));
    }
    // Key of the open module, as its window's name tells; empty when none is open.
    QString Abierta() {
        const auto *modulo = frm->findChild<ModuloFalso *>();
        return modulo == nullptr ? QString() : modulo->objectName().mid(4);
    }
    ModuloFalso *Modulo_() { return frm->findChild<ModuloFalso *>(); }
    // Keys of the pressed buttons, in the order of the toolbar.
    QString Presionados() {
        QStringList claves;
        for (const QAction *accion : Control<QToolBar>(*frm, "tbrPrincipal")->actions()) {
            if (accion->isChecked())
                claves += accion->objectName();
        }
        return claves.join(QLatin1Char(' '));
    }
    QString TextoEstado() { return Control<QLabel>(*frm, "separador")->text(); }

  private:
    Composicion Completa() {
        Composicion todas;
        for (const Modulo modulo : kModulos) {
            todas.modulos[modulo] = [this, modulo](Anfitrion &anfitrion, QWidget *padre) {
                return new ModuloFalso(modulo, anfitrion, mundo.preguntas, padre);
            };
        }
        todas.opciones = [this](bool disenador, QWidget *) {
            hechos += disenador ? QStringLiteral("diseñador") : QStringLiteral("opciones");
        };
        todas.disenador = true;
        todas.respaldo = [this](QWidget *) { hechos += QStringLiteral("respaldo"); };
        todas.calculadora = [](QWidget *padre) {
            auto *calculadora = new QWidget(padre, Qt::Tool);
            calculadora->setObjectName(QStringLiteral("frmCalc"));
            return calculadora;
        };
        todas.devContado = [this](VentanaModulo &) { hechos += QStringLiteral("contado"); };
        todas.devCliente = [this](VentanaModulo &) { hechos += QStringLiteral("por cliente"); };
        todas.exportar = [this](const Exportable &lista) { hechos += lista.nombre; };
        return todas;
    }
};

} // namespace tarvo
