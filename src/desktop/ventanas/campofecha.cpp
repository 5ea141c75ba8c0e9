#include "desktop/ventanas/campofecha.h"

#include "desktop/ventanas/avisarcampo.h"
#include "desktop/ventanas/ritmoteclas.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QTextCharFormat>

#include <algorithm>
#include <utility>

namespace tarvo {

namespace {

const QString kFormaFecha = QStringLiteral("dd/MM/yyyy");
constexpr int kCifrasAnio = 4;

bool SeparaPartes(QChar signo) {
    return signo == u'/' || signo == u'-' || signo == u'.';
}

// The date that was written at last, with both separators or with all figures; empty for less.
QString FechaAlFinal(const QString &escrito) {
    constexpr int kCifrasFecha = 8;
    static const QRegularExpression separada(QStringLiteral("[0-9]{1,2}[/.-][0-9]{1,2}[/.-]$"));
    const QString cifras = escrito.right(kCifrasFecha);
    return CampoFecha::EsDiaMesAnio(cifras) ? cifras : separada.match(escrito).captured();
}

bool PideCalendario(const QKeyEvent &evento) {
    return evento.key() == Qt::Key_Down && (evento.modifiers() & ~Qt::KeypadModifier) == Qt::AltModifier;
}

} // namespace

CampoFecha::CampoFecha(QWidget *padre) : QDateEdit(padre) {
    const QLocale espanol(QLocale::Spanish);
    setLocale(espanol);
    setDisplayFormat(kFormaFecha);
    setCalendarPopup(true);
    lineEdit()->installEventFilter(this);
    QCalendarWidget &calendario = *calendarWidget();
    calendario.setLocale(espanol);
    calendario.setDateEditEnabled(false); // it would read the parts of a date as a year of its own
    calendario.setFirstDayOfWeek(Qt::Monday);
    calendario.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    for (const Qt::DayOfWeek dia : {Qt::Saturday, Qt::Sunday})
        calendario.setWeekdayTextFormat(dia, {});
    // The names of the days and six weeks, whole: the calendar by itself asks for less.
    calendario.setMinimumSize(fontMetrics().height() * QSize(18, 14));
}

bool CampoFecha::EsDiaMesAnio(const QString &cifras) {
    constexpr int kDiaMayor = 31;
    constexpr int kPrimerAnio = 1752; // before it no date is taken
    const int dia = cifras.left(2).toInt();
    return cifras.size() == 8 && dia >= 1 && dia <= kDiaMayor &&
           cifras.right(kCifrasAnio).toInt() > kPrimerAnio &&
           QDate(cifras.right(kCifrasAnio).toInt(), cifras.mid(2, 2).toInt(), 1).isValid();
}

void CampoFecha::keyPressEvent(QKeyEvent *evento) {
    const QString caracter = CaracterDe(*evento);
    if (caracter.size() == 1 && (caracter.front().isDigit() || SeparaPartes(caracter.front()))) {
        Escribir(caracter.front());
    } else if (calendarPopup() && PideCalendario(*evento)) {
        Terminar();
        AbrirCalendario();
    } else {
        DejarParte();
        QDateEdit::keyPressEvent(evento);
    }
}

// The Tab key, which walks the parts.
bool CampoFecha::focusNextPrevChild(bool siguiente) {
    DejarParte();
    return QDateEdit::focusNextPrevChild(siguiente);
}

void CampoFecha::stepBy(int pasos) {
    Terminar();
    QDateEdit::stepBy(pasos);
}

bool CampoFecha::eventFilter(QObject *objeto, QEvent *evento) {
    if (evento->type() == QEvent::MouseButtonPress)
        Terminar();
    return QDateEdit::eventFilter(objeto, evento);
}

void CampoFecha::mousePressEvent(QMouseEvent *evento) {
    Terminar();
    QDateEdit::mousePressEvent(evento);
}

void CampoFecha::focusOutEvent(QFocusEvent *evento) {
    Terminar();
    QDateEdit::focusOutEvent(evento);
}

// A whole date that was begun over another part than the first is typed once more, over that one.
void CampoFecha::Escribir(QChar signo) {
    if (escrito_.isEmpty()) {
        comienzo_ = currentSection();
        antes_ = date();
    }
    escrito_ += signo;
    Signo(signo);
    const QString entera = comienzo_ == sectionAt(0) ? QString() : FechaAlFinal(escrito_);
    if (entera.isEmpty())
        return;
    Olvidar();
    setDate(antes_);
    comienzo_ = sectionAt(0);
    setSelectedSection(comienzo_);
    for (const QChar otra : entera)
        Signo(otra);
}

void CampoFecha::Signo(QChar signo) {
    SeparaPartes(signo) ? Separar() : Cifra(signo.digitValue());
}

void CampoFecha::Cifra(int cifra) {
    if (date() != puesta_)
        dia_ = valor_ = cifras_ = 0;
    pasada_ = false;
    const bool dia = currentSection() == DaySection;
    const bool anio = currentSection() == YearSection;
    const int mayor = dia ? 31 : anio ? 9999 : 12;
    const int valor = valor_ * 10 + cifra;
    const int cifras = cifras_ + 1;
    if (valor > mayor || (valor == 0 && cifras == 2 && !anio)) {
        AvisarCampo(this, QStringLiteral("%1 va de 1 a %2.")
                              .arg(dia ? QStringLiteral("El día") : QStringLiteral("El mes"))
                              .arg(mayor));
        return;
    }
    valor_ = valor;
    cifras_ = cifras;
    if (anio && cifras < kCifrasAnio)
        return MostrarAnio();
    if (anio) {
        Completar();
        if (comienzo_ == sectionAt(0)) // the date is whole: what follows is another one
            escrito_.clear();
        return;
    }
    if (dia && valor > 0)
        dia_ = valor;
    Poner(dia || valor == 0 ? date().month() : valor, date().year());
    setSelectedSection(currentSection());
    if (cifras == 2 || valor * 10 > mayor) {
        Pasar();
        pasada_ = true;
    }
}

// The separator behind a part that has passed on by itself is only written, and passes nothing.
void CampoFecha::Separar() {
    if (!std::exchange(pasada_, false) && currentSection() != YearSection)
        Pasar();
}

void CampoFecha::Pasar() {
    valor_ = cifras_ = 0;
    setSelectedSection(currentSection() == DaySection ? MonthSection : YearSection);
}

// The day that was typed waits on for its month.
void CampoFecha::DejarParte() {
    if (currentSection() == YearSection)
        Terminar();
    escrito_.clear();
    valor_ = cifras_ = 0;
    pasada_ = false;
}

void CampoFecha::Poner(int mes, int anio) {
    const QDate primero(anio, mes, 1);
    const int dia = dia_ > 0 ? dia_ : date().day();
    setDate(primero.addDays(std::min(dia, primero.daysInMonth()) - 1));
    puesta_ = date();
}

// A year that isn't whole yet is no date: it stands in the field alone.
void CampoFecha::MostrarAnio() {
    puesta_ = date();
    const QSignalBlocker callado(lineEdit());
    const QString antes = displayFormat().remove(QStringLiteral("yyyy"));
    lineEdit()->setText(locale().toString(date(), antes) + QString::number(valor_));
}

// What was typed becomes a date. A year of three figures is none, and the old one stays.
void CampoFecha::Completar() {
    const int anio = cifras_ <= 2 ? 2000 + valor_ : valor_;
    if (currentSection() == YearSection && cifras_ > 0) {
        const bool esAnio = cifras_ <= 2 || QDate(anio, 1, 1) >= minimumDate();
        Poner(date().month(), esAnio ? anio : date().year());
        setSelectedSection(YearSection);
    }
    if (dia_ > date().day() && date() == puesta_)
        AvisarCampo(this, QStringLiteral("Ese mes tiene %1 días.").arg(date().daysInMonth()));
    Olvidar();
}

void CampoFecha::Terminar() {
    Completar();
    escrito_.clear();
}

void CampoFecha::Olvidar() {
    dia_ = valor_ = cifras_ = 0;
    pasada_ = false;
}

// As a click on the arrow does, which is all that opens it.
void CampoFecha::AbrirCalendario() {
    const QPointF flecha(width() - height() / 2.0, height() / 2.0);
    for (const QEvent::Type tipo : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent clic(tipo, flecha, mapToGlobal(flecha), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(this, &clic);
    }
}

} // namespace tarvo
