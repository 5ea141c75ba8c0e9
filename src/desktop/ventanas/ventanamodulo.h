// What every module window (frmVentas, frmArticulos, ...) is to the main window.
#pragma once

#include <QWidget>

namespace tarvo {

class VentanaModulo : public QWidget {
    Q_OBJECT
  public:
    using QWidget::QWidget;
    // An entry is half done: leaving the window asks first.
    virtual bool EntradaEnCurso() const = 0;
    // Asks when the program closes with an entry in progress; false keeps the program running.
    virtual bool PermiteCerrarPrograma() = 0;
};

} // namespace tarvo
