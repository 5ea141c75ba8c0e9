// Enter, Escape and the selection of fields, in one event filter for each window.
//
// Enter in a text field or combo moves to the next control (and is never typed in); a field that gets the focus has
// its text selected. A window names its exceptions. The colour of the field with the focus comes from the style.
#pragma once

#include <QHash>
#include <QObject>

#include <functional>

class QLineEdit;
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
    // `accion` runs after `control` got (true) or lost (false) the focus, and after the text was selected.
    void AlFoco(QWidget *control, std::function<void(bool entra)> accion);
    // Up (+1) and down (-1) arrows in `control`.
    void AlFlecha(QWidget *control, std::function<void(int paso)> accion);
    // Escape anywhere in the window; the action returns false when it had nothing to do.
    void AlEscapar(std::function<bool()> accion);

  protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

  private:
    void Vigilar(QWidget *control);
    bool Tecla(QWidget *control, class QKeyEvent *evento);
    QWidget *ventana_;
    QHash<QObject *, std::function<void()>> alEntrar_;
    QHash<QObject *, std::function<void()>> alSuprimir_;
    QHash<QObject *, std::function<void(bool)>> alFoco_;
    QHash<QObject *, std::function<void(int)>> alFlecha_;
    std::function<bool()> alEscapar_;
};

// Lets only the characters of `permitidos` into the field, typed or pasted: the others are dropped, the rest stays.
void SoloCaracteres(QLineEdit *campo, const QString &permitidos);

} // namespace tarvo
