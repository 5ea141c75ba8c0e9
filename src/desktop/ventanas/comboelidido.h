// A combo for entries of any length: an entry wider than the combo is elided in it and shown whole in the
// tool tip and, as far as the window is wide, in the list that opens.
#pragma once

#include <QComboBox>

namespace tarvo {

class ComboElidido : public QComboBox {
    Q_OBJECT
    // Also the end of an entry can be read, such as a percentage: the middle is left out.
    Q_PROPERTY(bool conFinal MEMBER conFinal_)
  public:
    using QComboBox::QComboBox;
    void showPopup() override;

  protected:
    void paintEvent(QPaintEvent *evento) override;

  private:
    bool conFinal_ = false;
};

} // namespace tarvo
