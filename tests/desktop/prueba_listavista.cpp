#include "desktop/ventanas/listavista.h"
#include "testkit/manos.h"

#include <QAccessible>
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

namespace tarvo {
namespace {

struct VistaDePrueba {
    ListaTexto lista{{{u"Texto"_qs, 3000}, {u"Cantidad"_qs, 1000, true}, {u"id"_qs, 0, false, true}}};
    ListaVista vista;

    explicit VistaDePrueba(int filas) {
        for (int i = 0; i < filas; ++i)
            lista.AgregarFila({u"fila %1"_qs.arg((i * 7) % filas, 5, 10, QLatin1Char('0')),
                               QString::number(i), QString::number(i)});
        vista.resize(500, 300);
        vista.Mostrar(&lista);
        MostrarVentana(vista);
    }
    int Ancho(int columna) const { return vista.columnWidth(columna); }
    QString IdActual() const { return lista.Celda(vista.FilaActual(), 2); }
    void ClicEncabezado(int columna) {
        QTest::mouseClick(vista.header()->viewport(), Qt::LeftButton, {},
                          {vista.header()->sectionViewportPosition(columna) + 20, 5});
    }
    void ClicFila(int fila) {
        QTest::mouseClick(vista.viewport(), Qt::LeftButton, {},
                          vista.visualRect(lista.index(fila, 0)).center());
    }
};

TEST(ListaVista, TheSelectedRowStaysSelectedThroughASortAndGoesWithAFill) {
    VistaDePrueba v(101);
    v.vista.SeleccionarFila(60);
    v.ClicEncabezado(0);
    EXPECT_EQ(v.lista.ColumnaOrden(), 0);
    EXPECT_EQ(v.IdActual(), u"60");
    EXPECT_NE(v.vista.FilaActual(), 60);
    v.ClicEncabezado(0);
    EXPECT_EQ(v.lista.Orden(), Qt::DescendingOrder);
    EXPECT_EQ(v.IdActual(), u"60");
    v.lista.Limpiar();
    EXPECT_EQ(v.vista.FilaActual(), -1);
}

// Places are told from the row number; they must be those where the row is painted and clicked.
TEST(ListaVista, PlacesAgreeWithWhatIsHit) {
    VistaDePrueba v(400);
    for (const int fila : {0, 399, 200, 201, 180}) {
        v.vista.SeleccionarFila(fila);
        const QRect lugar = v.vista.visualRect(v.lista.index(fila, 1));
        EXPECT_TRUE(v.vista.viewport()->rect().contains(lugar)) << fila << " is not wholly in view";
        EXPECT_EQ(v.vista.indexAt(lugar.center()), v.lista.index(fila, 1));
        EXPECT_EQ(v.vista.indexAt(lugar.topLeft()), v.lista.index(fila, 1));
        EXPECT_EQ(v.vista.indexAt(lugar.bottomLeft()), v.lista.index(fila, 1));
    }
    v.vista.SeleccionarFila(-1);
    EXPECT_EQ(v.vista.FilaActual(), -1);
}

TEST(ListaVista, TellsWhatTheOperatorChoseButNotWhatTheProgramSelects) {
    VistaDePrueba v(20);
    QList<int> filas;
    QObject::connect(&v.vista, &ListaVista::FilaPulsada, &v.vista, [&](int fila) { filas.append(fila); });
    v.vista.SeleccionarFila(2);
    v.ClicFila(2);
    v.ClicFila(4);
    Tecla(&v.vista, Qt::Key_Down);
    Tecla(&v.vista, Qt::Key_Up);
    Tecla(&v.vista, Qt::Key_Shift);
    EXPECT_EQ(filas, (QList<int>{2, 4, 5, 4}));
    QSignalSpy doble(&v.vista, &ListaVista::FilaDobleClic);
    v.ClicFila(3);
    QTest::mouseDClick(v.vista.viewport(), Qt::LeftButton, {},
                       v.vista.visualRect(v.lista.index(3, 0)).center());
    ASSERT_EQ(doble.size(), 1);
    EXPECT_EQ(doble.first().first().toInt(), 3);
}

TEST(ListaVista, TheRowChosenByAKeyIsWhollyInView) {
    VistaDePrueba v(300);
    v.lista.Ordenar(0, Qt::AscendingOrder);
    v.vista.SeleccionarFila(0);
    const auto visible = [&] {
        return v.vista.viewport()->rect().contains(v.vista.visualRect(v.vista.currentIndex()));
    };
    for (int i = 0; i < 30; ++i)
        Tecla(&v.vista, Qt::Key_Down);
    EXPECT_TRUE(visible());
    for (const Qt::Key tecla : {Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_End, Qt::Key_Home,
                                Qt::Key_PageDown, Qt::Key_Up}) {
        Tecla(&v.vista, tecla);
        EXPECT_TRUE(visible()) << tecla;
    }
    Tecla(&v.vista, Qt::Key_End);
    v.vista.verticalScrollBar()->setValue(0); // the wheel
    Tecla(&v.vista, Qt::Key_End);
    EXPECT_TRUE(visible()) << "chosen already";
    QTest::keyClicks(&v.vista, u"fila 00150"_qs);
    EXPECT_EQ(v.vista.FilaActual(), 150);
    EXPECT_TRUE(visible()) << "found by its text";
}

TEST(ListaVista, AChosenRowStaysChosen) {
    VistaDePrueba v(4);
    const auto centro = [&](int fila) { return v.vista.visualRect(v.lista.index(fila, 0)).center(); };
    QWidget *papel = v.vista.viewport();
    v.ClicFila(2);
    QTest::mouseClick(papel, Qt::LeftButton, Qt::ControlModifier, centro(2));
    EXPECT_EQ(v.vista.FilaActual(), 2);
    QTest::mouseClick(papel, Qt::LeftButton, {}, {20, papel->height() - 5});
    EXPECT_EQ(v.vista.FilaActual(), 2) << "a click below the rows";
    QTest::mousePress(papel, Qt::LeftButton, {}, centro(1));
    QTest::mouseMove(papel, centro(3));
    QTest::mouseRelease(papel, Qt::LeftButton, {}, centro(3));
    EXPECT_EQ(v.vista.FilaActual(), 1) << "dragging over other rows";
    Tecla(&v.vista, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(v.vista.FilaActual(), 2);
}

TEST(ListaVista, ColumnsShareTheWidthAndHiddenOnesTakeNone) {
    VistaDePrueba v(3);
    EXPECT_TRUE(v.vista.isColumnHidden(2));
    EXPECT_EQ(v.Ancho(0) + v.Ancho(1), v.vista.viewport()->width());
    EXPECT_NEAR(v.Ancho(0), 3 * v.Ancho(1), 3);
    v.vista.resize(900, 300);
    EXPECT_EQ(v.Ancho(0) + v.Ancho(1), v.vista.viewport()->width());
    v.vista.PonerAncho(1, 3000);
    EXPECT_NEAR(v.Ancho(0), v.Ancho(1), 1);
    EXPECT_EQ(v.vista.horizontalScrollBar()->maximum(), 0);
}

TEST(ListaVista, ACodeCanBeReadHoweverNarrowTheList) {
    ListaTexto lista{
        {{.titulo = u"C"_qs, .ancho = 100, .legibles = 13}, {.titulo = u"Otra"_qs, .ancho = 9000}}};
    ListaVista vista;
    vista.resize(200, 100);
    vista.Mostrar(&lista);
    lista.AgregarFila({u"7790001234567"_qs, {}});
    MostrarVentana(vista);
    const QImage entero = vista.viewport()->grab().toImage();
    vista.resize(1000, 100);
    vista.PonerAncho(0, 9000);
    const int hasta = vista.fontMetrics().horizontalAdvance(lista.Celda(0, 0)) + 10;
    EXPECT_EQ(entero.copy(0, 0, hasta, 15), vista.viewport()->grab().toImage().copy(0, 0, hasta, 15));
}

// What the tooltip of a cell says; empty when there is none.
QString Ayuda(ListaVista &vista, int fila, int columna) {
    QToolTip::hideText();
    const QPoint sitio = vista.visualRect(vista.model()->index(fila, columna)).center();
    QHelpEvent evento(QEvent::ToolTip, sitio, vista.viewport()->mapToGlobal(sitio));
    QApplication::sendEvent(vista.viewport(), &evento);
    return QToolTip::text();
}

TEST(ListaVista, AmountsAreWholeAndTheNameGivesWay) {
    ListaTexto lista{{{u"Código"_qs, 2000},
                      {u"Artículo"_qs, 2000},
                      {u"P. Venta"_qs, 500, true},
                      {u"Subtotal"_qs, 500, true}}};
    const QString nombre = u"Aceite de oliva extra virgen primera prensa 500 ml"_qs;
    lista.AgregarFila({u"A1"_qs, nombre, u"$ -1,00"_qs, u"$ 1,00"_qs});
    ListaVista vista;
    vista.resize(560, 200);
    vista.Mostrar(&lista);
    MostrarVentana(vista);
    const auto letras = [&](int fila, int columna) {
        return vista.fontMetrics().horizontalAdvance(lista.Celda(fila, columna));
    };
    EXPECT_GT(vista.columnWidth(1), letras(0, 1)) << "all fit";
    EXPECT_EQ(Ayuda(vista, 0, 1), QString());
    lista.AgregarFila({u"A2"_qs, nombre, u"$ 999999999999999,00"_qs, u"$ -99999999999999,00"_qs});
    EXPECT_GT(vista.columnWidth(2), letras(1, 2));
    EXPECT_GT(vista.columnWidth(3), letras(1, 3));
    EXPECT_GT(vista.columnWidth(0), letras(0, 0));
    EXPECT_LT(vista.columnWidth(1), letras(0, 1));
    EXPECT_EQ(vista.horizontalScrollBar()->maximum(), 0);
    for (const int columna : {0, 2, 3}) // a tip that is shown goes only after a while
        EXPECT_EQ(Ayuda(vista, 1, columna), QString()) << columna;
    EXPECT_EQ(Ayuda(vista, 1, 1), nombre);
    lista.PonerCelda(0, 1, QString(10000, u'W'));
    EXPECT_LT(Ayuda(vista, 0, 1).size(), 2000);
    vista.resize(150, 200);
    EXPECT_GT(vista.columnWidth(2), letras(1, 2)) << "no room at all: the list is scrolled";
    EXPECT_GT(vista.horizontalScrollBar()->maximum(), 0);
    const int antes = vista.columnWidth(3);
    lista.PonerCelda(0, 3, QString(400, u'9'));
    EXPECT_EQ(vista.columnWidth(3), antes) << "no amount";
    lista.QuitarFila(1);
    vista.Mostrar(&lista);
    vista.grab();
    EXPECT_LT(vista.columnWidth(3), antes);
}

TEST(ListaVista, AColumnIsLeftOutWhileAnotherOneHasNoRoom) {
    ListaTexto lista{{{.titulo = u"Barras"_qs, .ancho = 1000, .legibles = 13, .cedeA = 1},
                      {.titulo = u"Artículo"_qs, .ancho = 1000}}};
    lista.AgregarFila({u"7"_qs, u"Polenta tradicional"_qs});
    ListaVista vista;
    vista.Mostrar(&lista);
    MostrarVentana(vista);
    for (const int ancho : {400, 150, 400}) {
        vista.resize(ancho, 100);
        EXPECT_EQ(vista.isColumnHidden(0), ancho < 200) << ancho;
    }
}

TEST(ListaVista, SortsByKey) {
    VistaDePrueba v(5);
    v.vista.setFocus();
    for (const Qt::SortOrder orden : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        Tecla(&v.vista, Qt::Key_2, Qt::ControlModifier);
        EXPECT_EQ(v.lista.ColumnaOrden(), 1);
        EXPECT_EQ(v.lista.Orden(), orden);
    }
    Tecla(&v.vista, Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(v.lista.ColumnaOrden(), 1) << "no third visible header";
    v.vista.header()->setSectionsClickable(false);
    Tecla(&v.vista, Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(v.lista.ColumnaOrden(), 1);
}

TEST(ListaVista, ARowIsReadAloudWithAllThatIsSeenOfIt) {
    VistaDePrueba v(5);
    v.vista.SeleccionarFila(3);
    QAccessibleInterface *acceso = QAccessible::queryAccessibleInterface(&v.vista);
    ASSERT_EQ(acceso->childCount(), 3 * 6);
    const auto nombre = [&](int hijo) { return acceso->child(hijo)->text(QAccessible::Name); };
    EXPECT_EQ(nombre(0), u"Texto");
    EXPECT_EQ(acceso->focusChild(), acceso->child(3 * 4));
    EXPECT_EQ(nombre(3 * 4), u"Texto fila 00001, Cantidad 3");
    EXPECT_EQ(nombre(3 * 4 + 1), u"3");
    v.ClicFila(2);
    EXPECT_TRUE(acceso->child(3 * 3)->state().selected);
    EXPECT_FALSE(acceso->child(3 * 4)->state().selected);
    for (const int hijo : {0, 1, 3, 4})
        EXPECT_FALSE(acceso->child(hijo)->state().invisible) << hijo;
    for (const int hijo : {2, 5})
        EXPECT_TRUE(acceso->child(hijo)->state().invisible) << "hidden column " << hijo;
    EXPECT_EQ(acceso->indexOfChild(acceso->child(7)), 7);
    QAccessibleInterface *ultima = acceso->child(17);
    v.lista.QuitarFila(4);
    EXPECT_FALSE(ultima->isValid());
    EXPECT_EQ(acceso->child(17), nullptr);
}

TEST(ListaVista, SaysWhatToDoWhileItIsEmpty) {
    VistaDePrueba v(0);
    const QImage nada = v.vista.viewport()->grab().toImage();
    v.vista.PonerTextoVacio(u"Todavía no hay filas."_qs);
    EXPECT_NE(v.vista.viewport()->grab().toImage(), nada);
    EXPECT_EQ(v.vista.accessibleDescription(), u"Todavía no hay filas.");
    v.lista.AgregarFila({u"a"_qs});
    EXPECT_TRUE(v.vista.accessibleDescription().isEmpty());
    v.lista.Limpiar();
    EXPECT_FALSE(v.vista.accessibleDescription().isEmpty());
    v.lista.QuedarIlegible();
    EXPECT_EQ(v.vista.accessibleDescription(), u"No se pudieron leer los datos.");
    v.lista.Limpiar();
    EXPECT_EQ(v.vista.accessibleDescription(), u"Todavía no hay filas.");
}

TEST(ListaVista, RowsOverflowJustWhenTheScrollBarTakesRoom) {
    VistaDePrueba v(0);
    // How many rows are one too many for the height.
    const auto desbordan = [&] {
        v.lista.Limpiar();
        do {
            v.lista.AgregarFila({});
            v.vista.doItemsLayout();
            QApplication::processEvents();
            EXPECT_EQ(v.vista.DesbordaFilas(), v.vista.verticalScrollBar()->maximum() > 0) << v.lista.Filas();
        } while (!v.vista.DesbordaFilas() && v.lista.Filas() < 50);
        return v.lista.Filas();
    };
    const int antes = desbordan();
    const int fila = v.vista.visualRect(v.lista.index(0, 0)).height();
    for (const int pixeles : {1, fila / 2, fila - 1, fila}) {
        v.vista.resize(500, 300 + pixeles);
        EXPECT_LE(desbordan(), antes + 1) << pixeles;
    }
    EXPECT_EQ(desbordan(), antes + 1) << "a row higher, a row more";
}

TEST(ListaVista, AnyTextIsShownOnOneLine) {
    VistaDePrueba v(1);
    const int alto = v.vista.visualRect(v.lista.index(0, 0)).height();
    for (const QString &texto : {u"a\nb\r\nc\td"_qs, QString(10000, u'W'), u"\0\x1b\x7f"_qs,
                                 u"😀👩‍👩‍👧 \u202eabc"_qs}) {
        v.lista.PonerCelda(0, 0, texto);
        v.vista.grab();
        EXPECT_EQ(v.vista.visualRect(v.lista.index(0, 0)).height(), alto);
        EXPECT_EQ(v.lista.Celda(0, 0), texto) << "the cell itself keeps its text";
    }
    EXPECT_EQ(qobject_cast<QStyledItemDelegate *>(v.vista.itemDelegate())->displayText(u"a\nb\tc"_qs, {}),
              u"a b c");
}

} // namespace
} // namespace tarvo
