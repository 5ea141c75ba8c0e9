// A listing of 10,000 articles as a PDF file, against a bare QPainter that draws the same texts at the same
// places. The program fails when the ratio is over its limit.
#include "pintor.h"

#include "masterdata/listadoscatalogo.h"

#include <QGuiApplication>

using namespace tarvo;
using namespace comparacion;

namespace {

constexpr int kFilas = 10'000;

ListaTexto *Articulos(QObject &padre) {
    std::vector<ColumnaTexto> celdas(6);
    for (int i = 0; i < kFilas; ++i) {
        const std::string n = std::to_string(i);
        celdas[0].Agregar("A" + n);
        celdas[1].Agregar("Artículo número " + n + " de la tienda");
        celdas[2].Agregar(n);
        celdas[3].Agregar("$ " + n + ",50");
        celdas[4].Agregar("$ " + n + ",90");
        celdas[5].Agregar(n);
    }
    auto *lista = new ListaTexto(std::vector<ColumnaLista>(6), &padre);
    lista->Asignar({std::move(celdas)});
    return lista;
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication aplicacion(argc, argv);
    Tabla tabla;
    QObject padre;
    CompararListado(tabla, "listing of 10,000 articles / painter alone",
                    ReporteArticulos(*Articulos(padre)).listado, kFilas);
    return tabla.Resultado();
}
