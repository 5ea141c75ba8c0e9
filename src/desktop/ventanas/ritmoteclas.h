// The pace of the strokes that come to the controls of a window: what a scanner typed, which ends its codes
// with an Enter or two, and what is a key held down.
#pragma once

#include <QDateTime>
#include <QPointer>
#include <QString>
#include <QWidget>

class QKeyEvent;

namespace tarvo {

// The character that this key types, empty when it types none.
QString CaracterDe(const QKeyEvent &evento);
bool EsEntrar(int tecla);
// Without Shift, Ctrl or Alt; that of the keypad is none.
bool SinModificador(const QKeyEvent &evento);

class RitmoTeclas {
  public:
    // A stroke, before `recibe` handles it.
    void Apuntar(const QWidget *recibe, const QKeyEvent &evento);

    // --- of the stroke that came last
    // The characters that came into its control at the pace of a scanner before this Enter, also those that
    // the control doesn't take.
    QString Leido() const;
    // What the field, or the date or hour, held when they began to come.
    const QString &AntesDeLeer() const { return antesDeLeer_; }
    const QDateTime &MomentoAntesDeLeer() const { return momentoAntesDeLeer_; }
    // It repeats because the key is held.
    bool Sostenida() const;

  private:
    struct Pulsacion {
        QPointer<const QWidget> recibe;
        int tecla = 0;
        quint64 momento = 0; // ms
        bool repetida = false;
        QString leido; // characters at the pace of a scanner, of which it is the last
    };
    Pulsacion ultima_;
    Pulsacion anterior_;
    QString antesDeLeer_;
    QDateTime momentoAntesDeLeer_;
};

} // namespace tarvo
