#include "masterdata/articuloslogica.h"

#include "desktop/preguntas.h"
#include "store/errordatos.h"
#include "store/store.h"

#include <utility>

namespace tarvo {

namespace {

std::vector<CampoDetalle> CamposDe(FrmBases &bases) {
    return {
        {.control = "txtCodigo", .campo = &bases.camArtCodigo, .requerido = QStringLiteral("Código")},
        {.control = "txtCodBarras1", .campo = &bases.camArtCodBarras1},
        {.control = "txtNombre", .campo = &bases.camArtNombre, .requerido = QStringLiteral("Nombre")},
        {.control = "txtDescripcion", .campo = &bases.camArtDescripcion},
        {.control = "txtUnidad", .campo = &bases.camArtUnidad},
        {.control = "txtIdCategoria", .campo = &bases.camArtIdCategoria1},
        {.control = "txtPCompra", .campo = &bases.camArtPCompra},
        {.control = "txtSubtotal", .campo = &bases.camArtSubtotal},
        {.control = "txtIdTipoIVA", .campo = &bases.camArtIdTipoIVA},
        {.control = "txtIdProveedor", .campo = &bases.camArtIdProveedores},
        {.control = "txtStock", .campo = &bases.camArtStock, .inicial = QStringLiteral("0")},
        // Shown and typed in, but never written.
        {.control = "txtStockMin", .campo = &bases.camArtStockMin, .soloMostrar = true},
        {.control = "txtPVenta"},
        {.control = "cboxCategoria"},
        {.control = "cboxTipoIVA"},
        {.control = "cboxProveedor"},
        {.control = "txtAux"},
        {.control = "cboxCategoria2"}, // stands there for its look only
    };
}

ColumnaDetalle Columna(const char *titulo, int ancho, bool derecha, Campo *campo, int legibles = 0) {
    return {{.titulo = QString::fromUtf8(titulo),
             .ancho = ancho,
             .derecha = derecha,
             .oculta = ancho == 0,
             .legibles = legibles},
            campo};
}

std::vector<ColumnaDetalle> ColumnasDe(FrmBases &bases) {
    return {
        Columna("Código", 2381, false, &bases.camArtCodigo, 7),
        Columna("Artículo", 4145, false, &bases.camArtNombre),
        Columna("Stock", 1411, true, &bases.camArtStock),
        Columna("P. Compra", 2117, true, &bases.camArtPCompra),
        Columna("Subtotal", 2117, true, &bases.camArtSubtotal),
        Columna("I.V.A.", 2117, true, nullptr),
        Columna("P. Venta", 2117, true, nullptr),
        Columna("id", 0, false, &bases.camArtId),
        Columna("idCat", 0, false, &bases.camArtIdCategoria1),
    };
}

ReglasDetalle ReglasDe(FrmBases &bases) {
    using namespace columnasArticulos;
    return {
        .cursor = bases.datArticulos,
        .id = bases.camArtId,
        .campos = CamposDe(bases),
        .columnas = ColumnasDe(bases),
        .apoyo = {&bases.camArtIdTipoIVA},
        .columnasBusqueda = {kCodigo, kNombre},
        .duplicados = {{kCodigo, ArticulosLogica::kCodigo,
                        QStringLiteral("El código ingresado ya existe en la base de datos.")},
                       {kNombre, ArticulosLogica::kNombre,
                        QStringLiteral("El nombre del artículo ya existe en la base de datos.")}},
        .indice = QStringLiteral("primarykey"),
        .preguntaModificar =
            QStringLiteral("Está seguro de querer modificar los datos del artículo seleccionado?"),
        .preguntaEliminar =
            QStringLiteral("Está seguro de querer eliminar los datos del artículo seleccionado?"),
        .preguntaCerrar = QStringLiteral("Desea cerrar el programa sin completar el ingreso del artículo?"),
        .vaciaApagaBusqueda = true,
        .nuevoTrasGuardar = true,
    };
}

} // namespace

ArticulosLogica::ArticulosLogica(FrmBases &bases, Preguntas &preguntas, VistaDetalle &vista,
                                 VistaFiltro &vistaFiltro, Anfitrion *anfitrion)
    : ListaDetalle(bases, preguntas, vista, ReglasDe(bases), anfitrion),
      vistaFiltro_(vistaFiltro),
      categorias_(bases.datCategorias, bases.camCatId, {&bases.camCatCodigo, &bases.camCatCategoria}),
      tipos_(bases.datIVA, bases.camIVAId, {&bases.camIVACodigo, &bases.camIVATipo, &bases.camIVAPorcentaje},
             QStringLiteral("%")),
      proveedores_(bases.datProveedores, bases.camProId, {&bases.camProCodigo, &bases.camProNombre}) {}

// --- list and filter

void ArticulosLogica::Cargar() {
    LlenarFiltroCategorias();
    vistaFiltro_.ElegirFiltro(0);
    LlenarListaArticulos(kTodas);
}

void ArticulosLogica::LlenarListaArticulos(int filtro) {
    filtro_ = filtro;
    LlenarLista();
}

ContenidoLista ArticulosLogica::LeerFilas() {
    return LeerArticulos(frmBases(), filtro_);
}

void ArticulosLogica::Actualizar() {
    ListaDetalle::Actualizar();
    if (EntradaEnCurso() || Lista().Filas() > 0)
        return;
    QuedarSinFila(Estado());
    // A filter that hides everything must stay within reach.
    vistaFiltro_.HabilitarFiltro(Panel() == PanelDetalle::Ninguno);
}

void ArticulosLogica::AlCambiarEstado() {
    vistaFiltro_.HabilitarFiltro(!EntradaEnCurso() && HayArticulos() && Panel() == PanelDetalle::Ninguno);
}

// None that can be read: a state changes whatever the table is like.
bool ArticulosLogica::HayArticulos() {
    try {
        return frmBases().datArticulos.RecordCount() > 0;
    } catch (const ErrorDatos &) {
        return false;
    }
}

void ArticulosLogica::AlLlenar() {
    categorias_.Leer();
    tipos_.Leer();
    proveedores_.Leer();
}

void ArticulosLogica::LlenarFiltroCategorias() {
    categorias_.Leer();
    filtros_ = categorias_.Todas();
    filtros_.prepend(QStringLiteral("Sin categoría"));
    filtros_.prepend(QStringLiteral("Todas las categorías"));
    filtros_.append(QStringLiteral("Agregar nueva categoría"));
    vistaFiltro_.PonerFiltros(filtros_);
}

void ArticulosLogica::FiltrarCategoria(int indice) {
    if (EntradaEnCurso() || Panel() != PanelDetalle::Ninguno)
        return;
    if (indice == filtros_.size() - 1) {
        AbrirPanel(PanelDetalle::Categoria);
    } else {
        indiceFiltro_ = indice;
        filtro_ = indice == 0 ? kTodas : kSinCategoria;
        if (indice > 1) // two categories of one label: the first one filters
            filtro_ = categorias_.IdDe(filtros_[indice]).toInt();
    }
    LlenarListaArticulos(filtro_);
    if (Lista().Filas() == 0)
        QuedarSinFila(EstadoDetalle::Vacia);
}

// --- new category

bool ArticulosLogica::CategoriaValida(const QString &codigo, const QString &nombre) {
    if (codigo.isEmpty()) {
        preguntas().InformarRequerido(QStringLiteral("Código"));
        vistaFiltro_.EnfocarCatCodigo();
        return false;
    }
    if (nombre.isEmpty()) {
        preguntas().InformarRequerido(QStringLiteral("Categoría"));
        vistaFiltro_.EnfocarCatCategoria();
        return false;
    }
    for (const QString &entrada : std::as_const(filtros_)) {
        if (!entrada.startsWith(codigo)) // a prefix is enough: 1 is refused beside 12
            continue;
        preguntas().Informar(QStringLiteral("El código ingresado ya existe en la base de datos."));
        vistaFiltro_.EnfocarCatCodigo();
        return false;
    }
    return true;
}

void ArticulosLogica::GuardarCategoria(const QString &codigo, const QString &nombre) {
    if (!CategoriaValida(codigo, nombre))
        return;
    const bool guardada = EnTransaccion(QStringLiteral("categoría"), {codigo, nombre}, [&] {
        FrmBases &bases = frmBases();
        bases.datCategorias.AddNew();
        bases.camCatCodigo = codigo;
        bases.camCatCategoria = nombre;
        bases.datCategorias.Refresh();
    });
    if (!guardada)
        return;
    LlenarFiltroCategorias();
    CerrarPanel();
    vistaFiltro_.ElegirFiltro(0);
    FiltrarCategoria(0);
}

void ArticulosLogica::CancelarCategoria() {
    CerrarPanel();
    vistaFiltro_.ElegirFiltro(indiceFiltro_);
}

// --- combos

void ArticulosLogica::LlenarCategorias() {
    vista().PonerEntradas(kCategoria, categorias_.Todas());
    if (filtro_ == kTodas)
        return;
    vista().Poner(kIdCategoria, QString::number(filtro_));
    vista().Poner(kCategoria, filtros_.value(indiceFiltro_));
}

void ArticulosLogica::LlenarTiposIVA() {
    vista().PonerEntradas(kTipoIVA, tipos_.Todas());
}

void ArticulosLogica::LlenarProveedores() {
    vista().PonerEntradas(kProveedor, proveedores_.Todas());
}

void ArticulosLogica::ElegirSegunId(int combo, int campoId, const Etiquetas &etiquetas) {
    const QString etiqueta = etiquetas.DeId(vista().Texto(campoId));
    if (!etiqueta.isNull())
        vista().Poner(combo, etiqueta);
}

void ArticulosLogica::ElegirCategoria() {
    vista().Poner(kIdCategoria, categorias_.IdDe(vista().Texto(kCategoria)));
}

void ArticulosLogica::ElegirTipoIVA() {
    vista().Poner(kIdTipoIVA, tipos_.IdDe(vista().Texto(kTipoIVA)));
    CalcularPVenta();
}

void ArticulosLogica::ElegirProveedor() {
    vista().Poner(kIdProveedor, proveedores_.IdDe(vista().Texto(kProveedor)));
}

// --- fields

void ArticulosLogica::AlMostrar() {
    LlenarCategorias();
    ElegirSegunId(kCategoria, kIdCategoria, categorias_);
    LlenarTiposIVA();
    ElegirSegunId(kTipoIVA, kIdTipoIVA, tipos_);
    CalcularPVenta();
    LlenarProveedores();
    ElegirSegunId(kProveedor, kIdProveedor, proveedores_);
}

void ArticulosLogica::AlNuevo() {
    LlenarCategorias();
    LlenarTiposIVA();
    LlenarProveedores();
    const QString primero = tipos_.Todas().value(0);
    vista().Poner(kTipoIVA, primero);
    vista().Poner(kIdTipoIVA, tipos_.IdDe(primero));
    const QString cero = frmBases().moneda().FormatoMoneda(QStringLiteral("0"), true);
    vista().Poner(kPCompra, cero);
    vista().Poner(kSubtotal, cero);
    CalcularPVenta();
}

void ArticulosLogica::SalirCodigo() {
    if (vista().Texto(kCodBarras).isEmpty())
        vista().Poner(kCodBarras, vista().Texto(kCodigo));
}

QString ArticulosLogica::SinPrefijo(const QString &monto) const {
    const bool conSimbolo = monto.startsWith(frmBases().sCurrency() + QLatin1Char(' '));
    return conSimbolo ? frmBases().moneda().SinSimbolo(monto) : monto;
}

void ArticulosLogica::EntrarImporte(int campo) {
    entrado_ = SinPrefijo(vista().Texto(campo));
    vista().Poner(campo, entrado_);
}

bool ArticulosLogica::SalirImporte(int campo) {
    const Moneda &moneda = frmBases().moneda();
    QString texto = vista().Texto(campo);
    const QString numero = SinPrefijo(texto);
    const bool intacto = !texto.isEmpty() && texto == std::exchange(entrado_, QString());
    // The reading that knows only a point: what begins with 0, is 0.
    const bool cero = !intacto && Moneda::NumeroNeutro(numero) == 0;
    if (cero)
        texto = QStringLiteral("0");
    vista().Poner(campo, moneda.FormatoMoneda(texto, true));
    if (campo == kSubtotal)
        CalcularPVenta();
    return !cero || Moneda::NumeroGuardado(numero) == 0;
}

void ArticulosLogica::SalirCantidad(int campo) {
    if (vista().Texto(campo).isEmpty())
        vista().Poner(campo, QStringLiteral("0"));
}

void ArticulosLogica::CalcularPVenta() {
    const Moneda &moneda = frmBases().moneda();
    const QString subtotal = SinPrefijo(vista().Texto(kSubtotal));
    if (!Moneda::EsNumero(subtotal)) { // nothing follows from a price that is no number
        vista().Poner(kPVenta, {});
        return;
    }
    const double neto = Moneda::NumeroGuardado(subtotal);
    const double porcentaje = Moneda::NumeroNeutro(vista().Texto(kTipoIVA).right(3));
    vista().Poner(kPVenta, moneda.FormatoMoneda(neto + porcentaje / 100 * neto, true));
}

// A price that came into the table as another text is shown as it is, but nobody types a new one.
bool ArticulosLogica::CamposValidos() {
    for (const int campo : {kPCompra, kSubtotal}) {
        if (Moneda::EsNumero(SinPrefijo(vista().Texto(campo))))
            continue;
        preguntas().Informar(QStringLiteral("El importe ingresado no es un número."));
        vista().EnfocarCampo(campo);
        return false;
    }
    return true;
}

QString ArticulosLogica::AMostrar(int campo, const QString &guardado) const {
    const bool importe = campo == kPCompra || campo == kSubtotal;
    return importe ? frmBases().moneda().FormatoMoneda(guardado, true) : guardado;
}

QString ArticulosLogica::AGuardar(int campo) const {
    QString texto = ListaDetalle::AGuardar(campo);
    if (campo == kIdProveedor) // a supplier that is gone shows as none and is saved as none
        return vista().Texto(kProveedor).isEmpty() ? QString() : texto;
    if (campo != kPCompra && campo != kSubtotal)
        return texto;
    // The field may not have been left: two decimals are there only behind the format.
    const QString monto = SinPrefijo(frmBases().moneda().FormatoMoneda(SinPrefijo(texto), true));
    if (monto.endsWith(QLatin1String("00")))
        return monto.chopped(qMin<qsizetype>(3, monto.size()));
    return monto.endsWith(QLatin1Char('0')) ? monto.chopped(1) : monto;
}

QString ArticulosLogica::CeldaGuardada(int columna) const {
    using namespace columnasArticulos;
    QString pventa = vista().Texto(ArticulosLogica::kPVenta);
    if (columna == columnasArticulos::kPVenta)
        return pventa;
    if (columna == kIva)
        return IvaDe(frmBases().moneda(), pventa, vista().Texto(ArticulosLogica::kSubtotal));
    return ListaDetalle::CeldaGuardada(columna);
}

} // namespace tarvo
