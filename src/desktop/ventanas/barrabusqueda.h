// The search bar of a list: a toolbar with the check button `buscar` and its menu of search modes, a field,
// and a button whose caption is the current mode.
//
// The buttons of the bar come before the field in the tab order; the down arrow opens the menu. The check
// button gives or takes the use of field and button; a mode of the menu gives it and moves the
// focus to the field. The start row lies in a Buscador that several bars of one window may share.
#pragma once

#include "desktop/buscador.h"
#include "desktop/modobusqueda.h"

#include <QObject>

class QAction;
class QLineEdit;
class QPushButton;
class QToolBar;

namespace tarvo {

class FiltroCampos;
class ListaVista;
class Preguntas;

// The controls of a bar, all of one window.
struct ControlesBusqueda {
    QToolBar *barra;
    QLineEdit *campo;
    QPushButton *boton;
    ListaVista *lista;
};

class BarraBusqueda : public QObject {
    Q_OBJECT
  public:
    // The menu has `modos` in their order; it starts in the one with the key `inicial`.
    BarraBusqueda(const ControlesBusqueda &controles, std::vector<ModoBusqueda> modos, const QString &inicial,
                  Buscador &buscador, Preguntas &preguntas, FiltroCampos &filtro);

    // Searches on from the start row: selects the row of a hit and the text in the field, tells the end.
    // True for a hit.
    bool Buscar();
    // Searches `texto` from now on in the mode of that key, as if it had been chosen and typed.
    bool BuscarEn(const QString &clave, const QString &texto);
    // Begins a new text in the field, presses the button `buscar` and moves the focus to the field.
    void Empezar(const QString &texto = QString());
    // The button `buscar` is pressed.
    bool EnUso() const;

  signals:
    void Encontrado(const QString &modo); // its key
    void Terminado();                     // the end without a hit, after the operator was told

  private:
    const ModoBusqueda &Modo() const;
    void PonerMenu();
    void PonerTeclas(FiltroCampos &filtro);
    void ElegirModo(const ModoBusqueda &modo);
    void Usar(bool si);

    ControlesBusqueda c_;
    std::vector<ModoBusqueda> modos_;
    Buscador &buscador_;
    Preguntas &preguntas_;
    QAction *buscar_;
};

} // namespace tarvo
