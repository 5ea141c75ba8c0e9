// What the main window shows while no module is open: the modules as large buttons with their keys. They work
// the actions of the toolbar.
#pragma once

#include <QPushButton>

class QLabel;

namespace tarvo {

class Acciones;

class BotonModulo : public QPushButton {
    Q_OBJECT
  public:
    // Runs `accion`, shows the shortcut of `menu`, follows both.
    BotonModulo(QAction &accion, const QAction &menu, QWidget *padre);
    QSize sizeHint() const override;

  protected:
    void keyPressEvent(QKeyEvent *evento) override;

  private:
    void Actualizar();

    QAction &accion_;
    const QAction &menu_;
    QLabel *imagen_;
    QLabel *texto_;
    QLabel *tecla_;
};

class PanelInicio : public QWidget {
    Q_OBJECT
  public:
    explicit PanelInicio(const Acciones &acciones);
};

} // namespace tarvo
