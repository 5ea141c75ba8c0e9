// A scroll area that is just as high as what lies in it, where there is room, and scrolls only where there is
// not. It never scrolls sideways.
#pragma once

#include <QScrollArea>

namespace tarvo {

class AreaJusta : public QScrollArea {
    Q_OBJECT
  public:
    explicit AreaJusta(QWidget *padre = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    bool viewportEvent(QEvent *evento) override;
};

} // namespace tarvo
