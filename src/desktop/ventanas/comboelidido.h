// A combo for entries of any length: an entry wider than the combo is elided in it and shown whole in the
// tool tip and, as far as the window is wide, in the list that opens.
#pragma once

#include <QComboBox>

namespace tarvo {

class ComboElidido : public QComboBox {
    Q_OBJECT
  public:
    using QComboBox::QComboBox;
    void showPopup() override;

  protected:
    void paintEvent(QPaintEvent *evento) override;
};

} // namespace tarvo
