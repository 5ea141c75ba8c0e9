// The header of a list: a sort icon stands beside its caption, on the inner side, and has its room reserved
// in every column of a list that sorts, so that sorting by another column moves no border.
#pragma once

#include <QHeaderView>

namespace tarvo {

class EncabezadoLista final : public QHeaderView {
    Q_OBJECT
  public:
    explicit EncabezadoLista(QWidget *padre = nullptr);
    // What the caption needs, and the sort icon of a list that sorts, also while the column is hidden.
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
