// The screen side of a list panel: a list, its text fields and the five buttons cmdXxxNuevo, cmdXxxGuardar,
// cmdXxxEliminar, cmdXxxActualizar and cmdXxxCancelar, tied to the list-and-detail controller.
//
// The controls are found in the panel by their names, so a panel brings nothing but its form and its rules.
#pragma once

#include "config/reglaslistas.h"
#include "desktop/servicios.h"
#include "masterdata/listadetalle.h"
#include "masterdata/vistadetalle.h"

#include <QObject>

#include <vector>

class QLineEdit;
class QPushButton;
class QWidget;

namespace tarvo {

class FiltroCampos;
class ListaVista;

class PanelLista : public QObject, private VistaDetalle {
    Q_OBJECT
  public:
    // `prefijo` is the Xxx of the buttons' names.
    PanelLista(QWidget *panel, ListaVista *lista, const QString &prefijo, const Servicios &servicios,
               ReglasDetalle reglas, ReglaAncho ancho);

    ListaDetalle &Logica() { return logica_; }
    void ConectarTeclas(FiltroCampos &filtro);

  signals:
    // False while a new row is entered: nothing else may be chosen then.
    void ListaHabilitada(bool habilitada);

  private:
    QPushButton *Boton(const QString &prefijo, const char *nombre, void (ListaDetalle::*accion)());
    void AjustarAncho();

    QString Texto(int campo) const override;
    void Poner(int campo, const QString &texto) override;
    void PonerEntradas(int, const QStringList &) override {} // no combos here
    void HabilitarCampos(bool conDatos) override;
    void EnfocarCampo(int campo) override;
    int FilaActual() const override;
    void SeleccionarFila(int fila) override;
    void HabilitarLista(bool habilitada) override;
    void EnfocarLista() override;
    void MostrarBotones(const Botones &botones) override;

    QWidget *panel_;
    ListaVista *vista_;
    ReglaAncho ancho_;
    ListaDetalle logica_;
    std::vector<QLineEdit *> campos_;
    QPushButton *cmdNuevo;
    QPushButton *cmdGuardar;
    QPushButton *cmdEliminar;
    QPushButton *cmdActualizar;
    QPushButton *cmdCancelar;
};

} // namespace tarvo
