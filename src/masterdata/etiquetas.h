// The labels under which combos show the rows of a table, and the way back from a label to the row's id. They
// are read with each fill of a list, not for each row that is shown.
#pragma once

#include "store/cursor.h"

#include <QHash>
#include <QStringList>

#include <vector>

namespace tarvo {

class Etiquetas {
  public:
    // A label joins the texts of `partes` with " - "; `final` stands behind the last ("%").
    Etiquetas(Cursor &cursor, Campo &id, std::vector<const Campo *> partes, QString final = {});

    // Reads the labels of all rows; none when the table can't be read: a combo then stays empty without a
    // word.
    void Leer();
    // In table order.
    const QStringList &Todas() const { return todas_; }
    // `id` of the first row with that label; empty when there is none. Two rows may share a label.
    QString IdDe(const QString &etiqueta) const { return idDe_.value(etiqueta); }
    // Label of the row with that id, as text; null when there is none.
    QString DeId(const QString &id) const { return deId_.value(id); }

  private:
    int Filas() const;
    QString DeFila(int fila) const;
    Cursor &cursor_;
    Campo &id_;
    std::vector<const Campo *> partes_;
    QString final_;
    QStringList todas_;
    QHash<QString, QString> idDe_;
    QHash<QString, QString> deId_;
};

} // namespace tarvo
