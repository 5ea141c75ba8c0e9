// The dialog in which the operator gives the entries other keys. A change counts at once.
#pragma once

#include "desktop/listatexto.h"
#include "shell/atajos.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace tarvo {

class Preguntas;
namespace Ui {
class FrmAtajos;
}

class FrmAtajos : public QDialog {
    Q_OBJECT
  public:
    // `alCambiar` runs after each change of `atajos`; both must outlive the dialog.
    FrmAtajos(Atajos &atajos, Preguntas &preguntas, std::function<void()> alCambiar, QWidget *padre);
    ~FrmAtajos() override;

  protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

  private:
    void Llenar();
    void MostrarTecla();
    void cmdAsignar_Click();
    void cmdRestablecer_Click();
    void cmdRestablecerTodo_Click();
    Entrada Elegida() const;
    // Gives the chosen entry the key, or tells why not.
    void Asignar(const QKeySequence &tecla);
    void Cambiados();

    Atajos &atajos_;
    Preguntas &preguntas_;
    std::function<void()> alCambiar_;
    ListaTexto lista_;
    std::unique_ptr<Ui::FrmAtajos> ui_;
};

} // namespace tarvo
