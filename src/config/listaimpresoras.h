// A list of the installed printers in which exactly one can be checked: the printer of one purpose.
//
// The checked name lives in the per-user settings. A stored name that no printer has leaves the list
// unchecked and stays stored: the printer may only be switched off.
#pragma once

#include "desktop/listatexto.h"

#include <QObject>

class QSettings;

namespace tarvo {

class ListaImpresoras : public QObject {
    Q_OBJECT
  public:
    // `clave` is the setting ("ImpTick", "ImpList"), `titulo` the caption of the only column.
    ListaImpresoras(QSettings &ajustes, QString clave, const QString &titulo, QObject *padre = nullptr);

    ListaTexto &Lista() { return lista_; }
    // One row per printer; the stored one is checked.
    void Llenar(const QStringList &nombres);
    // The row (from 0) becomes the only checked one and is stored at once. A row that is checked stays
    // checked.
    void Elegir(int fila);
    QString Elegida() const; // empty when none is checked
    // Width of the column in twips: a scroll bar takes room from more than 5 printers on.
    int Ancho() const { return lista_.Filas() > 5 ? 6860 : 7100; }

  signals:
    void NoGuardada(); // the settings could not be written: the choice holds until the program ends
    void FilaElegida(int fila);

  private:
    void MarcarSolo(int fila);

    QSettings &ajustes_;
    QString clave_;
    ListaTexto lista_;
};

} // namespace tarvo
