#include "masterdata/listadetalle.h"

#include "desktop/anfitrion.h"
#include "desktop/preguntas.h"
#include "store/errordatos.h"
#include "store/store.h"

#include <algorithm>
#include <utility>

namespace tarvo {

namespace {

std::vector<ColumnaLista> ColumnasDe(const ReglasDetalle &reglas) {
    std::vector<ColumnaLista> columnas;
    for (const ColumnaDetalle &columna : reglas.columnas)
        columnas.push_back(columna.lista);
    return columnas;
}

} // namespace

ListaDetalle::ListaDetalle(FrmBases &frmBases, Preguntas &preguntas, VistaDetalle &vista,
                           ReglasDetalle reglas, Anfitrion *anfitrion)
    : frmBases_(frmBases),
      preguntas_(preguntas),
      vista_(vista),
      reglas_(std::move(reglas)),
      anfitrion_(anfitrion),
      lista_(ColumnasDe(reglas_)) {
    const auto esId = [this](const ColumnaDetalle &columna) { return columna.campo == &reglas_.id; };
    const auto lugar = std::find_if(reglas_.columnas.begin(), reglas_.columnas.end(), esId);
    columnaId_ = static_cast<int>(lugar - reglas_.columnas.begin());
}

ListaDetalle::~ListaDetalle() = default;

// --- list and fields

void ListaDetalle::LlenarLista() {
    try {
        Llenar();
        return;
    } catch (const ErrorDatos &error) {
        lista_.QuedarIlegible();
        QuedarSinFila(EstadoDetalle::Vacia);
        if (!reglas_.callarErrores)
            preguntas_.Mostrar(error.Descripcion(), Icono::Critico);
    }
}

void ListaDetalle::Llenar() {
    indice_.Olvidar();
    idMostrado_.clear();
    Senalar(-1);
    AlLlenar();
    CargarColumnas();
    if (reglas_.cursor.RecordCount() == 0) {
        reglas_.cursor.Abierto() ? lista_.Limpiar() : lista_.QuedarIlegible();
        QuedarSinFila(EstadoDetalle::Vacia);
        return;
    }
    lista_.Asignar(LeerFilas());
    Exportar(true);
    camposGrises_ = false;
    Pasar(EstadoDetalle::Viendo);
    if (lista_.Filas() == 0) {
        VaciarCampos();
        return;
    }
    vista_.SeleccionarFila(0);
    if (reglas_.enfocarAlLlenar)
        vista_.EnfocarLista();
    Mostrar();
}

// All columns in one pass over the table.
void ListaDetalle::CargarColumnas() {
    std::vector<const Campo *> campos = reglas_.apoyo;
    for (const ColumnaDetalle &columna : reglas_.columnas) {
        if (columna.campo != nullptr)
            campos.push_back(columna.campo);
    }
    reglas_.cursor.Cargar(campos);
}

ContenidoLista ListaDetalle::LeerFilas() {
    ContenidoLista contenido;
    for (const ColumnaDetalle &columna : reglas_.columnas)
        contenido.celdas.push_back(columna.campo->Columna());
    return contenido;
}

bool ListaDetalle::Posicionar(const QString &id) {
    if (reglas_.indice.isEmpty())
        return reglas_.cursor.IrAId(id);
    reglas_.cursor.Index(reglas_.indice);
    return reglas_.cursor.Seek(QStringLiteral("="), id);
}

void ListaDetalle::Mostrar() {
    const int fila = vista_.FilaActual();
    if (fila < 0)
        return;
    try {
        const QString id = lista_.Celda(fila, columnaId_);
        if (!Posicionar(id))
            return;
        idMostrado_.clear(); // fields that a failing read leaves half filled belong to no row
        for (std::size_t i = 0; i < reglas_.campos.size(); ++i)
            if (const Campo *campo = reglas_.campos[i].campo)
                vista_.Poner(static_cast<int>(i), AMostrar(static_cast<int>(i), campo->Texto()));
        idMostrado_ = id;
        AlMostrar();
    } catch (const ErrorDatos &) {
        // The row can't be read: the fields stay half filled, as the operator has always seen it.
    }
    SenalarMostrada();
}

// Marked only while another row is the selected one.
void ListaDetalle::SenalarMostrada() {
    const int fila = FilaMostrada();
    Senalar(fila == vista_.FilaActual() ? -1 : fila);
}

// The mark may be scrolled out of sight, so the card says it in words.
void ListaDetalle::Senalar(int fila) {
    lista_.Senalar(fila);
    vista_.TitularFicha(
        fila < 0 ? QString() : QStringLiteral("%1 · %2").arg(lista_.Celda(fila, 0), lista_.Celda(fila, 1)));
}

QString ListaDetalle::AMostrar(int, const QString &guardado) const {
    return guardado;
}

QString ListaDetalle::AGuardar(int campo) const {
    return vista_.Texto(campo);
}

QString ListaDetalle::CeldaGuardada(int columna) const {
    const Campo *campo = reglas_.columnas[static_cast<std::size_t>(columna)].campo;
    for (std::size_t i = 0; i < reglas_.campos.size(); ++i) {
        if (campo != nullptr && reglas_.campos[i].campo == campo)
            return vista_.Texto(static_cast<int>(i));
    }
    return {};
}

// --- states

void ListaDetalle::Pasar(EstadoDetalle estado) {
    estado_ = estado;
    Habilitar();
}

void ListaDetalle::Habilitar() {
    const bool nueva = estado_ == EstadoDetalle::Nueva;
    Habilitados habilitados;
    habilitados.controles = panel_ == PanelDetalle::Ninguno;
    habilitados.lista = !nueva && panel_ != PanelDetalle::Categoria;
    habilitados.campos = nueva || !camposGrises_;
    habilitados.botones = BotonesDelEstado();
    vista_.Habilitar(habilitados);
    AlCambiarEstado();
}

Botones ListaDetalle::BotonesDelEstado() const {
    if (panel_ != PanelDetalle::Ninguno)
        return {};
    const bool nueva = estado_ == EstadoDetalle::Nueva;
    const bool viendo = estado_ == EstadoDetalle::Viendo;
    const bool vacia = estado_ == EstadoDetalle::Vacia || (nueva && desdeVacia_);
    const bool busca = !(vacia && reglas_.vaciaApagaBusqueda);
    return {!nueva, nueva || viendo, viendo, !nueva, nueva, busca, busca};
}

void ListaDetalle::VaciarCampos() {
    for (std::size_t i = 0; i < reglas_.campos.size(); ++i)
        vista_.Poner(static_cast<int>(i), {});
}

void ListaDetalle::QuedarSinFila(EstadoDetalle estado) {
    VaciarCampos();
    camposGrises_ = true;
    Pasar(estado);
}

void ListaDetalle::Nuevo() {
    if (!BotonesDelEstado().nuevo)
        return;
    desdeVacia_ = estado_ == EstadoDetalle::Vacia;
    idMostrado_.clear();
    Senalar(-1);
    for (std::size_t i = 0; i < reglas_.campos.size(); ++i)
        vista_.Poner(static_cast<int>(i), reglas_.campos[i].inicial);
    AlNuevo();
    Pasar(EstadoDetalle::Nueva);
    vista_.EnfocarCampo(0);
}

bool ListaDetalle::AbrirPanel(PanelDetalle panel) {
    const bool permitido = panel == PanelDetalle::Busqueda ? BotonesDelEstado().buscar : !EntradaEnCurso();
    if (panel_ != PanelDetalle::Ninguno || !permitido)
        return false;
    panel_ = panel;
    vista_.AbrirPanel(panel);
    Habilitar();
    return true;
}

void ListaDetalle::CerrarPanel() {
    if (panel_ == PanelDetalle::Ninguno)
        return;
    const PanelDetalle abierto = std::exchange(panel_, PanelDetalle::Ninguno);
    Habilitar();
    vista_.CerrarPanel(abierto);
}

void ListaDetalle::Cancelar() {
    if (BotonesDelEstado().cancelar)
        LlenarLista();
}

void ListaDetalle::Actualizar() {
    if (BotonesDelEstado().actualizar)
        LlenarLista();
}

bool ListaDetalle::PermiteCerrarPrograma() {
    return !EntradaEnCurso() || preguntas_.Confirma(reglas_.preguntaCerrar, Respuesta::No);
}

void ListaDetalle::Exportar(bool posible) {
    if (anfitrion_ != nullptr)
        anfitrion_->PonerExportable(posible);
}

void ListaDetalle::AlCerrar() {
    Exportar(false);
}

// --- search

bool ListaDetalle::Buscar(const QString &texto, const std::vector<bool> &marcadas) {
    std::vector<int> columnas;
    for (std::size_t i = 0; i < marcadas.size(); ++i) {
        if (marcadas[i])
            columnas.push_back(reglas_.columnasBusqueda[i]);
    }
    if (columnas.empty()) {
        preguntas_.Informar(QStringLiteral("Debe seleccionar al menos un criterio de búsqueda."));
        return false;
    }
    if (texto.isEmpty())
        return false;
    const int fila = buscador_.Buscar(lista_, columnas, texto);
    if (fila < 0)
        return false;
    vista_.SeleccionarFila(fila);
    SenalarMostrada();
    return true;
}

} // namespace tarvo
