#include "desktop/calculadora.h"

#include <QRegularExpression>

#include <cmath>

namespace tarvo {

namespace {

constexpr int kCifras = 15; // significant digits of the general number format

bool EsSeparador(QChar c) {
    return c == u',' || c == u'.';
}

QString SinCerosFinales(QString decimal) {
    while (decimal.endsWith(u'0'))
        decimal.chop(1);
    return decimal;
}

} // namespace

Calculadora::Calculadora(const QString &sDecimal)
    : separador_(sDecimal == QStringLiteral(".") ? u'.' : u',') {}

void Calculadora::PonerDisplay(const QString &texto) {
    display_ = texto;
    nuevaEntrada_ = false;
}

void Calculadora::Digito(int digito) {
    if (nuevaEntrada_)
        display_.clear();
    nuevaEntrada_ = false;
    display_ += QString::number(digito);
}

void Calculadora::Operar(Operador operador) {
    Igual();
    nuevaEntrada_ = true;
    pendiente_ = operador;
}

void Calculadora::Igual() {
    const std::optional<double> operando = Operando();
    if (!operando)
        return;
    if (pendiente_ == Dividir && *operando == 0) {
        acumulador_ = 0;
        display_.clear();
        return;
    }
    const std::optional<double> resultado = Resultado(*operando);
    if (!resultado)
        return;
    acumulador_ = *resultado;
    pendiente_ = Ninguno;
    nuevaEntrada_ = true;
    display_ = General(acumulador_);
}

bool Calculadora::Decimal() {
    if (!display_.isEmpty() && EsSeparador(display_.back()))
        return true;
    if (display_.contains(u'.'))
        return false;
    if (nuevaEntrada_)
        display_.clear();
    nuevaEntrada_ = false;
    display_ += separador_;
    return true;
}

void Calculadora::MasMenos() {
    if (display_.startsWith(u'-'))
        display_.remove(0, 1);
    else
        display_.prepend(u'-');
}

void Calculadora::Borrar() {
    BorrarEntrada();
    acumulador_ = 0;
    pendiente_ = Ninguno;
}

void Calculadora::CortarUltimo() {
    if (display_.size() > (display_.startsWith(u'-') ? 2 : 1))
        display_.chop(1);
    else
        display_ = QStringLiteral("0");
}

// The display as a number, its own results with an exponent included; none when it is no number or too large.
std::optional<double> Calculadora::Operando() const {
    if (display_.isEmpty() || display_ == QStringLiteral("-"))
        return 0;
    static const QRegularExpression forma(
        QStringLiteral("^\\s*[+-]?([0-9]+[,.]?[0-9]*|[,.][0-9]+)([eE][+-]?[0-9]+)?\\s*$"));
    const QChar ajeno = separador_ == u'.' ? u',' : u'.';
    if (display_.contains(ajeno) || !forma.match(display_).hasMatch())
        return std::nullopt;
    bool leido = false;
    const double numero = QString(display_).replace(separador_, u'.').toDouble(&leido);
    return leido && std::isfinite(numero) ? std::optional(numero) : std::nullopt;
}

std::optional<double> Calculadora::Resultado(double operando) const {
    double resultado = operando;
    switch (pendiente_) {
    case Ninguno:
        break;
    case Sumar:
        resultado = operando + acumulador_;
        break;
    case Restar:
        resultado = acumulador_ - operando;
        break;
    case Multiplicar:
        resultado = acumulador_ * operando;
        break;
    case Dividir:
        resultado = acumulador_ / operando;
        break;
    }
    return std::isfinite(resultado) ? std::optional(resultado) : std::nullopt;
}

QString Calculadora::General(double valor) const {
    const double sinSigno = valor == 0 ? 0 : valor; // no minus before a zero
    QString texto = QString::number(sinSigno, 'g', kCifras);
    // Without an exponent as long as no more than fifteen decimals are needed.
    if (std::abs(sinSigno) < 1 && texto.contains(u'e')) {
        const QString fijo = QString::number(sinSigno, 'f', kCifras);
        if (fijo.toDouble() == texto.toDouble())
            texto = SinCerosFinales(fijo);
    }
    return texto.toUpper().replace(u'.', separador_);
}

} // namespace tarvo
