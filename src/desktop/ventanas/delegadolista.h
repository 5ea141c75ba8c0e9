// Paints the cells of a list: each on one line, cut with dots, in the colour of its tone also on the selected
// row.
#pragma once

#include <QStyledItemDelegate>

namespace tarvo {

class DelegadoLista final : public QStyledItemDelegate {
    Q_OBJECT
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QString displayText(const QVariant &valor, const QLocale &region) const override;
    QSize sizeHint(const QStyleOptionViewItem &opcion, const QModelIndex &indice) const override;

  protected:
    void initStyleOption(QStyleOptionViewItem *opcion, const QModelIndex &indice) const override;
};

} // namespace tarvo
