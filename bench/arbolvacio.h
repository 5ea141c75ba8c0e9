// The limit of every list: a bare tree view on a model of as many rows that has no texts.
#pragma once

#include "comparacion.h"

#include <QAbstractTableModel>
#include <QTreeView>

namespace comparacion {

class ModeloVacio final : public QAbstractTableModel {
  public:
    ModeloVacio(int filas, int columnas) : filas_(filas), columnas_(columnas) {}
    int rowCount(const QModelIndex &padre) const override { return padre.isValid() ? 0 : filas_; }
    int columnCount(const QModelIndex &padre) const override { return padre.isValid() ? 0 : columnas_; }
    QVariant data(const QModelIndex &, int) const override { return {}; }

  private:
    int filas_;
    int columnas_;
};

// Shows a window and waits until it is painted.
inline void Exponer(QWidget &ventana) {
    ventana.resize(1000, 700);
    ventana.show();
    ventana.grab();
}

// Milliseconds from the model to the painted view.
inline double MostrarArbolVacio(int filas, int columnas) {
    ModeloVacio modelo(filas, columnas);
    return Mejor(5, [&] {
        QTreeView vista;
        vista.setUniformRowHeights(true);
        vista.setRootIsDecorated(false);
        return Milisegundos([&] {
            vista.setModel(&modelo);
            Exponer(vista);
        });
    });
}

} // namespace comparacion
