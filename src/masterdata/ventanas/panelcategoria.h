// The panel in which the articles window takes a new category.
#pragma once

#include <QFrame>

#include <memory>

class QLineEdit;
class QPushButton;

namespace tarvo {

namespace Ui {
class PanelCategoria;
}

class PanelCategoria : public QFrame {
    Q_OBJECT
  public:
    explicit PanelCategoria(QWidget *padre);
    ~PanelCategoria() override;

    void Vaciar();
    QLineEdit *txtCatCodigo = nullptr;
    QLineEdit *txtCatCategoria = nullptr;
    QPushButton *cmdCatGuardar = nullptr;
    QPushButton *cmdCatCancelar = nullptr;

  private:
    std::unique_ptr<Ui::PanelCategoria> ui_;
};

} // namespace tarvo
