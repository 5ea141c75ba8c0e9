// Enter, Escape and the selection of fields, in one event filter for each window.
//
// Enter in a text field or combo moves to the next control (and is never typed in), on a button it presses
// it; a field that gets the focus has its text selected. A window names its exceptions. The colour of the
// field with the focus comes from the style. A field keeps the focus while another window (a question) is
// active: neither end is told. Alt with a letter that nothing underlines types nothing. The mouse wheel
// changes no combo, and a number or date only while it has the focus: elsewhere it is meant for what lies
// behind.
#pragma once

#include "desktop/ventanas/ritmoteclas.h"

#include <QHash>
#include <QObject>
#include <QPointer>

#include <functional>

class QKeyEvent;
class QWidget;

namespace tarvo {

class FiltroCampos : public QObject {
    Q_OBJECT
  public:
    // Watches `ventana` and every control in it, also those added later.
    explicit FiltroCampos(QWidget *ventana);

    // Enter in `control` runs `accion` instead of moving on.
    void AlEntrar(QWidget *control, std::function<void()> accion);
    // The Delete key in `control` runs `accion`.
    void AlSuprimir(QWidget *control, std::function<void()> accion);
    // `accion` runs after `control` got (true) or lost (false) the focus; what is then in the field is
    // selected after it.
    void AlFoco(QWidget *control, std::function<void(bool entra)> accion);
    // The up (+1) and down (-1) arrows in `control`.
    void AlFlecha(QWidget *control, std::function<void(int paso)> accion);
    // A character (not the blank) that is typed on a control of `marco` without text of its own, as on a
    // list.
    void AlEscribir(QWidget *marco, std::function<void(const QString &caracter)> accion);
    // Of the strokes that came to the controls of the window. The Enter of a scan presses no button.
    const RitmoTeclas &Ritmo() const { return ritmo_; }
    // Escape anywhere in the window; the action returns false when it had nothing to do.
    void AlEscapar(std::function<bool()> accion);

  protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

  private:
    void Vigilar(QWidget *control);
    QWidget *ControlDe(QWidget *recibe) const;
    bool AdmiteRueda(QWidget *recibe) const;
    bool Tecla(QWidget *recibe, QKeyEvent *evento);
    bool Escribir(QWidget *control, const QKeyEvent &evento);
    bool Entrar(QWidget *control, const QKeyEvent &evento);
    bool DevolverMomento(QWidget *control);
    bool Escapar();
    void CambiarFoco(QWidget *ahora);
    void AvisarFoco(QWidget *control, bool entra);

    QWidget *ventana_;
    QHash<QObject *, std::function<void()>> alEntrar_;
    QHash<QObject *, std::function<void()>> alSuprimir_;
    QHash<QObject *, std::function<void(bool)>> alFoco_;
    QHash<QObject *, std::function<void(int)>> alFlecha_;
    QHash<QObject *, std::function<void(const QString &)>> alEscribir_;
    std::function<bool()> alEscapar_;
    QPointer<QWidget> enfocado_; // control whose entering was told; stays it while another window is active
    QPointer<QWidget> intacto_;  // field that got the focus and was neither clicked nor typed in since
    RitmoTeclas ritmo_;
    bool escapeVisto_ = false; // this stroke found nothing to do and is on its way up to the window
};

} // namespace tarvo
