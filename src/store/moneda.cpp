#include "store/moneda.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>

namespace tarvo {

namespace {

// Longer amounts are no numbers: below this no product or sum of a sale leaves the range of a double.
constexpr std::size_t kMaximoEnteros = 100;

bool EsDigito(char c) {
    return c >= '0' && c <= '9';
}

bool EsSeparador(char c) {
    return c == '.' || c == ',';
}

std::string_view Recortar(std::string_view texto) {
    const auto inicio = texto.find_first_not_of(" \t\r\n");
    if (inicio == std::string_view::npos)
        return {};
    return texto.substr(inicio, texto.find_last_not_of(" \t\r\n") - inicio + 1);
}

std::string_view Vista(const QByteArray &bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

std::string_view SinCeros(std::string_view digitos) {
    return digitos.substr(std::min(digitos.find_first_not_of('0'), digitos.size()));
}

// A decimal number as its digits stand in a text, without leading zeros.
struct Decimal {
    bool negativo = false;
    std::string_view enteros;
    std::string_view decimales;
};

// The number at the start of `texto`, whose decimal separator is one that `separa` accepts; returns how many
// bytes it takes, 0 when there is none or it is too large.
template <typename Separador> std::size_t Leer(std::string_view texto, Separador separa, Decimal &numero) {
    std::size_t i = 0;
    if (i < texto.size() && (texto[i] == '-' || texto[i] == '+'))
        numero.negativo = texto[i++] == '-';
    std::size_t inicio = i;
    while (i < texto.size() && EsDigito(texto[i]))
        ++i;
    numero.enteros = SinCeros(texto.substr(inicio, i - inicio));
    const bool hayEnteros = i > inicio;
    if (i < texto.size() && separa(texto[i])) {
        inicio = ++i;
        while (i < texto.size() && EsDigito(texto[i]))
            ++i;
        numero.decimales = texto.substr(inicio, i - inicio);
    }
    const bool hay = hayEnteros || !numero.decimales.empty();
    return hay && numero.enteros.size() <= kMaximoEnteros ? i : 0;
}

// Powers of ten that a double holds exactly, as it does any whole number of so many digits.
constexpr std::array<double, 16> kPotencias{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                            1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

// The double nearest to the number. With few digits one division of two exact numbers is that.
double Valor(const Decimal &numero) {
    if (numero.enteros.size() + numero.decimales.size() < kPotencias.size()) {
        std::int64_t cifras = 0;
        for (const std::string_view parte : {numero.enteros, numero.decimales})
            for (const char c : parte)
                cifras = cifras * 10 + (c - '0');
        const double valor = static_cast<double>(cifras) / kPotencias[numero.decimales.size()];
        return numero.negativo ? -valor : valor;
    }
    std::string texto(numero.negativo ? "-" : "");
    texto.append(numero.enteros.empty() ? "0" : numero.enteros)
        .append(".")
        .append(numero.decimales)
        .append("0");
    double valor = 0;
    std::from_chars(texto.data(), texto.data() + texto.size(), valor);
    return valor;
}

template <typename Separador> double NumeroInicial(std::string_view texto, Separador separa) {
    Decimal numero;
    return Leer(Recortar(texto), separa, numero) == 0 ? 0.0 : Valor(numero);
}

// Adds one hundredth to the amount at the end of `salida`, which starts at `desde` and may hold a separator.
void SumarCentesimo(std::string &salida, std::size_t desde) {
    for (std::size_t i = salida.size(); i-- > desde;) {
        if (!EsDigito(salida[i]))
            continue;
        if (salida[i] != '9') {
            ++salida[i];
            return;
        }
        salida[i] = '0';
    }
    salida.insert(desde, 1, '1');
}

bool EsCero(std::string_view monto) {
    return monto.find_first_of("123456789") == std::string_view::npos;
}

// Appends the number with two decimals, rounded half away from zero on its digits.
void AgregarDecimal(std::string &salida, const Decimal &numero, std::string_view separador) {
    const std::size_t signo = salida.size();
    const std::string_view decimales = numero.decimales;
    salida.append(numero.enteros.empty() ? "0" : numero.enteros).append(separador);
    salida += !decimales.empty() ? decimales[0] : '0';
    salida += decimales.size() > 1 ? decimales[1] : '0';
    if (decimales.size() > 2 && decimales[2] >= '5')
        SumarCentesimo(salida, signo);
    if (numero.negativo && !EsCero(std::string_view(salida).substr(signo)))
        salida.insert(signo, 1, '-');
}

// The decimal digits of a double, written out without an exponent: 15 significant ones, or as many as tell it
// from its neighbours where 15 don't reach the hundredths.
struct Digitos {
    std::string cifras;
    int exponente = 0; // of ten, of the first digit
    bool negativo = false;
};

Digitos DigitosDe(double valor) {
    constexpr double kGrande = 1e13;
    std::array<char, 32> bufer{};
    char *const limite = bufer.data() + bufer.size();
    const double magnitud = std::fabs(valor);
    const char *const fin =
        magnitud < kGrande
            ? std::to_chars(bufer.data(), limite, magnitud, std::chars_format::scientific, 14).ptr
            : std::to_chars(bufer.data(), limite, magnitud, std::chars_format::scientific).ptr;
    const std::string_view texto(bufer.data(), static_cast<std::size_t>(fin - bufer.data()));
    const std::size_t mantisa = texto.find('e'); // "d.dddde+13"
    const char *const exponente = bufer.data() + mantisa + 1;
    Digitos digitos{std::string(texto.substr(0, mantisa)), 0, std::signbit(valor)};
    std::erase(digitos.cifras, '.');
    std::from_chars(*exponente == '+' ? exponente + 1 : exponente, fin, digitos.exponente);
    return digitos;
}

// The hundredths nearest to an amount, where neither the fifteen digits nor the product can move it across a
// half; nothing for the others, whose digits have to be looked at.
std::optional<std::int64_t> CentesimosClaros(double valor) {
    constexpr double kMayor = 1e11;  // below it both are off by less than a thousandth of a hundredth
    constexpr double kDudoso = 1e-3; // around the half
    const double centesimos = std::fabs(valor) * 100;
    if (!(centesimos < kMayor))
        return std::nullopt;
    const double enteros = std::floor(centesimos);
    const double resto = centesimos - enteros;
    if (std::fabs(resto - 0.5) < kDudoso)
        return std::nullopt;
    return static_cast<std::int64_t>(enteros) + (resto > 0.5 ? 1 : 0);
}

void AgregarCentesimos(std::string &salida, bool negativo, std::int64_t centesimos,
                       std::string_view separador) {
    std::array<char, 20> enteros{};
    const auto fin = std::to_chars(enteros.data(), enteros.data() + enteros.size(), centesimos / 100);
    if (negativo && centesimos != 0)
        salida += '-';
    salida.append(enteros.data(), fin.ptr).append(separador);
    salida += static_cast<char>('0' + centesimos / 10 % 10);
    salida += static_cast<char>('0' + centesimos % 10);
}

void AgregarDoble(std::string &salida, double valor, std::string_view separador) {
    if (const auto centesimos = CentesimosClaros(valor)) {
        AgregarCentesimos(salida, std::signbit(valor), *centesimos, separador);
        return;
    }
    const Digitos digitos = DigitosDe(std::isfinite(valor) ? valor : 0.0);
    const std::string_view cifras(digitos.cifras);
    std::string enteros;
    std::string decimales;
    if (digitos.exponente < 0) {
        decimales.assign(static_cast<std::size_t>(std::min(-digitos.exponente - 1, 3)), '0').append(cifras);
    } else {
        enteros.assign(cifras.substr(0, static_cast<std::size_t>(digitos.exponente) + 1));
        decimales.assign(cifras.substr(enteros.size()));
        enteros.resize(static_cast<std::size_t>(digitos.exponente) + 1, '0');
    }
    AgregarDecimal(salida, {digitos.negativo, enteros, decimales}, separador);
}

} // namespace

std::size_t BytesDeCaracteres(std::string_view utf8, qsizetype caracteres) {
    std::size_t i = 0;
    while (i < utf8.size() && caracteres > 0) {
        // Four bytes are two of the units that a QString counts.
        caracteres -= (static_cast<unsigned char>(utf8[i]) & 0xf8) == 0xf0 ? 2 : 1;
        ++i;
        while (i < utf8.size() && (static_cast<unsigned char>(utf8[i]) & 0xc0) == 0x80)
            ++i;
    }
    return i;
}

Moneda::Moneda(QString decimal, QString simbolo)
    : decimal_(std::move(decimal)),
      simbolo_(std::move(simbolo)),
      decimal8_(decimal_.toStdString()),
      simbolo8_(simbolo_.toStdString()) {}

void Moneda::AgregarFormato(std::string &salida, std::string_view texto, bool conSimbolo) const {
    const std::string_view recortado = Recortar(texto);
    Decimal numero;
    if (!recortado.empty() && Leer(recortado, EsSeparador, numero) != recortado.size()) {
        salida.append(texto);
        return;
    }
    if (conSimbolo)
        salida.append(simbolo8_).append(1, ' ');
    AgregarDecimal(salida, numero, decimal8_);
}

void Moneda::AgregarFormato(std::string &salida, double valor, bool conSimbolo) const {
    if (conSimbolo)
        salida.append(simbolo8_).append(1, ' ');
    AgregarDoble(salida, valor, decimal8_);
}

QString Moneda::FormatoMoneda(const QString &texto, bool conSimbolo) const {
    std::string salida;
    AgregarFormato(salida, Vista(texto.toUtf8()), conSimbolo);
    return QString::fromStdString(salida);
}

QString Moneda::FormatoMoneda(double valor, bool conSimbolo) const {
    std::string salida;
    AgregarFormato(salida, valor, conSimbolo);
    return QString::fromStdString(salida);
}

QString Moneda::SinSimbolo(const QString &monto) const {
    return monto.mid(simbolo_.size() + 1);
}

std::string_view Moneda::SinSimbolo(std::string_view monto) const {
    return monto.substr(BytesDeCaracteres(monto, simbolo_.size() + 1));
}

bool Moneda::EsNumero(std::string_view texto) {
    const std::string_view recortado = Recortar(texto);
    Decimal numero;
    return recortado.empty() || Leer(recortado, EsSeparador, numero) == recortado.size();
}

bool Moneda::EsNumero(const QString &texto) {
    return EsNumero(Vista(texto.toUtf8()));
}

double Moneda::Numero(std::string_view texto) const {
    return NumeroInicial(texto, [this](char c) { return !decimal8_.empty() && c == decimal8_[0]; });
}

double Moneda::Numero(const QString &texto) const {
    return Numero(Vista(texto.toUtf8()));
}

double Moneda::NumeroGuardado(std::string_view texto) {
    return NumeroInicial(texto, EsSeparador);
}

double Moneda::NumeroGuardado(const QString &texto) {
    return NumeroGuardado(Vista(texto.toUtf8()));
}

double Moneda::NumeroNeutro(std::string_view texto) {
    return NumeroInicial(texto, [](char c) { return c == '.'; });
}

double Moneda::NumeroNeutro(const QString &texto) {
    return NumeroNeutro(Vista(texto.toUtf8()));
}

} // namespace tarvo
