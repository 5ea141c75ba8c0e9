// The labels under which combos show the rows of a table, and the way back from a label to the row's id.
#pragma once

#include "store/cursor.h"

#include <QStringList>

#include <vector>

namespace tarvo {

class Etiquetas {
  public:
    // A label joins the texts of `partes` with " - "; `final` stands behind the last ("%").
    Etiquetas(Cursor &cursor, Campo &id, std::vector<const Campo *> partes, QString final = {});

    // The labels of all rows in table order.
    QStringList Todas() const;
    // `id` of the first row with that label; empty when there is none. Two rows may share a label.
    QString IdDe(const QString &etiqueta) const;
    // Label of the row with that id, as text; null when there is none.
    QString DeId(const QString &id) const;

  private:
    // Rows of the table; none when it can't be read: a combo then stays empty without a word.
    int Filas() const;
    QString DeFila(int fila) const;
    Cursor &cursor_;
    Campo &id_;
    std::vector<const Campo *> partes_;
    QString final_;
};

} // namespace tarvo
