// A shop from nothing: everything that a first sale needs is typed by keys into the windows, and is found in
// the files.
#include "programa/ventaporteclas.h"

namespace tarvo {
namespace {

// Types the values, each ended by Enter; an empty one leaves its field as it is. "^" and a key name press
// that key instead of typing.
void Llenar(ProgramaEnPantalla &programa, const std::vector<const char *> &valores) {
    for (const char *valor : valores) {
        if (*valor == '^')
            programa.Teclas(valor + 1);
        else if (*valor != '\0')
            programa.Escribir(valor);
        programa.Teclas("Return");
    }
}

// In a panel of the options: from the code past `campos` fields to the button that starts a new row.
void NuevaFila(ProgramaEnPantalla &programa, int campos) {
    programa.Teclas("alt+c");
    programa.Teclas("Tab", campos);
    programa.Teclas("space");
}

// In an empty window the fields are off: the button that starts a new row comes right behind the list.
void AbrirYEmpezar(ProgramaEnPantalla &programa, const char *tecla) {
    programa.Teclas(tecla);
    programa.Teclas("Tab space");
}

void Configurar(ProgramaEnPantalla &programa) {
    programa.Teclas("F9");
    programa.EsperarCuadro();
    NuevaFila(programa, 3);
    Llenar(programa, {"7", "Especial", "12"});
    programa.Teclas("space shift+Tab Down"); // from the list to the next node of the tree
    NuevaFila(programa, 2);
    Llenar(programa, {"5", "Bebidas"});
    programa.Teclas("shift+Tab Down");
    NuevaFila(programa, 7);
    Llenar(programa, {"9", "Eva Gil", "", "", "", "", ""});
    programa.Teclas("space Escape");
    programa.EsperarVuelta();
}

// Enter in the last field leads to the button that saves.
void CargarProveedorYCliente(ProgramaEnPantalla &programa) {
    AbrirYEmpezar(programa, "F3");
    Llenar(programa, {"P1", "Campo S.A.", "", "", "", "", "", ""});
    programa.Teclas("space");
    AbrirYEmpezar(programa, "F4");
    Llenar(programa, {"C1", "Sur S.L.", "Sur S.L.", "30-71234567-1", "", "", "", "", "", "", "", "", "", ""});
    programa.Teclas("space");
}

// A saved article is followed by the next new one, until Escape.
void CargarArticulos(ProgramaEnPantalla &programa) {
    AbrirYEmpezar(programa, "F2");
    Llenar(programa,
           {"A1", "7790001000011", "Agua 1 l", "", "botella", "^End", "4,5", "10", "^End", "^Down", "8", ""});
    programa.Teclas("space");
    Llenar(programa,
           {"A2", "7790001000028", "Vino tinto", "", "", "^End", "", "25.50", "^Home", "^Down", "3", ""});
    programa.Teclas("space Escape");
}

void Vender(ProgramaEnPantalla &programa) {
    programa.Teclas("F8");
    programa.Escanear("7790001000011");
    programa.Escanear("7790001000028");
    programa.Escanear("7790001000028");
    ElegirCliente(programa, "sur");
    programa.Teclas("alt+d shift+Tab End");
    EmitirConTicket(programa);
}

class DesdeCero : public MundoPrograma {};

TEST_F(DesdeCero, WhatIsTypedIntoTheWindowsIsSoldAndIsInTheFiles) {
    ProgramaEnPantalla programa(carpeta_, kDirecto);
    programa.EsperarPrincipal();
    Configurar(programa);
    CargarProveedorYCliente(programa);
    CargarArticulos(programa);
    Vender(programa);
    programa.Cerrar();

    using Filas = std::vector<std::vector<std::string>>;
    const std::string iva = carpeta_.Valor("config.mdb", "SELECT id FROM Iva WHERE codigo = '7'");
    const std::string general = carpeta_.Valor("config.mdb", "SELECT id FROM Iva ORDER BY id LIMIT 1");
    const std::string categoria =
        carpeta_.Valor("config.mdb", "SELECT id FROM Categorias WHERE codigo = '5'");
    const std::string vendedor = carpeta_.Valor("config.mdb", "SELECT id FROM Vendedores WHERE codigo = '9'");
    EXPECT_EQ(carpeta_.Filas("config.mdb", "SELECT tipo, porcentaje FROM Iva WHERE codigo = '7'"),
              (Filas{{"Especial", "12"}}));
    EXPECT_EQ(carpeta_.Filas("proveedores.mdb", "SELECT id, codigo, nombre FROM Proveedores"),
              (Filas{{"1", "P1", "Campo S.A."}}));
    EXPECT_EQ(carpeta_.Filas("clientes.mdb", "SELECT id, codigo, nombre, nfiscal, ifiscal FROM Clientes"),
              (Filas{{"1", "C1", "Sur S.L.", "Sur S.L.", "30-71234567-1"}}));
    EXPECT_EQ(carpeta_.Filas("articulos.mdb",
                             "SELECT codigo, codbarras1, nombre, unidad, idcategoria1, idtipoiva,"
                             " idproveedores, pcompra, subtotal, stock FROM Articulos"),
              (Filas{{"A1", "7790001000011", "Agua 1 l", "botella", categoria, iva, "1", "4,5", "10", "7"},
                     {"A2", "7790001000028", "Vino tinto", "", categoria, general, "1", "0", "25,5", "1"}}));
    // 10 + 2 x 25,50; IVA 12% of 10 and 21% of 51.
    EXPECT_EQ(
        carpeta_.Filas("ventas.mdb", "SELECT idcliente, idoperador, tipo, subtotal, iva, total FROM Ventas"),
        (Filas{{"1", vendedor, "Contado", "$ 61,00", "$ 11,91", "$ 72,91"}}));
}

} // namespace
} // namespace tarvo
