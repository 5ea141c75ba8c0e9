#include "masterdata/filasarticulos.h"

#include "store/store.h"

#include <numeric>
#include <unordered_map>
#include <unordered_set>

namespace tarvo {

namespace {

using Filas = std::vector<std::int64_t>;

// Rows of the table that the filter shows, in table order.
Filas FilasCon(FrmBases &bases, int filtro) {
    const ColumnaTexto &categoria = bases.camArtIdCategoria1.Columna();
    std::unordered_set<std::string_view> conocidas;
    for (int i = 0; filtro == kSinCategoria && i < bases.datCategorias.RecordCount(); ++i)
        conocidas.insert(bases.camCatId.Columna().Celda(i));
    Filas filas;
    for (std::int64_t fila = 0; fila < categoria.Filas(); ++fila) {
        const std::string_view id = categoria.Celda(fila);
        if (filtro == kSinCategoria ? !conocidas.contains(id) : Moneda::NumeroNeutro(id) == filtro)
            filas.push_back(fila);
    }
    return filas;
}

// A column of the table as it stands, or only some rows of it.
ColumnaTexto Extraer(const Campo &campo, const Filas *filas) {
    if (filas == nullptr)
        return campo.Columna();
    ColumnaTexto parte;
    parte.Reservar(static_cast<std::int64_t>(filas->size()));
    for (const std::int64_t fila : *filas)
        parte.Agregar(campo.Columna().Celda(fila));
    return parte;
}

// Percentage by `id` of the IVA type.
using Tipos = std::unordered_map<std::string_view, double>;

Tipos LeerTipos(FrmBases &bases) {
    Tipos tipos;
    for (int i = 0; i < bases.datIVA.RecordCount(); ++i)
        tipos.emplace(bases.camIVAId.Columna().Celda(i),
                      Moneda::NumeroGuardado(bases.camIVAPorcentaje.Columna().Celda(i)));
    return tipos;
}

// Turns the stored prices of one article after the other into the four amounts of its list row.
class Tarifador {
  public:
    Tarifador(FrmBases &bases, std::size_t filas) : moneda_(bases.moneda()), tipos_(LeerTipos(bases)) {
        for (ColumnaTexto &columna : montos_)
            columna.Reservar(static_cast<std::int64_t>(filas));
    }

    void Agregar(std::string_view pcompra, std::string_view subtotal, std::string_view idtipoiva) {
        Anotar(0, pcompra);
        Anotar(1, subtotal);
        if (!Moneda::EsNumero(subtotal)) { // nothing follows from a price that is no number
            montos_[2].Agregar({});
            montos_[3].Agregar({});
            return;
        }
        const double neto = moneda_.Numero(moneda_.SinSimbolo(std::string_view(texto_)));
        const double venta = Venta(neto, idtipoiva);
        Anotar(3, venta);
        const double cobrado = moneda_.Numero(moneda_.SinSimbolo(std::string_view(texto_)));
        Anotar(2, cobrado - neto);
    }

    ColumnaTexto Monto(int cual) { return std::move(montos_[cual]); }

  private:
    double Venta(double neto, std::string_view idtipoiva) const {
        const auto tipo = tipos_.find(idtipoiva);
        return tipo == tipos_.end() ? 0 : neto + neto * tipo->second / 100;
    }

    template <typename Valor> void Anotar(int cual, Valor valor) {
        texto_.clear();
        moneda_.AgregarFormato(texto_, valor, true);
        montos_[cual].Agregar(texto_);
    }

    const Moneda &moneda_;
    Tipos tipos_;
    ColumnaTexto montos_[4]; // purchase price, subtotal, IVA, sale price
    std::string texto_;
};

Tono TonoDeStock(double stock) {
    if (stock == 0)
        return Tono::Verde;
    return stock < 0 ? Tono::Rojo : Tono::Azul;
}

} // namespace

ContenidoLista LeerArticulos(FrmBases &bases, int filtro) {
    Filas filas;
    if (filtro != kTodas)
        filas = FilasCon(bases, filtro);
    const Filas *eleccion = filtro == kTodas ? nullptr : &filas;

    const ColumnaTexto stock = Extraer(bases.camArtStock, eleccion);
    const ColumnaTexto &pcompra = bases.camArtPCompra.Columna();
    const ColumnaTexto &subtotal = bases.camArtSubtotal.Columna();
    const ColumnaTexto &tipo = bases.camArtIdTipoIVA.Columna();
    const auto cuantas = static_cast<std::size_t>(stock.Filas());
    Tarifador tarifador(bases, cuantas);
    std::vector<Tono> tonos(cuantas);
    for (std::size_t i = 0; i < cuantas; ++i) {
        const auto orden = static_cast<std::int64_t>(i);
        const std::int64_t fila = eleccion == nullptr ? orden : filas[i];
        tarifador.Agregar(pcompra.Celda(fila), subtotal.Celda(fila), tipo.Celda(fila));
        tonos[i] = TonoDeStock(Moneda::NumeroGuardado(stock.Celda(orden)));
    }
    return {{Extraer(bases.camArtCodigo, eleccion), Extraer(bases.camArtNombre, eleccion), stock,
             tarifador.Monto(0), tarifador.Monto(1), tarifador.Monto(2), tarifador.Monto(3),
             Extraer(bases.camArtId, eleccion), Extraer(bases.camArtIdCategoria1, eleccion)},
            {{columnasArticulos::kStock, std::move(tonos)}}};
}

QString IvaDe(const Moneda &moneda, const QString &pventa, const QString &subtotal) {
    return moneda.FormatoMoneda(moneda.Importe(pventa) - moneda.Importe(subtotal), true);
}

} // namespace tarvo
