#include "tienda/catalogo.h"

#include <algorithm>
#include <cstdio>

namespace tarvo {

namespace {

const std::vector<const char *> kMarcas = {
    "Don Ramiro",   "La Colina", "Valdeoro",  "Campo Claro", "Tres Molinos",   "Río Hondo",
    "Santa Elvira", "El Ñandú",  "Buenagua",  "Montesol",    "La Abuela Inés", "Puerto Viejo",
    "Altamar",      "Peñasol",   "Villa Luz", "Doña Ángela", "Cumbre",         "El Almacén"};

const std::vector<const char *> kPesos = {"100 g", "250 g", "400 g", "500 g",
                                          "750 g", "1 kg",  "2 kg",  "5 kg"};
const std::vector<const char *> kLitros = {"200 ml", "330 ml", "500 ml", "750 ml",
                                           "1 l",    "1,5 l",  "2 l",    "5 l"};
const std::vector<const char *> kEnvases = {"x 1", "x 2", "x 4", "x 6", "x 10", "x 12", "x 24", "x 50"};

std::vector<Familia> HacerFamilias() {
    return {{"Almacén",
             10,
             320,
             "paquete",
             {"Yerba mate", "Arroz", "Fideos tirabuzón", "Fideos cinta", "Lentejas", "Garbanzos", "Harina",
              "Polenta", "Azúcar", "Sal"},
             {"clásico", "integral", "selección", "extra fino", "tradicional", "sin gluten"},
             kPesos},
            {"Desayuno",
             10,
             410,
             "paquete",
             {"Café molido", "Café en grano", "Cacao", "Té negro", "Té verde", "Galletas de avena",
              "Magdalenas", "Mermelada", "Miel", "Copos de maíz"},
             {"suave", "intenso", "natural", "con vainilla", "bajo en azúcar", "ecológico"},
             kPesos},
            {"Panadería",
             4,
             150,
             "unidad",
             {"Pan de molde", "Pan rallado", "Tostadas", "Picos", "Pan de leche", "Bizcochos", "Empanadillas",
              "Rosquillas", "Pan de pita", "Colines"},
             {"blanco", "integral", "con semillas", "sin sal", "artesano", "de espelta"},
             kPesos},
            {"Lácteos",
             4,
             190,
             "unidad",
             {"Leche entera", "Leche desnatada", "Yogur", "Manteca", "Nata", "Queso tierno", "Queso curado",
              "Cuajada", "Flan", "Batido"},
             {"natural", "sin lactosa", "de oveja", "de cabra", "ligero", "ecológico"},
             kLitros},
            {"Bebidas",
             21,
             260,
             "botella",
             {"Agua mineral", "Gaseosa de limón", "Gaseosa de naranja", "Cola", "Tónica", "Cerveza rubia",
              "Cerveza tostada", "Vino tinto", "Vino blanco", "Sidra"},
             {"clásica", "sin azúcar", "reserva", "joven", "sin alcohol", "con gas"},
             kLitros},
            {"Limpieza",
             21,
             370,
             "botella",
             {"Lavandina", "Detergente", "Suavizante", "Limpiacristales", "Friegasuelos", "Jabón líquido",
              "Quitagrasas", "Desengrasante", "Amoníaco", "Ambientador"},
             {"limón", "pino", "lavanda", "marino", "neutro", "concentrado"},
             kLitros},
            {"Perfumería",
             21,
             540,
             "unidad",
             {"Champú", "Acondicionador", "Gel de baño", "Crema de manos", "Desodorante", "Colonia",
              "Espuma de afeitar", "Pasta dental", "Enjuague bucal", "Protector solar"},
             {"piel sensible", "con aloe", "infantil", "diario", "revitalizante", "sin perfume"},
             kLitros},
            {"Papelería",
             21,
             230,
             "unidad",
             {"Cuaderno rayado", "Cuaderno cuadriculado", "Lápiz", "Bolígrafo", "Rotulador", "Goma de borrar",
              "Carpeta", "Sobre", "Bloc de notas", "Cinta adhesiva"},
             {"azul", "rojo", "negro", "verde", "surtido", "reciclado"},
             kEnvases},
            {"Ferretería",
             21,
             480,
             "unidad",
             {"Tornillo", "Taco", "Bombilla", "Pila", "Cinta aislante", "Candado", "Bisagra", "Enchufe",
              "Brocha", "Lija"},
             {"pequeño", "mediano", "grande", "reforzado", "inoxidable", "económico"},
             kEnvases},
            {"Conservas",
             10,
             280,
             "lata",
             {"Atún", "Sardinas", "Mejillones", "Tomate triturado", "Pimientos", "Espárragos", "Maíz dulce",
              "Aceitunas", "Alcachofas", "Melocotón"},
             {"al natural", "en aceite", "en escabeche", "picante", "bajo en sal", "gran selección"},
             kPesos},
            {"Mascotas",
             21,
             690,
             "bolsa",
             {"Pienso de perro", "Pienso de gato", "Arena", "Premios", "Huesos", "Comida de pájaros",
              "Comida de peces", "Paté de perro", "Paté de gato", "Heno"},
             {"cachorro", "adulto", "sénior", "con pollo", "con salmón", "sin cereales"},
             kPesos},
            {"Libros y prensa",
             0,
             1250,
             "unidad",
             {"Novela", "Cuento infantil", "Libro de cocina", "Atlas", "Diccionario", "Guía de viaje",
              "Poesía", "Libro de texto", "Revista", "Cuaderno de verano"},
             {"de bolsillo", "tapa dura", "ilustrado", "edición escolar", "en letra grande", "anotado"},
             {"tomo 1", "tomo 2", "tomo 3", "tomo 4", "tomo 5", "tomo 6", "tomo 7", "tomo 8"}}};
}

// Takes the next digit of `resto` in base `lista.size()`.
const char *Siguiente(std::int64_t &resto, const std::vector<const char *> &lista) {
    const auto base = static_cast<std::int64_t>(lista.size());
    const char *elegido = lista[static_cast<std::size_t>(resto % base)];
    resto /= base;
    return elegido;
}

// `desfase` makes each family start elsewhere in its combinations.
std::string Nombre(const Familia &familia, int numero, int desfase) {
    const auto combinaciones = static_cast<std::int64_t>(familia.productos.size() * familia.variantes.size() *
                                                         kMarcas.size() * familia.tamanos.size());
    constexpr std::int64_t kPaso = 6151; // prime, so that the walk over the combinations meets each once
    std::int64_t resto = (numero + desfase) % combinaciones * kPaso % combinaciones;
    std::string nombre = Siguiente(resto, familia.productos);
    for (const auto *lista : {&familia.variantes, &kMarcas, &familia.tamanos})
        nombre.append(" ").append(Siguiente(resto, *lista));
    const std::int64_t serie = numero / combinaciones;
    return serie == 0 ? nombre : nombre + " serie " + std::to_string(serie + 1);
}

int PosicionIva(int porcentaje) {
    const auto &tipos = TiposIva();
    const auto hallado = std::find_if(tipos.begin(), tipos.end(),
                                      [&](const TipoIva &t) { return t.porcentaje == porcentaje; });
    return static_cast<int>(hallado - tipos.begin());
}

// A few shelves are empty and a few were sold below zero.
int Existencias(Sorteo &sorteo) {
    if (sorteo.Cae(3))
        return 0;
    return sorteo.Cae(2) ? -sorteo.Entre(1, 4) : sorteo.Entre(3, 240);
}

} // namespace

const std::vector<Familia> &Familias() {
    static const std::vector<Familia> familias = HacerFamilias();
    return familias;
}

const std::vector<TipoIva> &TiposIva() {
    static const std::vector<TipoIva> tipos = {
        {21, "General"}, {10, "Reducido"}, {4, "Superreducido"}, {0, "Exento"}};
    return tipos;
}

char DigitoControl(const std::string &doceDigitos) {
    int suma = 0;
    for (std::size_t i = 0; i < doceDigitos.size(); ++i)
        suma += (doceDigitos[i] - '0') * (i % 2 == 0 ? 1 : 3);
    return static_cast<char>('0' + (10 - suma % 10) % 10);
}

ArticuloMuestra HacerArticulo(int indice, int proveedores, Sorteo &sorteo) {
    const auto &familias = Familias();
    const int clase = indice % static_cast<int>(familias.size());
    const Familia &familia = familias[static_cast<std::size_t>(clase)];
    char texto[32];
    ArticuloMuestra articulo;
    std::snprintf(texto, sizeof texto, "A%06d", indice + 1);
    articulo.codigo = texto;
    std::snprintf(texto, sizeof texto, "7791%08d", indice + 1);
    articulo.codigoBarras = texto;
    articulo.codigoBarras += DigitoControl(articulo.codigoBarras);
    articulo.nombre = Nombre(familia, indice / static_cast<int>(familias.size()), 977 * (clase + 1));
    articulo.descripcion = std::string(familia.categoria) + ": " + articulo.nombre;
    articulo.unidad = familia.unidad;
    articulo.categoria = clase;
    articulo.tipoIva = PosicionIva(familia.iva);
    articulo.proveedor = sorteo.Entre(0, proveedores - 1);
    articulo.precioCentimos = familia.precioCentimos * sorteo.Entre(40, 260) / 100;
    if (sorteo.Cae(40)) // many prices are round
        articulo.precioCentimos = std::max<std::int64_t>(50, articulo.precioCentimos / 50 * 50);
    articulo.compraCentimos = articulo.precioCentimos * sorteo.Entre(55, 78) / 100;
    articulo.stock = Existencias(sorteo);
    articulo.stockMinimo = sorteo.Entre(0, 20);
    return articulo;
}

} // namespace tarvo
