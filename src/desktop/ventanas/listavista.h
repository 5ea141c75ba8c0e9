// The one list view: a flat tree view on a ListaTexto, with single selection of whole rows.
//
// Columns take what their texts need before the rest is shared out: numbers and amounts are never cut, of the
// others the widest give way first, and a cell that is cut shows its text in a tooltip. A column that the
// list can do without is left out before the texts that it gives way to are cut. Ctrl+1 to Ctrl+9 sort
// as a click on that visible header does. A list without rows says what to do, or that it can't be read.
#pragma once

#include "desktop/anchos.h"
#include "desktop/listatexto.h"

#include <QPointer>
#include <QTreeView>

namespace tarvo {

class ListaVista : public QTreeView {
    Q_OBJECT
    Q_PROPERTY(QString textoVacio MEMBER textoVacio_ WRITE PonerTextoVacio)
  public:
    explicit ListaVista(QWidget *padre = nullptr);

    // Shows `lista`: hidden columns are hidden, the visible ones share what is to spare of the width in
    // proportion to their twips, a click on a header sorts.
    void Mostrar(ListaTexto *lista);
    ListaTexto *Lista() const { return lista_.data(); }

    int FilaActual() const; // selected row from 0, -1 when none
    // Selects the row and scrolls it into view; -1 clears the selection.
    void SeleccionarFila(int fila);
    // Changes the width of a column, in twips, as a resize rule of a window asks.
    void PonerAncho(int columna, int twips);
    // What stands in the list while it has no rows, and is read aloud: "Todavía no hay ...".
    void PonerTextoVacio(const QString &texto);
    // True exactly when a scroll bar takes room: there are more rows than stand whole below the header.
    bool DesbordaFilas() const;

    // Rows are all of one height, so both are told from the row number, whatever the number of rows.
    QRect visualRect(const QModelIndex &indice) const override;
    void scrollTo(const QModelIndex &indice, ScrollHint donde = EnsureVisible) override;
    void doItemsLayout() override;

  signals:
    void FilaPulsada(int fila); // a click or an arrow key chose a row
    void FilaDobleClic(int fila);

  protected:
    void changeEvent(QEvent *evento) override;
    void paintEvent(QPaintEvent *evento) override;
    void resizeEvent(QResizeEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;
    void mousePressEvent(QMouseEvent *evento) override;
    void mouseMoveEvent(QMouseEvent *evento) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &indice,
                                                         const QEvent *evento) const override;

  private:
    void Encabezar();
    void Seguir();
    void RepartirAnchos();
    void DejarFuera();
    AnchoColumna AnchoDe(int columna) const;
    int Bordes(int columna) const;
    void MedirColumnas();
    int Medir(int columna, const QStringList &textos) const;
    int MedirMuestra(int columna) const;
    void Ensanchar(int desde, int hasta);
    bool OrdenarPorTecla(const QKeyEvent &evento);
    bool MarcarPorTecla(const QKeyEvent &evento);
    QString MotivoVacia() const;
    void DecirVacia();
    void Arrastrado();
    QPointer<ListaTexto> lista_;
    std::vector<int> anchos_;     // twips, by column
    std::vector<int> necesarios_; // pixels that the texts of each column need; empty: to be measured
    bool actualVista_ = false;    // the current row was in sight when the list was last painted
    QString textoVacio_;
    bool repartiendo_ = false;
    QList<QMetaObject::Connection> seguimiento_;
};

} // namespace tarvo
