// The people of the sample shop: customers, suppliers and sellers.
#pragma once

#include "tienda/sorteo.h"

#include <string>

namespace tarvo {

struct Persona {
    std::string codigo;
    std::string nombre;
    std::string nombreFiscal; // empty with an empty fiscal id
    std::string idFiscal;
    std::string documento;
    std::string domicilio;
    std::string poblacion;
    std::string codigoPostal;
    std::string provincia;
    std::string telefono;
    std::string movil;
    std::string correo;
    std::string web;
};

// A person for the customers' file, number `indice` from 0: two in five are firms with a fiscal id.
Persona HacerCliente(int indice, Sorteo &sorteo);
Persona HacerProveedor(int indice, Sorteo &sorteo);
Persona HacerVendedor(int indice, Sorteo &sorteo);

} // namespace tarvo
