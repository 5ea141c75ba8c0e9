// A date that is typed as it is written: day, month and year one after the other, with or without the
// separators between them.
//
// Qt's own field cuts each part to what stands in the others at that moment: 31 typed over a date in November
// is the 30th before December can be typed behind it. This one keeps the day until the month and the year are
// there, and a whole date that is typed over the year or the month is one all the same. Where the day doesn't
// exist then, the field shows the last one of the month and says so. A year of two figures is one of this
// century. Alt+Down opens the calendar. A month that is shown by its name is typed by its name or its number.
#pragma once

#include <QDateEdit>

namespace tarvo {

class CampoFecha : public QDateEdit {
    Q_OBJECT
  public:
    explicit CampoFecha(QWidget *padre = nullptr);
    void stepBy(int pasos) override;

    // Day, month and year as eight figures; the day needn't exist in that month, which then has its last.
    static bool EsDiaMesAnio(const QString &cifras);

  protected:
    bool focusNextPrevChild(bool siguiente) override;
    bool eventFilter(QObject *objeto, QEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;
    void mousePressEvent(QMouseEvent *evento) override;
    void focusOutEvent(QFocusEvent *evento) override;

  private:
    void Escribir(QChar signo);
    void Signo(QChar signo);
    void Cifra(int cifra);
    void Separar();
    void Pasar();
    void DejarParte();
    void Poner(int mes, int anio);
    void MostrarAnio();
    void Completar();
    void Terminar();
    void Olvidar();
    void AbrirCalendario();

    QString escrito_;              // figures and separators, since the part was chosen
    Section comienzo_ = NoSection; // in which they began
    QDate antes_;                  // the date then
    QDate puesta_;                 // what was typed so far; another date means that it didn't come from here
    int dia_ = 0;                  // as typed, 0: none
    int valor_ = 0;                // of the figures typed in the current part
    int cifras_ = 0;               // how many they are
    bool pasada_ = false;          // the last part was full and has passed on by itself
};

} // namespace tarvo
