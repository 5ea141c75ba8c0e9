#include "desktop/ventanas/frmcalc.h"

#include "desktop/ventanas/botonzel.h"
#include "desktop/ventanas/ritmoteclas.h"
#include "desktop/ventanas/solocaracteres.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QScreen>

#include <algorithm>

namespace tarvo {

namespace {

constexpr QSize kTamano(260, 360);
constexpr int kAnchoMenor = 200;
constexpr int kAltoDisplay = 56;
constexpr int kBordesDisplay = 24;    // pixels beside the text
constexpr double kLetraDisplay = 2.4; // times the program's type
constexpr int kBajoBarra = 120;       // pixels from the top of the main window, below its toolbar

} // namespace

// Place in the grid, name and caption, and what a screen reader calls it.
struct FrmCalc::Boton {
    int fila;
    int columna;
    QString nombre;
    QString texto;
    QString hablado;
    std::function<void()> accion;
};

FrmCalc::FrmCalc(const QString &sDecimal, QWidget *principal)
    : QWidget(principal, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                             Qt::WindowStaysOnTopHint), // its title has no room for more buttons
      calculadora_(sDecimal),
      txtDisplay(new QLineEdit(this)) {
    setObjectName(QStringLiteral("frmCalc"));
    setWindowTitle(QStringLiteral("Calculadora - Velbrina"));
    auto *rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(10, 8, 10, 8);
    rejilla->setSpacing(7);
    CrearDisplay(*rejilla);
    CrearBotones(*rejilla);
    installEventFilter(this);
    for (QWidget *control : findChildren<QWidget *>())
        control->installEventFilter(this);
    Alinear(*principal);
    Mostrar();
    cmdEquals->setFocus();
}

void FrmCalc::CrearDisplay(QGridLayout &rejilla) {
    txtDisplay->setObjectName(QStringLiteral("txtDisplay"));
    txtDisplay->setAccessibleName(QStringLiteral("Resultado"));
    txtDisplay->setAlignment(Qt::AlignRight);
    txtDisplay->setFont(QFont(QStringLiteral("Courier New")));
    AjustarLetra();
    txtDisplay->setFixedHeight(kAltoDisplay);
    txtDisplay->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    rejilla.addWidget(txtDisplay, 0, 0, 1, 4);
    SoloCaracteres(txtDisplay, QStringLiteral("0123456789,.-"));
    connect(txtDisplay, &QLineEdit::textEdited, this, &FrmCalc::Pegado);
    connect(txtDisplay, &QLineEdit::selectionChanged, this,
            [this] { conSeleccion_ = txtDisplay->hasSelectedText(); });
    txtDisplay->setAttribute(Qt::WA_InputMethodEnabled, false);
    connect(txtDisplay, &QLineEdit::cursorPositionChanged, this, [this] {
        if (!txtDisplay->hasSelectedText())
            txtDisplay->end(false);
    });
}

void FrmCalc::CrearBotones(QGridLayout &rejilla) {
    using C = Calculadora;
    const auto texto = [](const char *t) { return QString::fromUtf8(t); };
    const auto operador = [&](int fila, C::Operador n, const char *signo, const char *hablado) {
        return Boton{
            fila, 3, QStringLiteral("cmdOperador(%1)").arg(n), texto(signo), texto(hablado), [this, n] {
                calculadora_.Operar(n);
            }};
    };
    std::vector<Boton> botones{
        {1, 0, texto("cmdClear"), texto("C"), texto("Borrar todo"), [this] { calculadora_.Borrar(); }},
        {1, 1, texto("cmdClearEntry"), texto("CE"), texto("Borrar entrada"),
         [this] { calculadora_.BorrarEntrada(); }},
        {1, 2, texto("cmdMasMenos"), texto("±"), texto("Cambiar signo"), [this] { calculadora_.MasMenos(); }},
        operador(1, C::Dividir, "÷", "Dividir"),
        operador(2, C::Multiplicar, "×", "Multiplicar"),
        operador(3, C::Restar, "−", "Restar"),
        operador(4, C::Sumar, "+", "Sumar"),
        {5, 1, texto("cmdDecimal"), QString(calculadora_.Separador()), texto("Separador decimal"),
         [this] { Decimal(); }},
        {5, 2, texto("cmdCopiar"), texto("Copiar"), texto("Copiar el resultado"), [this] { Copiar(); }},
        {5, 3, texto("cmdEquals"), texto("="), texto("Igual"), [this] { calculadora_.Igual(); }},
    };
    for (int n = 0; n <= 9; ++n)
        botones.push_back({n == 0 ? 5 : 4 - (n - 1) / 3, n == 0 ? 0 : (n - 1) % 3,
                           QStringLiteral("cmdNumero(%1)").arg(n), QString::number(n), QString::number(n),
                           [this, n] { Digito(n); }});
    for (const Boton &boton : botones) {
        auto *const control = new BotonZel(boton.texto, this);
        control->setObjectName(boton.nombre);
        control->setAccessibleName(boton.hablado);
        control->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
        control->setAutoDefault(false);
        rejilla.addWidget(control, boton.fila, boton.columna);
        connect(control, &QAbstractButton::clicked, this, [this, accion = boton.accion] {
            accion();
            Mostrar();
        });
    }
    cmdEquals = findChild<QPushButton *>(QStringLiteral("cmdEquals"));
    cmdEquals->setProperty("principal", true);
}

// The right edges of both windows stand one below the other, as far as the screen reaches. Over a small main
// window it takes a third of its width, so that most of the module stays in sight.
void FrmCalc::Alinear(const QWidget &principal) {
    const QRect ventana = principal.geometry();
    const int ancho = std::clamp(ventana.width() / 3, kAnchoMenor, kTamano.width());
    QRect lugar(0, 0, ancho, kTamano.height() * ancho / kTamano.width());
    lugar.moveTopRight({ventana.right(), ventana.top() + kBajoBarra});
    const QRect pantalla = principal.screen()->availableGeometry();
    lugar.moveBottom(qMin(lugar.bottom(), pantalla.bottom()));
    setGeometry(lugar);
}

bool FrmCalc::eventFilter(QObject *objeto, QEvent *evento) {
    switch (evento->type()) {
    case QEvent::KeyPress:
        return Tecla(objeto, *static_cast<QKeyEvent *>(evento));
    case QEvent::KeyRelease:
        return TeclaSoltada(*static_cast<QKeyEvent *>(evento));
    case QEvent::MouseButtonRelease:
        if (objeto == txtDisplay && !txtDisplay->hasSelectedText())
            txtDisplay->end(false);
        return false;
    default:
        return false;
    }
}

// True when the key goes no further. Copying, pasting and the keys that only move the focus do; a blank
// presses the button that has the focus.
bool FrmCalc::Tecla(const QObject *recibe, const QKeyEvent &tecla) {
    if (QAction *const entrada = EntradaDe(tecla)) {
        if (!tecla.isAutoRepeat()) {
            parentWidget()->activateWindow(); // the next keys are for what it opens
            entrada->trigger();
        }
        return true;
    }
    if (tecla.key() == Qt::Key_F5)
        return close();
    if (EsEntrar(tecla.key()))
        return Caracter(u'=');
    if (recibe != txtDisplay && (tecla.matches(QKeySequence::Copy) || tecla.matches(QKeySequence::Paste))) {
        tecla.matches(QKeySequence::Copy) ? Copiar() : txtDisplay->paste();
        return true;
    }
    if (tecla.key() == Qt::Key_Backspace || tecla.key() == Qt::Key_Delete)
        return true; // they act when they are let go
    if (tecla.key() == Qt::Key_Space && recibe != txtDisplay)
        return false;
    if ((tecla.modifiers() & Qt::ControlModifier) != 0 || tecla.text().isEmpty() ||
        !tecla.text().front().isPrint())
        return false;
    if ((tecla.modifiers() & Qt::AltModifier) != 0)
        return true;
    return Caracter(tecla.text().front());
}

// The keys of the main window's entries, the calculator's own among them, work here too. Those of the open
// module don't: what is half typed in its fields counts only when the focus leaves them.
QAction *FrmCalc::EntradaDe(const QKeyEvent &tecla) const {
    const auto esDeLaPrincipal = [this](QObject *lugar) {
        return lugar == parentWidget() || qobject_cast<QMenu *>(lugar) != nullptr;
    };
    const QKeySequence pulsada(tecla.keyCombination());
    for (QAction *accion : parentWidget()->findChildren<QAction *>())
        if (accion->isEnabled() && accion->shortcut() == pulsada &&
            std::ranges::any_of(accion->associatedObjects(), esDeLaPrincipal))
            return accion;
    return nullptr;
}

bool FrmCalc::Caracter(QChar caracter) {
    using C = Calculadora;
    static const QHash<QChar, C::Operador> operadores{{u'+', C::Sumar},       {u'-', C::Restar},
                                                      {u'*', C::Multiplicar}, {u'x', C::Multiplicar},
                                                      {u'X', C::Multiplicar}, {u'/', C::Dividir}};
    if (caracter >= u'0' && caracter <= u'9')
        Digito(caracter.digitValue());
    else if (operadores.contains(caracter))
        calculadora_.Operar(operadores.value(caracter));
    else if (caracter == u'=')
        calculadora_.Igual();
    else if (caracter == u'.')
        Decimal();
    else if (caracter == u'c' || caracter == u'C')
        calculadora_.BorrarEntrada();
    Mostrar();
    return true;
}

bool FrmCalc::TeclaSoltada(const QKeyEvent &tecla) {
    if (tecla.isAutoRepeat() || (tecla.key() != Qt::Key_Backspace && tecla.key() != Qt::Key_Delete))
        return false;
    calculadora_.CortarUltimo();
    Mostrar();
    return true;
}

// Enter gives the result next.
void FrmCalc::Digito(int digito) {
    calculadora_.Digito(digito);
    cmdEquals->setFocus();
}

void FrmCalc::Decimal() {
    if (!calculadora_.Decimal())
        QApplication::beep();
}

// A long number is set smaller, so that its first figures stay in view.
void FrmCalc::AjustarLetra() {
    QFont letra = txtDisplay->font();
    letra.setPointSizeF(font().pointSizeF() * kLetraDisplay);
    const int ancho = QFontMetrics(letra).horizontalAdvance(txtDisplay->text()) + kBordesDisplay;
    if (txtDisplay->width() > 0 && ancho > txtDisplay->width())
        letra.setPointSizeF(std::max(font().pointSizeF(), letra.pointSizeF() * txtDisplay->width() / ancho));
    txtDisplay->setFont(letra);
}

void FrmCalc::resizeEvent(QResizeEvent *evento) {
    QWidget::resizeEvent(evento);
    AjustarLetra();
}

void FrmCalc::Copiar() {
    QApplication::clipboard()->setText(calculadora_.Display());
}

// A paste stands behind the display, whose place it takes where a new entry is due, or over what was
// selected.
void FrmCalc::Pegado(const QString &texto) {
    const bool detras = calculadora_.NuevaEntrada() && !conSeleccion_;
    calculadora_.PonerDisplay(detras ? texto.mid(calculadora_.Display().size()) : texto);
    Mostrar();
}

void FrmCalc::Mostrar() {
    txtDisplay->setText(calculadora_.Display());
    AjustarLetra();
    txtDisplay->end(false);
}

} // namespace tarvo
