// The arithmetic of the pocket calculator, without a window: the number being typed is held as the text of
// the display, beside an accumulator, a pending operator and the flag that makes the next digit start anew.
//
// A display that is no number makes Igual do nothing. A division by zero empties the display and leaves
// operator and flag as they were, so the next number typed is the divisor. Both are this calculator's ways
// and stay.
#pragma once

#include <QString>

#include <optional>

namespace tarvo {

class Calculadora {
  public:
    enum Operador { Ninguno = 0, Sumar = 1, Restar = 2, Multiplicar = 3, Dividir = 4 };

    // `sDecimal` is the separator in force; one that is neither "," nor "." counts as ",".
    explicit Calculadora(const QString &sDecimal);

    const QString &Display() const { return display_; }
    // What stands in the display behind a change by other means than the keys, as a paste.
    void PonerDisplay(const QString &texto);
    // Behind a result or an operator: what is entered next takes the place of the display.
    bool NuevaEntrada() const { return nuevaEntrada_; }
    QChar Separador() const { return separador_; }

    void Digito(int digito); // 0 to 9
    void Operar(Operador operador);
    void Igual();
    // False when the display holds a "." already, which is told by a beep. Only "." is looked for, so a
    // second comma can be typed.
    bool Decimal();
    void MasMenos();
    void BorrarEntrada() { display_.clear(); }
    void Borrar();
    // The last character goes; the last digit gives way to "0".
    void CortarUltimo();

  private:
    std::optional<double> Operando() const;
    std::optional<double> Resultado(double operando) const;
    QString General(double valor) const;

    QChar separador_;
    QString display_;
    double acumulador_ = 0;
    Operador pendiente_ = Ninguno;
    bool nuevaEntrada_ = false;
};

} // namespace tarvo
