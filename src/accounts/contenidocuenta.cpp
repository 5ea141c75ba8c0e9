#include "accounts/contenidocuenta.h"

#include "accounts/formasmovimiento.h"
#include "accounts/importes.h"
#include "accounts/listascuenta.h"
#include "store/store.h"

#include <algorithm>

namespace tarvo {

namespace {

enum class Signo { Mas, Menos, Cero };

// What a kind of row does to its amounts, and the amount cell that it colours.
struct ReglaTipo {
    std::string_view tipo;
    bool debe = false;
    bool haber = false;
    Signo subtotal = Signo::Cero;
    int columnaTono = 0;
    Tono tono = Tono::Normal;
};
constexpr std::array<ReglaTipo, 5> kTipos{{
    {"Contado", true, true, Signo::Cero, movimiento::Subtotal, Tono::Verde},
    {"Credito", true, false, Signo::Mas, movimiento::Haber, Tono::Azul},
    {"Recibo", false, true, Signo::Menos, movimiento::Subtotal, Tono::Rojo},
    {"DevContado", true, true, Signo::Cero, movimiento::Subtotal, Tono::Verde},
    {"NotaCredito", false, true, Signo::Menos, movimiento::Subtotal, Tono::Rojo},
}};

// Null for a kind that isn't known.
const ReglaTipo *ReglaDe(std::string_view tipo) {
    const auto *const regla = std::ranges::find(kTipos, tipo, &ReglaTipo::tipo);
    return regla == kTipos.end() ? nullptr : regla;
}

Tono TonoDetalle(std::string_view detalle) {
    if (detalle.starts_with("Nota") || detalle.starts_with("Devo"))
        return Tono::Purpura;
    return detalle.starts_with("Recibo") ? Tono::Marron : Tono::Normal;
}

// The rows of a list as they are found in Ventas.
class Filas {
  public:
    Filas(FrmBases &bases, int columnas, std::initializer_list<int> conTono)
        : bases_(bases),
          importes_(bases.moneda()),
          fecha_(bases.camVentFecha.Columna()),
          hora_(bases.camVentHora.Columna()),
          detalle_(bases.camVentDescripcion.Columna()),
          numComp_(bases.camVentNumComp.Columna()) {
        contenido_.celdas.resize(static_cast<std::size_t>(columnas));
        for (const int columna : conTono)
            contenido_.tonos.push_back({columna, {}});
    }

    // The next row, row number `fila` of Ventas: its first four cells, and no tones yet.
    void Nueva(std::int64_t fila) {
        for (TonosColumna &columna : contenido_.tonos)
            columna.tonos.push_back(Tono::Normal);
        Poner(movimiento::Fecha, fecha_.Celda(fila));
        Poner(movimiento::Hora, HoraMovimiento(hora_.Celda(fila), bufer_));
        Poner(movimiento::Detalle, detalle_.Celda(fila));
        Poner(movimiento::NumComp, numComp_.Celda(fila));
    }
    void Poner(int columna, std::string_view texto) {
        contenido_.celdas[static_cast<std::size_t>(columna)].Agregar(texto);
    }
    void PonerFechaOrden(int columna, std::int64_t fila) {
        Poner(columna, FechaOrden(fecha_.Celda(fila), bufer_));
    }
    void PonerId(int columna, std::int64_t fila) {
        Poner(columna, std::to_string(bases_.datVentas.IdDeFila(fila)));
    }
    void PonerMonto(int columna, std::string_view total) {
        monto_.clear();
        importes_.Agregar(monto_, total);
        Poner(columna, monto_);
    }
    // The three amounts of a row of a known kind.
    void PonerMovimiento(const ReglaTipo &regla, std::string_view total) {
        monto_.clear();
        importes_.Agregar(monto_, total);
        Poner(movimiento::Debe, regla.debe ? monto_ : importes_.Cero());
        Poner(movimiento::Haber, regla.haber ? monto_ : importes_.Cero());
        Poner(movimiento::Subtotal, Subtotal(regla.subtotal));
        Tenir(regla.columnaTono, regla.tono);
    }
    void Tenir(int columna, Tono tono) {
        std::ranges::find(contenido_.tonos, columna, &TonosColumna::columna)->tonos.back() = tono;
    }
    std::string_view Detalle(std::int64_t fila) const { return detalle_.Celda(fila); }
    std::string_view SinSimbolo(std::string_view monto) const { return importes_.SinSimbolo(monto); }
    ContenidoLista Entregar() {
        for (ColumnaTexto &columna : contenido_.celdas)
            columna.Ajustar();
        return std::move(contenido_);
    }

  private:
    std::string_view Subtotal(Signo signo) {
        if (signo == Signo::Cero)
            return importes_.Cero();
        bufer_.clear();
        importes_.AgregarConSigno(bufer_, monto_, signo == Signo::Menos ? "-" : "");
        return bufer_;
    }

    FrmBases &bases_;
    Importes importes_;
    const ColumnaTexto &fecha_;
    const ColumnaTexto &hora_;
    const ColumnaTexto &detalle_;
    const ColumnaTexto &numComp_;
    ContenidoLista contenido_;
    std::string bufer_;
    std::string monto_;
};

Filas FilasMovimientos(FrmBases &bases) {
    return {bases, movimiento::Cuantas, {movimiento::Detalle, movimiento::Haber, movimiento::Subtotal}};
}

void CargarVentas(FrmBases &bases, std::initializer_list<const Campo *> ademas) {
    std::vector<const Campo *> campos{&bases.camVentFecha, &bases.camVentHora, &bases.camVentDescripcion,
                                      &bases.camVentNumComp, &bases.camVentTotal};
    campos.insert(campos.end(), ademas);
    bases.datVentas.Cargar(campos);
}

// Which dates and hours lie in the range. Neighbours mostly share their date, so it is judged once for them.
class Periodo {
  public:
    explicit Periodo(const RangoCaja &rango)
        : desde_(rango.desde.toStdString()),
          horaDesde_(rango.horaDesde.toStdString()),
          hasta_(rango.hasta.toStdString()),
          horaHasta_(rango.horaHasta.toStdString()) {}

    bool Contiene(std::string_view fecha, std::string_view hora) {
        if (fecha != fecha_ || !juzgada_)
            Juzgar(fecha);
        if (!dentro_ || (!primero_ && !ultimo_))
            return dentro_;
        const std::string_view h = HoraMovimiento(hora, bufer_);
        return !(primero_ && h < horaDesde_) && !(ultimo_ && h > horaHasta_);
    }

  private:
    void Juzgar(std::string_view fecha) {
        fecha_.assign(fecha);
        juzgada_ = true;
        const std::string_view orden = FechaOrden(fecha, bufer_);
        dentro_ = orden >= desde_ && orden <= hasta_;
        primero_ = orden == desde_;
        ultimo_ = orden == hasta_;
    }

    std::string desde_, horaDesde_, hasta_, horaHasta_;
    std::string fecha_;
    bool juzgada_ = false;
    bool dentro_ = false;
    bool primero_ = false;
    bool ultimo_ = false;
    std::string bufer_;
};

} // namespace

ContenidoLista ContenidoContado(FrmBases &bases) {
    CargarVentas(bases, {&bases.camVentIdCliente});
    const ColumnaTexto &clientes = bases.camVentIdCliente.Columna();
    const ColumnaTexto &totales = bases.camVentTotal.Columna();
    Filas filas(bases, contado::Cuantas, {contado::Detalle});
    for (std::int64_t i = 0; i < clientes.Filas(); ++i) {
        if (clientes.Celda(i) != "0")
            continue;
        filas.Nueva(i);
        if (filas.Detalle(i).starts_with("Devo"))
            filas.Tenir(contado::Detalle, Tono::Purpura);
        filas.PonerMonto(contado::Subtotal, totales.Celda(i));
        filas.PonerId(contado::Id, i);
        filas.PonerFechaOrden(contado::OrdFecha, i);
    }
    return filas.Entregar();
}

// The date to sort by stands under "id" in this list and nothing under "ordFecha": rows come in table order
// until a header is clicked, and a return looks for its invoice by that date, and never finds it.
ContenidoLista ContenidoEstado(FrmBases &bases, const QString &idCliente) {
    CargarVentas(bases, {&bases.camVentIdCliente, &bases.camVentTipo});
    const ColumnaTexto &clientes = bases.camVentIdCliente.Columna();
    const ColumnaTexto &tipos = bases.camVentTipo.Columna();
    const ColumnaTexto &totales = bases.camVentTotal.Columna();
    const std::string cliente = idCliente.toStdString();
    Filas filas = FilasMovimientos(bases);
    for (std::int64_t i = 0; i < clientes.Filas(); ++i) {
        if (clientes.Celda(i) != cliente)
            continue;
        filas.Nueva(i);
        filas.Tenir(movimiento::Detalle, TonoDetalle(filas.Detalle(i)));
        if (const ReglaTipo *regla = ReglaDe(tipos.Celda(i))) {
            filas.PonerMovimiento(*regla, filas.SinSimbolo(totales.Celda(i)));
        } else {
            filas.Poner(movimiento::Debe, {});
            filas.Poner(movimiento::Haber, {});
            filas.PonerId(movimiento::Subtotal, i);
        }
        filas.PonerFechaOrden(movimiento::Id, i);
        filas.Poner(movimiento::OrdFecha, {});
    }
    return filas.Entregar();
}

ContenidoLista ContenidoCaja(FrmBases &bases, const RangoCaja &rango) {
    CargarVentas(bases, {&bases.camVentTipo});
    const ColumnaTexto &fechas = bases.camVentFecha.Columna();
    const ColumnaTexto &horas = bases.camVentHora.Columna();
    const ColumnaTexto &tipos = bases.camVentTipo.Columna();
    const ColumnaTexto &totales = bases.camVentTotal.Columna();
    Periodo periodo(rango);
    Filas filas = FilasMovimientos(bases);
    for (std::int64_t i = 0; i < fechas.Filas(); ++i) {
        if (!periodo.Contiene(fechas.Celda(i), horas.Celda(i)))
            continue;
        filas.Nueva(i);
        filas.Tenir(movimiento::Detalle, TonoDetalle(filas.Detalle(i)));
        if (const ReglaTipo *regla = ReglaDe(tipos.Celda(i))) {
            filas.PonerMovimiento(*regla, totales.Celda(i));
        } else {
            for (const int columna : {movimiento::Debe, movimiento::Haber, movimiento::Subtotal})
                filas.Poner(columna, {});
        }
        filas.PonerId(movimiento::Id, i);
        filas.PonerFechaOrden(movimiento::OrdFecha, i);
    }
    return filas.Entregar();
}

} // namespace tarvo
