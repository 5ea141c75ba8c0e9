// Paints the cells of a list: each on one line, cut with dots, in the colour of its tone, which is darkened
// where it could not be read on the row's own colour. A cell that is cut shows its text in a tooltip. The row
// that the list marks has a bar at its left edge.
#pragma once

#include <QStyledItemDelegate>

namespace tarvo {

class DelegadoLista final : public QStyledItemDelegate {
    Q_OBJECT
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QString displayText(const QVariant &valor, const QLocale &region) const override;
    void paint(QPainter *pintor, const QStyleOptionViewItem &opcion,
               const QModelIndex &indice) const override;
    QSize sizeHint(const QStyleOptionViewItem &opcion, const QModelIndex &indice) const override;
    bool helpEvent(QHelpEvent *evento, QAbstractItemView *vista, const QStyleOptionViewItem &opcion,
                   const QModelIndex &indice) override;

  protected:
    void initStyleOption(QStyleOptionViewItem *opcion, const QModelIndex &indice) const override;

  private:
    bool Cortada(const QStyleOptionViewItem &celda) const;
};

} // namespace tarvo
