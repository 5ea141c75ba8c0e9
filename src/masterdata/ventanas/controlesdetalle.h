// The widgets of a list with a detail, tied to its controller: the list, the fields of the field table and
// the buttons cmdXxxNuevo, cmdXxxGuardar, cmdXxxEliminar, cmdXxxActualizar and cmdXxxCancelar.
//
// Fields and buttons are found by their names, so whoever shows a list with a detail (a module window, a
// panel of the options) brings nothing but its form and its rules.
#pragma once

#include "masterdata/vistadetalle.h"

#include <QHash>
#include <QObject>

#include <vector>

class QPushButton;
class QWidget;

namespace tarvo {

class FiltroCampos;
class ListaDetalle;
class ListaVista;

class ControlesDetalle : public QObject, public VistaDetalle {
    Q_OBJECT
  public:
    // All controls stand in `marco`; `prefijo` is the Xxx of the buttons. `bajoPaneles` is disabled while a
    // panel is open; null where none opens.
    ControlesDetalle(QWidget *marco, ListaVista *lista, QString prefijo, QWidget *bajoPaneles = nullptr);

    // To be called once, when fields and buttons stand in the frame. A field that is disabled then stays so.
    void Montar(ListaDetalle &logica);
    // Delete in the list.
    void ConectarTeclas(FiltroCampos &filtro);
    QWidget *Campo(int campo) const { return campos_[static_cast<std::size_t>(campo)]; }
    // The button of that action ("Guardar"); null when there is none.
    QPushButton *Boton(const char *accion) const;

    // --- VistaDetalle
    QString Texto(int campo) const override;
    void Poner(int campo, const QString &texto) override;
    void PonerEntradas(int campo, const QStringList &entradas) override;
    void EnfocarCampo(int campo) override;
    int FilaActual() const override;
    void SeleccionarFila(int fila) override;
    void EnfocarLista() override;
    void TitularFicha(const QString &nombre) override { emit FichaTitulada(nombre); }
    void Habilitar(const Habilitados &habilitados) override;
    void AbrirPanel(PanelDetalle panel) override { emit PanelAbierto(panel); }
    void CerrarPanel(PanelDetalle panel) override { emit PanelCerrado(panel); }

  signals:
    // False while a new row is entered or a panel covers the list: nothing else may be chosen then.
    void ListaHabilitada(bool habilitada);
    void PanelAbierto(PanelDetalle panel);
    void PanelCerrado(PanelDetalle panel);
    // The row of the fields, while another one is selected; else empty.
    void FichaTitulada(const QString &nombre);
    // The list has more or fewer rows.
    void FilasCambiadas();

  private:
    void ConectarBoton(const char *accion, void (ListaDetalle::*hacer)());
    void HabilitarCampos(bool conDatos);

    QWidget *marco_;
    ListaVista *lista_;
    QString prefijo_;
    QWidget *bajoPaneles_;
    ListaDetalle *logica_ = nullptr;
    std::vector<QWidget *> campos_;       // in the order of the field table
    std::vector<QWidget *> habilitables_; // but those that are never enabled
    QHash<int, QStringList> entradas_;    // what the combos hold
};

} // namespace tarvo
