// Money and numbers as text, under the decimal separator and currency symbol read once at start.
//
// All rounding is half away from zero on the decimal reading of the number: 2.675 gives 2,68.
// A double is read as the decimal number of 15 significant digits nearest to it before it is rounded; from
// 1e13 on as the shortest number that tells it from other doubles, since 15 digits don't reach the
// hundredths.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace tarvo {

// How many bytes of `utf8` its first `caracteres` characters take, counted as a QString counts them; all of
// them when it has fewer.
std::size_t BytesDeCaracteres(std::string_view utf8, qsizetype caracteres);

class Moneda {
  public:
    // `decimal` is the separator ("," or "."), `simbolo` the currency symbol ("$", "Bs").
    explicit Moneda(QString decimal = QStringLiteral(","), QString simbolo = QStringLiteral("$"));

    const QString &sDecimal() const { return decimal_; }
    const QString &sCurrency() const { return simbolo_; }

    // `texto` with either separator, in the form "###0.00"; with `conSimbolo` behind the symbol and one
    // blank. Empty text counts as 0; text that is no number (a thousands separator makes it none, and so do
    // more than 100 digits before the separator) stays as it stands.
    QString FormatoMoneda(const QString &texto, bool conSimbolo) const;
    QString FormatoMoneda(double valor, bool conSimbolo) const;
    // The same, appended to `salida` as UTF-8: for lists of many rows.
    void AgregarFormato(std::string &salida, std::string_view texto, bool conSimbolo) const;
    void AgregarFormato(std::string &salida, double valor, bool conSimbolo) const;

    // Money text without its first Len(sCurrency) + 1 characters.
    QString SinSimbolo(const QString &monto) const;
    std::string_view SinSimbolo(std::string_view monto) const;

    // The whole of `texto` is a number, with either separator and no symbol; empty text counts as 0.
    static bool EsNumero(std::string_view texto);
    static bool EsNumero(const QString &texto);
    // A number in the machine's locale: the leading number of `texto`, 0 when there is none.
    double Numero(std::string_view texto) const;
    double Numero(const QString &texto) const;
    // The same with either separator: the leading number of a text that is stored.
    static double NumeroGuardado(std::string_view texto);
    static double NumeroGuardado(const QString &texto);
    // Money text as a number: SinSimbolo, then Numero.
    double Importe(const QString &monto) const { return Numero(SinSimbolo(monto)); }

    // The neutral reading: blanks, an optional sign, digits and a point, up to the first other character.
    // "21%" is 21, "10,5%" is 10.
    static double NumeroNeutro(std::string_view texto);
    static double NumeroNeutro(const QString &texto);

  private:
    QString decimal_;
    QString simbolo_;
    std::string decimal8_;
    std::string simbolo8_;
};

} // namespace tarvo
