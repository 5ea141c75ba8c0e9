#include "accounts/importes.h"

namespace tarvo {

namespace {
constexpr qsizetype kCaracteresSimbolo = 2; // of the signed text, whatever the length of sCurrency
} // namespace

Importes::Importes(const Moneda &moneda) : moneda_(&moneda), simbolo_(moneda.sCurrency().toStdString()) {
    moneda.AgregarFormato(cero_, 0.0, true);
}

// `total` less the current symbol, when it begins with it.
std::string_view Importes::Numero(std::string_view total) const {
    return total.starts_with(simbolo_) ? total.substr(simbolo_.size()) : total;
}

void Importes::Agregar(std::string &salida, std::string_view total) const {
    const std::string_view numero = Numero(total);
    if (Moneda::EsNumero(numero))
        moneda_->AgregarFormato(salida, numero, true);
    else
        salida.append(simbolo_).append(1, ' ').append(total);
}

void Importes::AgregarConSigno(std::string &salida, std::string_view monto, std::string_view signo) const {
    salida.append(monto.substr(0, BytesDeCaracteres(monto, kCaracteresSimbolo)));
    salida.append(signo).append(SinSimbolo(monto));
}

std::optional<double> Importes::Leer(std::string_view celda) const {
    const std::string_view numero = SinSimbolo(celda);
    if (!Moneda::EsNumero(numero))
        return std::nullopt;
    return moneda_->Numero(numero);
}

std::optional<double> Importes::LeerTotal(std::string_view total) const {
    const std::string_view numero = Numero(total);
    if (numero.empty() || !Moneda::EsNumero(numero))
        return std::nullopt;
    return Moneda::NumeroGuardado(numero);
}

} // namespace tarvo
