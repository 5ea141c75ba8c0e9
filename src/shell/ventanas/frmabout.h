// The window that tells who made the program, with links to the maker's mail and site. Escape closes it.
#pragma once

#include "desktop/servicios.h"

#include <QDialog>

namespace tarvo {

class FrmAbout : public QDialog {
    Q_OBJECT
  public:
    FrmAbout(const Servicios &servicios, QWidget *padre);
};

} // namespace tarvo
