#include "desktop/ventanas/comboelidido.h"
#include "desktop/ventanas/etiquetaelidida.h"
#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/iconos.h"
#include "desktop/ventanas/kitmenu.h"
#include "desktop/ventanas/listavista.h"
#include "desktop/ventanas/preguntasqt.h"
#include "testkit/manos.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace tarvo {
namespace {

// A window with one field of each kind, in this tab order.
struct VentanaDeCampos : QWidget {
    QLineEdit *txtUno = Poner<QLineEdit>("txtUno");
    QComboBox *cboxDos = Poner<QComboBox>("cboxDos");
    QDateEdit *DTPTres = Poner<QDateEdit>("DTPTres");
    QLineEdit *txtApagado = Poner<QLineEdit>("txtApagado");
    QPushButton *cmdCuatro = Poner<QPushButton>("cmdCuatro");
    QLineEdit *txtCinco = Poner<QLineEdit>("txtCinco");
    FiltroCampos filtro{this};

    VentanaDeCampos() {
        cboxDos->addItems({u"a"_qs, u"b"_qs});
        txtUno->setText(u"uno"_qs);
        txtCinco->setText(u"cinco"_qs);
        txtApagado->setEnabled(false);
        MostrarVentana(*this);
        txtUno->setFocus();
    }

    template <typename T> T *Poner(const char *nombre) {
        if (layout() == nullptr)
            new QHBoxLayout(this);
        auto *control = new T(this);
        control->setObjectName(QString::fromUtf8(nombre));
        layout()->addWidget(control);
        return control;
    }
};

TEST(FiltroCampos, EnterWalksTheFieldsAndPressesButtons) {
    VentanaDeCampos ventana;
    QSignalSpy pulsado(ventana.cmdCuatro, &QPushButton::clicked);
    QStringList camino{ConFoco()};
    for (int i = 0; i < 4; ++i) {
        Tecla(QApplication::focusWidget(), i % 2 == 0 ? Qt::Key_Return : Qt::Key_Enter);
        camino.append(ConFoco());
    }
    EXPECT_EQ(camino.join(u' '), u"txtUno cboxDos DTPTres cmdCuatro cmdCuatro")
        << "disabled ones are left out";
    EXPECT_EQ(pulsado.size(), 1);
    EXPECT_EQ(ventana.txtUno->text(), u"uno");
}

TEST(FiltroCampos, AWindowNamesItsExceptions) {
    VentanaDeCampos ventana;
    QStringList hechos;
    ventana.filtro.AlEntrar(ventana.txtUno, [&] { hechos.append(u"entrar"_qs); });
    ventana.filtro.AlSuprimir(ventana.txtUno, [&] { hechos.append(u"suprimir"_qs); });
    ventana.filtro.AlFlecha(ventana.txtUno, [&](int paso) { hechos.append(QString::number(paso)); });
    for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Delete, Qt::Key_Up, Qt::Key_Down})
        Tecla(ventana.txtUno, tecla);
    EXPECT_EQ(hechos.join(u' '), u"entrar suprimir 1 -1");
    EXPECT_EQ(ConFoco(), u"txtUno");
    EXPECT_EQ(ventana.txtUno->text(), u"uno");
    delete ventana.txtUno; // its entries go with it
    Tecla(ventana.txtCinco, Qt::Key_Return);
}

TEST(FiltroCampos, AFieldThatGetsTheFocusHasItsTextSelected) {
    VentanaDeCampos ventana;
    EXPECT_EQ(ventana.txtUno->selectedText(), u"uno");
    Pulsar(ventana.txtCinco);
    EXPECT_EQ(ventana.txtCinco->selectedText(), u"cinco") << "a click doesn't unselect";
    Pulsar(ventana.txtCinco);
    EXPECT_FALSE(ventana.txtCinco->hasSelectedText()) << "the second click places the cursor";
    ventana.filtro.AlFoco(ventana.txtUno, [&](bool entra) {
        if (entra)
            ventana.txtUno->setText(u"12"_qs);
    });
    ventana.txtUno->setFocus();
    EXPECT_EQ(ventana.txtUno->selectedText(), u"12") << "what the window put there is selected";
}

TEST(FiltroCampos, TheFocusIsToldOnceAndNotWhileAnotherWindowAsks) {
    VentanaDeCampos ventana;
    QStringList hechos;
    for (QWidget *campo : std::initializer_list<QWidget *>{ventana.cboxDos, ventana.DTPTres})
        ventana.filtro.AlFoco(
            campo, [&, campo](bool entra) { hechos.append((entra ? u'+' : u'-') + campo->objectName()); });
    ventana.cboxDos->setFocus();
    {
        QDialog otra(&ventana);
        MostrarVentana(otra);
    }
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    EXPECT_EQ(hechos.join(u' '), u"+cboxDos");
    ventana.DTPTres->setFocus();
    EXPECT_EQ(hechos.join(u' '), u"+cboxDos -cboxDos +DTPTres");
}

// Ctrl+A stands for any letter that is an editing key of a field and a shortcut of the window.
TEST(FiltroCampos, AShortcutOfTheWindowIsNotTakenByAField) {
    VentanaDeCampos ventana;
    auto *entrada = new QAction(&ventana);
    ventana.addAction(entrada);
    entrada->setShortcut(Qt::CTRL | Qt::Key_A);
    QSignalSpy elegida(entrada, &QAction::triggered);
    ventana.txtUno->deselect();
    Tecla(ventana.txtUno, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(elegida.size(), 1);
    EXPECT_FALSE(ventana.txtUno->hasSelectedText());
    entrada->setEnabled(false);
    Tecla(ventana.txtUno, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(elegida.size(), 1);
    EXPECT_EQ(ventana.txtUno->selectedText(), u"uno") << "a key without an entry edits";
}

// Turns the wheel over a control, as the window system does.
void Rueda(QWidget *control) {
    const QPointF centro = QRectF(control->rect()).center();
    QWheelEvent rueda(centro, control->mapToGlobal(centro), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&rueda);
    qApp->notify(control, &rueda);
}

TEST(FiltroCampos, TheWheelChangesNoFieldOnItsWay) {
    VentanaDeCampos ventana;
    auto *tardio = ventana.Poner<QSpinBox>("tardio");
    tardio->setValue(5);
    tardio->show();
    QApplication::processEvents();
    const QDate fecha = ventana.DTPTres->date();
    for (QWidget *control : std::initializer_list<QWidget *>{ventana.cboxDos, ventana.DTPTres, tardio})
        Rueda(control);
    EXPECT_EQ(ConFoco(), u"txtUno") << "nor does it take the focus along";
    ventana.cboxDos->setFocus();
    Rueda(ventana.cboxDos);
    EXPECT_EQ(ventana.cboxDos->currentIndex(), 0);
    EXPECT_EQ(ventana.DTPTres->date(), fecha);
    EXPECT_EQ(tardio->value(), 5);
    tardio->setFocus();
    Rueda(tardio);
    EXPECT_EQ(tardio->value(), 4) << "being edited";
}

TEST(FiltroCampos, TheWheelScrollsWhatLiesBehindAField) {
    struct Fondo : QWidget {
        int veces = 0;
        void wheelEvent(QWheelEvent *evento) override {
            ++veces;
            evento->accept();
        }
    } fondo;
    fondo.resize(300, 200);
    auto *combo = new QComboBox(&fondo);
    combo->addItems({u"a"_qs, u"b"_qs});
    const FiltroCampos filtro(&fondo);
    MostrarVentana(fondo);
    Rueda(combo);
    EXPECT_EQ(fondo.veces, 1);
}

TEST(FiltroCampos, EscapeIsOfferedOncePerStrokeFromAnyControl) {
    VentanaDeCampos ventana;
    int veces = 0;
    bool hecho = false;
    ventana.filtro.AlEscapar([&] {
        ++veces;
        return hecho;
    });
    auto *marco = ventana.Poner<QFrame>("frNuevo");
    auto *tardio = new QLineEdit(marco); // added behind the filter's back, two levels deep
    tardio->show();
    for (QWidget *control :
         std::initializer_list<QWidget *>{tardio, ventana.cboxDos, ventana.cmdCuatro, &ventana}) {
        Tecla(control, Qt::Key_Escape);
        Tecla(control, Qt::Key_Escape);
    }
    EXPECT_EQ(veces, 8);
    hecho = true;
    Tecla(tardio, Qt::Key_Escape);
    EXPECT_EQ(veces, 9);
}

TEST(SoloCaracteres, DropsWhatIsNotAllowedTypedOrPasted) {
    QLineEdit campo;
    SoloCaracteres(&campo, u"0123456789"_qs);
    MostrarVentana(campo);
    Teclear(&campo, u"a1b2,3"_qs);
    EXPECT_EQ(campo.text(), u"123");
    Tecla(&campo, Qt::Key_Backspace);
    Tecla(&campo, Qt::Key_Home);
    QApplication::clipboard()->setText(u"x9-8 7"_qs);
    campo.paste();
    EXPECT_EQ(campo.text(), u"98712");
    EXPECT_EQ(campo.cursorPosition(), 3);
    campo.setText(u"$ 12,50"_qs);
    EXPECT_EQ(campo.text(), u"$ 12,50") << "the program's own text stays";
}

struct VistaDePrueba {
    ListaTexto lista{{{u"Texto"_qs, 3000}, {u"Cantidad"_qs, 1000, true}, {u"id"_qs, 0, false, true}}};
    ListaVista vista;

    explicit VistaDePrueba(int filas) {
        for (int i = 0; i < filas; ++i)
            lista.AgregarFila({QStringLiteral("fila %1").arg((i * 7) % filas, 5, 10, QLatin1Char('0')),
                               QString::number(i), QString::number(i)});
        vista.resize(500, 300);
        vista.Mostrar(&lista);
        MostrarVentana(vista);
    }
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
    for (int i = 0; i < 30; ++i) {
        Tecla(&v.vista, Qt::Key_Down);
        EXPECT_TRUE(visible()) << i;
    }
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

// The part of `zona` that differs between the two pictures.
QRect Cambiado(const QImage &antes, const QImage &despues, const QRect &zona) {
    QRect cambio;
    for (int y = zona.top(); y <= zona.bottom(); ++y)
        for (int x = zona.left(); x <= zona.right(); ++x)
            if (antes.pixel(x, y) != despues.pixel(x, y))
                cambio |= QRect(x, y, 1, 1);
    return cambio;
}

TEST(ListaVista, TheSortIconStandsBesideItsCaptionAndMovesNoBorder) {
    VistaDePrueba v(3);
    v.vista.resize(150, 300); // so narrow that the captions alone set the widths
    const auto ancho = [&](int columna) { return v.vista.columnWidth(columna); };
    const QImage antes = v.vista.header()->grab().toImage();
    const std::pair<int, int> anchos{ancho(0), ancho(1)};
    for (const int columna : {0, 1}) {
        SCOPED_TRACE(columna);
        v.lista.Ordenar(columna, Qt::AscendingOrder);
        EXPECT_EQ(std::pair(ancho(0), ancho(1)), anchos);
        const QImage despues = v.vista.header()->grab().toImage();
        const int x = v.vista.header()->sectionViewportPosition(columna);
        const QRect icono = Cambiado(antes, despues, {x, 0, ancho(columna), antes.height()});
        const int texto = v.vista.header()->fontMetrics().horizontalAdvance(
            v.lista.headerData(columna, Qt::Horizontal).toString());
        ASSERT_FALSE(icono.isNull());
        EXPECT_LT(icono.width(), 12) << "the caption is painted where it was";
        const int hueco = columna == 0 ? icono.left() - (x + texto) : x + ancho(1) - texto - icono.right();
        EXPECT_GT(hueco, 0);
        EXPECT_LT(hueco, 20);
    }
}

TEST(ListaVista, ColumnsShareTheWidthAndHiddenOnesTakeNone) {
    VistaDePrueba v(3);
    const auto ancho = [&](int columna) { return v.vista.columnWidth(columna); };
    EXPECT_TRUE(v.vista.isColumnHidden(2));
    EXPECT_EQ(ancho(0) + ancho(1), v.vista.viewport()->width());
    EXPECT_NEAR(ancho(0), 3 * ancho(1), 3);
    v.vista.resize(900, 300);
    EXPECT_EQ(ancho(0) + ancho(1), v.vista.viewport()->width());
    v.vista.PonerAncho(1, 3000);
    EXPECT_NEAR(ancho(0), ancho(1), 1);
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
    for (int pixeles = 1; pixeles <= fila; ++pixeles) {
        SCOPED_TRACE(pixeles);
        v.vista.resize(500, 300 + pixeles);
        EXPECT_LE(desbordan(), antes + 1);
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

TEST(EtiquetaElidida, LabelAndComboShowInTheTipWhatTheyCut) {
    QWidget fondo;
    fondo.resize(600, 200);
    EtiquetaElidida etiqueta;
    auto &combo = *new ComboElidido(&fondo);
    combo.resize(120, 26);
    etiqueta.resize(120, 26);
    for (const QString &texto :
         {u"Ana & Cía"_qs, QString(40, u'W') + u" & <b>x</b>"_qs, u"Línea\ndos <b"_qs}) {
        etiqueta.setText(texto);
        combo.clear();
        combo.addItem(texto);
        etiqueta.grab();
        combo.grab();
        const bool cortado = texto.size() > 20;
        EXPECT_EQ(etiqueta.toolTip(), cortado ? texto.toHtmlEscaped() : QString());
        EXPECT_EQ(combo.toolTip(), etiqueta.toolTip());
        EXPECT_EQ(combo.currentText(), texto);
    }
    etiqueta.setText(QString(40, u'W') + u" & 1"_qs); // no markup: nothing to escape
    etiqueta.grab();
    EXPECT_EQ(etiqueta.toolTip(), etiqueta.text());
    EXPECT_EQ(etiqueta.minimumSizeHint().width(), 0);
    combo.setItemText(0, QString(30, u'W'));
    MostrarVentana(fondo);
    combo.showPopup();
    EXPECT_GE(combo.view()->viewport()->width(), combo.fontMetrics().horizontalAdvance(QString(30, u'W')));
    EXPECT_LE(combo.view()->width(), 600);
    combo.hidePopup();
}

// Answers the next message box by a key and tells what it was.
struct Caja {
    QString texto, titulo, botones, pulsaEntrar;
    QMessageBox::Icon icono = QMessageBox::NoIcon;

    explicit Caja(Qt::Key tecla) {
        QTimer::singleShot(0, qApp, [this, tecla] {
            auto *caja = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_NE(caja, nullptr);
            texto = caja->text();
            titulo = caja->windowTitle();
            icono = caja->icon();
            for (const QAbstractButton *boton : caja->buttons())
                botones += boton->text() + u' ';
            pulsaEntrar = caja->defaultButton()->text();
            Tecla(caja, tecla);
        });
    }
};

TEST(PreguntasQt, AsksInSpanishWithTheGivenButtonReady) {
    PreguntasQt preguntas;
    for (const Respuesta lista : {Respuesta::Si, Respuesta::No}) {
        Caja entrar(Qt::Key_Return);
        EXPECT_EQ(preguntas.Preguntar(u"<b>Sigue?</b>"_qs, lista), lista);
        EXPECT_EQ(entrar.texto, u"<b>Sigue?</b>");
        EXPECT_EQ(entrar.titulo, u"Tarvo");
        EXPECT_EQ(entrar.pulsaEntrar, lista == Respuesta::Si ? u"Sí" : u"No");
        EXPECT_EQ(entrar.icono, QMessageBox::Question);
        Caja escapar(Qt::Key_Escape);
        EXPECT_EQ(preguntas.Preguntar(u"Sigue?"_qs, lista), Respuesta::No);
    }
    Caja mensaje(Qt::Key_Escape);
    preguntas.Mostrar(u"No se pudo."_qs, Icono::Critico);
    EXPECT_EQ(mensaje.botones, u"Aceptar ");
    EXPECT_EQ(mensaje.icono, QMessageBox::Critical);
}

TEST(KitMenu, BuildsTheTreeAndItsShortcutsWork) {
    QMainWindow ventana;
    QMenu *menu = ventana.menuBar()->addMenu(u"&Ventas"_qs);
    LlenarMenu(menu, {{u"ventas"_qs, u"&Ventas"_qs, u"F8"_qs, u"ventas"_qs, u"Muestra"_qs, true},
                      {},
                      {u"devoluciones"_qs,
                       u"&Devoluciones"_qs,
                       {},
                       u"devolucion"_qs,
                       {},
                       false,
                       {{u"devcontado"_qs, u"Contado"_qs, u"Ctrl+F6"_qs, u"contado"_qs, {}}}}});
    EXPECT_EQ(menu->actions().size(), 3);
    EXPECT_TRUE(menu->actions().at(1)->isSeparator());
    const QAction *ventas = AccionDe(&ventana, u"ventas"_qs);
    const QAction *contado = AccionDe(&ventana, u"devcontado"_qs);
    const QAction *devoluciones = AccionDe(&ventana, u"devoluciones"_qs);
    ASSERT_TRUE(ventas != nullptr && contado != nullptr && devoluciones != nullptr);
    EXPECT_EQ(AccionDe(&ventana, u"otra"_qs), nullptr);
    EXPECT_EQ(devoluciones->menu()->actions(), QList<QAction *>{const_cast<QAction *>(contado)});
    EXPECT_FALSE(ventas->icon().isNull() || contado->icon().isNull() || devoluciones->icon().isNull());
    EXPECT_EQ(ventas->statusTip(), u"Muestra");

    QSignalSpy pulsadas(contado, &QAction::triggered);
    MostrarVentana(ventana);
    Tecla(&ventana, Qt::Key_F8);
    Tecla(&ventana, Qt::Key_F6, Qt::ControlModifier);
    EXPECT_TRUE(ventas->isChecked());
    EXPECT_EQ(pulsadas.size(), 1);
}

// Every picture is an own drawing that paints something at the size of a toolbar, on both kinds of screen.
TEST(Iconos, EveryPictureIsDrawn) {
    EXPECT_TRUE(IconoDe(u"noexiste"_qs).isNull());
    const QStringList archivos = QDir(u":/iconos"_qs).entryList();
    EXPECT_GE(archivos.size(), 45);
    for (const QString &archivo : archivos) {
        const QImage imagen = IconoDe(archivo.chopped(4)).pixmap(QSize(24, 24), 2.0).toImage();
        ASSERT_EQ(imagen.size(), QSize(48, 48)) << archivo.toStdString();
        int pintados = 0;
        for (int y = 0; y < 48; ++y)
            for (int x = 0; x < 48; ++x)
                pintados += qAlpha(imagen.pixel(x, y)) > 128 ? 1 : 0;
        EXPECT_GT(pintados, 40) << archivo.toStdString();
    }
}

} // namespace
} // namespace tarvo
