// A label for text of any length that the operator typed once: what does not fit is elided, and shown whole
// in the tool tip. Its text() is always the whole text, and it never asks for more room than there is.
// Without text it shows its hint, dim.
#pragma once

#include <QLabel>

namespace tarvo {

class EtiquetaElidida : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString sugerencia MEMBER sugerencia_)
  public:
    using QLabel::QLabel;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

  protected:
    void paintEvent(QPaintEvent *evento) override;

  private:
    QString sugerencia_;
};

} // namespace tarvo
