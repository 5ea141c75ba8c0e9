// What every module window (frmVentas, frmArticulos, ...) is to the main window.
#pragma once

#include "desktop/exportable.h"

#include <QWidget>

#include <optional>

namespace tarvo {

class VentanaModulo : public QWidget {
    Q_OBJECT
  public:
    using QWidget::QWidget;
    // An entry is half done: leaving the window asks first.
    virtual bool EntradaEnCurso() const = 0;
    // Asks when the program closes with an entry in progress; false keeps the program running.
    virtual bool PermiteCerrarPrograma() = 0;
    // The list on screen that the export writes; none when there is none.
    virtual std::optional<Exportable> ParaExportar() const { return std::nullopt; }
};

} // namespace tarvo
