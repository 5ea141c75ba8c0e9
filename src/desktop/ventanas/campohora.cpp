#include "desktop/ventanas/campohora.h"

#include "desktop/ventanas/avisarcampo.h"
#include "desktop/ventanas/ritmoteclas.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

namespace tarvo {

CampoHora::CampoHora(QWidget *padre) : QTimeEdit(padre) {
    setDisplayFormat(QStringLiteral("HH:mm"));
    lineEdit()->installEventFilter(this);
}

bool CampoHora::eventFilter(QObject *objeto, QEvent *evento) {
    if (evento->type() == QEvent::MouseButtonPress)
        DejarParte();
    return QTimeEdit::eventFilter(objeto, evento);
}

// The Tab key, which walks the parts.
bool CampoHora::focusNextPrevChild(bool siguiente) {
    DejarParte();
    return QTimeEdit::focusNextPrevChild(siguiente);
}

void CampoHora::focusOutEvent(QFocusEvent *evento) {
    DejarParte();
    QTimeEdit::focusOutEvent(evento);
}

void CampoHora::keyPressEvent(QKeyEvent *evento) {
    const QString caracter = CaracterDe(*evento);
    if (caracter.size() == 1 && caracter.front().isDigit()) {
        Cifra(caracter.front().digitValue());
    } else if (caracter == QLatin1String(":") || caracter == QLatin1String(".")) {
        if (!std::exchange(pasada_, false)) // else it is only written
            PasarAMinutos();
    } else {
        DejarParte();
        QTimeEdit::keyPressEvent(evento);
    }
}

void CampoHora::Cifra(int cifra) {
    const bool horas = currentSection() == HourSection;
    const int mayor = horas ? 23 : 59;
    const bool segunda = segunda_;
    const int valor = segunda ? valor_ * 10 + cifra : cifra;
    DejarParte();
    if (valor > mayor) {
        AvisarCampo(this, horas ? QStringLiteral("La hora va de 0 a 23.")
                                : QStringLiteral("Los minutos van de 0 a 59."));
        return;
    }
    setTime(horas ? QTime(valor, time().minute()) : QTime(time().hour(), valor));
    valor_ = valor;
    segunda_ = !segunda && (!horas || valor * 10 <= mayor);
    setSelectedSection(horas ? HourSection : MinuteSection);
    if (horas && !segunda_) {
        PasarAMinutos();
        pasada_ = true;
    }
}

void CampoHora::PasarAMinutos() {
    segunda_ = false;
    setSelectedSection(MinuteSection);
}

void CampoHora::DejarParte() {
    segunda_ = pasada_ = false;
}

} // namespace tarvo
