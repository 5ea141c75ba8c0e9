// A list as a screen reader meets it: one cell for each cell of the list, headers first. The cell that the
// reader stands on speaks for its whole row, caption and text of each visible column; hidden columns are
// never shown.
//
// Children are counted as the view counts them when it tells the one with the focus: by row and by column,
// the hidden ones too. Cells are made when they are asked for, and tell what the list holds at that moment.
#pragma once

#include <QAccessibleWidget>
#include <QHash>

namespace tarvo {

class ListaTexto;
class ListaVista;

class AccesoLista final : public QAccessibleWidget, public QAccessibleTableInterface {
  public:
    explicit AccesoLista(ListaVista *vista);
    ~AccesoLista() override;
    AccesoLista(const AccesoLista &) = delete;
    AccesoLista &operator=(const AccesoLista &) = delete;
    AccesoLista(AccesoLista &&) = delete;
    AccesoLista &operator=(AccesoLista &&) = delete;

    void *interface_cast(QAccessible::InterfaceType tipo) override;
    int childCount() const override;
    QAccessibleInterface *child(int indice) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    int indexOfChild(const QAccessibleInterface *hijo) const override;

    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    QAccessibleInterface *cellAt(int fila, int columna) const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface *> selectedCells() const override;
    QString columnDescription(int columna) const override;
    QString rowDescription(int) const override { return {}; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override;
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override;
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int fila) const override;
    bool selectRow(int fila) override;
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent *evento) override;

  private:
    ListaVista &Vista() const;
    void OlvidarCeldas();
    mutable QHash<int, QAccessible::Id> celdas_; // by number of the child
};

} // namespace tarvo
