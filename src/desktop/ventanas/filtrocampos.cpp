#include "desktop/ventanas/filtrocampos.h"

#include "desktop/escaner.h"
#include "desktop/ventanas/avisarcampo.h"
#include "desktop/ventanas/botonzel.h"
#include "desktop/ventanas/campofecha.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QChildEvent>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

namespace tarvo {

namespace {

bool EsCampo(const QWidget *control) {
    return qobject_cast<const QLineEdit *>(control) != nullptr ||
           qobject_cast<const QComboBox *>(control) != nullptr ||
           qobject_cast<const QAbstractSpinBox *>(control) != nullptr;
}

// The wheel scrolls what it is over; it must not come by a focus, and with it a field's value, on its way.
void SinFocoPorRueda(QWidget *control) {
    if (EsCampo(control) && control->focusPolicy() == Qt::WheelFocus)
        control->setFocusPolicy(Qt::StrongFocus);
}

// Alt with a letter that nothing underlines; a field would take the letter.
bool EsLetraSuelta(const QKeyEvent &evento) {
    const Qt::KeyboardModifiers orden = evento.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    return orden == Qt::AltModifier && !evento.text().isEmpty() && evento.text().front().isPrint();
}

// From another control, and not back from another window or a menu.
bool VieneDeOtro(const QFocusEvent &foco) {
    return foco.reason() != Qt::ActiveWindowFocusReason && foco.reason() != Qt::PopupFocusReason &&
           foco.reason() != Qt::MenuBarFocusReason;
}

// A key with Ctrl that the window has given to one of its entries. Fields would take some of these letters as
// editing keys before the entry could get them.
bool EsAtajo(const QWidget &control, const QKeyEvent &evento) {
    if ((evento.modifiers() & Qt::ControlModifier) == 0)
        return false;
    const QKeySequence tecla(evento.keyCombination());
    const QList<QAction *> acciones = control.window()->findChildren<QAction *>();
    return std::any_of(acciones.begin(), acciones.end(), [&tecla](const QAction *accion) {
        return accion->isEnabled() && accion->shortcut() == tecla;
    });
}

// What the Tab key would do, so that the tab order of the window is the one order that there is. A date stops
// at each of its three parts first; any other field that keeps the focus has refused to be left.
void PasarAlSiguiente(QWidget *control) {
    const int partes = qobject_cast<QAbstractSpinBox *>(control) != nullptr ? 4 : 1;
    for (int i = 0; i == 0 || (i < partes && control->hasFocus()); ++i) {
        QKeyEvent tabulador(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QCoreApplication::sendEvent(control, &tabulador);
    }
}

// A stroke that came as the repeat of another one: the key went up and down.
void PulsarDeNuevo(QObject &boton, const QKeyEvent &evento) {
    for (const QEvent::Type tipo : {QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent una(tipo, evento.key(), evento.modifiers(), evento.text());
        boton.event(&una);
    }
}

// What came at the pace of a scanner has more figures than this date or hour, a sign that stands in none, or
// is eight figures that are no date.
bool EsCodigoEn(const QDateTimeEdit &momento, const QString &leido) {
    constexpr int kFecha = 8;
    const QString forma = momento.displayFormat();
    const bool conNombre = forma.contains(QLatin1String("MMM"));
    const auto deMomento = [conNombre](QChar c) {
        return c.isDigit() || QStringLiteral("/-.: ").contains(c) || (conNombre && c.isLetter());
    };
    const auto cifras = std::ranges::count_if(leido, [](QChar c) { return c.isDigit(); });
    if (cifras > std::ranges::count_if(forma, [](QChar c) { return c.isLetter(); }))
        return true;
    if (!std::ranges::all_of(leido, deMomento))
        return leido.size() >= kCodigoMenor;
    return cifras == kFecha && cifras == leido.size() && !CampoFecha::EsDiaMesAnio(leido);
}

template <typename Accion>
void Anotar(QObject *filtro, QHash<QObject *, Accion> &tabla, QWidget *control, Accion accion) {
    tabla.insert(control, std::move(accion));
    QObject::connect(control, &QObject::destroyed, filtro,
                     [&tabla](QObject *muerto) { tabla.remove(muerto); });
}

} // namespace

FiltroCampos::FiltroCampos(QWidget *ventana) : QObject(ventana), ventana_(ventana) {
    Vigilar(ventana);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *ahora) { CambiarFoco(ahora); });
}

void FiltroCampos::AlEntrar(QWidget *control, std::function<void()> accion) {
    Anotar(this, alEntrar_, control, std::move(accion));
}

void FiltroCampos::AlSuprimir(QWidget *control, std::function<void()> accion) {
    Anotar(this, alSuprimir_, control, std::move(accion));
}

void FiltroCampos::AlFoco(QWidget *control, std::function<void(bool)> accion) {
    Anotar(this, alFoco_, control, std::move(accion));
}

void FiltroCampos::AlFlecha(QWidget *control, std::function<void(int)> accion) {
    Anotar(this, alFlecha_, control, std::move(accion));
}

void FiltroCampos::AlEscribir(QWidget *marco, std::function<void(const QString &)> accion) {
    Anotar(this, alEscribir_, marco, std::move(accion));
}

void FiltroCampos::AlEscapar(std::function<bool()> accion) {
    alEscapar_ = std::move(accion);
}

void FiltroCampos::Vigilar(QWidget *control) {
    control->installEventFilter(this);
    SinFocoPorRueda(control);
    for (QObject *hijo : control->children())
        if (hijo->isWidgetType())
            Vigilar(static_cast<QWidget *>(hijo));
}

// The editor inside a combo or a date is that combo or date.
QWidget *FiltroCampos::ControlDe(QWidget *recibe) const {
    QWidget *const padre = recibe->parentWidget();
    const bool interior = qobject_cast<QLineEdit *>(recibe) != nullptr && padre != nullptr && EsCampo(padre);
    return interior ? padre : recibe;
}

bool FiltroCampos::eventFilter(QObject *objeto, QEvent *evento) {
    auto *const recibe = static_cast<QWidget *>(objeto);
    switch (evento->type()) {
    case QEvent::ChildAdded: {
        QObject *const hijo = static_cast<QChildEvent *>(evento)->child();
        if (hijo->isWidgetType())
            Vigilar(static_cast<QWidget *>(hijo));
        return false;
    }
    case QEvent::Polish: // what was added while the window lives is a whole control only now
        SinFocoPorRueda(recibe);
        return false;
    case QEvent::Wheel:
        if (recibe->window() != ventana_->window() || AdmiteRueda(recibe))
            return false;
        evento->ignore(); // for its parent
        return true;
    case QEvent::ShortcutOverride:
        escapeVisto_ = false;
        if (!EsAtajo(*recibe, *static_cast<QKeyEvent *>(evento)))
            return false;
        evento->ignore();
        return true;
    case QEvent::KeyRelease:
        escapeVisto_ = false;
        return false;
    case QEvent::KeyPress: {
        auto *const tecla = static_cast<QKeyEvent *>(evento);
        ritmo_.Apuntar(recibe, *tecla);
        intacto_ = nullptr;
        return recibe->window() == ventana_->window() && Tecla(recibe, tecla);
    }
    case QEvent::FocusIn:
        if (VieneDeOtro(*static_cast<QFocusEvent *>(evento)))
            intacto_ = recibe;
        return false;
    case QEvent::MouseButtonRelease:
        // The click that brought the focus, or followed it, has put the cursor somewhere; a text dragged over
        // stays as selected.
        if (auto *campo = qobject_cast<QLineEdit *>(recibe);
            campo != nullptr && campo == intacto_ && !campo->hasSelectedText())
            campo->selectAll();
        // Of a date or an hour the part that was clicked.
        if (auto *momento = qobject_cast<QDateTimeEdit *>(ControlDe(recibe)); momento != nullptr)
            momento->setSelectedSection(momento->currentSection());
        intacto_ = nullptr;
        return false;
    default:
        return false;
    }
}

// A choice is never wheeled; a number or a date is while it is being edited.
bool FiltroCampos::AdmiteRueda(QWidget *recibe) const {
    const QWidget *const control = ControlDe(recibe);
    if (qobject_cast<const QComboBox *>(control) != nullptr)
        return false;
    return qobject_cast<const QAbstractSpinBox *>(control) == nullptr || control->hasFocus();
}

bool FiltroCampos::Tecla(QWidget *recibe, QKeyEvent *evento) {
    if (evento->key() == Qt::Key_Escape && SinModificador(*evento)) {
        const bool hecho = Escapar();
        escapeVisto_ = !hecho && recibe != ventana_;
        return hecho;
    }
    if (EsLetraSuelta(*evento))
        return true;
    if (recibe == ventana_)
        return false;
    QWidget *const control = ControlDe(recibe);
    if (Escribir(control, *evento))
        return true;
    if (!SinModificador(*evento))
        return false;
    if (EsEntrar(evento->key()))
        return Entrar(control, *evento);
    if (evento->key() == Qt::Key_Delete && alSuprimir_.contains(control)) {
        alSuprimir_.value(control)();
        return true;
    }
    if ((evento->key() == Qt::Key_Up || evento->key() == Qt::Key_Down) && alFlecha_.contains(control)) {
        alFlecha_.value(control)(evento->key() == Qt::Key_Up ? 1 : -1);
        return true;
    }
    return false;
}

// The blank presses the button and marks the row.
bool FiltroCampos::Escribir(QWidget *control, const QKeyEvent &evento) {
    const QString caracter = evento.key() == Qt::Key_Space ? QString() : CaracterDe(evento);
    if (caracter.isEmpty() || EsCampo(control))
        return false;
    for (auto una = alEscribir_.cbegin(); una != alEscribir_.cend(); ++una) {
        if (!static_cast<const QWidget *>(una.key())->isAncestorOf(control))
            continue;
        una.value()(caracter);
        return true;
    }
    return false;
}

bool FiltroCampos::Entrar(QWidget *control, const QKeyEvent &evento) {
    if (alEntrar_.contains(control)) {
        alEntrar_.value(control)();
        return true;
    }
    if (qobject_cast<QAbstractButton *>(control) != nullptr && !ritmo_.Leido().isEmpty())
        return true; // the end of a scan
    if (qobject_cast<BotonZel *>(control) != nullptr) {
        const bool otra = evento.isAutoRepeat() && !ritmo_.Sostenida();
        if (otra)
            PulsarDeNuevo(*control, evento);
        return otra; // else the button takes the key itself
    }
    if (auto *boton = qobject_cast<QAbstractButton *>(control); boton != nullptr && !boton->isCheckable()) {
        if (!ritmo_.Sostenida())
            boton->click();
        return true;
    }
    if (!EsCampo(control) && qobject_cast<QAbstractButton *>(control) == nullptr)
        return false;
    if (!DevolverMomento(control))
        PasarAlSiguiente(control);
    return true;
}

// The date or hour that a code was scanned into is again what it was. It loses the focus for a moment, so
// that nothing of the code is left for the next figure.
bool FiltroCampos::DevolverMomento(QWidget *control) {
    auto *const momento = qobject_cast<QDateTimeEdit *>(control);
    const QString leido = ritmo_.Leido();
    if (momento == nullptr || !EsCodigoEn(*momento, leido))
        return false;
    momento->clearFocus();
    momento->setDateTime(ritmo_.MomentoAntesDeLeer());
    momento->setFocus();
    momento->setSelectedSection(momento->sectionAt(0));
    AvisarCampo(momento, QStringLiteral("«%1» es un código leído.").arg(leido));
    return true;
}

// A stroke that a control leaves alone is offered to its parents, one by one; the action is asked the first
// time only.
bool FiltroCampos::Escapar() {
    return !escapeVisto_ && alEscapar_ && alEscapar_();
}

void FiltroCampos::CambiarFoco(QWidget *ahora) {
    if (ahora == nullptr || ahora->window() != ventana_->window())
        return;
    QWidget *const control = ControlDe(ahora);
    if (control == enfocado_)
        return;
    const QPointer<QWidget> antes = enfocado_;
    enfocado_ = control;
    if (!antes.isNull())
        AvisarFoco(antes, false);
    if (auto *campo = qobject_cast<QLineEdit *>(antes); campo != nullptr && !campo->hasFocus())
        campo->setCursorPosition(0); // what is too long shows its beginning
    if (enfocado_ != control || !(control == ventana_ || ventana_->isAncestorOf(control)))
        return;
    AvisarFoco(control, true);
    if (auto *campo = qobject_cast<QLineEdit *>(ahora); campo != nullptr && campo->hasFocus())
        campo->selectAll();
    // A date is typed day first, also by who comes back to it; a click chooses its part later.
    if (auto *momento = qobject_cast<QDateTimeEdit *>(control); momento != nullptr)
        momento->setSelectedSection(momento->sectionAt(0));
}

void FiltroCampos::AvisarFoco(QWidget *control, bool entra) {
    if (alFoco_.contains(control))
        alFoco_.value(control)(entra);
}

} // namespace tarvo
