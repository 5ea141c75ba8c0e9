// A dialog with fields and lists: Enter is for the fields and for the button with the focus; it never presses
// another one.
#pragma once

#include <QDialog>

namespace tarvo {

class Dialogo : public QDialog {
    Q_OBJECT
  public:
    using QDialog::QDialog;

  protected:
    void keyPressEvent(QKeyEvent *evento) override;
};

} // namespace tarvo
