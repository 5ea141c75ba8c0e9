#include "tienda/personas.h"

#include <array>
#include <cstdio>

namespace tarvo {

namespace {

constexpr std::array kNombres = {"Ana",   "Luis",   "Marta",  "José",   "Íñigo",   "Lucía",
                                 "Ramón", "Begoña", "Óscar",  "Carmen", "Andrés",  "Beatriz",
                                 "Tomás", "Sofía",  "Martín", "Inés",   "Nicolás", "Elena",
                                 "Raúl",  "Mónica", "Julián", "Rocío",  "Sergio",  "Noelia"};
constexpr std::array kApellidos = {
    "García", "Núñez", "Peña",  "López", "Ibáñez",  "Fernández", "Muñoz",   "Castro", "Vázquez", "Domínguez",
    "Ortiz",  "Sáez",  "Gómez", "Acuña", "Herrera", "Benítez",   "Cabrera", "Molina", "Ríos",    "Quiroga"};
constexpr std::array kRubros = {"Comercial",      "Distribuidora", "Talleres", "Hostelería",
                                "Construcciones", "Transportes",   "Librería", "Panificadora",
                                "Ferretería",     "Almacenes"};
constexpr std::array kFormas = {"S.A.", "S.L.", "S.R.L.", "e Hijos", "y Cía."};
constexpr std::array kCalles = {
    "Calle Mayor",    "Avenida de la Constitución", "Calle del Olmo", "Plaza España",
    "Paseo Marítimo", "Calle San Martín",           "Ronda Norte",    "Camino Viejo"};

struct Lugar {
    const char *poblacion;
    const char *provincia;
    int codigoPostal;
};
constexpr std::array<Lugar, 8> kLugares = {{{"Logroño", "La Rioja", 26001},
                                            {"Cádiz", "Cádiz", 11001},
                                            {"León", "León", 24001},
                                            {"Gijón", "Asturias", 33201},
                                            {"Málaga", "Málaga", 29001},
                                            {"Ávila", "Ávila", 5001},
                                            {"A Coruña", "A Coruña", 15001},
                                            {"Mérida", "Badajoz", 6800}}};

template <typename... Valores> std::string Texto(const char *forma, Valores... valores) {
    char texto[96];
    std::snprintf(texto, sizeof texto, forma, valores...);
    return texto;
}

std::string NombrePersona(Sorteo &sorteo) {
    const std::string nombre = sorteo.Uno(kNombres);
    const std::string primero = sorteo.Uno(kApellidos);
    return nombre + " " + primero + " " + sorteo.Uno(kApellidos);
}

std::string NombreFirma(Sorteo &sorteo) {
    const std::string rubro = sorteo.Uno(kRubros);
    const std::string apellido = sorteo.Uno(kApellidos);
    return rubro + " " + apellido + " " + sorteo.Uno(kFormas);
}

void PonerSenas(Persona &persona, Sorteo &sorteo) {
    const Lugar &lugar = sorteo.Uno(kLugares);
    const std::string calle = sorteo.Uno(kCalles);
    persona.domicilio = calle + ", " + std::to_string(sorteo.Entre(1, 180));
    persona.poblacion = lugar.poblacion;
    persona.provincia = lugar.provincia;
    persona.codigoPostal = Texto("%05d", lugar.codigoPostal + sorteo.Entre(0, 9));
    persona.telefono =
        Texto("9%02d %03d %03d", sorteo.Entre(10, 88), sorteo.Entre(0, 999), sorteo.Entre(0, 999));
    persona.movil = Texto("6%02d %03d %03d", sorteo.Entre(0, 99), sorteo.Entre(0, 999), sorteo.Entre(0, 999));
    persona.documento = std::to_string(sorteo.Entre(10000000, 79999999));
}

void PonerFirma(Persona &persona, Sorteo &sorteo) {
    persona.nombre = NombreFirma(sorteo);
    persona.nombreFiscal = persona.nombre;
    persona.idFiscal = Texto("30-%08d-%d", sorteo.Entre(50000000, 79999999), sorteo.Entre(0, 9));
}

} // namespace

Persona HacerCliente(int indice, Sorteo &sorteo) {
    Persona cliente;
    cliente.codigo = Texto("C%05d", indice + 1);
    cliente.nombre = NombrePersona(sorteo);
    if (indice % 5 < 2)
        PonerFirma(cliente, sorteo);
    PonerSenas(cliente, sorteo);
    cliente.correo = Texto("cliente%d@example.com", indice + 1);
    cliente.web = cliente.idFiscal.empty() ? "" : Texto("www.cliente%d.example.com", indice + 1);
    return cliente;
}

Persona HacerProveedor(int indice, Sorteo &sorteo) {
    Persona proveedor;
    proveedor.codigo = Texto("P%03d", indice + 1);
    PonerFirma(proveedor, sorteo);
    PonerSenas(proveedor, sorteo);
    proveedor.correo = Texto("pedidos%d@example.com", indice + 1);
    return proveedor;
}

Persona HacerVendedor(int indice, Sorteo &sorteo) {
    Persona vendedor;
    vendedor.codigo = std::to_string(indice + 1);
    vendedor.nombre = NombrePersona(sorteo);
    PonerSenas(vendedor, sorteo);
    vendedor.correo = Texto("vendedor%d@example.com", indice + 1);
    return vendedor;
}

} // namespace tarvo
