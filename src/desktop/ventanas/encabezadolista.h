// The header of a list: a sort icon stands beside its caption, on the inner side, and has its room reserved
// in every column, so that sorting by another column moves no border.
#pragma once

#include <QHeaderView>

namespace tarvo {

class EncabezadoLista final : public QHeaderView {
    Q_OBJECT
  public:
    explicit EncabezadoLista(QWidget *padre = nullptr);
    // What the caption and its sort icon need, also while the column is hidden.
    QSize sectionSizeFromContents(int seccion) const override;

  protected:
    void initStyleOptionForIndex(QStyleOptionHeader *opcion, int seccion) const override;
    void paintSection(QPainter *pintor, const QRect &zona, int seccion) const override;
    bool viewportEvent(QEvent *evento) override;
    void mouseDoubleClickEvent(QMouseEvent *evento) override;

  private:
    int LadoIcono() const;
    QRect LugarIcono(const QRect &zona, int seccion) const;
};

} // namespace tarvo
