// What a list-and-detail controller asks of its window: the fields by their position in the field table, the
// selected row of the list and the buttons. Tests put a plain record in the window's place.
#pragma once

#include <QString>
#include <QStringList>

namespace tarvo {

// Enabled flags of the buttons. A panel without one of them ignores its flag.
struct Botones {
    bool nuevo = true;
    bool guardar = false;
    bool eliminar = false;
    bool actualizar = true;
    bool cancelar = false;
    bool buscar = true;
    bool imprimir = true;
    bool operator==(const Botones &) const = default;
};

class VistaDetalle {
  public:
    virtual ~VistaDetalle() = default;

    virtual QString Texto(int campo) const = 0;
    // A combo selects the entry of that text; without such an entry it selects none and only shows the text.
    virtual void Poner(int campo, const QString &texto) = 0;
    // Replaces the entries of a combo and selects none.
    virtual void PonerEntradas(int campo, const QStringList &entradas) = 0;
    // All fields: enabled and white, or disabled and grey for lack of data.
    virtual void HabilitarCampos(bool conDatos) = 0;
    virtual void EnfocarCampo(int campo) = 0;

    virtual int FilaActual() const = 0; // selected row of the list from 0, -1 when none
    virtual void SeleccionarFila(int fila) = 0;
    // The list and whatever else would leave the row (the tree of the options window).
    virtual void HabilitarLista(bool habilitada) = 0;
    // Gives the list the focus, when it is visible and can take it.
    virtual void EnfocarLista() = 0;

    virtual void MostrarBotones(const Botones &botones) = 0;
};

} // namespace tarvo
