// The search panel above the fields: a text and one check box for each column that is searched.
#pragma once

#include <QFrame>
#include <QStringList>

#include <memory>
#include <vector>

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace tarvo {

namespace Ui {
class PanelBusqueda;
}

class PanelBusqueda : public QFrame {
    Q_OBJECT
  public:
    // The box of the first criterion is checked.
    PanelBusqueda(const QStringList &criterios, QWidget *padre);
    ~PanelBusqueda() override;

    std::vector<bool> Marcados() const;
    QLineEdit *txtArtBuscar = nullptr;
    QPushButton *cmdBuscarArt = nullptr;
    QPushButton *cmdCancelarArt = nullptr;

  private:
    std::unique_ptr<Ui::PanelBusqueda> ui_;
    std::vector<QCheckBox *> chkBuscarPor;
};

} // namespace tarvo
