// One cell or header of a list, as a screen reader meets it.
#pragma once

#include <QAccessibleInterface>
#include <QPointer>

namespace tarvo {

class ListaVista;

class AccesoCelda final : public QAccessibleInterface, public QAccessibleTableCellInterface {
  public:
    static constexpr int kEncabezado = -1; // the row of the headers

    AccesoCelda(ListaVista *vista, int fila, int columna) : vista_(vista), fila_(fila), columna_(columna) {}
    ~AccesoCelda() override = default;
    AccesoCelda(const AccesoCelda &) = delete;
    AccesoCelda &operator=(const AccesoCelda &) = delete;
    AccesoCelda(AccesoCelda &&) = delete;
    AccesoCelda &operator=(AccesoCelda &&) = delete;

    void *interface_cast(QAccessible::InterfaceType tipo) override;
    bool isValid() const override;
    QObject *object() const override { return nullptr; }
    QWindow *window() const override;
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QAccessibleInterface *parent() const override { return table(); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text parte) const override;
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

    bool isSelected() const override;
    QList<QAccessibleInterface *> columnHeaderCells() const override;
    QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return columna_; }
    int rowIndex() const override { return fila_; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override;

  private:
    bool Habla() const;
    bool EsEncabezado() const { return fila_ == kEncabezado; }
    void Marcar(QAccessible::State &estado) const;

    QPointer<ListaVista> vista_;
    int fila_;
    int columna_;
};

} // namespace tarvo
