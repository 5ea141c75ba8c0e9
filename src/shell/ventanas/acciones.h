// The actions of menu and toolbar, made from the registry of entries. An entry has one shortcut, that of its
// menu action: caption, accelerator and tooltip of its button read it there.
#pragma once

#include "shell/entradas.h"

#include <QObject>

#include <map>

class QAction;
class QKeySequence;
class QMenu;
class QMenuBar;
class QToolBar;

namespace tarvo {

class Acciones : public QObject {
    Q_OBJECT
  public:
    // Fills menu bar and toolbar; both must outlive it.
    Acciones(QMenuBar &menu, QToolBar &barra);

    QAction *DeMenu(Entrada entrada) const { return menu_.at(entrada); }
    // Null when the entry has no button.
    QAction *DeBarra(Entrada entrada) const;
    // What the toolbar button "ayuda" opens.
    QMenu *Emergente() const { return emergente_; }

    // Menu entry and button alike.
    void Habilitar(Entrada entrada, bool valor);
    // An empty sequence takes the shortcut away.
    void PonerAtajo(Entrada entrada, const QKeySequence &atajo);

  signals:
    void MenuElegido(tarvo::Entrada entrada);
    void BotonPulsado(tarvo::Entrada entrada); // a check button has toggled

  private:
    void LlenarBarra(QToolBar &barra);
    void Conectar(Entrada entrada);

    QMenu *emergente_;
    std::map<Entrada, QAction *> menu_;
    std::map<Entrada, QAction *> botones_;
};

} // namespace tarvo
