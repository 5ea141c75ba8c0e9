#include "desktop/ventanas/ritmoteclas.h"

#include "desktop/escaner.h"

#include <QDateTimeEdit>
#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

namespace tarvo {

QString CaracterDe(const QKeyEvent &evento) {
    const bool conOrden =
        (evento.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    const QString texto = evento.text();
    return conOrden || texto.isEmpty() || !texto.front().isPrint() ? QString() : texto;
}

bool EsEntrar(int tecla) {
    return tecla == Qt::Key_Return || tecla == Qt::Key_Enter;
}

bool SinModificador(const QKeyEvent &evento) {
    return (evento.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

void RitmoTeclas::Apuntar(const QWidget *recibe, const QKeyEvent &evento) {
    if (recibe != ultima_.recibe && recibe->isAncestorOf(ultima_.recibe))
        return; // left alone by its control, the stroke comes by once more
    anterior_ = std::exchange(ultima_, {recibe, evento.key(), evento.timestamp(), evento.isAutoRepeat(), {}});
    const QString caracter = CaracterDe(evento);
    if (caracter.isEmpty() && !EsEntrar(evento.key()))
        return;
    ultima_.leido = Leido() + caracter;
    if (ultima_.leido.size() != caracter.size())
        return;
    if (const auto *campo = qobject_cast<const QLineEdit *>(recibe))
        antesDeLeer_ = campo->text();
    else if (const auto *momento = qobject_cast<const QDateTimeEdit *>(recibe))
        momentoAntesDeLeer_ = momento->dateTime();
}

QString RitmoTeclas::Leido() const {
    const bool seguida = ultima_.momento != 0 && ultima_.momento - anterior_.momento < kRitmoEscaner;
    return seguida && ultima_.recibe == anterior_.recibe ? anterior_.leido : QString();
}

// The system takes the second of two strokes for a held key when it comes as the first one ends, as from a
// scanner that sends its Enter twice.
bool RitmoTeclas::Sostenida() const {
    const bool enSerie = anterior_.repetida && anterior_.tecla == ultima_.tecla;
    const bool segunda =
        ultima_.momento != 0 && !enSerie && ultima_.momento - anterior_.momento < kEsperaRepeticion;
    return ultima_.repetida && !segunda;
}

} // namespace tarvo
