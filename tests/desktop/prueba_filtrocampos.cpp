#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/kitmenu.h"
#include "desktop/ventanas/paneles.h"
#include "desktop/ventanas/teclasostenida.h"
#include "testkit/manos.h"

#include <QDateEdit>
#include <QDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QSpinBox>

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
    int ruedas = 0; // that came through to the window

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
    void wheelEvent(QWheelEvent *) override { ++ruedas; }
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

// A stroke at a time in ms.
void Golpear(QWidget *control, int tecla, quint64 momento, bool repetida = false) {
    const QString texto = tecla < Qt::Key_Escape ? QString(QChar(tecla)) : QString();
    QKeyEvent evento(QEvent::KeyPress, tecla, Qt::NoModifier, texto, repetida);
    evento.setTimestamp(momento);
    QApplication::sendEvent(control, &evento);
}

// What the system calls a repeated key is one only when it comes as late as those do: a scanner sends its
// Enter twice at once, also behind two equal figures.
TEST(FiltroCampos, AHeldEnterPressesOnceAndASecondOneAtOnceIsItsOwn) {
    VentanaDeCampos ventana;
    const QSignalSpy pulsado(ventana.cmdCuatro, &QPushButton::clicked);
    Golpear(ventana.cmdCuatro, Qt::Key_Return, 1000);
    for (const quint64 momento : {1500U, 1530U, 1560U})
        Golpear(ventana.cmdCuatro, Qt::Key_Return, momento, true);
    EXPECT_EQ(pulsado.size(), 1);
    Golpear(ventana.txtUno, Qt::Key_5, 3000);
    Golpear(ventana.txtUno, Qt::Key_5, 3000, true);
    Golpear(ventana.cmdCuatro, Qt::Key_Return, 3001, true);
    EXPECT_EQ(pulsado.size(), 2);
}

// The strokes of a held Enter, as the system tells them: the first one, marked and unmarked ones.
TEST(TeclaSostenida, ActsInItsOwnWindowOnly) {
    TeclaSostenida sostenida;
    qApp->installEventFilter(&sostenida);
    QLineEdit uno;
    QLineEdit otro;
    MostrarVentana(uno);
    MostrarVentana(otro);
    const auto llega = [](const QWidget &ventana, quint64 momento, bool marcada) {
        QKeyEvent suelta(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, u"a"_qs, marcada);
        QKeyEvent baja(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, u"a"_qs, marcada);
        for (QKeyEvent *evento : {&suelta, &baja}) {
            evento->setTimestamp(momento);
            QApplication::sendEvent(ventana.windowHandle(), evento);
        }
    };
    llega(uno, 1000, false);
    for (const quint64 despues : {15U, 30U, 45U, 60U, 75U, 90U, 105U, 120U}) // as a scanner does
        llega(uno, 1000 + despues, false);
    llega(uno, 1660, true);
    EXPECT_EQ(uno.text(), u"aaaaaaaaaa");
    llega(uno, 1700, false);
    for (const bool marcada : {true, false})
        llega(otro, 1740, marcada);
    llega(uno, 1780, true);
    EXPECT_EQ(uno.text() + otro.text(), u"aaaaaaaaaa") << "held, and once in another window";
    llega(otro, 1900, false);
    EXPECT_EQ(otro.text(), u"") << "the key has not gone up";
    QKeyEvent arriba(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier);
    arriba.setTimestamp(1950);
    QApplication::sendEvent(otro.windowHandle(), &arriba);
    QKeyEvent nueva(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, u"a"_qs);
    nueva.setTimestamp(2000);
    QApplication::sendEvent(otro.windowHandle(), &nueva);
    EXPECT_EQ(otro.text(), u"a");
}

TEST(FiltroCampos, TheEnterOfAScanChoosesNoEntryOfAMenu) {
    QMenu menu;
    LlenarMenu(&menu, {{u"salir"_qs, u"Salir"_qs}});
    const QSignalSpy elegida(menu.actions().constFirst(), &QAction::triggered);
    menu.popup({});
    menu.setActiveAction(menu.actions().constFirst());
    for (const int tecla : std::initializer_list<int>{'7', '7', '9', Qt::Key_Return, Qt::Key_Return})
        Golpear(&menu, tecla, 1000);
    EXPECT_EQ(elegida.size(), 0);
    Golpear(&menu, Qt::Key_Return, 2000);
    EXPECT_EQ(elegida.size(), 1);
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
    Pulsar(ventana.txtUno);
    EXPECT_EQ(ventana.txtUno->selectedText(), u"12") << "the first click, though it has the focus";
    ventana.txtCinco->setFocus();
    QTest::keyClick(ventana.txtCinco, 'x');
    Pulsar(ventana.txtCinco);
    EXPECT_FALSE(ventana.txtCinco->hasSelectedText()) << "it has been typed in";
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
    QTest::keyClick(ventana.txtUno, '2', Qt::AltModifier);
    EXPECT_EQ(ventana.txtUno->text(), u"uno") << "a letter that nothing underlines";
}

TEST(FiltroCampos, TheWheelChangesNoFieldAndScrollsWhatLiesBehindIt) {
    VentanaDeCampos ventana;
    auto *tardio = ventana.Poner<QSpinBox>("tardio");
    tardio->setValue(5);
    tardio->show();
    QApplication::processEvents();
    const QDate fecha = ventana.DTPTres->date();
    for (QWidget *control : std::initializer_list<QWidget *>{ventana.cboxDos, ventana.DTPTres, tardio})
        Rueda(control);
    EXPECT_EQ(ventana.ruedas, 3);
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

TEST(Paneles, AClosedPanelLeavesTheFocusWhereAKeyCanBeUsed) {
    QWidget ventana;
    QLineEdit oculto(&ventana);
    QLineEdit apagado(&ventana);
    QFrame panel(&ventana);
    QLineEdit dentro(&panel);
    QPushButton tras(&ventana);
    QLineEdit destino(&ventana);
    MostrarVentana(ventana);
    oculto.hide();
    apagado.setEnabled(false);
    const auto cerrar = [&](std::initializer_list<QWidget *> destinos) {
        panel.show();
        dentro.setFocus();
        CerrarPanel(panel, destinos);
        EXPECT_FALSE(panel.isVisible());
        return QApplication::focusWidget();
    };
    EXPECT_EQ(cerrar({&oculto, &apagado, &dentro, &destino, &tras}), &destino);
    EXPECT_EQ(cerrar({&oculto}), &tras) << "none that was named: the next one in tab order";
    tras.setEnabled(false);
    EXPECT_EQ(cerrar({}), &destino);
}

} // namespace
} // namespace tarvo
