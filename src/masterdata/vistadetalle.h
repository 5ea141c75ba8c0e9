// What a list-and-detail controller asks of its window: the fields by their position in the field table, the
// selected row of the list, and what of it all can be used. Tests put a plain record in the window's place.
#pragma once

#include <QString>
#include <QStringList>

namespace tarvo {

// Enabled flags of the buttons. A panel without one of them ignores its flag.
struct Botones {
    bool nuevo = false;
    bool guardar = false;
    bool eliminar = false;
    bool actualizar = false;
    bool cancelar = false;
    bool buscar = false;
    bool imprimir = false;
    bool operator==(const Botones &) const = default;
};

// What opens above the window; one at a time.
enum class PanelDetalle { Ninguno, Busqueda, Categoria };

// What can be used just now.
struct Habilitados {
    Botones botones;
    bool campos = false;   // white, else grey for lack of data
    bool lista = true;     // and whatever else would leave the row (the tree of the options window)
    bool controles = true; // fields and buttons as a whole: not below a panel
};

class VistaDetalle {
  public:
    virtual ~VistaDetalle() = default;

    virtual QString Texto(int campo) const = 0;
    // A combo selects the entry of that text; without such an entry it selects none and only shows the text.
    virtual void Poner(int campo, const QString &texto) = 0;
    // Replaces the entries of a combo and selects none.
    virtual void PonerEntradas(int campo, const QStringList &entradas) = 0;
    virtual void EnfocarCampo(int campo) = 0;

    virtual int FilaActual() const = 0; // selected row of the list from 0, -1 when none
    virtual void SeleccionarFila(int fila) = 0;
    // Gives the list the focus, when it is visible and can take it.
    virtual void EnfocarLista() = 0;

    // Names the row of the fields while another one is selected; empty: nothing to say.
    virtual void TitularFicha(const QString &nombre) = 0;
    virtual void Habilitar(const Habilitados &habilitados) = 0;
    // Shows the panel with empty fields and the focus in it; hides it. What it covers is disabled after it
    // opens and enabled before it closes.
    virtual void AbrirPanel(PanelDetalle panel) = 0;
    virtual void CerrarPanel(PanelDetalle panel) = 0;
};

} // namespace tarvo
